#include "fakephone.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocalSocket>

bool FakePhone::start(const QString &home)
{
    connect(&m_server, &QLocalServer::newConnection, this, [this] {
        QLocalSocket *client = m_server.nextPendingConnection();
        connect(client, &QLocalSocket::readyRead, this, [this, client] { answer(client); });
        connect(client, &QLocalSocket::disconnected, client, &QObject::deleteLater);
    });
    return QDir(home).mkpath("run") && m_server.listen(home + "/run/phonectl.sock");
}

void FakePhone::answer(QLocalSocket *client)
{
    while (client->canReadLine()) {
        QStringList words;
        const QJsonArray array = QJsonDocument::fromJson(client->readLine()).array();
        for (const QJsonValue &word : array)
            words.append(word.toString());
        const QString request = words.value(0);
        m_requests.append(words.join(' '));
        if (request == m_deadly) {
            client->abort();
            return;
        }

        QList<QJsonValue> &values = m_answers[request];
        QJsonObject line{{"ok", !m_refusals.contains(request)}, {"error", m_refusals.value(request)}};
        if (!values.isEmpty())
            line.insert("value", values.size() > 1 ? values.takeFirst() : values.first());
        client->write(QJsonDocument(line).toJson(QJsonDocument::Compact) + '\n');
    }
}
