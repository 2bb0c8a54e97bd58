#include "screentest.h"

#include <QKeyEvent>
#include <QSettings>

using namespace PhoneKeys;

struct Locks
{
    int systemType;
    bool menuPassword;
    int callLock;
    int changes;
};
Q_DECLARE_METATYPE(Locks)

class BaseWidgetTest : public ScreenTest
{
    Q_OBJECT

private slots:
    void fillsTheDisplayBelowTheStatusBar();
    void escapeClosesAtTheReleaseAndTheTitleComesBack();
    void otherKeysKeepTheirAcceptState();
    void closedFromOutsideItTakesItsBoxesAlong();
    void locksShowAsTheSettingsSay_data();
    void locksShowAsTheSettingsSay();
};

void BaseWidgetTest::fillsTheDisplayBelowTheStatusBar()
{
    const QColor yellow(Qt::yellow);
    m_screen->setBgColor(yellow);
    const QImage picture = TestScreen::picture();
    QCOMPARE(picture.pixelColor(0, 26), yellow);
    QCOMPARE(picture.pixelColor(383, 159), yellow);
    QVERIFY(picture.pixelColor(383, 25) != yellow);
}

void BaseWidgetTest::escapeClosesAtTheReleaseAndTheTitleComesBack()
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

void BaseWidgetTest::otherKeysKeepTheirAcceptState()
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

void BaseWidgetTest::closedFromOutsideItTakesItsBoxesAlong()
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

void BaseWidgetTest::locksShowAsTheSettingsSay_data()
{
    addCases<Locks>({{"nothing locked", {1, false, 0, 0}},
                     {"menu", {1, true, 0, 1}},
                     {"menu and calls", {1, true, 2, 2}},
                     {"a system without call lock", {2, false, 1, 0}}});
}

void BaseWidgetTest::locksShowAsTheSettingsSay()
{
    QFETCH(Locks, c);
    {
        QSettings system(m_phone->core.configFileName(SystemConfig), QSettings::IniFormat);
        system.setValue("System/Type", c.systemType);
        system.setValue("Menu_Password/enable", c.menuPassword);
        system.setValue("Security/CallLock", c.callLock);
    }
    QSignalSpy changes(&m_phone->status, &Status::statusInfoChanged);
    m_screen->updateStatus();
    QCOMPARE(changes.size(), c.changes);
}

PHONE_TEST_MAIN(BaseWidgetTest)
#include "tst_basewidget.moc"
