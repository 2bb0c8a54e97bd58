#include "screentest.h"

#include <QKeyEvent>
#include <QPointer>
#include <QSettings>
#include <QTimer>

using namespace PhoneKeys;

class BaseWidgetTest : public ScreenTest
{
    Q_OBJECT

private slots:
    void fillsTheDisplayBelowTheStatusBar()
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

    void aRetiredScreenOutlivesLoopsOfItsHandlers()
    {
        const QPointer<KeyScreen> screen = new KeyScreen("Retired");
        QVERIFY(showAndActivate(screen));
        QEventLoop handler;
        QTimer::singleShot(0, screen, [screen] { screen->retire(); });
        QTimer::singleShot(100, &handler, &QEventLoop::quit);
        handler.exec();
        QVERIFY(screen && !screen->isVisible());
        QTRY_VERIFY(!screen);
    }

    void otherKeysKeepTheirAcceptState()
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
