#include "phonelink.h"

#include "phonehome.h"

#include <QDeadlineTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocalSocket>
#include <QThread>

/// Between two tries to reach a phone that is starting, in milliseconds.
static constexpr int RetryPause = 50;
static constexpr int ConnectTime = 1000;

PhoneLink::PhoneLink(const PhoneHome &home)
    : m_root(home.root()), m_socketPath(home.controlSocket()), m_socket(new QLocalSocket)
{
}

PhoneLink::~PhoneLink() = default;

bool PhoneLink::connectToPhone(int patience)
{
    QDeadlineTimer deadline(patience);
    for (;;) {
        m_socket->abort();
        m_socket->connectToServer(m_socketPath);
        if (m_socket->waitForConnected(ConnectTime))
            return true;
        if (deadline.hasExpired())
            break;
        QThread::msleep(RetryPause);
    }
    m_error = QStringLiteral("no phone is running in %1").arg(m_root);
    return false;
}

PhoneLink::Outcome PhoneLink::request(const QStringList &words, QJsonValue *value)
{
    QJsonValue unused;
    if (!send(words))
        return Outcome::Lost;
    const Outcome outcome = nextAnswer(value ? value : &unused, AnswerTime);
    // A late answer would be taken for that of the next request.
    return outcome == Outcome::Silent ? lose(QStringLiteral("the phone does not answer")) : outcome;
}

PhoneLink::Outcome PhoneLink::watch()
{
    return send({QStringLiteral("watch")}) ? Outcome::Done : Outcome::Lost;
}

PhoneLink::Outcome PhoneLink::nextPicture(QByteArray *base64, int timeLimit)
{
    QJsonValue value;
    const Outcome outcome = nextAnswer(&value, timeLimit);
    if (outcome == Outcome::Done)
        *base64 = value.toString().toLatin1();
    return outcome;
}

bool PhoneLink::send(const QStringList &words)
{
    const QByteArray line = QJsonDocument(QJsonArray::fromStringList(words)).toJson(QJsonDocument::Compact) + '\n';
    m_socket->write(line);
    while (m_socket->bytesToWrite() > 0) {
        if (!m_socket->waitForBytesWritten(AnswerTime)) {
            lose(QStringLiteral("the phone has gone"));
            return false;
        }
    }
    if (m_socket->state() != QLocalSocket::ConnectedState) {
        lose(QStringLiteral("the phone has gone"));
        return false;
    }
    return true;
}

PhoneLink::Outcome PhoneLink::nextAnswer(QJsonValue *value, int timeLimit)
{
    QDeadlineTimer deadline(timeLimit);
    while (!m_socket->canReadLine()) {
        if (m_socket->state() != QLocalSocket::ConnectedState)
            return lose(QStringLiteral("the phone has gone"));
        if (deadline.hasExpired())
            return Outcome::Silent;
        m_socket->waitForReadyRead(int(deadline.remainingTime()));
    }

    const QJsonObject answer = QJsonDocument::fromJson(m_socket->readLine()).object();
    if (!answer.value("ok").isBool())
        return lose(QStringLiteral("the phone gave an answer that makes no sense"));
    if (!answer.value("ok").toBool()) {
        m_error = answer.value("error").toString();
        return Outcome::Refused;
    }
    *value = answer.value("value");
    return Outcome::Done;
}

PhoneLink::Outcome PhoneLink::lose(const QString &why)
{
    m_socket->abort();
    m_error = why;
    return Outcome::Lost;
}
