#ifndef EZXMLENTITIES_H
#define EZXMLENTITIES_H

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

class EzxmlMemory;

/// Where a text is decoded to: its own place, over what has been read of it, as long as nothing has to grow.
class EzxmlOutput
{
public:
    void start(char *place, std::size_t length)
    {
        m_start = m_at = place;
        m_limit = place + length;
        m_isDetached = false;
    }
    /// What comes from now on may be more than what has been read.
    void detach()
    {
        if (!m_isDetached)
            grow(1);
    }

    void put(char c)
    {
        if (m_at == m_limit)
            grow(1);
        *m_at++ = c;
    }
    void put(const char *from, const char *to);

    char *data() { return m_start; }
    std::size_t size() const { return static_cast<std::size_t>(m_at - m_start); }
    void truncate(std::size_t size) { m_at = m_start + size; }
    bool isDetached() const { return m_isDetached; }

private:
    void grow(std::size_t bytes);

    char *m_start = nullptr;
    char *m_at = nullptr;
    char *m_limit = nullptr;
    bool m_isDetached = false;
    std::string m_buffer;
};

/// The entities of one document, and the decoding of texts with them.
class EzxmlEntities
{
public:
    /// What is expanded in a text, and how its white space is taken.
    enum Kind : char {
        Content = '&',
        AttributeText = ' ', ///< white space becomes spaces
        AttributeToken = '*', ///< moreover spaces at both ends and repeated ones are dropped
        CharacterData = 'c', ///< nothing is expanded
        EntityValue = '%' ///< parameter entities instead of general ones
    };

    /// What the entities may expand to altogether follows from the document's length.
    EzxmlEntities(EzxmlMemory *memory, std::size_t documentLength);

    /// Up to where EzxmlText::reach bytes of the document can be read.
    void setLastReach(const char *lastReach) { m_lastReach = lastReach; }

    /// Of two declarations of one name the first is in force.
    void declare(const std::string &name, const std::string &replacement) { m_general.emplace(name, replacement); }
    void declareParameter(const std::string &name, const std::string &replacement)
    {
        m_parameters.emplace(name, replacement);
    }
    std::size_t parameterCount() const { return m_parameters.size(); }
    /// Null for a name that is not declared.
    const std::string *parameter(std::string_view name) const { return replacement(m_parameters, name); }
    /// The name of an entity that contains itself, be it through others; empty when there is none.
    std::string circular() const;

    /// The decoded text, in place or, when it may have grown, in the tree's memory. It ends in a NUL, unless it is
    /// as long as before: then the byte behind it is left to the caller.
    char *decode(char *text, std::size_t *length, Kind kind);
    std::string decoded(std::string text, Kind kind);
    /// Takes a replacement of `bytes` from what the document may expand to.
    void spend(std::size_t bytes);
    /// The entities expand to more than any honest document's do; what decode() returned is cut off.
    bool overflown() const { return m_overflown; }

    /// Pairs of name with semicolon and replacement up to a null pointer, the built-in entities first.
    char **table() const;

private:
    using Names = std::map<std::string, std::string, std::less<>>;
    struct Source
    {
        const char *at;
        const char *end;
    };

    static const std::string *replacement(const Names &names, std::string_view name);
    /// The beginning of a text of the document, where most have no more than these; returns what is left.
    char *decodeBuiltIns(char *at, char *end);
    /// Decodes into m_output.
    void expand(Source text, Kind kind);
    void expandMark(Source *source, Kind kind);
    bool expandNumber(Source *source);
    bool expandName(Source *source, Kind kind);

    EzxmlMemory *m_memory;
    std::size_t m_allowance;
    const char *m_lastReach = nullptr;
    bool m_overflown = false;
    Names m_general;
    Names m_parameters;
    /// While a replacement is expanded: the text and the replacements around it.
    std::vector<Source> m_suspended;
    EzxmlOutput m_output;
};

#endif
