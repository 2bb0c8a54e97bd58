#include "sqlitefile.h"

#include <QDateTime>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlDriver>
#include <QSqlError>
#include <QSqlQuery>
#include <QUrl>
#include <QUuid>

#include <array>
#include <sqlite3.h>

namespace {

const QByteArray HeaderMagic("SQLite format 3\0", 16);
constexpr qint64 SmallestPage = 512;
constexpr std::array<const char *, 3> Companions = {"-wal", "-shm", "-journal"};

// While running, the screens wait for no one longer than this.
constexpr int BusyMs = 100;
// At start another process may be making the same file.
constexpr int BusyAtStartMs = 2000;

int resultCode(const QSqlError &error)
{
    // The low byte of an extended code is the primary one.
    return error.nativeErrorCode().toInt() & 0xff;
}

QString busyPragma(int milliseconds)
{
    return QStringLiteral("PRAGMA busy_timeout = %1").arg(milliseconds);
}

}

SqliteFile::SqliteFile(const QString &path, const SqliteSchema &schema, Access access)
    : m_path(path), m_schema(schema), m_access(access),
      m_connection(QUuid::createUuid().toString(QUuid::WithoutBraces))
{
    QString reason;
    Verdict verdict = openAndCheck(&reason);
    if (verdict == Verdict::MoveAside && access == ReadWrite) {
        disconnectFile();
        verdict = moveAside(reason) ? openAndCheck(&reason) : Verdict::Unusable;
    }
    m_open = verdict == Verdict::Good && (!m_writable || migrate());
    if (m_open) {
        execute(busyPragma(BusyMs));
    } else {
        qWarning().noquote() << "SqliteFile: cannot use" << m_path + ":" << reason;
        disconnectFile();
    }
}

SqliteFile::~SqliteFile()
{
    disconnectFile();
}

void SqliteFile::disconnectFile()
{
    m_statements.clear();
    // Removing complains about connections that someone holds, so the handle goes first.
    QSqlDatabase::database(m_connection, false).close();
    QSqlDatabase::removeDatabase(m_connection);
}

bool SqliteFile::connectTo(const QString &target, const QString &options)
{
    QSqlDatabase database = QSqlDatabase::contains(m_connection)
        ? QSqlDatabase::database(m_connection, false)
        : QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_connection);
    database.setDatabaseName(target);
    database.setConnectOptions(options);
    return database.open();
}

SqliteFile::Verdict SqliteFile::judgeError(const QSqlError &error, QString *reason) const
{
    *reason = error.databaseText();
    const int code = resultCode(error);
    return code == SQLITE_CORRUPT || code == SQLITE_NOTADB ? Verdict::MoveAside : Verdict::Unusable;
}

/// What can be told before SQLite sees the file: it opens garbage without a word, and may write into it.
SqliteFile::Verdict SqliteFile::judgeFile(QString *reason) const
{
    QFile file(m_path);
    const QFileInfo wal(m_path + QLatin1String("-wal"));
    if (!file.exists() || file.size() == 0) {
        if (m_access == ReadOnly) {
            *reason = QStringLiteral("there is none");
            return Verdict::Unusable;
        }
        *reason = QStringLiteral("the file is empty, its log is not");
        return wal.size() > 0 ? Verdict::MoveAside : Verdict::Good;
    }
    if (!file.open(QIODevice::ReadOnly)) {
        *reason = file.errorString();
        return Verdict::Unusable;
    }
    if (file.size() >= SmallestPage && file.read(HeaderMagic.size()) == HeaderMagic)
        return Verdict::Good;
    *reason = QStringLiteral("this is no database");
    return Verdict::MoveAside;
}

SqliteFile::Verdict SqliteFile::openAndCheck(QString *reason)
{
    const Verdict verdict = judgeFile(reason);
    if (verdict != Verdict::Good)
        return verdict;

    const QFileInfo file(m_path);
    const bool mayWrite = m_access == ReadWrite && QFileInfo(file.absolutePath()).isWritable()
        && (!file.exists() || file.isWritable());
    if (mayWrite) {
        m_writable = connectTo(m_path, QStringLiteral("QSQLITE_BUSY_TIMEOUT=%1").arg(BusyAtStartMs));
        if (!m_writable) {
            *reason = QSqlDatabase::database(m_connection, false).lastError().databaseText();
            return Verdict::Unusable;
        }
    } else if (!file.exists() || !openReadOnly()) {
        *reason = QStringLiteral("it cannot be read");
        return Verdict::Unusable;
    }
    return judgeContent(reason);
}

bool SqliteFile::openReadOnly()
{
    m_writable = false;
    const QString options = QStringLiteral("QSQLITE_OPEN_READONLY;QSQLITE_BUSY_TIMEOUT=%1").arg(BusyAtStartMs);
    if (connectTo(m_path, options) && ask(QStringLiteral("PRAGMA schema_version")).isValid())
        return true;
    // Where SQLite may not even make its shared memory, a file without a log can still be read as it lies.
    if (QFileInfo(m_path + QLatin1String("-wal")).size() > 0)
        return false;
    QUrl url = QUrl::fromLocalFile(m_path);
    url.setQuery(QStringLiteral("immutable=1"));
    return connectTo(QString::fromLatin1(url.toEncoded()), options + QLatin1String(";QSQLITE_OPEN_URI"));
}

SqliteFile::Verdict SqliteFile::judgeContent(QString *reason)
{
    QSqlError error;
    const QVariant tables = ask(QStringLiteral("SELECT count(*) FROM sqlite_master"), &error);
    if (error.isValid())
        return judgeError(error, reason);
    const int applicationId = ask(QStringLiteral("PRAGMA application_id")).toInt();
    const int version = ask(QStringLiteral("PRAGMA user_version")).toInt();
    if (tables.toInt() == 0 && applicationId == 0 && version == 0 && m_writable)
        return prepareConnection() ? Verdict::Good : Verdict::Unusable; // just begun

    if (applicationId != m_schema.applicationId) {
        *reason = QStringLiteral("it belongs to another program");
        return Verdict::MoveAside;
    }
    if (version < 1 || version > m_schema.migrations.size()) {
        *reason = QStringLiteral("version %1 is unknown").arg(version);
        return Verdict::MoveAside;
    }
    const QVariant health = ask(QStringLiteral("PRAGMA integrity_check(1)"), &error);
    if (error.isValid())
        return judgeError(error, reason);
    if (health.toString() != QLatin1String("ok")) {
        *reason = health.toString();
        return Verdict::MoveAside;
    }
    if (version == m_schema.migrations.size()) {
        for (const QString &probe : m_schema.probes) {
            QSqlQuery query(QSqlDatabase::database(m_connection, false));
            if (query.prepare(probe))
                continue;
            *reason = query.lastError().databaseText();
            return Verdict::MoveAside;
        }
    }
    return !m_writable || prepareConnection() ? Verdict::Good : Verdict::Unusable;
}

bool SqliteFile::prepareConnection()
{
    // Before each statement of many rows SQLite keeps the pages that it changes: in memory, not in a file.
    return execute(QStringLiteral("PRAGMA temp_store = MEMORY"))
        && execute(QStringLiteral("PRAGMA journal_mode = WAL"))
        && execute(QStringLiteral("PRAGMA synchronous = FULL"))
        && execute(QStringLiteral("PRAGMA foreign_keys = ON"));
}

bool SqliteFile::migrate()
{
    const auto versionPragma = QStringLiteral("PRAGMA user_version");
    if (ask(versionPragma).toInt() == m_schema.migrations.size())
        return true;
    return write([&] {
        // Asked again under the lock: another process may have been faster.
        const int version = ask(versionPragma).toInt();
        for (int step = version; step < m_schema.migrations.size(); ++step) {
            for (const QString &sql : m_schema.migrations.at(step)) {
                if (!execute(sql))
                    return false;
            }
        }
        return execute(QStringLiteral("PRAGMA application_id = %1").arg(m_schema.applicationId))
            && execute(QStringLiteral("PRAGMA user_version = %1").arg(m_schema.migrations.size()));
    });
}

bool SqliteFile::moveAside(const QString &reason) const
{
    const QString stem = m_path + QStringLiteral(".damaged-")
        + QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-hhmmss"));
    QString target = stem;
    for (int i = 1; QFile::exists(target); ++i)
        target = stem + QStringLiteral("-%1").arg(i);
    for (const char *companion : Companions) {
        const QLatin1String suffix(companion);
        if (QFile::exists(m_path + suffix) && !QFile::rename(m_path + suffix, target + suffix))
            return false;
    }
    if (QFile::exists(m_path) && !QFile::rename(m_path, target))
        return false;
    qWarning().noquote() << "SqliteFile: moved" << m_path << "aside to" << target + ":" << reason;
    return true;
}

SqliteStatement SqliteFile::statement(const QByteArray &sql) const
{
    if (!m_open)
        return SqliteStatement({});
    QSharedPointer<sqlite3_stmt> &statement = m_statements[sql];
    if (!statement) {
        sqlite3_stmt *prepared = nullptr;
        sqlite3_prepare_v3(handle(), sql.constData(), sql.size(), SQLITE_PREPARE_PERSISTENT, &prepared, nullptr);
        if (!prepared)
            qWarning() << "SqliteFile:" << sqlite3_errmsg(handle()) << "in" << sql;
        statement.reset(prepared, sqlite3_finalize);
    }
    return SqliteStatement(statement);
}

sqlite3 *SqliteFile::handle() const
{
    const QVariant handle = QSqlDatabase::database(m_connection, false).driver()->handle();
    return qstrcmp(handle.typeName(), "sqlite3*") == 0 ? *static_cast<sqlite3 *const *>(handle.constData())
                                                       : nullptr;
}

bool SqliteFile::write(const std::function<bool()> &work)
{
    if (!m_writable) {
        qWarning().noquote() << "SqliteFile: cannot write" << m_path;
        return false;
    }
    if (!execute(QStringLiteral("BEGIN IMMEDIATE")))
        return false;
    if (work() && execute(QStringLiteral("COMMIT")))
        return true;
    // SQLite may have rolled back by itself, as it does on a full disk; then this says so and changes nothing.
    QSqlQuery(QSqlDatabase::database(m_connection, false)).exec(QStringLiteral("ROLLBACK"));
    return false;
}

int SqliteFile::dataVersion() const
{
    SqliteStatement version = statement("PRAGMA data_version");
    return version.run() && version.next() ? version.number(0) : 0;
}

bool SqliteFile::execute(const QString &sql) const
{
    QSqlQuery query(QSqlDatabase::database(m_connection, false));
    if (query.exec(sql))
        return true;
    qWarning().noquote() << "SqliteFile:" << m_path + ":" << query.lastError().databaseText() << "in" << sql;
    return false;
}

QVariant SqliteFile::ask(const QString &sql, QSqlError *error) const
{
    QSqlQuery query(QSqlDatabase::database(m_connection, false));
    query.setForwardOnly(true);
    const bool answered = query.exec(sql) && query.next();
    if (error)
        *error = query.lastError();
    return answered ? query.value(0) : QVariant();
}
