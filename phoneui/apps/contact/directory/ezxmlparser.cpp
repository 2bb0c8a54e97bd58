#include "ezxmlparser.h"

#include "ezxmltext.h"

#include <algorithm>
#include <cstdio>

using namespace EzxmlText;

namespace {

/// A flag for each attribute, that nothing of it lies on the heap. Shorter lists share the end.
char s_flags[] = "                                ";
const std::size_t s_sharedFlags = sizeof(s_flags) - 1;

std::size_t distance(const char *from, const char *to)
{
    return static_cast<std::size_t>(to - from);
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
    root->s = text;
    root->e = m_end;
}

void EzxmlParser::parse()
{
    char *at = m_root->s == m_end ? nullptr : find(m_root->s, m_end, '<');
    while (at && at < m_end) {
        *at = '\0'; // ends the text before it
        at = readMarkup(at + 1);
        if (at)
            at = readText(at);
    }
    finish();
}

char *EzxmlParser::readMarkup(char *at)
{
    if (is(*at, NameStart))
        return readOpenTag(at);
    if (*at == '/')
        return readCloseTag(at + 1);
    if (*at == '?')
        return readInstruction(at + 1);
    if (startsWith(at, "!--"))
        return readComment(at + 3);
    if (startsWith(at, "![CDATA["))
        return readCharacterData(at + 8);
    if (startsWith(at, "!DOCTYPE"))
        return readDoctype(at + 8);
    return fail(at, "unexpected <");
}

char *EzxmlParser::readOpenTag(char *at)
{
    if (m_open.empty() && m_hasRoot)
        return fail(at, "markup outside of root element");
    char *nameEnd = skip(at, NameChar);
    const EzxmlName tag(at, distance(at, nameEnd), m_end);
    m_attributes.clear();
    at = nameEnd;
    if (*at != '>') {
        at = readAttributes(at, tag);
        if (!at)
            return nullptr;
    }
    const bool isEmpty = *at == '/';
    if (isEmpty)
        ++at;
    terminate(nameEnd);
    open(tag, isEmpty);
    return behind(at);
}

char *EzxmlParser::readAttributes(char *at, const EzxmlName &tag)
{
    for (;;) {
        at = skip(at, Space);
        if (is(*at, NameStart)) {
            at = readAttribute(at, tag);
            if (!at)
                return nullptr;
        } else if (byte(at) == '>' || (*at == '/' && byte(at + 1) == '>')) {
            return at;
        } else {
            return fail(at, *at == '<' ? "unexpected <" : "missing >");
        }
    }
}

char *EzxmlParser::readAttribute(char *at, const EzxmlName &tag)
{
    char *const name = at;
    char *const nameEnd = skip(at, NameChar);
    at = skip(nameEnd, Space);
    if (*at != '=')
        return fail(at, "missing =");
    at = skip(at + 1, Space);
    const char quote = *at;
    if (quote != '"' && quote != '\'')
        return fail(at, "missing \"");
    terminate(nameEnd);

    char *value = at + 1;
    char *mark = findValueMark(value, m_end, quote);
    const bool isPlain = mark < m_end && *mark == quote;
    if (!isPlain)
        mark = find(mark, m_end, quote);
    if (!mark && m_last == quote)
        mark = m_end;
    if (!mark)
        return fail(value, std::string("missing ") + quote);

    const EzxmlEntities::Kind kind = m_doctype.isEmpty()
        ? EzxmlEntities::AttributeText
        : m_doctype.kind(std::string_view(tag.text, tag.length), name);
    *mark = '\0';
    std::size_t length = distance(value, mark);
    if ((!isPlain || kind != EzxmlEntities::AttributeText) && !decode(&value, &length, kind))
        return nullptr;
    m_attributes.push_back(name);
    m_attributes.push_back(value);
    return behind(mark);
}

char *EzxmlParser::readCloseTag(char *at)
{
    if (!m_open.empty() && m_open.back().name.opens(at, m_end)) {
        char *closing = at + m_open.back().name.length;
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
    if (*at == '<')
        return at;
    char *mark = at;
    if (!m_open.empty()) {
        mark = findContentMark(at, m_end);
        if (*mark == '<') {
            addText(at, distance(at, mark));
            return mark;
        }
    }
    mark = find(mark, m_end, '<');
    if (!mark)
        return m_end; // a text that nothing follows was cut off
    if (!m_open.empty()) {
        std::size_t length = distance(at, mark);
        if (!decode(&at, &length, EzxmlEntities::Content))
            return nullptr;
        addText(at, length);
    }
    return mark;
}

char *EzxmlParser::readCharacterData(char *at)
{
    if (m_open.empty())
        return fail(at, "markup outside of root element");
    char *closing = findClosing(at, "]]>");
    if (!closing)
        return fail(at, "unclosed <![CDATA[");
    std::size_t length = distance(at, closing);
    *closing = '\0';
    if (find(at, closing, '\r') && !decode(&at, &length, EzxmlEntities::CharacterData))
        return nullptr;
    addText(at, length);
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
        return fail(at, m_open.empty() ? "markup outside of root element" : "unexpected <");
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

void EzxmlParser::open(const EzxmlName &tag, bool isEmpty)
{
    ezxml *element = &m_root->xml;
    if (m_hasRoot) {
        element = m_memory.array<ezxml>(1);
        EzxmlDocument::clear(element);
        link(element, tag);
    }
    m_hasRoot = true;
    element->name = const_cast<char *>(tag.text);
    if (!m_attributes.empty())
        element->attr = attributeList();
    if (!m_doctype.isEmpty())
        element->declared = m_doctype.declares(element->name);
    if (!isEmpty)
        m_open.push_back({element, tag, nullptr, m_names.size(), m_joined.size(), nullptr, 0});
}

void EzxmlParser::link(ezxml *element, const EzxmlName &tag)
{
    Open &parent = m_open.back();
    element->parent = parent.element;
    element->off = parent.textLength;
    if (parent.lastChild)
        parent.lastChild->ordered = element;
    else
        parent.element->child = element;
    parent.lastChild = element;
    m_names.append(parent.firstName, tag, element);
}

char **EzxmlParser::attributeList()
{
    const std::size_t count = m_attributes.size() / 2;
    char **list = m_memory.array<char *>(m_attributes.size() + 2);
    char **end = std::copy(m_attributes.begin(), m_attributes.end(), list);
    end[0] = nullptr;
    end[1] = count <= s_sharedFlags ? s_flags + s_sharedFlags - count
                                    : m_memory.text(std::string(count, ' ').data(), count);
    return list;
}

void EzxmlParser::close()
{
    const Open &open = m_open.back();
    ezxml *element = open.element;
    if (open.run) {
        element->txt = open.run;
        if (open.run < m_root->s || open.run > m_end)
            element->flags |= EZXML_TXTM;
    } else if (open.textLength > 0) {
        element->txt = m_memory.text(m_joined.data() + open.firstJoined, open.textLength);
        element->flags |= EZXML_TXTM;
        m_joined.resize(open.firstJoined);
    }
    m_names.truncate(open.firstName);
    m_open.pop_back();
}

void EzxmlParser::addText(char *text, std::size_t length)
{
    Open &open = m_open.back();
    if (length == 0)
        return;
    if (open.textLength == 0) {
        open.run = text;
    } else {
        if (open.run)
            append(open.run, open.textLength);
        open.run = nullptr;
        append(text, length);
    }
    open.textLength += length;
}

bool EzxmlParser::decode(char **text, std::size_t *length, EzxmlEntities::Kind kind)
{
    const char *const from = *text;
    const char *const to = from + *length;
    m_lostLines += std::count(from, to, '\n');
    *text = m_entities.decode(*text, length, kind);
    m_lostLines -= std::count(from, to, '\n');
    if (m_entities.overflown())
        fail(to, "entities expand too far");
    return !m_entities.overflown();
}

void EzxmlParser::finish()
{
    const bool isFaulty = m_root->err[0] != '\0';
    if (!m_hasRoot && !isFaulty)
        fail(m_end, "root tag missing");
    if (!m_open.empty()) {
        m_root->cur = m_open.back().element;
        if (!isFaulty)
            fail(m_end, std::string("unclosed tag <") + m_root->cur->name + '>');
    }
    while (!m_open.empty())
        close();
    m_root->ent = m_entities.table();
    m_root->standalone = m_instructions.isStandalone();
    if (!m_instructions.isEmpty())
        m_root->pi = m_instructions.table(&m_memory);
    if (!m_doctype.isEmpty())
        m_root->attr = m_doctype.table(&m_memory);
}

bool EzxmlParser::startsWith(const char *at, std::string_view word) const
{
    return std::string_view(at, distance(at, m_end)).substr(0, word.size()) == word;
}

char *EzxmlParser::findClosing(char *at, std::string_view word) const
{
    const std::size_t inner = word.size() - 1;
    for (at = find(at, m_end, word[0]); at; at = find(at + 1, m_end, word[0])) {
        if (startsWith(at, word.substr(0, inner)) && byte(at + inner) == word.back())
            return at;
    }
    return nullptr;
}

void EzxmlParser::terminate(char *at)
{
    m_lostLines += *at == '\n';
    *at = '\0';
}

char *EzxmlParser::fail(const char *at, const std::string &fault)
{
    const int line = static_cast<int>(1 + m_lostLines + std::count(static_cast<const char *>(m_root->s), at, '\n'));
    std::snprintf(m_root->err, sizeof m_root->err, "[error near line %d]: %s", line, fault.c_str());
    return nullptr;
}
