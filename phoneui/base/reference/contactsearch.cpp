#include "contactsearch.h"

#include "textfolding.h"

#include <algorithm>

namespace {

/// Finds a word in a long text. Looks for its two ends in many places at once, in loops that the compiler turns
/// into vector instructions: short words, which come with every search, leave the usual algorithms nothing to skip.
class Finder
{
public:
    explicit Finder(const QString &word) : m_word(word), m_span(word.size() - 1) { }

    /// The first place of the word from `from` on, or -1.
    int indexIn(const QString &text, int from) const
    {
        if (m_span == 0)
            return text.indexOf(m_word.at(0), from); // does the same for a single letter
        const ushort *letters = text.utf16();
        const int end = text.size() - m_span;
        int at = from;
        for (; at + Block <= end; at += Block) {
            if (!mayBeginIn(letters + at))
                continue;
            const int found = firstIn(letters, at, at + Block);
            if (found >= 0)
                return found;
        }
        return firstIn(letters, at, end);
    }

private:
    static constexpr int Block = 64;

    bool mayBeginIn(const ushort *block) const
    {
        const ushort first = m_word.at(0).unicode(), last = m_word.at(m_span).unicode();
        ushort any = 0;
        for (int i = 0; i < Block; ++i)
            any |= static_cast<ushort>(block[i] == first) & static_cast<ushort>(block[i + m_span] == last);
        return any;
    }

    int firstIn(const ushort *letters, int from, int end) const
    {
        const ushort *word = m_word.utf16();
        for (int at = from; at < end; ++at) {
            if (letters[at] == *word && std::equal(word, word + m_word.size(), letters + at))
                return at;
        }
        return -1;
    }

    const QString m_word;
    const int m_span; ///< from the first letter to the last
};

}

void ContactSearch::load(ContactRecords records, ContactData::Contact_Type type, int dataVersion)
{
    clear();
    records.sort();
    m_contacts.reserve(records.size());
    for (int i = 0; i < records.size(); ++i) {
        m_contacts.append(records.contact(i));
        m_contacts.last().type = type;
    }
    m_loaded = true;
    m_dataVersion = dataVersion;
}

void ContactSearch::clear()
{
    m_contacts.clear();
    m_lines.clear();
    m_lineEnds.clear();
    m_loaded = false;
}

void ContactSearch::makeLines() const
{
    m_lineEnds.reserve(m_contacts.size());
    for (const ContactData &contact : m_contacts)
        appendLine(contact);
    m_lines.squeeze();
}

void ContactSearch::appendLine(const ContactData &contact) const
{
    TextFolding::appendNameLine(&m_lines, contact.name);
    for (int slot = 0; slot < ContactData::NumberCount; ++slot) {
        if (contact.number(slot).isEmpty())
            continue;
        m_lines += TextFolding::Separator;
        m_lines += contact.number(slot);
    }
    // No word holds the separator, so none is found across two lines.
    m_lines += TextFolding::Separator;
    m_lineEnds.append(m_lines.size());
}

QList<ContactData> ContactSearch::matches(const QString &word) const
{
    if (word.isEmpty())
        return m_contacts;
    if (m_lineEnds.isEmpty())
        makeLines();
    const QString folded = TextFolding::fold(word);
    QVector<int> found;
    if (!folded.isEmpty()) {
        const Finder finder(folded);
        auto lineEnd = m_lineEnds.begin();
        for (int at = finder.indexIn(m_lines, 0); at >= 0; at = finder.indexIn(m_lines, *lineEnd++)) {
            lineEnd = std::find_if(lineEnd, m_lineEnds.end(), [at](int end) { return end > at; });
            found.append(int(lineEnd - m_lineEnds.begin()));
        }
    }
    if (found.size() == m_contacts.size())
        return m_contacts;
    QList<ContactData> contacts;
    contacts.reserve(found.size());
    for (const int i : qAsConst(found))
        contacts.append(m_contacts.at(i));
    return contacts;
}
