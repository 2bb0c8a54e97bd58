#include "screentest.h"

#include <QKeyEvent>
#include <QSettings>

using namespace PhoneKeys;

class BaseWidgetTest : public ScreenTest
{
    Q_OBJECT

private slots:
<<<<<<< HEAD
    void fillsTheDisplayBelowTheStatusBar();
    void escapeClosesOnceAtTheRelease();
    void otherKeysKeepTheirAcceptState();
    void theTitleComesBack();
    void execReturnsWhenClosedFromOutside();
    void aRetiredScreenOutlivesLoopsOfItsHandlers();
    void locksShowAsTheSettingsSay_data();
    void locksShowAsTheSettingsSay();

private:
    std::unique_ptr<TestPhone> m_phone;
};

void BaseWidgetTest::fillsTheDisplayBelowTheStatusBar()
{
    Screen screen("One");
    QVERIFY(showAndActivate(&screen));
    QCOMPARE(screen.geometry(), QRect(0, 26, 384, 134));
    screen.setBgColor(Qt::yellow);
    const QImage picture = TestScreen::picture();
    QCOMPARE(picture.pixelColor(0, 26), QColor(Qt::yellow));
    QCOMPARE(picture.pixelColor(383, 159), QColor(Qt::yellow));
    QVERIFY(picture.pixelColor(383, 25) != QColor(Qt::yellow));
}

void BaseWidgetTest::escapeClosesOnceAtTheRelease()
{
    Screen screen("One");
    QVERIFY(showAndActivate(&screen));
    press(Qt::Key_Escape);
    QVERIFY(screen.isVisible());
    release(Qt::Key_Escape);
    QVERIFY(!screen.isVisible());
    QCOMPARE(screen.closes, 1);
}

void BaseWidgetTest::otherKeysKeepTheirAcceptState()
{
    Screen screen("One");
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        for (const bool accepted : {false, true}) {
            QKeyEvent event(type, Qt::Key_5, Qt::NoModifier);
            event.setAccepted(accepted);
            QCoreApplication::sendEvent(&screen, &event);
            QCOMPARE(event.isAccepted(), accepted);
        }
    }
}

void BaseWidgetTest::theTitleComesBack()
{
    Screen below("Below");
    QVERIFY(showAndActivate(&below));
    QCOMPARE(m_phone->status.title(), QString("Below"));
=======
    void fillsTheDisplayBelowTheStatusBar()
>>>>>>> trimkit
    {
        const QColor yellow(Qt::yellow);
        m_screen->setBgColor(yellow);
        const QImage picture = TestScreen::picture();
        QCOMPARE(picture.pixelColor(0, 26), yellow);
        QCOMPARE(picture.pixelColor(383, 159), yellow);
        QVERIFY(picture.pixelColor(383, 25) != yellow);
    }

    void escapeClosesAtTheReleaseAndTheTitleComesBack()
    {
        KeyScreen above("Above");
        QVERIFY(showAndActivate(&above));
        QCOMPARE(m_phone->status.title(), QString("Above"));
        press(Qt::Key_Escape);
        QVERIFY(above.isVisible());
        release(Qt::Key_Escape);
        QVERIFY(!above.isVisible());
        QTRY_COMPARE(m_phone->status.title(), QString("Screen"));
        QVERIFY(m_screen->isVisible() && m_screen->list->hasFocus());
    }

<<<<<<< HEAD
void BaseWidgetTest::execReturnsWhenClosedFromOutside()
{
    Screen screen("One");
    QTimer::singleShot(0, &screen, [&screen] { screen.close(); });
    QCOMPARE(screen.exec(), int(QDialog::Rejected));
}

void BaseWidgetTest::aRetiredScreenOutlivesLoopsOfItsHandlers()
{
    const QPointer<Screen> screen = new Screen("One");
    QVERIFY(showAndActivate(screen));
    QEventLoop handler;
    QTimer::singleShot(0, screen, [screen] { screen->retire(); });
    QTimer::singleShot(100, &handler, &QEventLoop::quit);
    handler.exec();
    QVERIFY(screen && !screen->isVisible());
    QTRY_VERIFY(!screen);
}

void BaseWidgetTest::locksShowAsTheSettingsSay_data()
{
    QTest::addColumn<int>("systemType");
    QTest::addColumn<bool>("menuPassword");
    QTest::addColumn<int>("callLock");
    QTest::addColumn<int>("changes");
    QTest::newRow("nothing locked") << 1 << false << 0 << 0;
    QTest::newRow("menu") << 1 << true << 0 << 1;
    QTest::newRow("menu and calls") << 1 << true << 2 << 2;
    QTest::newRow("a system without call lock") << 2 << false << 1 << 0;
}

void BaseWidgetTest::locksShowAsTheSettingsSay()
{
    QFETCH(int, systemType);
    QFETCH(bool, menuPassword);
    QFETCH(int, callLock);
=======
    void otherKeysKeepTheirAcceptState()
>>>>>>> trimkit
    {
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            for (const bool accepted : {false, true}) {
                QKeyEvent event(type, Qt::Key_5, Qt::NoModifier);
                event.setAccepted(accepted);
                QCoreApplication::sendEvent(m_screen.get(), &event);
                QCOMPARE(event.isAccepted(), accepted);
            }
        }
    }

    void closedFromOutsideItTakesItsBoxesAlong()
    {
        KeyScreen screen;
        int answer = StillOpen;
        const int result = runBox(screen, [&] {
            QDialog question(&screen);
            answer = runBox(question, [&] { screen.close(); });
        });
        QCOMPARE(answer, int(QDialog::Rejected));
        QCOMPARE(result, int(QDialog::Rejected));
    }

    void locksShowAsTheSettingsSay()
    {
        // Of a system with a call lock and of one without.
        const struct
        {
            int systemType;
            bool menu;
            int callLock, changes;
        } locks[] = {{1, false, 0, 0}, {1, true, 0, 1}, {1, true, 2, 1}, {2, true, 2, 1}};
        for (const auto &lock : locks) {
            QSettings system(m_phone->core.configFileName(SystemConfig), QSettings::IniFormat);
            system.setValue("System/Type", lock.systemType);
            system.setValue("Menu_Password/enable", lock.menu);
            system.setValue("Security/CallLock", lock.callLock);
            system.sync();
            QSignalSpy changes(&m_phone->status, &Status::statusInfoChanged);
            m_screen->updateStatus();
            QCOMPARE(changes.size(), lock.changes);
        }
    }
};

PHONE_TEST_MAIN(BaseWidgetTest)
#include "tst_basewidget.moc"
