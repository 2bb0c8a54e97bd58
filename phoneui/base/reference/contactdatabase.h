#ifndef CONTACTDATABASE_H
#define CONTACTDATABASE_H

#include "contactdata.h"
#include "contactrecords.h"
#include "contactsearch.h"
#include "sqlitefile.h"
#include "sqliterows.h"

/// Contacts that are being added, with what belongs to them.
struct ContactRows
{
    explicit ContactRows(const SqliteFile &file);
    bool flush() { return numbers.flush() && memberships.flush(); }

    SqliteRows contacts, numbers, memberships;
    int lastId; ///< of the contacts added so far
};

/// The tables of contacts, numbers, groups and memberships in one file, the phone's own or a mobile device's.
class ContactDatabase
{
public:
    explicit ContactDatabase(const QString &path, SqliteFile::Access access = SqliteFile::ReadWrite);

    SqliteFile &file() { return m_file; }

    /// All contacts in the order of their names, of one name by id. They stay in memory until the file changes.
    QList<ContactData> allContacts();
    /// The records of all contacts by id, past what is in memory; false when the file cannot be read.
    bool readContacts(ContactRecords *records) const;
    /// The contact, or an empty one with id 0.
    ContactData contact(int id) const;
    QList<ContactData> search(const QString &word);
    /// The first value that the statement gives for these values; invalid without a row.
    QVariant value(const char *sql, const SqliteValues &values = {}) const;
    QList<int> ids(const char *sql, int key) const;

    // The writing halves belong inside file().write().

    /// Adds the contact under a new id, rows->lastId.
    static bool insert(const ContactData &contact, const QList<int> &groupIds, ContactRows *rows);
    bool update(const ContactData &contact);
    bool replaceMemberships(int contactId, const QList<int> &groupIds);
    /// The id of the group of that name, which is made when there is none; 0 when it failed.
    int groupIdByName(const QString &name);

    /// What is held in memory is out of date.
    void forgetContacts() { m_search.clear(); }

private:
    void refreshSearch();
    static bool addNumbers(int contactId, const ContactData &contact, SqliteRows *numbers);
    static bool addMemberships(int contactId, const QList<int> &groupIds, SqliteRows *memberships);

    SqliteFile m_file;
    ContactSearch m_search;
};

#endif
