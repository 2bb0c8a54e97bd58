#ifndef SQLITEFILE_H
#define SQLITEFILE_H

#include "sqlitestatement.h"

#include <QByteArray>
#include <QHash>
#include <QSharedPointer>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <functional>

class QSqlError;
struct sqlite3;

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
    /// A prepared statement, kept for the next time.
    SqliteStatement statement(const QByteArray &sql) const;
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

    /// The connection for statements that are run often; null while the file is closed.
    sqlite3 *handle() const;
    bool execute(const QString &sql) const;
    /// The first value of the first row; invalid when there is none.
    QVariant ask(const QString &sql, QSqlError *error = nullptr) const;

    const QString m_path;
    const SqliteSchema m_schema;
    const Access m_access;
    const QString m_connection;
    mutable QHash<QByteArray, QSharedPointer<sqlite3_stmt>> m_statements;
    bool m_open = false;
    bool m_writable = false;
};

#endif
