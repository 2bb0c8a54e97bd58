#include "contactrecords.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <utility>

namespace {

constexpr std::array<QString ContactData::*, 9> Texts
    = {&ContactData::name, &ContactData::picture, &ContactData::email1,  &ContactData::email2, &ContactData::email3,
       &ContactData::memo, &ContactData::bell,    &ContactData::buddyId, &ContactData::extra};

/// Reads what lies in the block one behind the other.
class Reader
{
public:
    explicit Reader(const char *from) : m_at(from) { }

    const char *at() const { return m_at; }

    int number()
    {
        int number;
        std::memcpy(&number, m_at, sizeof number);
        m_at += sizeof number;
        return number;
    }

    std::string_view bytes()
    {
        const int size = number();
        if (size < 0)
            return {};
        return {std::exchange(m_at, m_at + size), std::size_t(size)};
    }

    QString text()
    {
        const std::string_view utf8 = bytes();
        if (!utf8.data())
            return QString();
        return utf8.empty() ? QLatin1String("") : QString::fromUtf8(utf8.data(), int(utf8.size())); // "" is shared
    }

private:
    const char *m_at;
};

/// A byte of UTF-8 in the order of UTF-16. Letters are in the same order in both, but for those beyond the first
/// 65 536: their surrogates come before U+E000 to U+FFFF, which begin with these two bytes.
constexpr uchar inOrder(char byte)
{
    const auto value = static_cast<uchar>(byte);
    return value == 0xee || value == 0xef ? value + 0x10 : value;
}

quint64 firstLetters(std::string_view name)
{
    quint64 letters = 0;
    for (std::size_t i = 0; i < sizeof letters; ++i)
        letters = letters << 8 | (i < name.size() ? inOrder(name[i]) : 0);
    return letters;
}

bool precedes(std::string_view a, std::string_view b)
{
    return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(),
                                        [](char x, char y) { return inOrder(x) < inOrder(y); });
}

}

void ContactRecords::append(const void *bytes, std::size_t size)
{
    m_block.append(static_cast<const char *>(bytes), int(size));
    m_places.last().end = m_block.size();
}

void ContactRecords::add(int id)
{
    m_places.append({0, m_block.size(), 0});
    append(id);
}

void ContactRecords::addText(std::string_view text)
{
    append(text.data() ? int(text.size()) : -1);
    append(text.data(), text.size());
}

void ContactRecords::addNumber(int slot, int kind, std::string_view number)
{
    append(slot);
    append(kind);
    addText(number);
}

std::string_view ContactRecords::name(const Place &place) const
{
    Reader record(m_block.constData() + place.at);
    record.number(); // the id
    return record.bytes();
}

void ContactRecords::sort()
{
    for (Place &place : m_places)
        place.letters = firstLetters(name(place));
    std::sort(m_places.begin(), m_places.end(), [this](const Place &a, const Place &b) {
        if (a.letters != b.letters)
            return a.letters < b.letters;
        const std::string_view nameOfA = name(a), nameOfB = name(b);
        return nameOfA == nameOfB ? a.at < b.at : precedes(nameOfA, nameOfB);
    });
}

ContactData ContactRecords::contact(int idx) const
{
    const Place &place = m_places.at(idx);
    Reader record(m_block.constData() + place.at);
    ContactData contact;
    contact.id = record.number();
    for (QString ContactData::*text : Texts)
        contact.*text = record.text();
    while (record.at() != m_block.constData() + place.end) {
        const int slot = record.number();
        const auto kind = static_cast<ContactData::Telnum_Type>(record.number());
        contact.setNumber(slot - 1, record.text(), kind);
    }
    return contact;
}
