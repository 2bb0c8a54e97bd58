#include "sentmessages.h"

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>

static const char createTable[] = "CREATE TABLE IF NOT EXISTS sent (id INTEGER PRIMARY KEY AUTOINCREMENT, "
                                  "number TEXT NOT NULL, text TEXT NOT NULL, sent_at INTEGER NOT NULL)";

SentMessages::SentMessages(const QString &path) : m_connection("messages " + path)
{
    QSqlDatabase file = QSqlDatabase::addDatabase("QSQLITE", m_connection);
    file.setDatabaseName(path);
    file.setConnectOptions("QSQLITE_BUSY_TIMEOUT=100");
    // What is no database stays as it is; the phone then keeps no messages.
    if (!file.open() || !run(createTable)) {
        qWarning("Sent messages cannot be kept in %s", qPrintable(path));
        file.close();
    }
}

SentMessages::~SentMessages()
{
    QSqlDatabase::removeDatabase(m_connection);
}

QSqlDatabase SentMessages::database() const
{
    return QSqlDatabase::database(m_connection, false);
}

bool SentMessages::run(const QString &sql, const QVariantList &values) const
{
    if (!database().isOpen())
        return false;
    QSqlQuery query(database());
    bool done = query.prepare(sql);
    for (const QVariant &value : values)
        query.addBindValue(value);
    done = done && query.exec();
    if (done)
        return true;
    qWarning("SentMessages: %s", qPrintable(query.lastError().text()));
    return false;
}

QList<SentMessage> SentMessages::all() const
{
    QList<SentMessage> messages;
    if (!database().isOpen())
        return messages;
    QSqlQuery rows("SELECT id, number, text, sent_at FROM sent ORDER BY id DESC", database());
    while (rows.next())
        messages.append({rows.value(0).toInt(), rows.value(1).toString(), rows.value(2).toString(),
                         QDateTime::fromMSecsSinceEpoch(rows.value(3).toLongLong())});
    return messages;
}

bool SentMessages::add(const QString &number, const QString &text, const QDateTime &sentAt)
{
    if (!run("INSERT INTO sent (number, text, sent_at) VALUES (?, ?, ?)",
             {number, text, sentAt.toMSecsSinceEpoch()}))
        return false;
    run("DELETE FROM sent WHERE id NOT IN (SELECT id FROM sent ORDER BY id DESC LIMIT ?)", {MostMessages});
    return true;
}

bool SentMessages::remove(int id)
{
    return run("DELETE FROM sent WHERE id = ?", {id});
}
