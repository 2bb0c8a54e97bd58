#ifndef SQLITEFILE_H
#define SQLITEFILE_H

#include <QByteArray>
#include <QHash>
#include <QSharedPointer>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <functional>

/// What one kind of database file of this phone looks like.
struct SqliteSchema
{
    /// Stands in the file's header and tells it from the files of other programs.
    int applicationId = 0;
    /// The n-th entry leads from `user_version` n to n + 1; its statements run in one transaction.
    QList<QStringList> migrations;
    /// Statements that can be prepared only where every table has every column.
    QStringList probes;
};

/// One run of a prepared statement. It is finished when this goes out of scope, so that no read stays open and
/// holds the file back from being checkpointed.
class SqliteStatement
{
    Q_DISABLE_COPY_MOVE(SqliteStatement)

public:
    explicit SqliteStatement(const QSharedPointer<QSqlQuery> &query) : m_query(query) { }
    ~SqliteStatement()
    {
        if (m_query)
            m_query->finish();
    }

    /// Runs with these values for its question marks; false, with the reason in the log, when it fails.
    bool run(const QVariantList &values = {});
    bool next() { return m_query && m_query->next(); }
    QVariant value(int column) const { return m_query->value(column); }
    QString text(int column) const { return m_query->value(column).toString(); }
    int number(int column) const { return m_query->value(column).toInt(); }
    int rowsAffected() const { return m_query ? m_query->numRowsAffected() : 0; }
    int lastId() const { return m_query ? m_query->lastInsertId().toInt() : 0; }

private:
    const QSharedPointer<QSqlQuery> m_query;
};

/// One open SQLite file: checked before it is trusted, brought to the newest version, written in transactions.
class SqliteFile
{
    Q_DISABLE_COPY_MOVE(SqliteFile)

public:
    enum Access { ReadWrite, ReadOnly };

    /// With ReadWrite a missing file is made, and one that is damaged, foreign or of a newer version is moved
    /// aside first. With ReadOnly such a file is left alone and not opened.
    SqliteFile(const QString &path, const SqliteSchema &schema, Access access = ReadWrite);
    ~SqliteFile();

    bool isOpen() const { return m_open; }
    /// A prepared statement, kept for the next time. `sql` is a literal.
    SqliteStatement statement(const char *sql) const;
    /// Runs `work` in one transaction, which counts only if `work` and the commit succeed.
    bool write(const std::function<bool()> &work);
    /// Another number whenever another connection has changed the file.
    int dataVersion() const;

private:
    enum class Verdict { Good, Unusable, MoveAside };

    Verdict openAndCheck(QString *reason);
    Verdict judgeFile(QString *reason) const;
    Verdict judgeContent(QString *reason);
    Verdict judgeError(const QSqlError &error, QString *reason) const;
    bool connectTo(const QString &target, const QString &options);
    bool openReadOnly();
    bool prepareConnection();
    bool migrate();
    bool moveAside(const QString &reason) const;
    void disconnectFile();

    bool execute(const QString &sql) const;
    /// The first value of the first row; invalid when there is none.
    QVariant ask(const QString &sql, QSqlError *error = nullptr) const;

    const QString m_path;
    const SqliteSchema m_schema;
    const Access m_access;
    const QString m_connection;
    mutable QHash<QByteArray, QSharedPointer<QSqlQuery>> m_statements;
    bool m_open = false;
    bool m_writable = false;
};

#endif
