#ifndef EZXMLSHAPE_H
#define EZXMLSHAPE_H

#include "ezxmlentities.h"
#include "ezxmlmemory.h"
#include "ezxmlnames.h"
#include "ezxmltext.h"

#include <cstdint>
#include <string_view>

/// The shape of an element with all that it holds: its tags, attributes and indentation, without the values.
/// Documents made by programs repeat their elements to the byte except for the values. An element like one before
/// it is found by comparing what lies between the values, and its records follow from those of the first.
///
/// Only for documents without a document type: there decoding never makes a text longer, and no name has defaults.
class EzxmlShape
{
public:
    /// Whether an element of this name may be like the one learned. Shapes that do not come again are given up, and
    /// others are learned in their place a few times.
    bool isExpected(const EzxmlName &name) const
    {
        return m_credit > 0 && name.length == m_name.size()
            && std::memcmp(name.text, m_name.data(), m_name.size()) == 0;
    }
    bool isTeachable() const { return m_credit == 0 && m_lessons > 0; }

    /// Takes the shape of a finished element, unless that is too large or has text between its children.
    void learn(const ezxml *element);

    /// Reads an element of this shape, from the end of its name on. Returns the place behind it, or null for any
    /// other element, of which it leaves the text as it is.
    char *match(char *at, const char *lastReach, const char *end);

    /// The records of the matched element and of all below it, with their texts ended and decoded. The name and the
    /// kin of the first are left to the caller.
    ezxml *build(EzxmlMemory *memory, EzxmlEntities *entities);

private:
    static const int s_mostRecords = 32;
    static const int s_mostValues = 48;
    static const std::size_t s_mostLiteral = 1024;
    static const int s_mostCredit = 8;

    /// The links are indices of records; 0, the first, stands for null.
    struct Record
    {
        char *attributeFlags;
        char *text; ///< of an element that has children
        std::size_t off;
        short flags;
        std::uint16_t nameLength; ///< 0 in the first record, whose name lies before
        std::uint16_t name; ///< how far behind the value before it
        std::uint8_t valuesBefore;
        std::uint8_t attributes; ///< the values that come first
        std::uint8_t parent, child, next, sibling, ordered;
    };
    /// The value of an attribute, or the text of an element without children.
    struct Value
    {
        std::uint16_t before; ///< length of the literal between the value before and this one
        std::uint16_t nameLength; ///< of the attribute; 0 for a text
    };

    bool addElement(const ezxml *element, std::size_t parent);
    bool addAttributes(char **pairs, Record *record);
    bool addChildren(const ezxml *element, std::size_t index);
    void linkChildren(const ezxml *element, const std::uint8_t *children);
    bool addLiteral(std::string_view text);
    bool addValue(std::size_t nameLength);

    char *findEnd(std::size_t value, char *at, const char *lastReach, const char *end);
    char *text(std::size_t value) const { return m_marks[value] + m_values[value].before; }
    char **buildAttributes(const Record &record, char **list);
    char *decodedText(std::size_t value, EzxmlEntities *entities);

    std::string_view m_name; ///< of the element learned
    int m_credit = 0;
    int m_lessons = 4;
    std::size_t m_recordCount = 0;
    std::size_t m_valueCount = 0;
    std::size_t m_listLength = 0; ///< of all lists of attributes
    std::size_t m_literalLength = 0;
    std::size_t m_literalStart = 0; ///< of the literal behind the last value
    Record m_records[s_mostRecords];
    Value m_values[s_mostValues];
    char m_literals[s_mostLiteral + EzxmlText::reach]; ///< one behind the other
    // What the last match found: where it began, and the byte behind each value.
    char *m_marks[s_mostValues + 1];
    std::uint64_t m_coded = 0; ///< a bit for each value that is to be decoded
};

#endif
