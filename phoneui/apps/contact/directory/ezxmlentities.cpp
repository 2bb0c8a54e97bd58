#include "ezxmlentities.h"

#include "ezxmlmemory.h"
#include "ezxmltext.h"

#include <algorithm>
#include <cstring>
#include <iterator>

using namespace EzxmlText;

namespace {

struct BuiltIn
{
    std::string_view name; // with its semicolon
    const char *replacement;
    char character;
};

const BuiltIn s_builtIns[] = {{"lt;", "&#60;", '<'},
                              {"gt;", "&#62;", '>'},
                              {"quot;", "&#34;", '"'},
                              {"apos;", "&#39;", '\''},
                              {"amp;", "&#38;", '&'}};

/// What every document may expand its entities to, and how much more for each byte of its own.
const std::size_t s_allowance = 1024 * 1024;
const std::size_t s_allowancePerByte = 4;

/// The built-in entity that is referred to at `at`, or null.
const BuiltIn *builtIn(const char *at, const char *end)
{
    const std::string_view rest(at + 1, static_cast<std::size_t>(end - at) - 1);
    for (const BuiltIn &known : s_builtIns) {
        if (!rest.empty() && rest[0] == known.name[0] && rest.substr(0, known.name.size()) == known.name)
            return &known;
    }
    return nullptr;
}

/// The name between the mark at `at` and a semicolon; empty when no reference is written there.
std::string_view referredName(const char *at, const char *end)
{
    const char *name = at + 1;
    if (name >= end || !is(*name, NameStart))
        return {};
    const char *behind = skip(name, end, NameChar);
    if (behind == end || *behind != ';')
        return {};
    return std::string_view(name, static_cast<std::size_t>(behind - name));
}

/// What is not copied as it stands.
int marks(EzxmlEntities::Kind kind)
{
    switch (kind) {
    case EzxmlEntities::Content: return Ampersand | CarriageReturn;
    case EzxmlEntities::CharacterData: return CarriageReturn;
    case EzxmlEntities::EntityValue: return Ampersand | Percent | CarriageReturn;
    case EzxmlEntities::AttributeText:
    case EzxmlEntities::AttributeToken: break;
    }
    return Ampersand | CarriageReturn | LineFeedOrTab;
}

/// The length of a text after spaces at its ends and repeated ones are dropped from it.
std::size_t collapseSpaces(char *text, std::size_t length)
{
    char *out = text;
    for (const char *in = text; in < text + length; ++in) {
        if (*in != ' ' || (out > text && out[-1] != ' '))
            *out++ = *in;
    }
    if (out > text && out[-1] == ' ')
        --out;
    return static_cast<std::size_t>(out - text);
}

int digitValue(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    return 16;
}

bool isCodePoint(unsigned code)
{
    return code > 0 && code < 0x110000 && (code < 0xd800 || code > 0xdfff);
}

}

void EzxmlOutput::put(const char *from, const char *to)
{
    const std::size_t length = static_cast<std::size_t>(to - from);
    if (static_cast<std::size_t>(m_limit - m_at) < length)
        grow(length);
    if (m_at != from)
        std::memmove(m_at, from, length);
    m_at += length;
}

void EzxmlOutput::grow(std::size_t bytes)
{
    const std::size_t length = size();
    if (m_buffer.size() < length + bytes)
        m_buffer.resize(2 * (length + bytes));
    if (!m_isDetached)
        std::memcpy(m_buffer.data(), m_start, length);
    m_isDetached = true;
    m_start = m_buffer.data();
    m_at = m_start + length;
    m_limit = m_start + m_buffer.size();
}

EzxmlEntities::EzxmlEntities(EzxmlMemory *memory, std::size_t documentLength)
    : m_memory(memory), m_allowance(s_allowance + s_allowancePerByte * documentLength)
{
}

const std::string *EzxmlEntities::replacement(const Names &names, std::string_view name)
{
    if (names.empty() || name.empty())
        return nullptr;
    const auto found = names.find(name);
    return found == names.end() ? nullptr : &found->second;
}

std::string EzxmlEntities::circular() const
{
    enum State { Unseen, Open, Done };
    struct Visit
    {
        Names::const_iterator entity;
        const char *at;
    };
    std::map<std::string_view, State> states;
    std::vector<Visit> visits;
    const auto enter = [&](Names::const_iterator entity) {
        states[entity->first] = Open;
        visits.push_back({entity, entity->second.data()});
    };
    for (auto start = m_general.begin(); start != m_general.end(); ++start) {
        if (states[start->first] == Unseen)
            enter(start);
        while (!visits.empty()) {
            Visit &visit = visits.back();
            const std::string &text = visit.entity->second;
            const char *end = text.data() + text.size();
            const char *mark = find(visit.at, end, '&');
            if (!mark) {
                states[visit.entity->first] = Done;
                visits.pop_back();
                continue;
            }
            visit.at = mark + 1;
            const auto entity = m_general.find(referredName(mark, end));
            if (entity == m_general.end())
                continue;
            if (states[entity->first] == Open)
                return entity->first;
            if (states[entity->first] == Unseen)
                enter(entity);
        }
    }
    return {};
}

char *EzxmlEntities::decode(char *text, std::size_t *length, Kind kind)
{
    char *const end = text + *length;
    char *at = text;
    m_output.start(text, *length);
    if (kind == Content)
        at = decodeBuiltIns(text, end);
    if (at < end)
        expand({at, end}, kind);
    if (kind == AttributeToken)
        m_output.truncate(collapseSpaces(m_output.data(), m_output.size()));
    *length = m_output.size();
    if (m_output.isDetached())
        return m_memory->text(m_output.data(), *length);
    // Nothing that was moved may stand there twice: lines are counted when a fault is told.
    std::memset(text + *length, '\0', static_cast<std::size_t>(end - text) - *length);
    return text;
}

char *EzxmlEntities::decodeBuiltIns(char *at, char *end)
{
    for (;;) {
        char *mark = std::min(findContentMark(at, m_lastReach, end), end);
        m_output.put(at, mark);
        const BuiltIn *known = mark < end && *mark == '&' ? builtIn(mark, end) : nullptr;
        if (!known)
            return mark;
        m_output.put(known->character);
        at = mark + 1 + known->name.size();
    }
}

std::string EzxmlEntities::decoded(std::string text, Kind kind)
{
    std::size_t length = text.size();
    const char *result = decode(text.data(), &length, kind);
    return std::string(result, length);
}

void EzxmlEntities::expand(Source source, Kind kind)
{
    const int stops = marks(kind);
    while (!m_overflown) {
        const char *from = source.at;
        while (source.at < source.end && !is(*source.at, stops))
            ++source.at;
        m_output.put(from, source.at);
        if (source.at < source.end) {
            expandMark(&source, kind);
        } else if (m_suspended.empty()) {
            return;
        } else {
            source = m_suspended.back();
            m_suspended.pop_back();
        }
    }
    m_suspended.clear();
}

void EzxmlEntities::spend(std::size_t bytes)
{
    m_overflown = m_overflown || bytes >= m_allowance;
    m_allowance -= std::min(m_allowance, bytes + 1);
}

void EzxmlEntities::expandMark(Source *source, Kind kind)
{
    const bool attribute = kind == AttributeText || kind == AttributeToken;
    const bool inDocument = m_suspended.empty();
    const char c = *source->at;
    if (c == '&' || c == '%') {
        const bool isNumber = c == '&' && source->at + 1 < source->end && source->at[1] == '#';
        if (isNumber ? !expandNumber(source) : !expandName(source, kind)) {
            m_output.put(c);
            ++source->at;
        }
        return;
    }
    ++source->at;
    // A line end of the document is a line feed, however it is written; one in a replacement was asked for.
    if (c == '\r' && inDocument && source->at < source->end && *source->at == '\n')
        ++source->at;
    if (attribute)
        m_output.put(' ');
    else
        m_output.put(inDocument ? '\n' : c);
}

bool EzxmlEntities::expandNumber(Source *source)
{
    const char *at = source->at + 2;
    unsigned base = 10;
    if (at < source->end && *at == 'x') {
        base = 16;
        ++at;
    }
    unsigned code = 0;
    for (; at < source->end; ++at) {
        const unsigned digit = static_cast<unsigned>(digitValue(*at));
        if (digit >= base)
            break;
        code = std::min(code * base + digit, 0x110000U);
    }
    if (at >= source->end || *at != ';' || !isCodePoint(code))
        return false;
    char utf8[4];
    m_output.put(utf8, putUtf8(utf8, code));
    source->at = at + 1;
    return true;
}

bool EzxmlEntities::expandName(Source *source, Kind kind)
{
    const bool parameter = *source->at == '%';
    if (parameter != (kind == EntityValue))
        return false;
    const BuiltIn *known = parameter ? nullptr : builtIn(source->at, source->end);
    if (known) {
        m_output.put(known->character);
        source->at += 1 + known->name.size();
        return true;
    }
    const std::string_view name = referredName(source->at, source->end);
    const std::string *text = replacement(parameter ? m_parameters : m_general, name);
    if (!text)
        return false;
    source->at = name.data() + name.size() + 1;
    spend(text->size());
    // Only an entity that contains itself nests deeper than there are entities.
    m_overflown = m_overflown || m_suspended.size() > m_general.size() + m_parameters.size();
    m_output.detach();
    m_suspended.push_back(*source);
    *source = {text->data(), text->data() + text->size()};
    return true;
}

char **EzxmlEntities::table() const
{
    const std::size_t known = std::size(s_builtIns);
    char **table = m_memory->array<char *>(2 * (known + m_general.size()) + 1);
    char **entry = table;
    for (const BuiltIn &builtIn : s_builtIns) {
        *entry++ = const_cast<char *>(builtIn.name.data());
        *entry++ = const_cast<char *>(builtIn.replacement);
    }
    for (const auto &[name, replacement] : m_general) {
        *entry++ = m_memory->text((name + ';').data(), name.size() + 1);
        *entry++ = m_memory->text(replacement.data(), replacement.size());
    }
    *entry = nullptr;
    return table;
}
