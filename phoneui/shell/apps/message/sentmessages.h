#ifndef SENTMESSAGES_H
#define SENTMESSAGES_H

#include <QDateTime>
#include <QList>
#include <QString>
#include <QVariant>

class QSqlDatabase;

struct SentMessage
{
    int id = 0;
    QString number;
    QString text;
    QDateTime sentAt;
};

/// The messages that were sent, one SQLite file; the phone keeps the newest of them.
class SentMessages
{
    Q_DISABLE_COPY_MOVE(SentMessages)

public:
    static constexpr int MostMessages = 200;

    explicit SentMessages(const QString &path);
    ~SentMessages();

    /// All of them, the newest first.
    QList<SentMessage> all() const;
    /// False, with the reason in the log, when the file is as it was.
    bool add(const QString &number, const QString &text, const QDateTime &sentAt);
    bool remove(int id);

private:
    QSqlDatabase database() const;
    bool run(const QString &sql, const QVariantList &values = {}) const;

    const QString m_connection;
};

#endif
