#include "ezxmldocument.h"
#include "ezxmlinstructions.h"
#include "ezxmlnames.h"
#include "ezxmlshape.h"
#include "ezxmltext.h"

#include <algorithm>
#include <cstdio>

using namespace EzxmlText;

namespace {

/// A flag for each attribute, that nothing of it lies on the heap. Shorter lists share the end.
char s_flags[] = "                                ";
const std::size_t s_sharedFlags = sizeof(s_flags) - 1;

/// What the records of a byte of an answer come to: most of it is markup.
const std::size_t s_recordBytes = 3;

std::size_t distance(const char *from, const char *to)
{
    return static_cast<std::size_t>(to - from);
}

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
        EzxmlNames::Scope names;
        std::size_t firstRun; ///< in m_runs
        std::size_t textLength; ///< of all its runs
    };
    struct Run
    {
        char *text;
        std::size_t length;
    };

    // Each of these takes the place behind the mark that tells what follows, and returns the place behind what it
    // has read, or null after a fault.
    char *readMarkup(char *at);
    char *readOpenTag(char *at);
    char *readAttributes(char *at, const EzxmlName &tag);
    char *readAttribute(char *at, const EzxmlName &tag);
    char *readCloseTag(char *at);
    char *readText(char *at);
    /// The whole of an element that is like one before it, from behind its name on; null for another, which is
    /// left.
    char *readAlike(char *at, const EzxmlName &tag);
    /// Made when an element of this name comes again; null for one whose shape is not expected.
    EzxmlShape *shapeOf(const EzxmlName &tag);
    /// The text behind an open tag; most elements hold nothing else and are closed here.
    char *readFirstText(char *at, ezxml *element, const EzxmlName &tag);
    char *readCharacterData(char *at);
    char *readComment(char *at);
    char *readInstruction(char *at);
    char *readDoctype(char *at);

    ezxml *newElement(const EzxmlName &tag);
    ezxml *newChild(const EzxmlName &tag);
    /// As the last child of the open element.
    void append(ezxml *element, const EzxmlName &tag);
    char *readOpened(char *at, ezxml *element, const EzxmlName &tag);
    void setText(ezxml *element, char *text);
    char **attributeList();
    void close();
    /// A piece of the open element's text; it stays where it is until the element is closed.
    void addRun(char *text, std::size_t length);
    /// The runs from the first to the top as one text.
    char *joined(const Open &open);
    /// False after a fault.
    bool decode(char **text, std::size_t *length, EzxmlEntities::Kind kind);
    void finish();

    /// The byte at `at`, also where the last one was replaced.
    char byte(const char *at) const { return at == m_end ? m_last : *at; }
    /// The place behind the byte at `at`; nothing lies behind the last one.
    char *behind(char *at) const { return at == m_end ? at : at + 1; }
    /// The place of these bytes, or null.
    char *findClosing(char *at, std::string_view word) const;
    [[gnu::cold, gnu::noinline]] char *fail(const char *at, std::string_view fault);

    ezxml_root *m_root;
    char *m_end;
    const char *m_lastReach = nullptr; ///< the last place from which EzxmlText::reach bytes can be read
    char m_last = '\0';
    bool m_hasRoot = false;
    bool m_hasDoctype = false;
    EzxmlMemory &m_memory;
    EzxmlDoctype &m_doctype;
    EzxmlEntities m_entities;
    EzxmlInstructions m_instructions;
    EzxmlStack<Open> m_open;
    EzxmlNames m_names;
    EzxmlStack<Run> m_runs; ///< the texts of the open elements, one element's behind the other's
    EzxmlStack<char *> m_attributes; ///< names and values of the tag that is read
    // By a hash of the element's name: its shape, and the last that was read on its own.
    EzxmlShape *m_shapes[EzxmlName::hashes] = {};
    const ezxml *m_examples[EzxmlName::hashes] = {};
    std::ptrdiff_t m_lostLines = 0; ///< line feeds that a NUL has replaced
};

EzxmlParser::EzxmlParser(ezxml_root *root, char *text, std::size_t length)
    : m_root(root), m_end(text), m_memory(root->document->memory), m_doctype(root->document->doctype),
      m_entities(&m_memory, length)
{
    if (length > 0) {
        // The strings of a tree cannot hold a NUL: what lies behind one is not read.
        char *nul = find(text, text + length, '\0');
        m_end = nul ? nul : text + length - 1;
        m_last = *m_end;
        *m_end = '\0';
    }
    m_memory.expect(length * s_recordBytes + 2 * sizeof(EzxmlShape));
    root->s = text;
    root->e = m_end;
    if (distance(text, m_end) >= reach)
        m_lastReach = m_end - reach;
    m_entities.setLastReach(m_lastReach);
}

void EzxmlParser::parse()
{
    char *at = m_root->s == m_end ? nullptr : find(m_root->s, m_end, '<');
    while (at && at < m_end) {
        *at = '\0'; // ends the text before it
        at = readMarkup(at + 1);
        if (at && *at != '<')
            at = readText(at);
    }
    finish();
}

[[gnu::always_inline]] inline char *EzxmlParser::readMarkup(char *at)
{
    if (is(*at, NameStart))
        return readOpenTag(at);
    if (*at == '/')
        return readCloseTag(at + 1);
    if (*at == '?')
        return readInstruction(at + 1);
    if (startsWith(at, m_end, "!--"))
        return readComment(at + 3);
    if (startsWith(at, m_end, "![CDATA["))
        return readCharacterData(at + 8);
    if (startsWith(at, m_end, "!DOCTYPE"))
        return readDoctype(at + 8);
    return fail(at, "unexpected <");
}

char *EzxmlParser::readOpenTag(char *at)
{
    char *nameEnd = findNameEnd(at, m_lastReach);
    const EzxmlName tag(at, distance(at, nameEnd), m_end);
    m_attributes.truncate(0);
    at = nameEnd;
    if (char *behind = readAlike(at, tag))
        return behind;
    if (*at != '>') {
        m_lostLines += *at == '\n';
        at = readAttributes(at, tag);
        if (!at)
            return nullptr;
    }
    if (m_open.isEmpty() && m_hasRoot)
        return fail(at, "markup outside of root element");
    const bool isEmpty = *at == '/';
    *nameEnd = '\0';
    ezxml *element = newElement(tag);
    if (isEmpty)
        return behind(at + 1);
    if (at == nameEnd)
        return readFirstText(behind(at), element, tag);
    return readOpened(behind(at), element, tag);
}

[[gnu::always_inline]] inline char *EzxmlParser::readAttribute(char *at, const EzxmlName &tag)
{
    char *const name = at;
    char *const nameEnd = findNameEnd(at, m_lastReach);
    at = nameEnd;
    if (is(*at, Space)) {
        m_lostLines += *at == '\n';
        at = skip(at, Space);
    }
    if (*at != '=')
        return fail(at, "missing =");
    ++at;
    if (is(*at, Space))
        at = skip(at, Space);
    const char quote = *at;
    if (quote != '"' && quote != '\'')
        return fail(at, "missing \"");
    *nameEnd = '\0';

    char *value = at + 1;
    char *mark = findValueMark(value, m_lastReach, m_end, quote);
    const bool isPlain = *mark == quote;
    if (!isPlain) {
        mark = find(mark, m_end, quote);
        if (!mark && m_last == quote)
            mark = m_end;
        if (!mark)
            return fail(value, std::string("missing ") + quote);
    }

    const EzxmlEntities::Kind kind = m_doctype.isEmpty()
        ? EzxmlEntities::AttributeText
        : m_doctype.kind(std::string_view(tag.text, tag.length), name);
    *mark = '\0';
    std::size_t length = distance(value, mark);
    if ((!isPlain || kind != EzxmlEntities::AttributeText) && !decode(&value, &length, kind))
        return nullptr;
    char **pair = m_attributes.push(2);
    pair[0] = name;
    pair[1] = value;
    return behind(mark);
}

char *EzxmlParser::readAttributes(char *at, const EzxmlName &tag)
{
    for (;;) {
        if (*at == ' ')
            ++at;
        if (is(*at, NameStart)) {
            at = readAttribute(at, tag);
            if (!at)
                return nullptr;
        } else if (*at == '>') {
            return at;
        } else if (is(*at, Space)) {
            at = skip(at, Space);
        } else if (byte(at) == '>' || (*at == '/' && byte(at + 1) == '>')) {
            return at;
        } else {
            return fail(at, *at == '<' ? "unexpected <" : "missing >");
        }
    }
}

char *EzxmlParser::readCloseTag(char *at)
{
    if (!m_open.isEmpty() && m_open.top().name.opens(at, m_end)) {
        char *closing = at + m_open.top().name.length;
        if (*closing == '>') {
            close();
            return closing + 1;
        }
        if (!is(*closing, NameChar)) {
            closing = skip(closing, Space);
            if (byte(closing) != '>')
                return fail(closing, "missing >");
            close();
            return behind(closing);
        }
    }
    const std::string name(at, skip(at, NameChar));
    return fail(at, "unexpected closing tag </" + name + '>');
}

char *EzxmlParser::readText(char *at)
{
    char *mark = at;
    if (!m_open.isEmpty()) {
        mark = findContentMark(at, m_lastReach, m_end);
        if (*mark == '<') {
            addRun(at, distance(at, mark));
            return mark;
        }
    }
    mark = find(mark, m_end, '<');
    if (!mark)
        return m_end; // a text that nothing follows was cut off
    if (!m_open.isEmpty()) {
        std::size_t length = distance(at, mark);
        if (!decode(&at, &length, EzxmlEntities::Content))
            return nullptr;
        addRun(at, length);
    }
    return mark;
}

char *EzxmlParser::readFirstText(char *at, ezxml *element, const EzxmlName &tag)
{
    char *mark = findContentMark(at, m_lastReach, m_end);
    if (*mark == '<' && mark[1] == '/' && tag.opens(mark + 2, m_end)) {
        char *closing = mark + 2 + tag.length;
        if (byte(closing) == '>') {
            if (mark > at) {
                *mark = '\0';
                element->txt = at;
            }
            return behind(closing);
        }
    }
    return readOpened(at, element, tag);
}

[[gnu::always_inline]] inline char *EzxmlParser::readOpened(char *at, ezxml *element, const EzxmlName &tag)
{
    *m_open.push() = {element, tag, nullptr, m_names.open(), m_runs.size(), 0};
    return at;
}

char *EzxmlParser::readAlike(char *at, const EzxmlName &tag)
{
    EzxmlShape *shape = m_open.isEmpty() ? nullptr : shapeOf(tag);
    at = shape ? shape->match(at, m_lastReach, m_end) : nullptr;
    if (at)
        append(shape->build(&m_memory, &m_entities), tag);
    return at;
}

EzxmlShape *EzxmlParser::shapeOf(const EzxmlName &tag)
{
    const ezxml *&example = m_examples[tag.hash()];
    EzxmlShape *&shape = m_shapes[tag.hash()];
    if (example) {
        if (!shape)
            shape = new (m_memory.allocate(sizeof(EzxmlShape))) EzxmlShape;
        if (shape->isTeachable())
            shape->learn(example);
        example = nullptr;
    }
    return shape && shape->isExpected(tag) ? shape : nullptr;
}

inline void EzxmlParser::setText(ezxml *element, char *text)
{
    element->txt = text;
    if (text < m_root->s || text > m_end)
        element->flags |= EZXML_TXTM;
}

char *EzxmlParser::readCharacterData(char *at)
{
    if (m_open.isEmpty())
        return fail(at, "markup outside of root element");
    char *closing = findClosing(at, "]]>");
    if (!closing)
        return fail(at, "unclosed <![CDATA[");
    std::size_t length = distance(at, closing);
    *closing = '\0';
    if (find(at, closing, '\r') && !decode(&at, &length, EzxmlEntities::CharacterData))
        return nullptr;
    addRun(at, length);
    return behind(closing + 2);
}

char *EzxmlParser::readComment(char *at)
{
    char *closing = findClosing(at, "-->");
    return closing ? behind(closing + 2) : fail(at, "unclosed <!--");
}

char *EzxmlParser::readInstruction(char *at)
{
    char *closing = findClosing(at, "?>");
    if (!closing)
        return fail(at, "unclosed <?");
    m_instructions.add(std::string_view(at, distance(at, closing)));
    return behind(closing + 1);
}

char *EzxmlParser::readDoctype(char *at)
{
    if (m_hasRoot)
        return fail(at, m_open.isEmpty() ? "markup outside of root element" : "unexpected <");
    m_hasDoctype = true;
    while (at && at < m_end && *at != '[' && *at != '>') {
        const char c = *at++;
        if (c == '"' || c == '\'') {
            at = find(at, m_end, c);
            if (at)
                ++at;
        }
    }
    if (at && *at == '[') {
        ++at;
        if (!m_doctype.read(&at, m_end, &m_entities, &m_instructions))
            return fail(at, m_doctype.fault());
        at = skip(at, Space);
    }
    return at && byte(at) == '>' ? behind(at) : fail(m_end, "unclosed <!DOCTYPE");
}

ezxml *EzxmlParser::newElement(const EzxmlName &tag)
{
    ezxml *element = &m_root->xml;
    if (m_hasRoot)
        element = newChild(tag);
    else
        element->name = const_cast<char *>(tag.text);
    m_hasRoot = true;
    if (!m_attributes.isEmpty())
        element->attr = attributeList();
    if (!m_doctype.isEmpty())
        element->declared = m_doctype.declares(element->name);
    return element;
}

[[gnu::always_inline]] inline ezxml *EzxmlParser::newChild(const EzxmlName &tag)
{
    ezxml *element = m_memory.array<ezxml>(1);
    EzxmlDocument::clear(element);
    append(element, tag);
    return element;
}

[[gnu::always_inline]] inline void EzxmlParser::append(ezxml *element, const EzxmlName &tag)
{
    element->name = const_cast<char *>(tag.text);
    Open &parent = m_open.top();
    element->parent = parent.element;
    element->off = parent.textLength;
    if (parent.lastChild)
        parent.lastChild->ordered = element;
    else
        parent.element->child = element;
    parent.lastChild = element;
    m_names.append(&parent.names, tag, element);
}

char **EzxmlParser::attributeList()
{
    const std::size_t count = m_attributes.size() / 2;
    char **const list = m_memory.array<char *>(m_attributes.size() + 2);
    char **end = list;
    for (std::size_t i = 0; i < 2 * count; ++i)
        *end++ = m_attributes[i];
    *end++ = nullptr;
    *end = count <= s_sharedFlags ? s_flags + s_sharedFlags - count
                                  : m_memory.text(std::string(count, ' ').data(), count);
    return list;
}

void EzxmlParser::close()
{
    const Open open = m_open.top();
    const std::size_t runs = m_runs.size() - open.firstRun;
    if (runs == 1) {
        setText(open.element, m_runs.top().text);
    } else if (runs > 1) {
        open.element->txt = joined(open);
        open.element->flags |= EZXML_TXTM;
    }
    m_runs.truncate(open.firstRun);
    m_names.close(open.names);
    m_open.pop();
    // Such documents are made by people: their attributes may have defaults, and their entities be long.
    if (!m_hasDoctype)
        m_examples[open.name.hash()] = open.element;
}

[[gnu::always_inline]] inline void EzxmlParser::addRun(char *text, std::size_t length)
{
    if (length == 0)
        return;
    *m_runs.push() = {text, length};
    m_open.top().textLength += length;
}

char *EzxmlParser::joined(const Open &open)
{
    char *const text = m_memory.array<char>(open.textLength + 1);
    char *to = text;
    for (const Run *run = &m_runs[open.firstRun]; run != m_runs.end(); ++run) {
        std::memcpy(to, run->text, run->length);
        to += run->length;
    }
    *to = '\0';
    return text;
}

bool EzxmlParser::decode(char **text, std::size_t *length, EzxmlEntities::Kind kind)
{
    const char *const place = *text;
    *text = m_entities.decode(*text, length, kind);
    if (m_entities.overflown())
        fail(place, "entities expand too far");
    return !m_entities.overflown();
}

void EzxmlParser::finish()
{
    const bool isFaulty = m_root->err[0] != '\0';
    if (!m_hasRoot && !isFaulty)
        fail(m_end, "root tag missing");
    if (!m_open.isEmpty()) {
        m_root->cur = m_open.top().element;
        if (!isFaulty)
            fail(m_end, std::string("unclosed tag <") + m_root->cur->name + '>');
    }
    while (!m_open.isEmpty())
        close();
    m_root->ent = m_entities.table();
    m_root->standalone = m_instructions.isStandalone();
    if (!m_instructions.isEmpty())
        m_root->pi = m_instructions.table(&m_memory);
    if (!m_doctype.isEmpty())
        m_root->attr = m_doctype.table(&m_memory);
}

char *EzxmlParser::findClosing(char *at, std::string_view word) const
{
    const std::size_t inner = word.size() - 1;
    for (at = find(at, m_end, word[0]); at; at = find(at + 1, m_end, word[0])) {
        if (startsWith(at, m_end, word.substr(0, inner)) && byte(at + inner) == word.back())
            return at;
    }
    return nullptr;
}

char *EzxmlParser::fail(const char *at, std::string_view fault)
{
    const int line = static_cast<int>(1 + m_lostLines + std::count(static_cast<const char *>(m_root->s), at, '\n'));
    std::snprintf(m_root->err, sizeof m_root->err, "[error near line %d]: %s", line, std::string(fault).c_str());
    return nullptr;
}

}

ezxml *ezxml_parse_str(char *text, std::size_t length)
{
    ezxml_root *root = EzxmlDocument::newRoot();
    root->m = text;
    root->len = length;
    if (length > 0 && (text[0] == '\xfe' || text[0] == '\xff'))
        text = root->u = ezxml_str2utf8(text, &length);
    EzxmlParser(root, text, length).parse();
    return &root->xml;
}
