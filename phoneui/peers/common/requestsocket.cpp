#include "requestsocket.h"

#include "message.h"

#include <QHostAddress>
#include <QNetworkDatagram>

static constexpr int LongestDatagram = 4096;
static constexpr int MostAtOnce = 64; // then timers and processes have their turn
static constexpr int MostDropLines = 10; // a second

RequestSocket::RequestSocket(const QByteArray &address, const Handlers &handlers, QObject *parent)
    : QObject(parent), m_address(address), m_handlers(handlers)
{
    connect(&m_socket, &QUdpSocket::readyRead, this, &RequestSocket::readDatagrams);
    m_dropTimer.setSingleShot(true);
    m_dropTimer.setInterval(1000);
    connect(&m_dropTimer, &QTimer::timeout, this, &RequestSocket::tellDropped);
}

bool RequestSocket::listen(quint16 port)
{
    return m_socket.bind(QHostAddress::LocalHost, port, QUdpSocket::DontShareAddress);
}

void RequestSocket::readDatagrams()
{
    // What is left makes the socket ready again.
    for (int i = 0; i < MostAtOnce && m_socket.hasPendingDatagrams(); ++i) {
        if (const char *fault = act(m_socket.receiveDatagram().data()))
            drop(fault);
    }
}

void RequestSocket::drop(const char *fault)
{
    if (!m_dropTimer.isActive()) {
        m_dropped = 0;
        m_dropTimer.start();
    }
    if (++m_dropped <= MostDropLines)
        qWarning("A datagram was dropped: %s", fault);
}

void RequestSocket::tellDropped()
{
    if (m_dropped > MostDropLines)
        qWarning("%d further datagrams were dropped", m_dropped - MostDropLines);
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
