#include "searchrows.h"

#include "textcodec.h"

#include <QStringMatcher>

namespace {

/// The word as it stands, sought in many short texts.
class Word
{
public:
    explicit Word(const QString &word) : m_word(word), m_matcher(word) { }

    bool isIn(const QString &text) const
    {
        return m_word.size() == 1 ? text.contains(m_word.at(0)) : m_matcher.indexIn(text) >= 0;
    }
    bool fitsName(const QString &name) const { return isIn(name) || chosungCompare(name, m_word); }

private:
    const QString m_word;
    const QStringMatcher m_matcher;
};

}

SearchRows::SearchRows(const MergedContacts &contacts, const QString &word) : m_contacts(contacts)
{
    const Word sought(word);
    for (int i = 0; i < m_contacts.size(); ++i) {
        const ContactData &contact = m_contacts.at(i);
        if (contact.number(0).isEmpty())
            continue;
        const bool nameFits = sought.fitsName(contact.name);
        for (int slot = 0; slot < ContactData::NumberCount; ++slot) {
            const QString &number = contact.number(slot);
            if (!number.isEmpty() && (nameFits || sought.isIn(number)))
                m_rows.append({i, slot});
        }
    }
}
