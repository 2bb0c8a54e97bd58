#ifndef PHONELINK_H
#define PHONELINK_H

#include <QByteArray>
#include <QJsonValue>
#include <QScopedPointer>
#include <QString>
#include <QStringList>

class PhoneHome;
class QLocalSocket;

/// A line to the control socket of a running phone. Every call blocks, no event loop is needed, and any thread may
/// hold a link of its own; one link belongs to the thread that made it.
class PhoneLink
{
public:
    enum class Outcome {
        Done,
        /// The phone understood and said no; the link goes on.
        Refused,
        /// Nothing came in the given time; the link goes on.
        Silent,
        /// No phone is there, or it went, or it no longer makes sense; the link is down.
        Lost
    };

    /// How long a phone may take to answer, in milliseconds.
    static constexpr int AnswerTime = 5000;
    static constexpr int Forever = -1;

    explicit PhoneLink(const PhoneHome &home);
    ~PhoneLink();

    /// Connects; a phone that is not there yet is tried again until `patience` milliseconds are over.
    bool connectToPhone(int patience = 0);

    /// Sends one request and waits for its answer; a phone that stays silent is given up (Lost).
    Outcome request(const QStringList &words, QJsonValue *value = nullptr);

    /// Asks for the display now and at each change; the pictures then come by `nextPicture`, as base64 of a PNG.
    Outcome watch();
    Outcome nextPicture(QByteArray *base64, int timeLimit);

    /// Why the last call did not end in Done, as a sentence for a person.
    QString error() const { return m_error; }

private:
    bool send(const QStringList &words);
    Outcome nextAnswer(QJsonValue *value, int timeLimit);
    Outcome lose(const QString &why);

    const QString m_root;
    const QString m_socketPath;
    QScopedPointer<QLocalSocket> m_socket;
    QString m_error;
};

#endif
