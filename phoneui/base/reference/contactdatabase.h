#ifndef CONTACTDATABASE_H
#define CONTACTDATABASE_H

#include "contactdata.h"
#include "searchlines.h"
#include "sqlitefile.h"

/// The tables of contacts, numbers, groups and memberships in one file, the phone's own or a mobile device's.
class ContactDatabase
{
public:
    explicit ContactDatabase(const QString &path, SqliteFile::Access access = SqliteFile::ReadWrite);

    SqliteFile &file() { return m_file; }

    QList<ContactData> allContacts() const;
    /// The contact, or an empty one with id 0.
    ContactData contact(int id) const;
    QList<ContactData> search(const QString &word);
    /// The first value that the statement gives for these values; invalid without a row.
    QVariant value(const char *sql, const QVariantList &values = {}) const;
    QList<int> ids(const char *sql, int key) const;

    // The writing halves belong inside file().write().

    /// The contact's new id; 0 when it failed.
    int insert(const ContactData &contact);
    bool update(const ContactData &contact);
    bool replaceMemberships(int contactId, const QList<int> &groupIds);
    /// The id of the group of that name, which is made when there is none; 0 when it failed.
    int groupIdByName(const QString &name);

    /// What the search holds of these contacts is out of date.
    void forgetSearch() { m_lines.clear(); }

private:
    bool insertNumbers(int contactId, const ContactData &contact);
    void refreshLines();

    SqliteFile m_file;
    SearchLines m_lines;
};

#endif
