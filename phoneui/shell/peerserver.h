#ifndef PEERSERVER_H
#define PEERSERVER_H

#include <QLocalServer>
#include <QObject>

class QLocalSocket;

/// Takes the messages of the peers (the call manager, the mobile device, the tools) on the home's peer socket and
/// hands each to the application that its address names. What is no message is dropped and logged.
class PeerServer : public QObject
{
    Q_OBJECT

public:
    explicit PeerServer(QObject *parent = nullptr);

    /// False, with the reason in the log, when the socket cannot be made.
    bool listen(const QString &path);

private:
    void acceptPeers();
    void readMessages(QLocalSocket *peer);
    static void handOver(const QByteArray &datagram);

    QLocalServer m_server;
};

#endif
