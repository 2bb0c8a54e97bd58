#ifndef PEERTEST_H
#define PEERTEST_H

#include "peerserver.h"
#include "testcase.h"
#include "testmain.h"
#include "testphone.h"

#include <QProcess>
#include <QSettings>

#include <memory>

/// A phone, its end of the peers' socket, and a peer as a process.
class PeerTest : public TestCase
{
    Q_OBJECT

protected:
    /// Starts the peer, which prints its port, and writes that where those who send to it look.
    bool startPeer(const QString &program)
    {
        m_peer.reset(new QProcess);
        m_peer->start(PHONE_PROGRAMS "/" + program, {"--home", m_phone->home.root(), "--port", "0"});
        while (!m_peer->canReadLine() && m_peer->waitForReadyRead()) { }
        m_port = m_peer->readLine().trimmed().toUShort();
        QSettings(m_phone->home.path("config/ipc.conf"), QSettings::IniFormat)
            .setValue(program.toUpper() + "/Port", m_port);
        return m_port != 0;
    }
    void makePhone(const QString &listener)
    {
        m_phone.reset(new TestPhone);
        m_server.reset(new PeerServer);
        QVERIFY(m_server->listen(m_phone->home.peerSocket()));
        m_app.reset(new ListeningApp(listener));
        m_log.clear();
    }
    void tearDown() override
    {
        m_peer->kill();
        m_peer->waitForFinished();
        m_app.reset();
        m_server.reset();
        m_phone.reset();
    }
    /// Whether the peer writes this into its log.
    bool logs(const QByteArray &text)
    {
        return QTest::qWaitFor([&] {
            m_log += m_peer->readAllStandardError();
            return m_log.contains(text);
        });
    }

    std::unique_ptr<TestPhone> m_phone;
    std::unique_ptr<PeerServer> m_server;
    std::unique_ptr<ListeningApp> m_app;
    std::unique_ptr<QProcess> m_peer;
    QByteArray m_log;
    quint16 m_port = 0;
};

#endif
