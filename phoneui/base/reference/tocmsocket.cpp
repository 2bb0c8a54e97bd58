#include "tocmsocket.h"

#include "conffile.h"
#include "message.h"

#include <QDebug>
#include <QHostAddress>
#include <QUdpSocket>

#include <array>

static constexpr int DatagramSize = 4096;

void ToCMSocket::sendUI2CMSvcDialer(int handle, const QString &mode, const QString &number, const QString &name,
                                    const QString &callMode, int callType, int line)
{
    std::array<char, DatagramSize> buffer;
    const int size
        = message_Make(buffer.data(), DatagramSize, "CM/UI", "ui2cm_svc_dialer(int,str,str,str,str,int,int)",
                       handle, mode.toLatin1().constData(), number.toLatin1().constData(),
                       name.toLatin1().constData(), callMode.toLatin1().constData(), callType, line);
    const quint16 port = getPeerPort(QStringLiteral("CM"));
    if (size == 0 || port == 0) {
        qDebug() << "ToCMSocket::sendUI2CMSvcDialer: not sent, length" << size << "port" << port;
        return;
    }
    QUdpSocket().writeDatagram(buffer.data(), size, QHostAddress::LocalHost, port);
}
