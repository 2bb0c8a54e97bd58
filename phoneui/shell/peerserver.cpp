#include "peerserver.h"

#include "control/apppayload.h"
#include "core.h"
#include "message.h"

#include <QLocalSocket>
#include <QtEndian>

static constexpr quint32 LongestMessage = 64 * 1024;

PeerServer::PeerServer(QObject *parent) : QObject(parent)
{
    connect(&m_server, &QLocalServer::newConnection, this, &PeerServer::acceptPeers);
}

bool PeerServer::listen(const QString &path)
{
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    QLocalServer::removeServer(path);
    if (m_server.listen(path))
        return true;
    qWarning("The peers' socket %s cannot be made: %s", qPrintable(path), qPrintable(m_server.errorString()));
    return false;
}

void PeerServer::acceptPeers()
{
    while (QLocalSocket *peer = m_server.nextPendingConnection()) {
        connect(peer, &QLocalSocket::readyRead, this, [this, peer] { readMessages(peer); });
        connect(peer, &QLocalSocket::disconnected, peer, &QObject::deleteLater);
        readMessages(peer);
    }
}

void PeerServer::readMessages(QLocalSocket *peer)
{
    char header[sizeof(quint32)];
    while (peer->peek(header, sizeof header) == sizeof header) {
        const quint32 length = qFromBigEndian<quint32>(header);
        if (length > LongestMessage) {
            qWarning("A peer announced a message of %u bytes and was hung up on", length);
            peer->abort();
            return;
        }
        if (peer->bytesAvailable() < qint64(sizeof header) + length)
            return;
        peer->skip(sizeof header);
        handOver(peer->read(length));
    }
}

void PeerServer::handOver(const QByteArray &datagram)
{
    Message message;
    if (!message_Parse(datagram.constData(), datagram.size(), &message)) {
        qWarning("A peer sent %d bytes that are no message", datagram.size());
        return;
    }
    QVariantList items;
    for (const QVariant &argument : qAsConst(message.arguments))
        items.append(argument.type() == QVariant::Int ? argument : QString::fromUtf8(argument.toByteArray()));
    const QString app = QString::fromLatin1(message.address.left(message.address.indexOf('/')));
    const QString command = QString::fromLatin1(message.signature);
    QByteArray payload;
    QString fault;
    if (AppPayload::encode(command, items, &payload, &fault))
        theCore->postAppMsg(app, command, payload);
    else
        qWarning("A peer's message was dropped: %s", qPrintable(fault));
}
