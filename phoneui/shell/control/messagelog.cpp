#include "messagelog.h"

#include "apppayload.h"
#include "core.h"
#include "message.h"
#include "soundmanager.h"

#include <QJsonObject>

static constexpr int MostMessages = 1000; // nobody may ever ask

MessageLog::MessageLog(QObject *parent) : QObject(parent)
{
    connect(theCore, &Core::appMsgSent, this,
            [this](const QString &target, const QString &command, const QByteArray &payload) {
                add(target, command, QJsonArray::fromVariantList(AppPayload::decode(command, payload)));
            });
    // What the phone plays stands here too, as a machine without a sound card gives no other sign of it.
    connect(theCore->soundManager(), &SoundManager::soundStarted, this,
            [this](const QString &path, const QString &channel) {
                add("sound", "play(str,str)", {path, channel});
            });
    connect(theCore->soundManager(), &SoundManager::soundStopped, this, [this] { add("sound", "stop()", {}); });
    message_SetObserver([this](const Message &message) {
        QJsonArray args;
        for (const QVariant &argument : message.arguments)
            args.append(argument.type() == QVariant::Int ? QJsonValue(argument.toInt())
                                                         : QJsonValue(QString::fromUtf8(argument.toByteArray())));
        const QByteArray peer = message.address.left(message.address.indexOf('/'));
        add(QString::fromLatin1(peer), QString::fromLatin1(message.signature), args);
    });
}

MessageLog::~MessageLog()
{
    message_SetObserver({});
}

void MessageLog::add(const QString &target, const QString &command, const QJsonArray &args)
{
    if (m_messages.size() >= MostMessages)
        m_messages.removeFirst();
    m_messages.append(QJsonObject{{"target", target}, {"command", command}, {"args", args}});
}
