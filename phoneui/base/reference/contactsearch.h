#ifndef CONTACTSEARCH_H
#define CONTACTSEARCH_H

#include "contactdata.h"
#include "contactrecords.h"

#include <QList>
#include <QString>
#include <QVector>

/// The contacts of a store in memory, in the order of their names, and a search through them: each is one folded
/// line, and all lines are scanned for every word. The lines are made for the first word that is looked for.
class ContactSearch
{
public:
    /// Whether the contacts are missing, or older than the data of that version.
    bool needsReload(int dataVersion) const { return !m_loaded || dataVersion != m_dataVersion; }
    /// Those of one name keep the order of the records.
    void load(ContactRecords records, ContactData::Contact_Type type, int dataVersion);
    void clear();

    const QList<ContactData> &contacts() const { return m_contacts; }
    /// The contacts whose line holds the word, in the order of their names: all for an empty word, none for a word
    /// of accents alone.
    QList<ContactData> matches(const QString &word) const;

private:
    void makeLines() const;
    void appendLine(const ContactData &contact) const;

    QList<ContactData> m_contacts;
    mutable QString m_lines;
    mutable QVector<int> m_lineEnds; ///< in m_lines, by contact; none before the lines are made
    int m_dataVersion = 0;
    bool m_loaded = false;
};

#endif
