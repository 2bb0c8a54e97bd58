#ifndef REQUESTSOCKET_H
#define REQUESTSOCKET_H

#include <QObject>
#include <QTimer>
#include <QUdpSocket>
#include <QVariantList>

#include <functional>
#include <map>

/// Takes the requests that the phone's applications send to a peer as datagrams, one each, and hands every one to
/// its handler. A datagram that is no request of this peer is dropped and logged, in a flood the first ones alone.
class RequestSocket : public QObject
{
    Q_OBJECT

public:
    /// What is wrong with the request, or null.
    using Handler = std::function<const char *(const QVariantList &arguments)>;
    /// By signature.
    using Handlers = std::map<QByteArray, Handler>;

    /// `address` is what the datagrams for this peer begin with: "CM/UI".
    RequestSocket(const QByteArray &address, const Handlers &handlers, QObject *parent = nullptr);

    /// Listens on the loopback; port 0 takes a free one. False when the port is taken.
    bool listen(quint16 port);
    quint16 port() const { return m_socket.localPort(); }
    QString errorString() const { return m_socket.errorString(); }

private:
    void readDatagrams();
    void drop(const char *fault);
    void tellDropped();
    const char *act(const QByteArray &datagram) const;

    const QByteArray m_address;
    const Handlers m_handlers;
    QUdpSocket m_socket;
    QTimer m_dropTimer; ///< runs while lines of the log are counted
    int m_dropped = 0; ///< since it was started
};

#endif
