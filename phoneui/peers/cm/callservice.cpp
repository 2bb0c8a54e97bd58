#include "callservice.h"

#include "callmanager.h"
#include "contactdata.h"
#include "message.h"
#include "phoneline.h"

#include <QHostAddress>
#include <QNetworkDatagram>
#include <QTextCodec>

static constexpr int LongestDatagram = 4096;

CallService::CallService(PhoneLine *line, const QByteArray &charset, QObject *parent)
    : QObject(parent), m_line(line), m_charset(charset)
{
    connect(&m_socket, &QUdpSocket::readyRead, this, &CallService::readDatagrams);
}

bool CallService::listen(quint16 port)
{
    return m_socket.bind(QHostAddress::LocalHost, port, QUdpSocket::DontShareAddress);
}

void CallService::readDatagrams()
{
    while (m_socket.hasPendingDatagrams()) {
        if (const char *fault = act(m_socket.receiveDatagram().data()))
            qWarning("A datagram was dropped: %s", fault);
    }
}

const char *CallService::act(const QByteArray &datagram)
{
    struct Request
    {
        const char *signature;
        Handler handler;
    };
    static constexpr Request requests[] = {
        {"ui2cm_svc_dialer(int,str,str,str,str,int,int)", &CallService::dialer},
        {"ui2cm_svc_directory(int,str,str)", &CallService::directory},
        {"ui2cm_svc_hangup()", &CallService::hangUp},
    };
    Message message;
    if (datagram.size() > LongestDatagram || !message_Parse(datagram.constData(), datagram.size(), &message))
        return "it is no message";
    if (message.address != "CM/UI")
        return "it is not for the call manager";
    for (const Request &request : requests) {
        if (message.signature == request.signature)
            return (this->*request.handler)(message.arguments);
    }
    return "there is no such request";
}

/// Handle, mode, number, name, call mode, call type, line. There is one line, so any choice of it is that one.
const char *CallService::dialer(const QVariantList &arguments)
{
    if (arguments.at(1).toByteArray() != "NORMAL")
        return "there is no such dial mode";
    if (QString::fromLatin1(arguments.at(4).toByteArray()) != getCallMode())
        return "there is no such call mode";
    return dial(arguments.at(2).toByteArray(), arguments.at(3).toByteArray());
}

/// Line, mode, number.
const char *CallService::directory(const QVariantList &arguments)
{
    const QByteArray mode = arguments.at(1).toByteArray();
    const QByteArray number = arguments.at(2).toByteArray();
    if (mode == "NEW_CALL")
        return dial(number, QByteArray());
    if (ContactData::bareNumber(QString::fromUtf8(number)).isEmpty())
        return "there is nothing to dial in its number";
    bool done = false;
    if (mode == "SEMI_BLIND_XFER")
        done = m_line->transfer();
    else if (mode == "COA_CONF")
        done = m_line->join(number);
    else
        return "there is no such directory mode";
    return done ? nullptr : "there is no conversation to take it into";
}

const char *CallService::hangUp(const QVariantList &)
{
    // The other side may have been faster.
    m_line->hangUp();
    return nullptr;
}

const char *CallService::dial(const QByteArray &number, const QByteArray &name)
{
    if (ContactData::bareNumber(QString::fromUtf8(number)).isEmpty())
        return "there is nothing to dial in its number";
    const QTextCodec *codec = QTextCodec::codecForName(m_charset);
    if (!m_line->dial(number, codec ? codec->toUnicode(name).toUtf8() : name))
        qInfo("A call was refused: another is under way");
    return nullptr;
}
