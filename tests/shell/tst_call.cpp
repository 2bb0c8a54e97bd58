#include "apps/call/call.h"
#include "apps/history/history.h"
#include "callmanager.h"
#include "message.h"
#include "neighbourtest.h"

#include <QDialog>

using namespace PhoneKeys;

/// The call screen: what the call manager tells, the strip over the contacts, and what the history keeps.
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
        QTRY_VERIFY(contacts.isActiveWindow() && strip());
        // They go, and say whether the strip goes with them.
        receive("m_isContactOpenedOff()");
        QVERIFY(strip());
        receive("HidePopup");
        QVERIFY(!strip() && !m_phone->status.statusIcon_isCall() && m_phone->status.presenceIconVisible());
        receive("ShowPopup");
        tell("IDLE");
        QVERIFY(!strip() && !m_phone->status.presenceIconVisible());
    }

    void anotherNumberIsAnotherCall()
    {
        tell("CONNECT", "1", "");
        tell("DIALING", "2", "");
        QCOMPARE(history().size(), 1);
        QCOMPARE(history().first().number, QString("1"));
        QCOMPARE(state(), QString("DIALING"));
        m_screen.reset(); // the phone goes off
        QCOMPARE(history().size(), 2);
    }

    void theHistoryCallsWithTheNameInThePhonesCharset()
    {
        const QDateTime now = QDateTime::currentDateTime();
        for (const CallRecord &call :
             QList<CallRecord>{{"5551", "Zoë Łukasik", CallRecord::Outgoing, now.addDays(-4), 75},
                               {"5552", "김철수", CallRecord::Missed, now.addDays(-3), 0},
                               {"5553", "", CallRecord::Incoming, now.addSecs(-120), 8},
                               {"5551", "Zoë Łukasik", CallRecord::Outgoing, now.addSecs(-60), 3725}})
            m_phone->core.callList()->addCall(call);
        m_phone->writeFile("config/system.conf", "[System]\nCharset=euc-kr\n");
        History screen;
        screen.start(nullptr, nullptr);
        QVERIFY(isOpen(&screen));
        QCOMPARE(rows(&screen), (QStringList{"Zoë Łukasik", "5553", "김철수", "Zoë Łukasik"}));
        TestScreen::shot("history");
        QVariantList request;
        message_SetObserver([&request](const Message &message) { request = message.arguments; });
        clickAll({Qt::Key_Down, Qt::Key_Down, Qt::Key_Return});
        message_SetObserver({});
        QCOMPARE(request.mid(2, 2), (QVariantList{QByteArray("5552"), QByteArray("\xb1\xe8\xc3\xb6\xbc\xf6")}));
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
