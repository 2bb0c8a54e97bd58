// The call manager as a process: datagrams in, states of the call out over the peers' socket.

#include "control/apppayload.h"
#include "message.h"
#include "peerserver.h"
#include "testcase.h"
#include "testmain.h"
#include "testphone.h"
#include "tocmsocket.h"

#include <QProcess>
#include <QSettings>
#include <QUdpSocket>

#include <memory>

/// The application that hears of calls.
class ListeningCall final : public BaseAppInterface
{
public:
    ListeningCall() : BaseAppInterface("call", nullptr) { }
    ~ListeningCall() = default;

    bool start(QWidget *, void *) override { return true; }
    void end() override { }
    void receiveMsg(const QString &command, const QByteArray &payload) override
    {
        QStringList words;
        for (const QVariant &item : AppPayload::decode(command, payload))
            words.append(item.toString());
        states.append(words.join(' ').trimmed());
    }

    QStringList states;
};

class CmTest : public TestCase
{
    Q_OBJECT

    void setUp() override;
    void tearDown() override;

private slots:
    void aCall_data();
    void aCall();
    void hangingUp();
    void anotherCallIsRefused();
    void conferenceAndTransfer();
    void namesInTheCharsetOfThePhone();
    void whatIsNoRequest();
    void aPortThatIsTaken();

private:
    bool startManager();
    void send(const QByteArray &datagram) { QUdpSocket().writeDatagram(datagram, QHostAddress::LocalHost, m_port); }
    static QByteArray directory(const QByteArray &mode, const QByteArray &number)
    {
        return message_MakeFromValues({"CM/UI", "ui2cm_svc_directory(int,str,str)", {-1, mode, number}});
    }
    static QByteArray dialer(const QByteArray &mode, const QByteArray &number, const QByteArray &name,
                             const QByteArray &callMode = "AUDIO")
    {
        return message_MakeFromValues(
            {"CM/UI", "ui2cm_svc_dialer(int,str,str,str,str,int,int)", {0, mode, number, name, callMode, 2, -1}});
    }
    /// Whether the manager writes this into its log.
    bool logs(const QByteArray &text);

    std::unique_ptr<TestPhone> m_phone;
    std::unique_ptr<PeerServer> m_server;
    std::unique_ptr<ListeningCall> m_call;
    std::unique_ptr<QProcess> m_manager;
    QByteArray m_log;
    quint16 m_port = 0;
};

void CmTest::setUp()
{
    m_phone.reset(new TestPhone);
    m_phone->writeFile("config/cm.conf", "[Dial]\nAlertTime=20\nAnswerTime=20\nBusyTime=20\n");
    m_server.reset(new PeerServer);
    QVERIFY(m_server->listen(m_phone->home.peerSocket()));
    m_call.reset(new ListeningCall);
    m_log.clear();
    QVERIFY(startManager());
}

void CmTest::tearDown()
{
    m_manager->kill();
    m_manager->waitForFinished();
    m_manager.reset();
    m_call.reset();
    m_server.reset();
    m_phone.reset();
}

bool CmTest::startManager()
{
    m_manager.reset(new QProcess);
    m_manager->start(PHONE_PROGRAMS "/cm", {"--home", m_phone->home.root(), "--port", "0"});
    while (!m_manager->canReadLine()) {
        if (!m_manager->waitForReadyRead())
            return false;
    }
    m_port = m_manager->readLine().trimmed().toUShort();
    // Where those who send to it look.
    QSettings(m_phone->home.path("config/ipc.conf"), QSettings::IniFormat).setValue("CM/Port", m_port);
    return m_port != 0;
}

bool CmTest::logs(const QByteArray &text)
{
    return QTest::qWaitFor([&] {
        m_log += m_manager->readAllStandardError();
        return m_log.contains(text);
    });
}

void CmTest::aCall_data()
{
    QTest::addColumn<QByteArray>("request");
    QTest::addColumn<QStringList>("states");
    const auto row = [](const QByteArray &request, const QStringList &states) {
        QTest::newRow(qPrintable(states.last())) << request << states;
    };
    row(dialer("NORMAL", "5551", "Zoë"), {"DIALING 5551 Zoë", "ALERT 5551 Zoë", "CONNECT 5551 Zoë"});
    row(dialer("NORMAL", "5*00", "Zoë"), {"DIALING 5*00 Zoë", "BUSY 5*00 Zoë", "IDLE 5*00 Zoë"});
    row(dialer("NORMAL", "500", ""), {"DIALING 500", "ALERT 500", "CONNECT 500"}); // round hundreds are not busy
    row(directory("NEW_CALL", "+49 89"), {"DIALING +49 89", "ALERT +49 89", "CONNECT +49 89"});
}

void CmTest::aCall()
{
    QFETCH(QByteArray, request);
    QFETCH(QStringList, states);
    send(request);
    QTRY_COMPARE(m_call->states.size(), states.size());
    QCOMPARE(m_call->states, states);
}

void CmTest::hangingUp()
{
    ToCMSocket::sendUI2CMSvcHangup(); // of nothing
    ToCMSocket::sendUI2CMSvcDialer(0, "NORMAL", "1", "", "AUDIO", 2, -1);
    QTRY_COMPARE(m_call->states.value(2), QString("CONNECT 1"));
    ToCMSocket::sendUI2CMSvcHangup();
    QTRY_COMPARE(m_call->states.value(3), QString("IDLE 1"));
    // One that is not answered yet can be left too, and nobody answers it then.
    m_phone->writeFile("config/cm.conf", "[Dial]\nAlertTime=60000\n");
    send(directory("NEW_CALL", "2"));
    ToCMSocket::sendUI2CMSvcHangup();
    QTRY_COMPARE(m_call->states.mid(4), (QStringList{"DIALING 2", "IDLE 2"}));
}

void CmTest::anotherCallIsRefused()
{
    send(directory("NEW_CALL", "1"));
    send(directory("NEW_CALL", "2"));
    QVERIFY(logs("A call was refused: another is under way"));
    QTRY_COMPARE(m_call->states, (QStringList{"DIALING 1", "ALERT 1", "CONNECT 1"}));
}

void CmTest::conferenceAndTransfer()
{
    send(directory("COA_CONF", "3"));
    QVERIFY(logs("there is no conversation"));
    send(dialer("NORMAL", "1", "Ann"));
    QTRY_COMPARE(m_call->states.size(), 3);
    send(directory("COA_CONF", "3"));
    QTRY_COMPARE(m_call->states.value(3), QString("CONNECT 1 Ann, 3"));
    send(directory("SEMI_BLIND_XFER", "4"));
    QTRY_COMPARE(m_call->states.value(4), QString("IDLE 1 Ann, 3"));
}

void CmTest::namesInTheCharsetOfThePhone()
{
    m_manager->kill();
    m_manager->waitForFinished();
    m_phone->writeFile("config/system.conf", "[System]\nCharset=euc-kr\n");
    QVERIFY(startManager());
    send(dialer("NORMAL", "1", "\xb1\xe8")); // 김
    QTRY_COMPARE(m_call->states.value(0), QString("DIALING 1 김"));
}

void CmTest::whatIsNoRequest()
{
    const QByteArray good = directory("NEW_CALL", "1");
    const QList<QPair<QByteArray, QByteArray>> faults = {
        {QByteArray(), "it is no message"},
        {QByteArray("\x00\xff\x00 garbage", 11), "it is no message"},
        {good.chopped(1), "it is no message"},
        {good + "x", "it is no message"},
        {directory("NEW_CALL", QByteArray(5000, '1')), "it is no message"},
        {QByteArray(good).replace("CM/UI", "XCID/UI"), "it is not for the call manager"},
        {message_MakeFromValues({"CM/UI", "ui2cm_svc_dialer(str)", {QByteArray("1")}}), "there is no such request"},
        {dialer("NORMAL", "nobody", ""), "there is nothing to dial"},
        {dialer("", "1", ""), "there is no such dial mode"},
        {dialer("NORMAL", "1", "", "VIDEO"), "there is no such call mode"},
        {directory("OTHER", "1"), "there is no such directory mode"},
    };
    for (const auto &fault : faults) {
        m_log.clear();
        send(fault.first);
        QVERIFY2(logs("A datagram was dropped: " + fault.second), fault.second.constData());
    }
    // It still serves, and nothing came of the others.
    send(directory("NEW_CALL", "7"));
    QTRY_COMPARE(m_call->states.value(0), QString("DIALING 7"));
}

void CmTest::aPortThatIsTaken()
{
    QProcess second;
    second.start(PHONE_PROGRAMS "/cm", {"--home", m_phone->home.root()});
    QVERIFY(second.waitForFinished());
    QCOMPARE(second.exitCode(), 1);
    QVERIFY(second.readAllStandardError().contains("cannot be used"));
}

PHONE_TEST_MAIN(CmTest)
#include "tst_cm.moc"
