#ifndef PLAINROWS_H
#define PLAINROWS_H

#include "phonehome.h"

#include <QString>

#include <algorithm>
#include <array>
#include <sqlite3.h>
#include <string>
#include <vector>

/// Contacts read and written with SQLite's own interface and nothing around it.
namespace PlainRows {

struct Record
{
    struct Number
    {
        int slot, kind;
        std::string text;
    };

    int id;
    std::array<std::string, 9> texts; // the name first
    std::vector<Number> numbers;
};

inline std::string textOf(sqlite3_stmt *row, int column)
{
    const auto *text = reinterpret_cast<const char *>(sqlite3_column_text(row, column));
    return text ? std::string(text, std::size_t(sqlite3_column_bytes(row, column))) : std::string();
}

inline sqlite3_stmt *prepared(sqlite3 *file, const std::string &sql)
{
    sqlite3_stmt *statement = nullptr;
    sqlite3_prepare_v2(file, sql.c_str(), -1, &statement, nullptr);
    return statement;
}

/// Appends the contacts of a store's file by id.
inline void read(const QString &path, std::vector<Record> *records)
{
    sqlite3 *file = nullptr;
    sqlite3_open_v2(path.toUtf8().constData(), &file, SQLITE_OPEN_READONLY, nullptr);
    sqlite3_stmt *rows = prepared(
        file,
        "SELECT id, name, picture, email1, email2, email3, memo, bell, buddy_id, extra FROM contacts ORDER BY id");
    sqlite3_stmt *numbers
        = prepared(file, "SELECT contact_id, slot, kind, number FROM numbers ORDER BY contact_id");
    bool more = sqlite3_step(numbers) == SQLITE_ROW;
    while (sqlite3_step(rows) == SQLITE_ROW) {
        Record record;
        record.id = sqlite3_column_int(rows, 0);
        for (std::size_t i = 0; i < record.texts.size(); ++i)
            record.texts[i] = textOf(rows, int(i) + 1);
        for (; more && sqlite3_column_int(numbers, 0) == record.id; more = sqlite3_step(numbers) == SQLITE_ROW)
            record.numbers.push_back(
                {sqlite3_column_int(numbers, 1), sqlite3_column_int(numbers, 2), textOf(numbers, 3)});
        records->push_back(std::move(record));
    }
    sqlite3_finalize(rows);
    sqlite3_finalize(numbers);
    sqlite3_close(file);
}

/// The contacts of the phone and of the paired device in the order of their names.
inline std::vector<Record> readSorted(const PhoneHome &home)
{
    std::vector<Record> records;
    read(home.contactDatabase(), &records);
    read(home.mobileFolder() + QStringLiteral("/contacts.db"), &records);
    std::sort(records.begin(), records.end(),
              [](const Record &a, const Record &b) { return a.texts[0] < b.texts[0]; });
    return records;
}

/// Binds texts and numbers one after the other.
class Binder
{
public:
    explicit Binder(sqlite3_stmt *statement) : m_statement(statement) { sqlite3_reset(statement); }

    void add(int number) { sqlite3_bind_int(m_statement, ++m_place, number); }
    void add(const std::string &text)
    {
        if (text.empty())
            sqlite3_bind_null(m_statement, ++m_place);
        else
            sqlite3_bind_text(m_statement, ++m_place, text.data(), int(text.size()), SQLITE_STATIC);
    }

private:
    sqlite3_stmt *const m_statement;
    int m_place = 0;
};

/// Inserts that many rows, a multiple of 50, each as `bind` gives it: 50 with a statement.
template <typename Bind>
bool insert(sqlite3 *file, const char *head, const std::string &row, std::size_t count, Bind bind)
{
    static constexpr std::size_t Rows = 50;
    std::string sql = head + row;
    for (std::size_t i = 1; i < Rows; ++i)
        sql += ", " + row;
    sqlite3_stmt *statement = prepared(file, sql);
    bool written = count % Rows == 0;
    for (std::size_t first = 0; first < count; first += Rows) {
        Binder binder(statement);
        for (std::size_t i = first; i < first + Rows; ++i)
            bind(binder, i);
        written = written && sqlite3_step(statement) == SQLITE_DONE;
    }
    sqlite3_finalize(statement);
    return written;
}

/// Adds contacts to a store's empty file in one transaction; false when SQLite refuses.
inline bool write(const QString &path, const std::vector<Record> &records)
{
    std::vector<std::pair<int, const Record::Number *>> numbers;
    for (const Record &record : records) {
        for (const Record::Number &number : record.numbers)
            numbers.emplace_back(record.id, &number);
    }
    sqlite3 *file = nullptr;
    sqlite3_open_v2(path.toUtf8().constData(), &file, SQLITE_OPEN_READWRITE, nullptr);
    sqlite3_exec(file,
                 "PRAGMA temp_store = MEMORY; PRAGMA journal_mode = WAL; PRAGMA synchronous = FULL;"
                 "PRAGMA foreign_keys = ON; BEGIN",
                 nullptr, nullptr, nullptr);
    const bool written = insert(file,
                                "INSERT INTO contacts (id, name, picture, email1, email2, email3, memo, bell, "
                                "buddy_id, extra) VALUES ",
                                "(?, ?, ?, ?, ?, ?, ?, ?, ?, ?)", records.size(),
                                [&](Binder &row, std::size_t i) {
                                    row.add(records[i].id);
                                    for (const std::string &text : records[i].texts)
                                        row.add(text);
                                })
        && insert(file, "INSERT INTO numbers (contact_id, slot, kind, number) VALUES ", "(?, ?, ?, ?)",
                  numbers.size(),
                  [&](Binder &row, std::size_t i) {
                      row.add(numbers[i].first);
                      row.add(numbers[i].second->slot);
                      row.add(numbers[i].second->kind);
                      row.add(numbers[i].second->text);
                  })
        && insert(file, "INSERT INTO memberships (contact_id, position, group_id) VALUES ", "(?, 0, 1)",
                  records.size(), [&](Binder &row, std::size_t i) { row.add(records[i].id); })
        && sqlite3_exec(file, "COMMIT", nullptr, nullptr, nullptr) == SQLITE_OK;
    sqlite3_close(file);
    return written;
}

}

#endif
