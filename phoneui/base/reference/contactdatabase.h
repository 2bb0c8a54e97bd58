#ifndef CONTACTDATABASE_H
#define CONTACTDATABASE_H

#include "contactdata.h"
#include "contactsearch.h"
#include "sqlitefile.h"

/// The tables of contacts, numbers, groups and memberships in one file, the phone's own or a mobile device's.
class ContactDatabase
{
public:
    explicit ContactDatabase(const QString &path, SqliteFile::Access access = SqliteFile::ReadWrite);

    SqliteFile &file() { return m_file; }

    /// All contacts in the order of their names, of one name by id. They stay in memory until the file changes.
    QList<ContactData> allContacts();
    /// All contacts by id, past what is in memory; false when the file cannot be read.
    bool readContacts(QList<ContactData> *contacts) const;
    /// The contact, or an empty one with id 0.
    ContactData contact(int id) const;
    QList<ContactData> search(const QString &word);
    /// The first value that the statement gives for these values; invalid without a row.
    QVariant value(const char *sql, const SqliteValues &values = {}) const;
    QList<int> ids(const char *sql, int key) const;

    // The writing halves belong inside file().write().

    /// The contact's new id; 0 when it failed.
    int insert(const ContactData &contact);
    bool update(const ContactData &contact);
    /// For a contact that is in no group, as a new one is.
    bool insertMemberships(int contactId, const QList<int> &groupIds);
    bool replaceMemberships(int contactId, const QList<int> &groupIds);
    /// The id of the group of that name, which is made when there is none; 0 when it failed.
    int groupIdByName(const QString &name);

    /// What is held in memory is out of date.
    void forgetContacts() { m_search.clear(); }

private:
    void refreshSearch();
    bool insertNumbers(int contactId, const ContactData &contact);

    SqliteFile m_file;
    ContactSearch m_search;
};

#endif
