#include "peerlink.h"

#include "phonehome.h"

#include <QDeadlineTimer>
#include <QLocalSocket>
#include <QtEndian>

static constexpr int PatienceMs = 500;

bool sendToShell(const PhoneHome &home, const Message &message)
{
    const QByteArray body = message_MakeFromValues(message);
    if (body.isEmpty())
        return false;
    QByteArray frame(sizeof(quint32), '\0');
    qToBigEndian<quint32>(static_cast<quint32>(body.size()), frame.data());
    frame += body;

    const QDeadlineTimer deadline(PatienceMs);
    QLocalSocket socket;
    socket.connectToServer(home.peerSocket(), QIODevice::WriteOnly);
    if (!socket.waitForConnected(PatienceMs))
        return false;
    socket.write(frame);
    while (socket.bytesToWrite() > 0) {
        if (!socket.waitForBytesWritten(static_cast<int>(deadline.remainingTime())))
            return false;
    }
    socket.disconnectFromServer();
    return true;
}
