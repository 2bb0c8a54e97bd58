#include "requestsocket.h"

#include "message.h"

#include <QHostAddress>
#include <QNetworkDatagram>

static constexpr int LongestDatagram = 4096;

RequestSocket::RequestSocket(const QByteArray &address, const Handlers &handlers, QObject *parent)
    : QObject(parent), m_address(address), m_handlers(handlers)
{
    connect(&m_socket, &QUdpSocket::readyRead, this, &RequestSocket::readDatagrams);
}

bool RequestSocket::listen(quint16 port)
{
    return m_socket.bind(QHostAddress::LocalHost, port, QUdpSocket::DontShareAddress);
}

void RequestSocket::readDatagrams()
{
    while (m_socket.hasPendingDatagrams()) {
        if (const char *fault = act(m_socket.receiveDatagram().data()))
            qWarning("A datagram was dropped: %s", fault);
    }
}

const char *RequestSocket::act(const QByteArray &datagram) const
{
    Message message;
    if (datagram.size() > LongestDatagram || !message_Parse(datagram.constData(), datagram.size(), &message))
        return "it is no message";
    if (message.address != m_address)
        return "it is for another process";
    const auto handler = m_handlers.find(message.signature);
    return handler != m_handlers.end() ? handler->second(message.arguments) : "there is no such request";
}
