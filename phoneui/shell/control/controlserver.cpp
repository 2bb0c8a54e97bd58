#include "controlserver.h"

#include "apppayload.h"
#include "core.h"
#include "display.h"
#include "keymap.h"
#include "messagelog.h"
#include "phonekey.h"
#include "screenreport.h"
#include "toastlog.h"

#include <QBuffer>
#include <QJsonDocument>
#include <QLocalSocket>

namespace {

constexpr int LongestRequest = 64 * 1024;
constexpr int MostUnsent = 1024 * 1024; // a watcher that does not read gets no further pictures

QJsonObject good(const QJsonValue &value = QJsonValue::Null)
{
    return {{"ok", true}, {"value", value}};
}

QJsonObject bad(const QString &error)
{
    return {{"ok", false}, {"error", error}};
}

QByteArray lineOf(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

QString pngText(const QImage &image)
{
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return QString::fromLatin1(png.toBase64());
}

}

const QHash<QString, ControlServer::Command> &ControlServer::commands()
{
    static const QHash<QString, Command> table{
        {"press", {&ControlServer::press, 1}},   {"release", {&ControlServer::release, 1}},
        {"text", {&ControlServer::text, 1}},     {"launch", {&ControlServer::launch, 1}},
        {"send", {&ControlServer::send, 2}},     {"broadcast", {&ControlServer::broadcast, 1}},
        {"shot", {&ControlServer::shot, 0}},     {"screen", {&ControlServer::screen, 0}},
        {"sent", {&ControlServer::sent, 0}},     {"peek-sent", {&ControlServer::peekSent, 0}},
        {"keymap", {&ControlServer::keyMap, 0}},
    };
    return table;
}

ControlServer::ControlServer(const Phone &phone, QObject *parent) : QObject(parent), m_phone(phone)
{
    connect(&m_server, &QLocalServer::newConnection, this, &ControlServer::acceptClients);
}

bool ControlServer::listen(const QString &path)
{
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    QLocalServer::removeServer(path); // of a phone that was killed
    if (m_server.listen(path))
        return true;
    qWarning("The control socket %s cannot be made: %s", qPrintable(path), qPrintable(m_server.errorString()));
    return false;
}

void ControlServer::acceptClients()
{
    while (QLocalSocket *client = m_server.nextPendingConnection()) {
        connect(client, &QLocalSocket::readyRead, this, [this, client] { readRequests(client); });
        connect(client, &QLocalSocket::disconnected, client, &QObject::deleteLater);
        readRequests(client);
    }
}

void ControlServer::readRequests(QLocalSocket *client)
{
    while (client->canReadLine()) {
        m_requests.enqueue({client, client->readLine()});
        QMetaObject::invokeMethod(this, &ControlServer::answerNext, Qt::QueuedConnection);
    }
    if (client->bytesAvailable() > LongestRequest)
        client->abort();
}

void ControlServer::answerNext()
{
    const auto request = m_requests.dequeue();
    if (!request.first)
        return;
    if (request.second.trimmed() == R"(["watch"])") {
        startWatch(request.first);
        return;
    }
    const QJsonObject reply = answer(request.second);
    if (request.first) { // the request may have run an event loop in which the client went
        request.first->write(lineOf(reply));
        request.first->flush();
    }
}

QJsonObject ControlServer::answer(const QByteArray &line)
{
    QStringList words;
    const QJsonArray request = QJsonDocument::fromJson(line).array();
    for (const QJsonValue &word : request)
        words.append(word.toString());
    if (words.isEmpty())
        return bad("a request is a JSON array of texts");
    const QString name = words.takeFirst();
    const auto command = commands().constFind(name);
    if (command == commands().constEnd())
        return bad(QString("there is no command \"%1\"").arg(name));
    if (words.size() < command->least)
        return bad(QString("%1 needs more arguments").arg(name));
    return (this->*command->handler)(words);
}

void ControlServer::startWatch(QLocalSocket *client)
{
    m_phone.display->watch();
    Display *display = m_phone.display;
    connect(client, &QLocalSocket::disconnected, display, &Display::unwatch);
    connect(display, &Display::changed, client, [this, client] { sendPicture(client); });
    sendPicture(client);
}

void ControlServer::sendPicture(QLocalSocket *client)
{
    if (client->bytesToWrite() > MostUnsent)
        return;
    client->write(lineOf(good(pngText(m_phone.display->picture()))));
    client->flush();
}

QJsonObject ControlServer::key(const QString &name, bool down)
{
    const int code = PhoneKey::code(name);
    if (code == 0)
        return bad(QString("there is no key \"%1\"").arg(name));
    const bool repeated
        = down && m_keysDown.contains(code); // a client repeats a key that is held by pressing it again
    if (down && !repeated)
        m_phone.toasts->clear();
    if (down)
        m_keysDown.insert(code);
    else
        m_keysDown.remove(code);
    PhoneKey::post(code, down, repeated);
    return good();
}

QJsonObject ControlServer::press(const QStringList &arguments)
{
    return key(arguments.first(), true);
}

QJsonObject ControlServer::release(const QStringList &arguments)
{
    return key(arguments.first(), false);
}

QJsonObject ControlServer::text(const QStringList &arguments)
{
    PhoneKey::postText(arguments.join(' '));
    return good();
}

QJsonObject ControlServer::launch(const QStringList &arguments)
{
    if (!m_phone.launch(arguments.first()))
        return bad(QString("there is no application \"%1\"").arg(arguments.first()));
    return good();
}

QJsonObject ControlServer::send(const QStringList &arguments)
{
    QVariantList items;
    for (const QString &argument : arguments.mid(2))
        items.append(argument);
    QByteArray payload;
    QString fault;
    if (!theCore->getAppMap().contains(arguments.at(0)))
        return bad(QString("no application \"%1\" is running").arg(arguments.at(0)));
    if (!AppPayload::encode(arguments.at(1), items, &payload, &fault))
        return bad(fault);
    theCore->postAppMsg(arguments.at(0), arguments.at(1), payload);
    return good();
}

QJsonObject ControlServer::broadcast(const QStringList &arguments)
{
    emit theCore->signalBroadcast(arguments.first(), QByteArray());
    return good();
}

QJsonObject ControlServer::shot(const QStringList &)
{
    return good(pngText(m_phone.display->picture()));
}

QJsonObject ControlServer::screen(const QStringList &)
{
    return good(screenReport(*m_phone.windows, theCore->statusWidget(), *m_phone.toasts));
}

QJsonObject ControlServer::sent(const QStringList &)
{
    const QJsonArray messages = m_phone.log->messages();
    m_phone.log->clear();
    return good(messages);
}

QJsonObject ControlServer::peekSent(const QStringList &)
{
    return good(m_phone.log->messages());
}

QJsonObject ControlServer::keyMap(const QStringList &)
{
    QJsonObject map;
    const auto names = m_phone.keyMap->names();
    for (auto it = names.begin(); it != names.end(); ++it)
        map.insert(it.key(), it.value());
    return good(map);
}
