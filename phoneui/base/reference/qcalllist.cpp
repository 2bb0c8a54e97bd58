#include "qcalllist.h"

#include "contactdata.h"
#include "sqlitefile.h"

#define CALL_COLUMNS "number, name, direction, started_at, seconds"

// "PhoH" in the file's header.
static constexpr int ApplicationId = 0x50686f48;

static const SqliteSchema &callSchema()
{
    static const SqliteSchema schema
        = {ApplicationId,
           {{R"(CREATE TABLE calls (id INTEGER PRIMARY KEY, number TEXT, name TEXT, direction INTEGER NOT NULL,
                 started_at INTEGER NOT NULL, seconds INTEGER NOT NULL))",
             "CREATE INDEX calls_by_number ON calls (number, started_at)",
             "CREATE INDEX calls_by_time ON calls (started_at)"}},
           {"SELECT " CALL_COLUMNS " FROM calls"}};
    return schema;
}

class CallDatabase
{
public:
    explicit CallDatabase(const QString &path) : m_file(path, callSchema()) { }

    QList<CallRecord> calls(const char *sql, const SqliteValues &values) const
    {
        QList<CallRecord> calls;
        SqliteStatement rows = m_file.statement(sql);
        rows.run(values);
        while (rows.next()) {
            CallRecord call;
            call.number = rows.text(0);
            call.name = rows.text(1);
            call.direction = static_cast<CallRecord::Direction>(rows.number(2));
            call.startedAt = QDateTime::fromMSecsSinceEpoch(rows.value(3).toLongLong());
            call.seconds = rows.number(4);
            calls.append(call);
        }
        return calls;
    }

    bool add(const CallRecord &call)
    {
        return m_file.write([&] {
            SqliteStatement statement
                = m_file.statement("INSERT INTO calls (" CALL_COLUMNS ") VALUES (?, ?, ?, ?, ?)");
            return statement.run({ContactData::bareNumber(call.number), call.name, call.direction,
                                  call.startedAt.toMSecsSinceEpoch(), call.seconds});
        });
    }

private:
    SqliteFile m_file;
};

QCallList::QCallList(const QString &databasePath, QObject *parent)
    : QObject(parent), m_database(new CallDatabase(databasePath))
{
}

QCallList::~QCallList() = default;

QList<CallRecord> QCallList::calls() const
{
    return m_database->calls("SELECT " CALL_COLUMNS " FROM calls ORDER BY started_at DESC, id DESC", {});
}

QList<CallRecord> QCallList::callsbyNumber(const QString &number) const
{
    return m_database->calls("SELECT " CALL_COLUMNS
                             " FROM calls WHERE number = ? ORDER BY started_at DESC, id DESC",
                             {ContactData::bareNumber(number)});
}

int QCallList::addCall(const CallRecord &call)
{
    return m_database->add(call);
}
