#ifndef SQLITESTATEMENT_H
#define SQLITESTATEMENT_H

#include <QSharedPointer>
#include <QString>
#include <QVariant>
#include <QVector>

#include <string_view>

struct sqlite3_stmt;

/// What stands for a question mark: a number or a text. A null text is NULL.
class SqliteValue
{
public:
    SqliteValue() = default;
    SqliteValue(qint64 number) : m_number(number), m_isText(false) { }
    SqliteValue(int number) : SqliteValue(qint64(number)) { }
    SqliteValue(const QString &text) : m_text(text) { }

    /// SQLite reads the text from here.
    void bind(sqlite3_stmt *statement, int place) const;

private:
    QString m_text;
    qint64 m_number = 0;
    bool m_isText = true;
};

Q_DECLARE_TYPEINFO(SqliteValue, Q_MOVABLE_TYPE);

using SqliteValues = QVector<SqliteValue>;

/// One run of a prepared statement. It is finished when this goes out of scope, so that no read stays open and
/// holds the file back from being checkpointed.
///
/// It speaks to SQLite itself: Qt's driver makes a QVariant of every column of every row, which takes longer than
/// SQLite does to find them.
class SqliteStatement
{
    Q_DISABLE_COPY_MOVE(SqliteStatement)

public:
    /// Null for a statement that cannot be prepared: it does not run.
    explicit SqliteStatement(const QSharedPointer<sqlite3_stmt> &statement) : m_statement(statement) { }
    ~SqliteStatement();

    /// Runs with these values for its question marks; false, with the reason in the log, when it fails.
    bool run(const SqliteValues &values = {});
    bool next();
    /// A number, a text, or a null variant.
    QVariant value(int column) const;
    /// Null for NULL.
    QString text(int column) const;
    /// The same as it stands in the file, up to the next row.
    std::string_view utf8(int column) const;
    int number(int column) const;
    int rowsAffected() const;
    int lastId() const;

private:
    const QSharedPointer<sqlite3_stmt> m_statement;
    SqliteValues m_values;
    bool m_hasRow = false; ///< the one that run() found, for next()
};

#endif
