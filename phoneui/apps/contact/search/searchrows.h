#ifndef SEARCHROWS_H
#define SEARCHROWS_H

#include "mergedcontacts.h"

#include <QString>
#include <QVector>

/// Which numbers of the contacts found for a word get a row: all of a contact whose name fits, else those that hold
/// the word. A contact without a first number gets none.
class SearchRows
{
public:
    SearchRows() = default;
    SearchRows(const MergedContacts &contacts, const QString &word);

    int size() const { return m_rows.size(); }
    const ContactData &contact(int row) const { return m_contacts.at(m_rows.at(row).contact); }
    /// The number's position in the contact, from 0.
    int slot(int row) const { return m_rows.at(row).slot; }

private:
    struct Row
    {
        int contact;
        int slot;
    };

    MergedContacts m_contacts;
    QVector<Row> m_rows;
};

#endif
