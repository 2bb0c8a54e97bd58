#include "neighbours.h"

#include "callmanager.h"
#include "core.h"
#include "tocmsocket.h"

#include <QDataStream>
#include <QDebug>
#include <QIODevice>
#include <QTextCodec>
#include <QWidget>

namespace Neighbours {

static constexpr int CallFromContacts = 2;
static constexpr int AnyLine = -1;

QByteArray payload(const QStringList &texts)
{
    QByteArray bytes("");
    QDataStream stream(&bytes, QIODevice::ReadWrite);
    for (const QString &text : texts)
        stream << text;
    return bytes;
}

void send(const QString &application, const QString &command, const QStringList &texts)
{
    theCore->sendAppMsg(application, command, payload(texts));
}

bool isInCall()
{
    return theCore->callManager()->callState() == "CONNCECT"; // the comparison as the phone has it
}

/// The name as the call manager takes it: bytes of the phone's charset, each widened to a character.
static QString encodedName(const QString &name)
{
    const QString charset = theCore->charset();
    const QTextCodec *codec = QTextCodec::codecForName(charset.isEmpty() ? "utf-8" : charset.toLatin1());
    return codec ? QString::fromLatin1(codec->fromUnicode(name)) : name;
}

void dial(const QString &number, const QString &name)
{
    ToCMSocket::sendUI2CMSvcDialer(theCore->callManagerHandle(), "NORMAL", number, encodedName(name), getCallMode(),
                                   CallFromContacts, AnyLine);
}

void leaveAndDial(QWidget *screen, const QString &number, const QString &name)
{
    theCore->sendAppMsg("contact", "CloseContact()", QByteArray(""));
    screen->close();
    dial(number, name);
}

void handOver(const QString &name, const QString &number)
{
    for (const char *receiver : {"idle", "aom"})
        send(receiver, "searchContactResult(str,str)", {name, number});
}

void writeMessage(const QString &number)
{
    if (theCore->getAppMap().contains("message"))
        qDebug() << "Neighbours::writeMessage Already launch";
    else
        theCore->launch("message", nullptr);
    send("message", "newMessage(str)", {number});
}

}
