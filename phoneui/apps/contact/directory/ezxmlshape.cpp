#include "ezxmlshape.h"

#include "ezxmltext.h"

#include <cstring>

using namespace EzxmlText;

[[gnu::always_inline]] inline bool EzxmlShape::addLiteral(std::string_view text)
{
    if (text.size() > s_mostLiteral - m_literalLength)
        return false;
    std::memcpy(m_literals + m_literalLength, text.data(), text.size());
    m_literalLength += text.size();
    return true;
}

void EzxmlShape::learn(const ezxml *element)
{
    --m_lessons;
    m_name = element->name;
    m_recordCount = m_valueCount = m_listLength = m_literalLength = m_literalStart = 0;
    if (addElement(element, 0))
        m_credit = s_mostCredit;
}

bool EzxmlShape::addElement(const ezxml *element, std::size_t parent)
{
    const std::size_t index = m_recordCount++;
    if (index == s_mostRecords)
        return false;
    Record &record = m_records[index];
    record = {};
    const std::string_view name = element->name;
    if (index > 0) {
        record.name = static_cast<std::uint16_t>(m_literalLength - m_literalStart + 1);
        record.nameLength = static_cast<std::uint16_t>(name.size());
        if (!addLiteral("<") || !addLiteral(name))
            return false;
    }
    record.off = element->off;
    record.parent = static_cast<std::uint8_t>(parent);
    record.valuesBefore = static_cast<std::uint8_t>(m_valueCount);
    return addAttributes(element->attr, &record) && addLiteral(">")
        && (element->child ? addChildren(element, index) : addValue(0)) && addLiteral("</") && addLiteral(name)
        && addLiteral(">");
}

bool EzxmlShape::addAttributes(char **pairs, Record *record)
{
    for (; *pairs; pairs += 2) {
        const std::string_view name = *pairs;
        if (!addLiteral(" ") || !addLiteral(name) || !addLiteral("=\"") || !addValue(name.size())
            || !addLiteral("\""))
            return false;
        ++record->attributes;
    }
    record->attributeFlags = pairs[1];
    if (record->attributes > 0)
        m_listLength += 2U * record->attributes + 2;
    return true;
}

bool EzxmlShape::addChildren(const ezxml *element, std::size_t index)
{
    const std::string_view text = element->txt;
    if (skip(text.begin(), text.end(), Space) < text.end())
        return false;
    m_records[index].text = element->txt;
    m_records[index].flags = element->flags;
    std::uint8_t children[s_mostRecords] = {};
    std::uint8_t *child = children;
    std::size_t off = 0;
    for (const ezxml *each = element->child; each; each = each->ordered) {
        if (!addLiteral(text.substr(off, each->off - off)))
            return false;
        off = each->off;
        *child++ = static_cast<std::uint8_t>(m_recordCount);
        if (!addElement(each, index))
            return false;
    }
    m_records[index].child = children[0];
    linkChildren(element, children);
    return addLiteral(text.substr(off));
}

void EzxmlShape::linkChildren(const ezxml *element, const std::uint8_t *children)
{
    std::size_t place = 0;
    for (const ezxml *each = element->child; each; each = each->ordered, ++place) {
        Record &record = m_records[children[place]];
        const std::uint8_t *index = children;
        for (const ezxml *other = element->child; other; other = other->ordered, ++index) {
            if (other == each->next)
                record.next = *index;
            else if (other == each->sibling)
                record.sibling = *index;
            if (other == each->ordered)
                record.ordered = *index;
        }
    }
}

bool EzxmlShape::addValue(std::size_t nameLength)
{
    if (m_valueCount == s_mostValues)
        return false;
    m_values[m_valueCount++]
        = {static_cast<std::uint16_t>(m_literalLength - m_literalStart), static_cast<std::uint16_t>(nameLength)};
    m_literalStart = m_literalLength;
    return true;
}

char *EzxmlShape::match(char *at, const char *lastReach, const char *end)
{
    --m_credit;
    const char *literal = m_literals;
    m_marks[0] = at;
    m_coded = 0;
    for (std::size_t i = 0; i < m_valueCount; ++i) {
        const std::size_t length = m_values[i].before;
        if (!startsWithPadded(at, lastReach, end, {literal, length}))
            return nullptr;
        literal += length;
        at = findEnd(i, at + length, lastReach, end);
        if (!at)
            return nullptr;
        m_marks[i + 1] = at;
    }
    const std::size_t length = m_literalLength - m_literalStart;
    if (!startsWithPadded(at, lastReach, end, {literal, length}))
        return nullptr;
    m_credit = s_mostCredit;
    return at + length;
}

/// The byte behind a value, or null when the document ends before.
[[gnu::always_inline]] inline char *EzxmlShape::findEnd(std::size_t value, char *at, const char *lastReach,
                                                        const char *end)
{
    if (m_values[value].nameLength > 0)
        return findValueMark(at, lastReach, end, '"'); // where the literal behind it has to match
    at = findContentMark(at, lastReach, end);
    if (*at == '<')
        return at;
    m_coded |= std::uint64_t(1) << value;
    return find(at, end, '<');
}

ezxml *EzxmlShape::build(EzxmlMemory *memory, EzxmlEntities *entities)
{
    ezxml *const first = memory->array<ezxml>(m_recordCount);
    char **list = memory->array<char *>(m_listLength);
    const auto linked = [first](std::size_t index) { return index ? first + index : nullptr; };
    for (std::size_t i = 0; i < m_recordCount; ++i) {
        const Record &record = m_records[i];
        ezxml &element = first[i];
        element.name = m_marks[record.valuesBefore] + record.name;
        element.name[record.nameLength] = '\0';
        element.attr = const_cast<char **>(EZXML_NIL);
        if (record.attributes > 0) {
            element.attr = list;
            list = buildAttributes(record, list);
        }
        element.txt = record.child ? record.text : decodedText(record.valuesBefore + record.attributes, entities);
        element.off = record.off;
        element.next = linked(record.next);
        element.sibling = linked(record.sibling);
        element.ordered = linked(record.ordered);
        element.child = linked(record.child);
        element.parent = first + record.parent;
        element.flags = record.flags;
        element.declared = 0;
    }
    first->next = first->sibling = first->ordered = nullptr;
    return first;
}

char **EzxmlShape::buildAttributes(const Record &record, char **list)
{
    for (std::size_t i = record.valuesBefore; i < record.valuesBefore + record.attributes; ++i) {
        char *const value = text(i);
        const std::size_t nameLength = m_values[i].nameLength;
        char *const name = value - 2 - nameLength;
        name[nameLength] = *m_marks[i + 1] = '\0';
        *list++ = name;
        *list++ = value;
    }
    *list++ = nullptr;
    *list++ = record.attributeFlags;
    return list;
}

char *EzxmlShape::decodedText(std::size_t value, EzxmlEntities *entities)
{
    char *at = text(value);
    char *const mark = m_marks[value + 1];
    std::size_t length = static_cast<std::size_t>(mark - at);
    if (m_coded >> value & 1)
        at = entities->decode(at, &length, EzxmlEntities::Content);
    *mark = '\0';
    return at;
}
