#ifndef EZXMLLEAF_H
#define EZXMLLEAF_H

#include "ezxmlnames.h"
#include "ezxmltext.h"

/// An element without attributes that holds nothing but text, with the white space before it: `\n
/// <type>...</type>`. Documents made by programs repeat these to the byte, so that what followed a tag the last
/// time is compared as a whole before anything is looked for.
class EzxmlLeaf
{
public:
    /// Takes what was just read: the text from `gap` on up to the tag, and the tag's name. What is too long to be
    /// compared at once, or was not text as it stands, is not expected again.
    void learn(const char *gap, const EzxmlName &name, EzxmlLeaf *next)
    {
        const std::size_t space = static_cast<std::size_t>(name.text - gap) - 1;
        if (space + name.length + 2 > sizeof m_prefix || name.length + 3 > sizeof m_closing
            || EzxmlText::find(gap, gap + space, '&')) {
            *this = EzxmlLeaf();
            return;
        }
        m_space = space;
        m_key = name.key;
        m_next = next;
        m_nameLength = name.length;
        m_prefixLength = space + name.length + 2;
        std::memcpy(m_prefix, gap, space);
        m_prefix[space] = '<';
        std::memcpy(m_prefix + space + 1, name.text, name.length);
        m_prefix[m_prefixLength - 1] = '>';
        m_closing[0] = '<';
        m_closing[1] = '/';
        std::memcpy(m_closing + 2, name.text, name.length);
        m_closing[closingLength() - 1] = '>';
    }

    /// At both places that many bytes can be read: EzxmlText::reach.
    bool matches(const char *at) const { return EzxmlText::same(at, m_prefix, m_prefixLength); }
    bool closes(const char *at) const { return EzxmlText::same(at, m_closing, closingLength()); }

    /// What is expected behind this one.
    EzxmlLeaf *next() const { return m_next; }
    std::size_t space() const { return m_space; }
    std::size_t prefixLength() const { return m_prefixLength; }
    std::size_t closingLength() const { return m_nameLength + 3; }
    /// The name that stands behind the white space and the bracket.
    EzxmlName nameAt(const char *text) const { return EzxmlName(text, m_nameLength, m_key); }

private:
    char m_prefix[EzxmlText::reach] = {}; // a NUL, which no document holds, until something is learned
    char m_closing[EzxmlText::reach] = {};
    EzxmlLeaf *m_next = nullptr;
    std::size_t m_space = 0;
    std::size_t m_nameLength = 0;
    std::size_t m_prefixLength = 1;
    std::uint64_t m_key = 0;
};

#endif
