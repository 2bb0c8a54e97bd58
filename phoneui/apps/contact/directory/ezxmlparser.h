#ifndef EZXMLPARSER_H
#define EZXMLPARSER_H

#include "ezxmldocument.h"
#include "ezxmlinstructions.h"
#include "ezxmlnames.h"

/// Reads one document into a tree.
///
/// The last byte of the text is replaced by a NUL, so that scans over names and white space need no other end; it
/// is remembered, as it may be the `>` that closes the last tag.
class EzxmlParser
{
public:
    EzxmlParser(ezxml_root *root, char *text, std::size_t length);

    void parse();

private:
    /// An element that is not closed yet.
    struct Open
    {
        ezxml *element;
        EzxmlName name;
        ezxml *lastChild;
        std::size_t firstName; ///< in m_names
        std::size_t firstJoined; ///< in m_joined
        char *run; ///< the only run of text so far, which stays where it is; null for several
        std::size_t textLength;
    };

    // Each of these takes the place behind the mark that tells what follows, and returns the place behind what it
    // has read, or null after a fault.
    char *readMarkup(char *at);
    char *readOpenTag(char *at);
    char *readAttributes(char *at, const EzxmlName &tag);
    char *readAttribute(char *at, const EzxmlName &tag);
    char *readCloseTag(char *at);
    char *readText(char *at);
    char *readCharacterData(char *at);
    char *readComment(char *at);
    char *readInstruction(char *at);
    char *readDoctype(char *at);

    void open(const EzxmlName &tag, bool isEmpty);
    void link(ezxml *element, const EzxmlName &tag);
    char **attributeList();
    void close();
    void addText(char *text, std::size_t length);
    void append(const char *text, std::size_t length) { m_joined.insert(m_joined.end(), text, text + length); }
    /// False after a fault.
    bool decode(char **text, std::size_t *length, EzxmlEntities::Kind kind);
    void finish();

    /// The byte at `at`, also where the last one was replaced.
    char byte(const char *at) const { return at == m_end ? m_last : *at; }
    /// The place behind the byte at `at`; nothing lies behind the last one.
    char *behind(char *at) const { return at == m_end ? at : at + 1; }
    bool startsWith(const char *at, std::string_view word) const;
    /// The place of these bytes, or null.
    char *findClosing(char *at, std::string_view word) const;
    void terminate(char *at);
    char *fail(const char *at, const std::string &fault);

    ezxml_root *m_root;
    char *m_end;
    char m_last = '\0';
    bool m_hasRoot = false;
    EzxmlMemory &m_memory;
    EzxmlDoctype &m_doctype;
    EzxmlEntities m_entities;
    EzxmlInstructions m_instructions;
    std::vector<Open> m_open;
    EzxmlNames m_names;
    /// The runs of text of those open elements that have several, one element's behind the other's.
    std::vector<char> m_joined;
    std::vector<char *> m_attributes; ///< names and values of the tag that is read
    std::ptrdiff_t m_lostLines = 0; ///< line feeds that are no longer in the text before the current place
};

#endif
