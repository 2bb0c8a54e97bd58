#ifndef CONTACTRECORDS_H
#define CONTACTRECORDS_H

#include "contactdata.h"

#include <QByteArray>
#include <QVector>

#include <string_view>

/// Contacts as a file gives them, in one block of memory. They are made of it in the order of their names: so each
/// text gets its room once and beside those that are read before and after it, and the block goes as a whole.
class ContactRecords
{
public:
    /// The next contact. Its texts are added after it and then its numbers, all in UTF-8 and null where there is
    /// none.
    void add(int id);
    /// Name, picture, the three addresses, memo, bell, buddy id, extra: one after the other.
    void addText(std::string_view text);
    /// The slot from 1 on.
    void addNumber(int slot, int kind, std::string_view number);

    int size() const { return m_places.size(); }
    /// Into the order of the names by code unit of UTF-16, as texts are compared; those of one name keep theirs.
    void sort();
    ContactData contact(int idx) const;

private:
    struct Place
    {
        quint64 letters = 0; ///< the name's first ones: they decide most comparisons
        int at, end; ///< in the block
    };

    void append(const void *bytes, std::size_t size);
    void append(int number) { append(&number, sizeof number); }
    std::string_view name(const Place &place) const;

    QByteArray m_block;
    QVector<Place> m_places;
};

#endif
