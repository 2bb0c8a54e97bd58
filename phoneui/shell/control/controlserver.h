#ifndef CONTROLSERVER_H
#define CONTROLSERVER_H

#include <QJsonArray>
#include <QJsonObject>
#include <QLocalServer>
#include <QPointer>
#include <QQueue>
#include <QSet>

#include <functional>

class Display;
class KeyMap;
class MessageLog;
class QLocalSocket;
class ToastLog;
class WindowStack;

/// Lets phonectl and phoneweb drive the phone over a local socket.
///
/// A request is one JSON array a line, ["press","Up"]; its answer one JSON object a line, {"ok":true,"value":...}
/// or
/// {"ok":false,"error":"..."}. Requests are answered in order, each in an event of its own, so that a key that
/// opens a screen with its own event loop holds up neither the next request nor its answer.
class ControlServer : public QObject
{
    Q_OBJECT

public:
    /// What the server drives. `launch` starts an application by name and tells whether there is one.
    struct Phone
    {
        WindowStack *windows;
        Display *display;
        KeyMap *keyMap;
        MessageLog *log;
        ToastLog *toasts;
        std::function<bool(const QString &)> launch;
    };

    explicit ControlServer(const Phone &phone, QObject *parent = nullptr);

    /// False, with the reason in the log, when the socket cannot be made.
    bool listen(const QString &path);

private:
    using Handler = QJsonObject (ControlServer::*)(const QStringList &arguments);
    struct Command
    {
        Handler handler;
        int least; ///< arguments
    };
    static const QHash<QString, Command> &commands();

    void acceptClients();
    void readRequests(QLocalSocket *client);
    void answerNext();
    QJsonObject answer(const QByteArray &line);
    void startWatch(QLocalSocket *client);
    void sendPicture(QLocalSocket *client);

    QJsonObject press(const QStringList &arguments);
    QJsonObject release(const QStringList &arguments);
    QJsonObject key(const QString &name, bool down);
    QJsonObject text(const QStringList &arguments);
    QJsonObject launch(const QStringList &arguments);
    QJsonObject send(const QStringList &arguments);
    QJsonObject broadcast(const QStringList &arguments);
    QJsonObject shot(const QStringList &arguments);
    QJsonObject screen(const QStringList &arguments);
    QJsonObject sent(const QStringList &arguments);
    QJsonObject peekSent(const QStringList &arguments);
    QJsonObject keyMap(const QStringList &arguments);

    Phone m_phone;
    QLocalServer m_server;
    QSet<int> m_keysDown;
    QQueue<QPair<QPointer<QLocalSocket>, QByteArray>> m_requests;
};

#endif
