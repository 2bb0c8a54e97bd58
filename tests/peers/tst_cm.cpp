// The call manager as a process: datagrams in, states of the call out over the peers' socket.

#include "message.h"
#include "peertest.h"
#include "tocmsocket.h"

#include <QUdpSocket>

class CmTest : public PeerTest
{
    Q_OBJECT

    void setUp() override
    {
        makePhone("call");
        m_phone->writeFile("config/cm.conf", "[Dial]\nAlertTime=20\nAnswerTime=20\nBusyTime=20\n");
        QVERIFY(startPeer("cm"));
    }

private slots:
    void calls()
    {
        // Of an application, and of a directory; round hundreds are not busy.
        for (const auto &[request, number] : {std::pair(dialer("NORMAL", "5551", "Zoë"), QString("5551 Zoë")),
                                              {directory("NEW_CALL", "+500"), "+500"}}) {
            m_app->heard.clear();
            send(request);
            QTRY_COMPARE(m_app->heard.join(", "), QString("DIALING %1, ALERT %1, CONNECT %1").arg(number));
            ToCMSocket::sendUI2CMSvcHangup();
            QTRY_COMPARE(m_app->heard.last(), "IDLE " + number);
        }
    }

    /// One that is not answered yet can be left, and nobody answers it then.
    void hangingUp()
    {
        ToCMSocket::sendUI2CMSvcHangup(); // of nothing
        m_phone->writeFile("config/cm.conf", "[Dial]\nAlertTime=60000\n");
        ToCMSocket::sendUI2CMSvcDialer(0, "NORMAL", "1", "", "AUDIO", 2, -1);
        ToCMSocket::sendUI2CMSvcHangup();
        QTRY_COMPARE(m_app->heard, (QStringList{"DIALING 1", "IDLE 1"}));
    }

    void anotherCallIsRefused()
    {
        send(directory("NEW_CALL", "1"));
        send(directory("NEW_CALL", "2"));
        QVERIFY(logs("A call was refused: another is under way"));
        QTRY_COMPARE(m_app->heard, (QStringList{"DIALING 1", "ALERT 1", "CONNECT 1"}));
    }

    void namesInTheCharsetOfThePhone()
    {
        m_peer->kill();
        m_peer->waitForFinished();
        m_phone->writeFile("config/system.conf", "[System]\nCharset=euc-kr\n");
        QVERIFY(startPeer("cm"));
        send(dialer("NORMAL", "1", "\xb1\xe8")); // 김
        QTRY_COMPARE(m_app->heard.value(0), QString("DIALING 1 김"));
    }

    void whatIsNoRequest()
    {
        const QByteArray good = directory("NEW_CALL", "1");
        const QList<QPair<QByteArray, QByteArray>> datagrams
            = {{"", "it is no message"},
               {good + "x", "it is no message"},
               {directory("NEW_CALL", QByteArray(5000, '1')), "it is no message"},
               {QByteArray(good).replace("CM/UI", "XCID/UI"), "it is for another process"},
               {message_MakeFromValues({"CM/UI", "ui2cm_svc_dialer(str)", {QByteArray("1")}}),
                "there is no such request"},
               {dialer("NORMAL", "nobody", ""), "there is nothing to dial"},
               {dialer("", "1", ""), "there is no such dial mode"},
               {dialer("NORMAL", "1", "", "VIDEO"), "there is no such call mode"},
               {directory("OTHER", "1"), "there is no such directory mode"}};
        for (const auto &[datagram, fault] : datagrams) {
            m_log.clear();
            send(datagram);
            QVERIFY2(logs("A datagram was dropped: " + fault), fault);
        }
        // It still serves, and nothing came of the others.
        send(directory("NEW_CALL", "7"));
        QTRY_COMPARE(m_app->heard.value(0), QString("DIALING 7"));
    }

private:
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
};

PHONE_TEST_MAIN(CmTest)
#include "tst_cm.moc"
