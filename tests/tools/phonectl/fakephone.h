#ifndef FAKEPHONE_H
#define FAKEPHONE_H

#include <QJsonValue>
#include <QLocalServer>
#include <QMap>
#include <QStringList>

class QLocalSocket;

/// A phone's control socket with answers that a test lays down.
class FakePhone : public QObject
{
    Q_OBJECT

public:
    /// Listens in this home.
    bool start(const QString &home);

    /// The values for requests that begin with this word, one after the other; the last one stays.
    void setAnswers(const QString &request, const QList<QJsonValue> &values) { m_answers[request] = values; }
    /// Requests that begin with this word are refused.
    void setRefusal(const QString &request, const QString &error) { m_refusals[request] = error; }
    /// Hangs up instead of answering these.
    void setDeadly(const QString &request) { m_deadly = request; }

    /// All requests, each as its words with blanks between.
    QStringList requests() const { return m_requests; }

private:
    void answer(QLocalSocket *client);

    QLocalServer m_server;
    QMap<QString, QList<QJsonValue>> m_answers;
    QMap<QString, QString> m_refusals;
    QString m_deadly;
    QStringList m_requests;
};

#endif
