#include "apps/call/call.h"
#include "callmanager.h"
#include "neighbourtest.h"

#include <QDialog>

using namespace PhoneKeys;

/// The call screen: what the call manager tells, the strip over the contacts, and what is kept.
class CallTest : public NeighbourTest<Call>
{
    Q_OBJECT

private slots:
    void theStatesOfACall()
    {
        m_phone->addContact("Ann", {"+49 89 1"});
        for (const QString next : {"DIALING", "ALERT", "CONNECT"}) {
            tell(next, "+49891", "");
            QCOMPARE(state(), next);
            QTRY_VERIFY(app()->isActiveWindow());
            QVERIFY(m_phone->status.presenceIconVisible());
            TestScreen::shot("call-" + next.toLower());
        }
        // The call is there until the call manager says that it is over.
        click(Qt::Key_Context4);
        QVERIFY(app()->isVisible() && history().isEmpty());
        tell("IDLE", "+49891", "");
        QCOMPARE(state(), QString("IDLE"));
        QVERIFY(!app()->isVisible() && !m_phone->status.presenceIconVisible());
        QCOMPARE(history().first().name, QString("Ann"));
        tell("IDLE", "", "");
        expectWarning("no state of a line");
        tell("CONNCECT");
        QCOMPARE(state(), QString("IDLE"));
        QVERIFY(!app()->isVisible());
        QCOMPARE(history().size(), 1);
    }

    void hidesAndShows()
    {
        QDialog modal;
        modal.setModal(true);
        QVERIFY(showAndActivate(&modal));
        tell("DIALING");
        QTRY_VERIFY(app()->isActiveWindow());
        click(Qt::Key_Escape);
        QTRY_VERIFY(modal.isActiveWindow());
        tell("CONNECT");
        QVERIFY(!app()->isVisible() && !strip());
        QVERIFY(start());
        app()->start(nullptr, nullptr);
        QVERIFY(!app()->isVisible());
        tell("IDLE");
        app()->start(nullptr, nullptr); // of no call
        QVERIFY(!app()->isVisible());
    }

    void overTheContactsItIsAStrip()
    {
        receive("ShowPopup");
        QVERIFY(!strip()); // of no call
        tell("CONNECT");
        QTRY_VERIFY(app()->isActiveWindow());
        receive("m_isContactOpened()");
        QDialog contacts(nullptr, Qt::FramelessWindowHint);
        contacts.setGeometry(0, 26, 384, 134);
        contacts.setModal(true);
        QVERIFY(showAndActivate(&contacts));
        receive("ShowPopup");
        QVERIFY(strip() && m_phone->status.statusIcon_isCall());
        QTRY_VERIFY(contacts.isActiveWindow());
        TestScreen::shot("call-strip");
        // The call goes over them, and away from them again.
        QVERIFY(start() && !strip());
        click(Qt::Key_Escape);
        QTRY_VERIFY(contacts.isActiveWindow());
        QVERIFY(strip());
        // They go, and say whether the strip goes with them.
        receive("m_isContactOpenedOff()");
        QVERIFY(strip());
        receive("HidePopup");
        QVERIFY(!strip() && !m_phone->status.statusIcon_isCall() && m_phone->status.presenceIconVisible());
        receive("ShowPopup");
        tell("IDLE");
        QVERIFY(!strip() && !m_phone->status.presenceIconVisible());
        // They may go before the answer.
        tell("ALERT");
        receive("m_isContactOpened()");
        receive("ShowPopup");
        QVERIFY(strip());
        receive("m_isContactOpenedOff()");
        QVERIFY(!strip());
    }

    void anotherNumberIsAnotherCall()
    {
        tell("CONNECT", "1", "");
        tell("DIALING", "2", "");
        QTRY_VERIFY(app()->isActiveWindow());
        QCOMPARE(history().size(), 1);
        QCOMPARE(history().first().number, QString("1"));
        QCOMPARE(state(), QString("DIALING"));
        m_screen.reset(); // the phone goes off
        QCOMPARE(history().size(), 2);
    }

private:
    void tell(const QString &state, const QString &number = "5551", const QString &name = "Zoë Łukasik")
    {
        receive("cm2ui_call_state(str,str,str)", {state, number, name});
    }
    QString state() const { return m_phone->core.callManager()->callState(); }
    QList<CallRecord> history() const { return m_phone->core.callList()->calls(); }
    static bool strip()
    {
        const QList<QWidget *> windows = TestScreen::windows().windows();
        return std::any_of(windows.begin(), windows.end(),
                           [](const QWidget *window) { return window->inherits("CallStrip"); });
    }
};

PHONE_TEST_MAIN(CallTest)
#include "tst_call.moc"
