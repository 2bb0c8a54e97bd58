#include "searchrows.h"

#include "textcodec.h"

#include <QStringMatcher>

SearchRows::SearchRows(const MergedContacts &contacts, const QString &word) : m_contacts(contacts)
{
    const QStringMatcher matcher(word);
    const auto holdsWord = [&](const QString &text) { return matcher.indexIn(text) >= 0; };
    for (int i = 0; i < m_contacts.size(); ++i) {
        const ContactData &contact = m_contacts.at(i);
        if (contact.number(0).isEmpty())
            continue;
        const bool nameFits = holdsWord(contact.name) || chosungCompare(contact.name, word);
        for (int slot = 0; slot < ContactData::NumberCount; ++slot) {
            const QString &number = contact.number(slot);
            if (!number.isEmpty() && (nameFits || holdsWord(number)))
                m_rows.append({i, slot});
        }
    }
}
