#include "contactdatabase.h"

#include "groupdata.h"

#define CONTACT_COLUMNS "id, name, picture, email1, email2, email3, memo, bell, buddy_id, extra"

namespace {

// "PhoC" in the file's header.
constexpr int ApplicationId = 0x50686f43;
constexpr int ContactColumnCount = 10;

const SqliteSchema &contactSchema()
{
    // Contact and group ids are never given twice: screens and messages hold on to them. Memberships know nothing
    // of the groups table, because a group may go while members still name it.
    static const SqliteSchema schema
        = {ApplicationId,
           {{R"(CREATE TABLE contacts (id INTEGER PRIMARY KEY AUTOINCREMENT, name TEXT, picture TEXT,
                 email1 TEXT, email2 TEXT, email3 TEXT, memo TEXT, bell TEXT, buddy_id TEXT, extra TEXT))",
             R"(CREATE TABLE numbers (contact_id INTEGER NOT NULL REFERENCES contacts (id) ON DELETE CASCADE,
                 slot INTEGER NOT NULL CHECK (slot BETWEEN 1 AND 10),
                 kind INTEGER NOT NULL CHECK (kind BETWEEN 0 AND 4), number TEXT NOT NULL,
                 PRIMARY KEY (contact_id, slot)) WITHOUT ROWID)",
             R"(CREATE TABLE groups (id INTEGER PRIMARY KEY AUTOINCREMENT, name TEXT NOT NULL UNIQUE, bell TEXT))",
             R"(CREATE TABLE memberships (contact_id INTEGER NOT NULL REFERENCES contacts (id) ON DELETE CASCADE,
                 position INTEGER NOT NULL, group_id INTEGER NOT NULL,
                 PRIMARY KEY (contact_id, position)) WITHOUT ROWID)",
             "CREATE INDEX contacts_by_name ON contacts (name)",
             "CREATE INDEX numbers_by_number ON numbers (number, contact_id)",
             "CREATE UNIQUE INDEX memberships_by_group ON memberships (group_id, contact_id)",
             "INSERT INTO groups (id, name, bell) VALUES (1, 'Unsigned', '')"}},
           {"SELECT " CONTACT_COLUMNS " FROM contacts", "SELECT contact_id, slot, kind, number FROM numbers",
            "SELECT id, name, bell FROM groups", "SELECT contact_id, position, group_id FROM memberships"}};
    return schema;
}

void addRecord(ContactRecords *records, const SqliteStatement &row)
{
    records->add(row.number(0));
    for (int column = 1; column < ContactColumnCount; ++column)
        records->addText(row.utf8(column));
}

/// The values of CONTACT_COLUMNS after the id. A null text stays null.
SqliteValues valuesOf(const ContactData &contact)
{
    return {contact.name, contact.picture, contact.email1,  contact.email2, contact.email3,
            contact.memo, contact.bell,    contact.buddyId, contact.extra};
}

/// The highest id that was ever given.
int newestId(const SqliteFile &file)
{
    SqliteStatement id = file.statement("SELECT seq FROM sqlite_sequence WHERE name = 'contacts'");
    return id.run() && id.next() ? id.number(0) : 0;
}

}

ContactRows::ContactRows(const SqliteFile &file)
    : contacts(file, "INSERT INTO contacts (" CONTACT_COLUMNS ") VALUES ", "(?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
      numbers(file, "INSERT INTO numbers (contact_id, slot, kind, number) VALUES ", "(?, ?, ?, ?)", &contacts),
      memberships(file, "INSERT OR IGNORE INTO memberships (contact_id, position, group_id) VALUES ", "(?, ?, ?)",
                  &contacts),
      lastId(newestId(file))
{
}

ContactDatabase::ContactDatabase(const QString &path, SqliteFile::Access access)
    : m_file(path, contactSchema(), access)
{
}

bool ContactDatabase::readContacts(ContactRecords *records) const
{
    SqliteStatement rows = m_file.statement("SELECT " CONTACT_COLUMNS " FROM contacts ORDER BY id");
    SqliteStatement numbers
        = m_file.statement("SELECT contact_id, slot, kind, number FROM numbers ORDER BY contact_id");
    if (!rows.run() || !numbers.run())
        return false;
    // Both come in the order of the ids, so they are merged as they are read.
    bool more = numbers.next();
    while (rows.next()) {
        addRecord(records, rows);
        const int id = rows.number(0);
        while (more && numbers.number(0) < id)
            more = numbers.next();
        for (; more && numbers.number(0) == id; more = numbers.next())
            records->addNumber(numbers.number(1), numbers.number(2), numbers.utf8(3));
    }
    return true;
}

ContactData ContactDatabase::contact(int id) const
{
    SqliteStatement row = m_file.statement("SELECT " CONTACT_COLUMNS " FROM contacts WHERE id = ?");
    if (!row.run({id}) || !row.next())
        return ContactData();
    ContactRecords records;
    addRecord(&records, row);
    SqliteStatement numbers = m_file.statement("SELECT slot, kind, number FROM numbers WHERE contact_id = ?");
    numbers.run({id});
    while (numbers.next())
        records.addNumber(numbers.number(0), numbers.number(1), numbers.utf8(2));
    return records.contact(0);
}

QVariant ContactDatabase::value(const char *sql, const SqliteValues &values) const
{
    SqliteStatement statement = m_file.statement(sql);
    return statement.run(values) && statement.next() ? statement.value(0) : QVariant();
}

QList<int> ContactDatabase::ids(const char *sql, int key) const
{
    QList<int> ids;
    SqliteStatement statement = m_file.statement(sql);
    statement.run({key});
    while (statement.next())
        ids.append(statement.number(0));
    return ids;
}

QList<ContactData> ContactDatabase::allContacts()
{
    refreshSearch();
    return m_search.contacts();
}

QList<ContactData> ContactDatabase::search(const QString &word)
{
    refreshSearch();
    return m_search.matches(word);
}

void ContactDatabase::refreshSearch()
{
    const int version = m_file.dataVersion();
    if (!m_search.needsReload(version))
        return;
    m_search.clear();
    ContactRecords records;
    if (readContacts(&records))
        m_search.load(std::move(records), ContactData::LocalContact, version);
}

bool ContactDatabase::insert(const ContactData &contact, const QList<int> &groupIds, ContactRows *rows)
{
    const int id = ++rows->lastId;
    return rows->contacts.add(SqliteValues{id} + valuesOf(contact)) && addNumbers(id, contact, &rows->numbers)
        && addMemberships(id, groupIds, &rows->memberships);
}

bool ContactDatabase::update(const ContactData &contact)
{
    SqliteStatement statement = m_file.statement(
        "UPDATE contacts SET name = ?, picture = ?, email1 = ?, email2 = ?, email3 = ?, memo = ?,"
        " bell = ?, buddy_id = ?, extra = ? WHERE id = ?");
    SqliteValues values = valuesOf(contact);
    values.append(contact.id);
    ContactRows rows(m_file);
    return statement.run(values) && statement.rowsAffected() == 1
        && m_file.statement("DELETE FROM numbers WHERE contact_id = ?").run({contact.id})
        && addNumbers(contact.id, contact, &rows.numbers) && rows.flush();
}

bool ContactDatabase::addNumbers(int contactId, const ContactData &contact, SqliteRows *numbers)
{
    for (int slot = 0; slot < ContactData::NumberCount; ++slot) {
        const QString number = ContactData::bareNumber(contact.number(slot));
        if (!number.isEmpty() && !numbers->add({contactId, slot + 1, contact.numberType(slot), number}))
            return false;
    }
    return true;
}

bool ContactDatabase::replaceMemberships(int contactId, const QList<int> &groupIds)
{
    ContactRows rows(m_file);
    return m_file.statement("DELETE FROM memberships WHERE contact_id = ?").run({contactId})
        && addMemberships(contactId, groupIds, &rows.memberships) && rows.flush();
}

/// A contact that is in no other group is in the built-in one.
bool ContactDatabase::addMemberships(int contactId, const QList<int> &groupIds, SqliteRows *memberships)
{
    QList<int> wanted = groupIds;
    if (wanted.isEmpty())
        wanted.append(GroupData::UnassignedId);
    for (int position = 0; position < wanted.size(); ++position) {
        if (!memberships->add({contactId, position, wanted.at(position)}))
            return false;
    }
    return true;
}

int ContactDatabase::groupIdByName(const QString &name)
{
    const int existing = value("SELECT id FROM groups WHERE name = ?", {name}).toInt();
    if (existing != 0)
        return existing;
    SqliteStatement statement = m_file.statement("INSERT INTO groups (name, bell) VALUES (?, '')");
    return statement.run({name}) ? statement.lastId() : 0;
}
