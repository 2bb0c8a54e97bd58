// The call screen: what the call manager tells, keys, the strip over the contacts, and what is kept.

#include "apps/call/call.h"
#include "callmanager.h"
#include "control/apppayload.h"
#include "message.h"
#include "phonekeys.h"
#include "testcase.h"
#include "testmain.h"
#include "testphone.h"

#include <QDialog>

#include <memory>

using namespace PhoneKeys;

class CallTest : public TestCase
{
    Q_OBJECT

    void setUp() override;
    void tearDown() override;

private slots:
    void theStatesOfACall();
    void whatIsNoStateIsDropped();
    void aNameFromTheContacts();
    void endAsksTheCallManager();
    void escapeHidesAndStartShows();
    void itComesUpOverAModalScreen();
    void overTheContactsItIsAStrip();
    void contactsThatGoBeforeTheAnswer();
    void anotherNumberIsAnotherCall();
    void aPhoneThatGoesOffKeepsTheCall();

private:
    void tell(const QString &state, const QString &number = "5551", const QString &name = "Zoë Łukasik")
    {
        const QString command = "cm2ui_call_state(str,str,str)";
        QByteArray payload;
        QString fault;
        QVERIFY(AppPayload::encode(command, {state, number, name}, &payload, &fault));
        m_call->receiveMsg(command, payload);
    }
    void say(const QString &command) { m_call->receiveMsg(command, QByteArray("")); }
    QString state() const { return m_phone->core.callManager()->callState(); }
    QList<CallRecord> history() const { return m_phone->core.callList()->calls(); }
    static bool strip()
    {
        for (const QWidget *window : TestScreen::windows().windows()) {
            if (window->inherits("CallStrip"))
                return true;
        }
        return false;
    }

    std::unique_ptr<TestPhone> m_phone;
    std::unique_ptr<QDialog> m_below;
    std::unique_ptr<Call> m_call;
};

void CallTest::setUp()
{
    m_phone.reset(new TestPhone);
    m_below.reset(new QDialog(nullptr, Qt::FramelessWindowHint));
    m_below->setGeometry(0, 26, 384, 134);
    m_below->show();
    m_call.reset(new Call);
}

void CallTest::tearDown()
{
    m_call.reset();
    m_below.reset();
    m_phone.reset();
    message_SetObserver({});
}

void CallTest::theStatesOfACall()
{
    for (const char *next : {"DIALING", "ALERT", "CONNECT"}) {
        tell(next);
        QCOMPARE(state(), QString(next));
        QTRY_VERIFY(m_call->isActiveWindow());
        QCOMPARE(m_phone->status.title(), QString("Call"));
        QVERIFY(m_phone->status.presenceIconVisible());
        TestScreen::shot(QString("call-") + QString(next).toLower());
    }
    QVERIFY(history().isEmpty());
    tell("IDLE");
    QCOMPARE(state(), QString("IDLE"));
    QTRY_VERIFY(m_below->isActiveWindow());
    QVERIFY(!m_call->isVisible());
    QVERIFY(!m_phone->status.presenceIconVisible());
    QCOMPARE(history().size(), 1);
    QCOMPARE(history().first().number, QString("5551"));
    QCOMPARE(history().first().name, QString("Zoë Łukasik"));

    tell("DIALING", "77*00", "");
    tell("BUSY", "77*00", "");
    QTRY_VERIFY(m_call->isActiveWindow());
    TestScreen::shot("call-busy");
    tell("IDLE", "77*00", "");
    QCOMPARE(history().size(), 2);
    QCOMPARE(history().first().seconds, 0);
}

void CallTest::whatIsNoStateIsDropped()
{
    expectWarning("no state of a line");
    tell("CONNCECT");
    tell("IDLE", "", "");
    QCOMPARE(state(), QString("IDLE"));
    QVERIFY(!m_call->isVisible());
    QVERIFY(history().isEmpty());
}

void CallTest::aNameFromTheContacts()
{
    m_phone->addContact("Ann", {"+49 89 1"});
    tell("DIALING", "+49891", "");
    QTRY_VERIFY(m_call->isActiveWindow());
    tell("IDLE", "+49891", "");
    QCOMPARE(history().first().name, QString("Ann"));
}

void CallTest::endAsksTheCallManager()
{
    QList<QByteArray> requests;
    message_SetObserver([&requests](const Message &message) { requests.append(message.signature); });
    tell("CONNECT");
    QTRY_VERIFY(m_call->isActiveWindow());
    click(Qt::Key_Context4);
    QCOMPARE(requests, QList<QByteArray>{"ui2cm_svc_hangup()"});
    // The call is there until the call manager says that it is over.
    QVERIFY(m_call->isVisible());
}

void CallTest::escapeHidesAndStartShows()
{
    tell("DIALING");
    QTRY_VERIFY(m_call->isActiveWindow());
    click(Qt::Key_Escape);
    QTRY_VERIFY(m_below->isActiveWindow());
    QVERIFY(!strip());
    tell("CONNECT");
    QCOMPARE(state(), QString("CONNECT"));
    QVERIFY(!m_call->isVisible());
    m_call->start(nullptr, nullptr);
    QTRY_VERIFY(m_call->isActiveWindow());
    m_call->start(nullptr, nullptr);
    QVERIFY(!m_call->isVisible());
    tell("IDLE");
    // Without a call there is nothing to show.
    m_call->start(nullptr, nullptr);
    QVERIFY(!m_call->isVisible());
}

void CallTest::itComesUpOverAModalScreen()
{
    QDialog modal;
    modal.setModal(true);
    QVERIFY(showAndActivate(&modal));
    tell("DIALING");
    QTRY_VERIFY(m_call->isActiveWindow());
    click(Qt::Key_Escape);
    QTRY_VERIFY(modal.isActiveWindow());
}

void CallTest::overTheContactsItIsAStrip()
{
    say("ShowPopup");
    QVERIFY(!strip()); // of no call
    tell("CONNECT");
    QTRY_VERIFY(m_call->isActiveWindow());
    // The contacts open over the call.
    say("m_isContactOpened()");
    QDialog contacts(nullptr, Qt::FramelessWindowHint);
    contacts.setGeometry(0, 26, 384, 134);
    contacts.setModal(true);
    QVERIFY(showAndActivate(&contacts));
    say("ShowPopup");
    QVERIFY(strip());
    QVERIFY(contacts.isActiveWindow());
    QVERIFY(m_phone->status.statusIcon_isCall());
    m_phone->status.setTitle("Contacts | All (150/300)");
    TestScreen::shot("call-strip");
    // The call goes over them, and away from them again.
    m_call->start(nullptr, nullptr);
    QTRY_VERIFY(m_call->isActiveWindow());
    QVERIFY(!strip());
    click(Qt::Key_Escape);
    QTRY_VERIFY(contacts.isActiveWindow());
    QVERIFY(strip());
    // They go, and say whether the strip goes with them.
    say("m_isContactOpenedOff()");
    QVERIFY(strip());
    say("HidePopup");
    QVERIFY(!strip());
    QVERIFY(!m_phone->status.statusIcon_isCall());
    QVERIFY(m_phone->status.presenceIconVisible());

    say("ShowPopup");
    tell("IDLE");
    QVERIFY(!strip());
    QVERIFY(!m_phone->status.presenceIconVisible());
}

void CallTest::contactsThatGoBeforeTheAnswer()
{
    tell("ALERT");
    say("m_isContactOpened()");
    say("ShowPopup");
    QVERIFY(strip());
    say("m_isContactOpenedOff()");
    QVERIFY(!strip());
}

void CallTest::anotherNumberIsAnotherCall()
{
    tell("CONNECT", "1", "");
    QTRY_VERIFY(m_call->isActiveWindow());
    tell("DIALING", "2", "");
    QTRY_VERIFY(m_call->isActiveWindow());
    QCOMPARE(history().size(), 1);
    QCOMPARE(history().first().number, QString("1"));
    QCOMPARE(state(), QString("DIALING"));
}

void CallTest::aPhoneThatGoesOffKeepsTheCall()
{
    tell("CONNECT");
    m_call.reset();
    QCOMPARE(history().size(), 1);
}

PHONE_TEST_MAIN(CallTest)
#include "tst_call.moc"
