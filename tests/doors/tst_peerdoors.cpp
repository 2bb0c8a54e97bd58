// What other processes of the machine can send to the peers, and what they can learn of a fetch.

#include "directorytransport.h"
#include "message.h"
#include "peertest.h"

#include <QDir>
#include <QTcpServer>
#include <QTcpSocket>
#include <QUdpSocket>

class PeerDoorsTest : public PeerTest
{
    Q_OBJECT

private slots:
    void floods_data()
    {
        QTest::addColumn<QByteArray>("signature");
        QTest::newRow("cm") << QByteArray("ui2cm_svc_directory(int,str,str)");
        QTest::newRow("xcid") << QByteArray("ui2http_directory_search_request(str)");
    }

    void floods()
    {
        QFETCH(QByteArray, signature);
        const QString peer = QTest::currentDataTag();
        makePhone(peer == "cm" ? "call" : "contact");
        QVERIFY(startPeer(peer));
        const QByteArray whole = peer.toUpper().toLatin1() + "/UI" + '\0' + signature + '\0';
        const QByteArrayList wrong{"", QByteArray(4000, '\xff'), whole, whole + '\xff',
                                   "SIP/UI" + whole.mid(whole.indexOf('/') + 3)};
        QUdpSocket socket;
        for (int i = 0; i < 10000; ++i)
            socket.writeDatagram(wrong.at(i % wrong.size()), QHostAddress::LocalHost, m_port);
        QVERIFY(logs("further datagrams were dropped"));
        QVERIFY2(m_log.count('\n') < 100, m_log);

        // It still does what it is told, be it in vain.
        if (peer == "cm")
            sendUI2CMDirectoryServiceRequest(-1, "NEW_CALL", "7");
        else
            sendUI2HTTPDirectorySearchRequest("http://127.0.0.1:1/");
        QTRY_VERIFY(peer == "cm" ? !m_app->heard.isEmpty() : logs("failed: Connection refused"));
    }

    void passwordsAreSeenByNobody()
    {
        makePhone("contact");
        QVERIFY(startPeer("xcid"));
        QTcpServer silent;
        QVERIFY(silent.listen(QHostAddress::LocalHost));
        const QString password = QString("seen-%1").arg(QCoreApplication::applicationPid());
        sendUI2HTTPDirectorySearchRequest(
            QString("http://me:%1@127.0.0.1:%2/x?pid=me").arg(password).arg(silent.serverPort()));
        QTRY_VERIFY(silent.hasPendingConnections());
        QTcpSocket *asked = silent.nextPendingConnection();
        QTRY_VERIFY(asked->bytesAvailable() > 0);
        QVERIFY(ofAllProcesses("cmdline").contains(m_phone->home.root().toUtf8()));
        for (const char *file : {"cmdline", "environ"})
            QVERIFY2(!ofAllProcesses(file).contains(password.toUtf8()), file);
        asked->write("HTTP/1.1 500 No\r\nContent-Length: 1\r\n\r\nx");
        QVERIFY(logs("it answers 500"));
        QVERIFY2(!m_log.contains(password.toUtf8()), m_log);
    }

private:
    static QByteArray ofAllProcesses(const QString &file)
    {
        QByteArray all;
        const QStringList numbers = QDir("/proc").entryList({"[0-9]*"}, QDir::Dirs);
        for (const QString &number : numbers)
            all += readFile("/proc/" + number + '/' + file) + '\n';
        return all;
    }
};

PHONE_TEST_MAIN(PeerDoorsTest)
#include "tst_peerdoors.moc"
