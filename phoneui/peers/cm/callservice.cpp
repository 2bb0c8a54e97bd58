#include "callservice.h"

#include "callmanager.h"
#include "contactdata.h"
#include "phoneline.h"

#include <QTextCodec>

CallService::CallService(PhoneLine *line, const QByteArray &charset, QObject *parent)
    : RequestSocket("CM/UI",
                    {{"ui2cm_svc_dialer(int,str,str,str,str,int,int)",
                      [this](const QVariantList &arguments) { return dialer(arguments); }},
                     {"ui2cm_svc_directory(int,str,str)",
                      [this](const QVariantList &arguments) { return directory(arguments); }},
                     {"ui2cm_svc_hangup()", [this](const QVariantList &) { return hangUp(); }}},
                    parent),
      m_line(line), m_charset(charset)
{
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

const char *CallService::hangUp()
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
