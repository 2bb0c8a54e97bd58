#ifndef MOBILEDATABASE_H
#define MOBILEDATABASE_H

#include "contactdata.h"
#include "contactsearch.h"

#include <QHash>
#include <QList>
#include <QString>

/// What the paired device delivered, held in memory: its files may be replaced at any moment.
class MobileDatabase
{
public:
    explicit MobileDatabase(const QString &folder);

    /// Takes the pair of files if it is whole and not the one already held.
    void reload();

    QString deviceName() const { return m_deviceName; }
    const QList<ContactData> &contacts() const { return m_search.contacts(); }
    ContactData contact(int id) const;
    QList<ContactData> search(const QString &word) const { return m_search.matches(word); }

private:
    void take(const QString &deviceName, const QString &generation, ContactRecords records);

    const QString m_folder;
    QString m_deviceName;
    QString m_generation;
    QHash<int, int> m_positions;
    ContactSearch m_search;
};

#endif
