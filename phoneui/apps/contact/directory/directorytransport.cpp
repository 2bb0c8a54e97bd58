#include "directorytransport.h"

#include "conffile.h"
#include "message.h"
#include "settingsfile.h"

#include <QDebug>
#include <QHostAddress>
#include <QUdpSocket>

#include <array>

namespace {

constexpr int DatagramSize = 4096;
constexpr char DefaultIpcConf[] = "/mnt/hdd/opt/Qtopia/etc/ipc.conf";

/// Makes the message for a peer ("CM", "XCID") and sends it, whatever comes of that: the peer drops a datagram that
/// is no message, and one for port 0 goes nowhere.
template <typename... Arguments> void send(const char *peer, const char *signature, Arguments... arguments)
{
    std::array<char, DatagramSize> buffer{};
    const QByteArray address = QByteArray(peer) + "/UI";
    const int size = message_Make(buffer.data(), DatagramSize, address.constData(), signature, arguments...);
    const auto port = static_cast<quint16>(getPortNumber(QLatin1String(peer), QStringLiteral("Port")));
    QUdpSocket().writeDatagram(buffer.data(), size, QHostAddress::LocalHost, port);
}

timespec s_lastRequest{};

template <typename... Arguments> void sendRequest(const char *signature, Arguments... arguments)
{
    ::clock_gettime(CLOCK_REALTIME_COARSE, &s_lastRequest);
    send("XCID", signature, arguments...);
}

const char *modeOf(int action)
{
    switch (action) {
    case 0: return "NEW_CALL";
    case 2: return "SEMI_BLIND_XFER";
    case 3: return "COA_CONF";
    default: return "";
    }
}

}

int getPortNumber(const QString &peer, const QString &key)
{
    QString file = getConfFilePath(QStringLiteral("COMMON"), QStringLiteral("IPC_CONF"));
    if (file.isEmpty())
        file = QLatin1String(DefaultIpcConf);
    return SettingsFile(file).number(peer.toUpper() + QLatin1Char('/') + key);
}

void sendUI2CMDirectoryServiceRequest(int line, const QString &mode, const QString &number)
{
    qDebug() << "sendUI2CMDirectoryServiceRequest";
    send("CM", "ui2cm_svc_directory(int,str,str)", line, mode.toLatin1().constData(),
         number.toLatin1().constData());
}

void sendUI2HTTPDirectorySearchRequest(const QString &url)
{
    qDebug() << "sendUI2HTTPDirectorySearchRequest";
    sendRequest("ui2http_directory_search_request(str)", url.toLatin1().constData());
}

void sendUI2HTTPDirectoryPageRequest(const QString &url)
{
    qDebug() << "sendUI2HTTPDirectoryPageRequest";
    sendRequest("ui2http_directory_page_request(str)", url.toLatin1().constData());
}

void sendUI2HTTPDirectorySearchCancel()
{
    qDebug() << "sendUI2HTTPDirectorySearchCancel";
    sendRequest("ui2http_directory_cancel_request()");
}

timespec lastDirectoryRequest()
{
    return s_lastRequest;
}

void directoryServiceRequest(int action, const QString &number, const QString &name)
{
    if (action == 1) {
        if (!number.isEmpty())
            directoryServiceSaveToPhonebook(name, number);
        return;
    }
    const QString mode = QLatin1String(modeOf(action));
    qDebug() << "directoryServiceRequest" << mode << number;
    if (!mode.isEmpty() && !number.isEmpty())
        sendUI2CMDirectoryServiceRequest(-1, mode, number);
}

void directoryServiceSaveToPhonebook(const QString &, const QString &) { }
