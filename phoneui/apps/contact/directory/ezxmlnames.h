#ifndef EZXMLNAMES_H
#define EZXMLNAMES_H

#include "ezxml.h"

#include <cstdint>
#include <cstring>
#include <vector>

/// A name of the document that need not end in a NUL. Its first eight bytes are kept as one number, which is all of
/// most names, so that names are compared at once.
struct EzxmlName
{
    const char *text = nullptr;
    std::size_t length = 0;
    std::uint64_t key = 0;

    EzxmlName() = default;
    /// Up to `end` the bytes behind the name may be read.
    EzxmlName(const char *from, std::size_t size, const char *end) : text(from), length(size)
    {
        if (end - from >= 8) {
            std::memcpy(&key, from, 8);
            if (size < 8)
                key &= mask(size);
        } else {
            std::memcpy(&key, from, size);
        }
    }

    /// Whether the text up to `end` starts with this name.
    bool opens(const char *from, const char *end) const
    {
        if (end - from < 8 || length > 8)
            return static_cast<std::size_t>(end - from) >= length && std::memcmp(from, text, length) == 0;
        std::uint64_t other;
        std::memcpy(&other, from, 8);
        return length == 8 ? other == key : (other & mask(length)) == key;
    }

    bool operator==(const EzxmlName &other) const
    {
        return key == other.key && length == other.length
            && (length <= 8 || std::memcmp(text + 8, other.text + 8, length - 8) == 0);
    }

private:
    static std::uint64_t mask(std::size_t size)
    {
#if __BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__
        return (std::uint64_t(1) << (8 * size)) - 1;
#else
        return ~(~std::uint64_t(0) >> (8 * size));
#endif
    }
};

/// The names of the children that the open elements have so far, each with its first and last element, so that an
/// element is appended at the same cost wherever it comes. The names of one element lie together on top of those
/// of the elements around it.
class EzxmlNames
{
public:
    struct Entry
    {
        EzxmlName name;
        ezxml *first;
        ezxml *last;
    };

    EzxmlNames() = default;

    std::size_t size() const { return m_entries.size(); }
    /// Forgets the names from `mark` on: their parent is closed.
    void truncate(std::size_t mark) { m_entries.resize(mark); }

    /// Links an element behind its forerunners of the same name. `mark` is where the names of its parent start.
    void append(std::size_t mark, const EzxmlName &name, ezxml *element)
    {
        Entry *entry = find(mark, name, element->parent);
        if (entry) {
            entry->last->next = element;
            entry->last = element;
            element->sibling = entry->first->sibling;
        } else {
            add(mark, name, element);
        }
    }

private:
    /// With more names than this a hash table takes the place of the scan.
    static const std::size_t s_scanned = 12;

    Entry *find(std::size_t mark, const EzxmlName &name, const ezxml *parent)
    {
        const std::size_t size = m_entries.size();
        if (size - mark > s_scanned)
            return findHashed(name, parent);
        for (std::size_t i = size; i-- > mark;) {
            if (m_entries[i].name == name)
                return &m_entries[i];
        }
        return nullptr;
    }

    void add(std::size_t mark, const EzxmlName &name, ezxml *element);
    Entry *findHashed(const EzxmlName &name, const ezxml *parent);
    std::uint64_t hash(const EzxmlName &name, const ezxml *parent) const;
    /// The slot that holds the name, or the free one where it belongs.
    std::size_t slot(const EzxmlName &name, const ezxml *parent) const;
    void index(std::size_t entry);
    void growIndex();

    struct Slot
    {
        const ezxml *parent;
        std::size_t entry;
    };

    std::vector<Entry> m_entries;
    /// Entries by name and parent. What a closed parent leaves behind is dropped when the table grows.
    std::vector<Slot> m_index;
    std::size_t m_indexed = 0;
    /// Differs from run to run, so that no document can be made whose names all meet in one slot.
    std::uint64_t m_seed = 0;
};

#endif
