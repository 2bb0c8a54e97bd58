#include "sqliterows.h"

#include "sqlitefile.h"

namespace {

// More gain little, and a longer statement takes longer to be prepared.
constexpr int FullRows = 64;

}

SqliteRows::SqliteRows(const SqliteFile &file, const char *head, const char *row, SqliteRows *referred)
    : m_file(file), m_head(head), m_row(row), m_referred(referred)
{
}

bool SqliteRows::add(const SqliteValues &row)
{
    m_values += row;
    return ++m_rows < FullRows || flush();
}

bool SqliteRows::flush()
{
    if (m_referred && !m_referred->flush())
        return false;
    if (m_rows == 0)
        return true;
    const QByteArray sql = m_head + m_row + QByteArray(", " + m_row).repeated(m_rows - 1);
    const bool written = m_file.statement(sql).run(m_values);
    m_values.resize(0);
    m_rows = 0;
    return written;
}
