#include "sqlitestatement.h"

#include <QDebug>

#include <sqlite3.h>
#include <utility>

void SqliteValue::bind(sqlite3_stmt *statement, int place) const
{
    if (!m_isText)
        sqlite3_bind_int64(statement, place, m_number);
    else if (m_text.isNull())
        sqlite3_bind_null(statement, place);
    else
        sqlite3_bind_text16(statement, place, m_text.constData(), m_text.size() * int(sizeof(QChar)),
                            SQLITE_STATIC);
}

SqliteStatement::~SqliteStatement()
{
    sqlite3_reset(m_statement.data());
}

bool SqliteStatement::run(const SqliteValues &values)
{
    sqlite3_stmt *statement = m_statement.data();
    if (!statement)
        return false;
    sqlite3_reset(statement);
    m_values = values;
    for (int i = 0; i < m_values.size(); ++i)
        m_values.at(i).bind(statement, i + 1);
    const int result = sqlite3_step(statement);
    m_hasRow = result == SQLITE_ROW;
    if (m_hasRow || result == SQLITE_DONE)
        return true;
    qWarning() << "SqliteStatement:" << sqlite3_errmsg(sqlite3_db_handle(statement)) << "in"
               << sqlite3_sql(statement);
    return false;
}

bool SqliteStatement::next()
{
    sqlite3_stmt *statement = m_statement.data();
    // A step behind the last row would start again.
    return std::exchange(m_hasRow, false)
        || (sqlite3_stmt_busy(statement) && sqlite3_step(statement) == SQLITE_ROW);
}

QVariant SqliteStatement::value(int column) const
{
    switch (sqlite3_column_type(m_statement.data(), column)) {
    case SQLITE_NULL: return QVariant(QVariant::String);
    case SQLITE_INTEGER: return sqlite3_column_int64(m_statement.data(), column);
    default: return text(column);
    }
}

QString SqliteStatement::text(int column) const
{
    const std::string_view text = utf8(column);
    return QString::fromUtf8(text.data(), int(text.size()));
}

std::string_view SqliteStatement::utf8(int column) const
{
    const auto *text = reinterpret_cast<const char *>(sqlite3_column_text(m_statement.data(), column));
    if (!text)
        return {};
    return {text, std::size_t(sqlite3_column_bytes(m_statement.data(), column))};
}

int SqliteStatement::number(int column) const
{
    return sqlite3_column_int(m_statement.data(), column);
}

int SqliteStatement::rowsAffected() const
{
    return m_statement ? sqlite3_changes(sqlite3_db_handle(m_statement.data())) : 0;
}

int SqliteStatement::lastId() const
{
    return m_statement ? int(sqlite3_last_insert_rowid(sqlite3_db_handle(m_statement.data()))) : 0;
}
