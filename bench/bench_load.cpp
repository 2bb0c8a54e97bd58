// Loading and merging all contacts, beside the same rows read with SQLite's own interface into a sorted vector.

#include "mergedcontacts.h"
#include "phonebench.h"

#include <array>
#include <sqlite3.h>
#include <string>

namespace {

using namespace PhoneBench;

/// The two stores are new in each pass, so that nothing of the last one is left in memory.
void ours(benchmark::State &state)
{
    const PhoneHome &home = phoneWith(int(state.range(0))).home;
    Passes passes(state);
    for (auto _ : state) {
        const ContactManager local(home.contactDatabase());
        const Stopwatch watch;
        WpsmContactManager mobile(home.mobileFolder());
        const MergedContacts merged(local.getAllContacts(), mobile.getAllContacts());
        passes.add(watch);
        if (merged.size() != state.range(0))
            state.SkipWithError("contacts were lost");
    }
    passes.report();
}

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

std::string textOf(sqlite3_stmt *row, int column)
{
    const auto *text = reinterpret_cast<const char *>(sqlite3_column_text(row, column));
    return text ? std::string(text, std::size_t(sqlite3_column_bytes(row, column))) : std::string();
}

void readFile(const QString &path, std::vector<Record> *records)
{
    sqlite3 *file = nullptr;
    sqlite3_stmt *rows = nullptr, *numbers = nullptr;
    sqlite3_open_v2(path.toUtf8().constData(), &file, SQLITE_OPEN_READONLY, nullptr);
    sqlite3_prepare_v2(file,
                       "SELECT id, name, picture, email1, email2, email3, memo, bell, buddy_id, extra FROM contacts"
                       " ORDER BY id",
                       -1, &rows, nullptr);
    sqlite3_prepare_v2(file, "SELECT contact_id, slot, kind, number FROM numbers ORDER BY contact_id", -1, &numbers,
                       nullptr);
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

void sqlite(benchmark::State &state)
{
    const PhoneHome &home = phoneWith(int(state.range(0))).home;
    Passes passes(state);
    for (auto _ : state) {
        const Stopwatch watch;
        std::vector<Record> records;
        readFile(home.contactDatabase(), &records);
        readFile(home.path("mobile/contacts.db"), &records);
        std::sort(records.begin(), records.end(),
                  [](const Record &a, const Record &b) { return a.texts[0] < b.texts[0]; });
        passes.add(watch);
        if (std::int64_t(records.size()) != state.range(0))
            state.SkipWithError("contacts were lost");
    }
    passes.report();
}

}

int main(int argc, char **argv)
{
    return run(argc, argv, [] {
        for (const int count : {300, 10000, 100000}) {
            const int passes = qMax(5, 20000 / count);
            add("load/ours", ours, count, passes);
            add("load/SQLite", sqlite, count, passes);
        }
    });
}
