#ifndef CALLSERVICE_H
#define CALLSERVICE_H

#include <QObject>
#include <QUdpSocket>
#include <QVariantList>

class PhoneLine;

/// Takes the requests that the phone's applications send as datagrams and has the line act on them. A datagram
/// that is no request, or that asks for what does not exist, is dropped and logged.
class CallService : public QObject
{
    Q_OBJECT

public:
    /// `charset` is the one in which names come; the shell is told them in UTF-8.
    CallService(PhoneLine *line, const QByteArray &charset, QObject *parent = nullptr);

    /// Listens on the loopback; port 0 takes a free one. False when the port is taken.
    bool listen(quint16 port);
    quint16 port() const { return m_socket.localPort(); }
    QString errorString() const { return m_socket.errorString(); }

private:
    void readDatagrams();
    /// What is wrong with the datagram, or null.
    const char *act(const QByteArray &datagram);

    using Handler = const char *(CallService::*)(const QVariantList &arguments);
    const char *dialer(const QVariantList &arguments);
    const char *directory(const QVariantList &arguments);
    const char *hangUp(const QVariantList &arguments);
    const char *dial(const QByteArray &number, const QByteArray &name);

    PhoneLine *m_line;
    const QByteArray m_charset;
    QUdpSocket m_socket;
};

#endif
