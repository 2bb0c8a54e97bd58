// The call screen: what the call manager tells, the strip over the contacts, and what is kept.

#include "apps/call/call.h"
#include "callmanager.h"
#include "neighbourtest.h"

#include <QDialog>

using namespace PhoneKeys;

class CallTest : public NeighbourTest<Call>
{
    Q_OBJECT

    void setUp() override
    {
        NeighbourTest::setUp();
        m_below.reset(new QDialog(nullptr, Qt::FramelessWindowHint));
        m_below->setGeometry(0, 26, 384, 134);
        m_below->show();
    }
    void tearDown() override
    {
        NeighbourTest::tearDown();
        m_below.reset();
    }

private slots:
    void theStatesOfACall();
    void whatIsNoStateIsDropped();
    void aNameFromTheContacts();
    void hidesAndShows();
    void overTheContactsItIsAStrip();
    void contactsThatGoBeforeTheAnswer();
    void anotherNumberIsAnotherCall();

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

    std::unique_ptr<QDialog> m_below;
};

void CallTest::theStatesOfACall()
{
    for (const char *next : {"DIALING", "ALERT", "CONNECT"}) {
        tell(next);
        QCOMPARE(state(), QString(next));
        QTRY_VERIFY(app()->isActiveWindow());
        QVERIFY(m_phone->status.presenceIconVisible());
        TestScreen::shot(QString("call-") + QString(next).toLower());
    }
    sent();
    click(Qt::Key_Context4);
    QCOMPARE(sent(), QStringList{"CM ui2cm_svc_hangup()"});
    // The call is there until the call manager says that it is over.
    QVERIFY(app()->isVisible() && history().isEmpty());
    tell("IDLE");
    QCOMPARE(state(), QString("IDLE"));
    QTRY_VERIFY(m_below->isActiveWindow());
    QVERIFY(!app()->isVisible());
    QVERIFY(!m_phone->status.presenceIconVisible());
    QCOMPARE(history().size(), 1);
    QCOMPARE(history().first().number + history().first().name, QString("5551Zoë Łukasik"));

    tell("DIALING", "77*00", "");
    tell("BUSY", "77*00", "");
    QTRY_VERIFY(app()->isActiveWindow());
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
    QVERIFY(!app()->isVisible() && history().isEmpty());
}

void CallTest::aNameFromTheContacts()
{
    m_phone->addContact("Ann", {"+49 89 1"});
    tell("DIALING", "+49891", "");
    QTRY_VERIFY(app()->isActiveWindow());
    tell("IDLE", "+49891", "");
    QCOMPARE(history().first().name, QString("Ann"));
}

void CallTest::hidesAndShows()
{
    QDialog modal;
    modal.setModal(true);
    QVERIFY(showAndActivate(&modal));
    tell("DIALING");
    QTRY_VERIFY(app()->isActiveWindow());
    click(Qt::Key_Escape);
    QTRY_VERIFY(modal.isActiveWindow());
    tell("CONNECT");
    QCOMPARE(state(), QString("CONNECT"));
    QVERIFY(!app()->isVisible() && !strip());
    QVERIFY(start());
    app()->start(nullptr, nullptr);
    QVERIFY(!app()->isVisible());
    tell("IDLE");
    app()->start(nullptr, nullptr); // of no call
    QVERIFY(!app()->isVisible());
}

void CallTest::overTheContactsItIsAStrip()
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
    m_phone->status.setTitle("Contacts | All (150/300)");
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
}

void CallTest::contactsThatGoBeforeTheAnswer()
{
    tell("ALERT");
    receive("m_isContactOpened()");
    receive("ShowPopup");
    QVERIFY(strip());
    receive("m_isContactOpenedOff()");
    QVERIFY(!strip());
}

void CallTest::anotherNumberIsAnotherCall()
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

PHONE_TEST_MAIN(CallTest)
#include "tst_call.moc"
