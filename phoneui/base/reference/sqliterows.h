#ifndef SQLITEROWS_H
#define SQLITEROWS_H

#include "sqlitestatement.h"

#include <QByteArray>

class SqliteFile;

/// Rows on their way into one table, many in one statement: beginning and ending a statement takes SQLite as long
/// as a row. What has been added is in the table after flush().
class SqliteRows
{
public:
    /// The statement begins with `head` and names `row` once for each: "INSERT INTO ... VALUES ", "(?, ...)". Rows
    /// of `referred` are written before those that refer to them.
    SqliteRows(const SqliteFile &file, const char *head, const char *row, SqliteRows *referred = nullptr);

    bool add(const SqliteValues &row);
    bool flush();

private:
    const SqliteFile &m_file;
    const QByteArray m_head, m_row;
    SqliteRows *const m_referred;
    SqliteValues m_values; ///< of the rows that are not written yet
    int m_rows = 0;
};

#endif
