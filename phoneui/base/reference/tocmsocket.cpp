#include "tocmsocket.h"

#include "conffile.h"
#include "message.h"

#include <QDebug>
#include <QHostAddress>
#include <QUdpSocket>

#include <array>

static constexpr int DatagramSize = 4096;
static constexpr char Address[] = "CM/UI";

/// Sends what message_Make has written; a length of 0 is what it could not write.
static void sendDatagram(const char *data, int size)
{
    const quint16 port = getPeerPort(QStringLiteral("CM"));
    if (size == 0 || port == 0) {
        qDebug() << "ToCMSocket: not sent, length" << size << "port" << port;
        return;
    }
    QUdpSocket().writeDatagram(data, size, QHostAddress::LocalHost, port);
}

void ToCMSocket::sendUI2CMSvcDialer(int handle, const QString &mode, const QString &number, const QString &name,
                                    const QString &callMode, int callType, int line)
{
    std::array<char, DatagramSize> buffer;
    const int size
        = message_Make(buffer.data(), DatagramSize, Address, "ui2cm_svc_dialer(int,str,str,str,str,int,int)",
                       handle, mode.toLatin1().constData(), number.toLatin1().constData(),
                       name.toLatin1().constData(), callMode.toLatin1().constData(), callType, line);
    sendDatagram(buffer.data(), size);
}

void ToCMSocket::sendUI2CMSvcHangup()
{
    std::array<char, DatagramSize> buffer;
    sendDatagram(buffer.data(), message_Make(buffer.data(), DatagramSize, Address, "ui2cm_svc_hangup()"));
}
