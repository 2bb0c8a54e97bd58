#ifndef EZXMLNAMES_H
#define EZXMLNAMES_H

#include "ezxml.h"
#include "ezxmlstack.h"

#include <cstdint>
#include <cstring>
#include <vector>

/// A name of the document that need not end in a NUL. Its first eight bytes are kept as one number, which is all of
/// most names, so that names are compared at once.
struct EzxmlName
{
    const char *text;
    std::size_t length;
    std::uint64_t key;

    /// Up to `end` the bytes behind the name may be read.
    EzxmlName(const char *from, std::size_t size, const char *end) : text(from), length(size), key(0)
    {
        if (end - from >= 8) {
            std::memcpy(&key, from, 8);
            if (size < 8)
                key &= mask(size);
        } else {
            std::memcpy(&key, from, size);
        }
    }

    EzxmlName(const char *from, std::size_t size, std::uint64_t itsKey) : text(from), length(size), key(itsKey) { }

    static const std::size_t hashes = 64;
    /// Below `hashes`.
    unsigned hash() const { return static_cast<unsigned>((key * 0x9e3779b97f4a7c15U) >> 58); }

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
    /// The names under one parent: from `first` to the top.
    struct Scope
    {
        std::size_t first;
        std::size_t latest; ///< the name of the last element
        std::uint64_t seen; ///< a bit for each name, which several may share
    };

    EzxmlNames() = default;

    Scope open() const { return {m_entries.size(), m_entries.size(), 0}; }
    void close(const Scope &scope) { m_entries.truncate(scope.first); }

    /// Links an element behind its forerunners of the same name.
    [[gnu::always_inline]] void append(Scope *scope, const EzxmlName &name, ezxml *element)
    {
        const std::uint64_t bit = std::uint64_t(1) << name.hash();
        if (scope->seen & bit) {
            if (m_entries[scope->latest].is(name) || find(scope, name, element->parent)) {
                Entry &entry = m_entries[scope->latest];
                entry.last->next = element;
                entry.last = element;
                element->sibling = entry.first->sibling;
                return;
            }
        }
        scope->seen |= bit;
        add(scope, name, element);
    }

private:
    struct Entry
    {
        std::uint64_t key;
        std::size_t length;
        ezxml *first;
        ezxml *last;

        EzxmlName name() const { return EzxmlName(first->name, length, key); }
        bool is(const EzxmlName &other) const { return key == other.key && name() == other; }
    };

    /// With more names than this a hash table takes the place of the scan.
    static const std::size_t s_scanned = 12;

    /// Makes the name the latest; false when there is no such name yet.
    bool find(Scope *scope, EzxmlName name, const ezxml *parent)
    {
        std::size_t entry = m_entries.size();
        if (entry - scope->first > s_scanned)
            return findHashed(scope, name, parent);
        while (entry-- > scope->first) {
            if (m_entries[entry].is(name)) {
                scope->latest = entry;
                return true;
            }
        }
        return false;
    }

    void add(Scope *scope, const EzxmlName &name, ezxml *element)
    {
        scope->latest = m_entries.size();
        if (scope->latest > scope->first) {
            for (ezxml *before = m_entries.top().first; before; before = before->next)
                before->sibling = element;
        }
        *m_entries.push() = {name.key, name.length, element, element};
        if (scope->latest - scope->first >= s_scanned)
            indexTop(scope->first);
    }

    bool findHashed(Scope *scope, EzxmlName name, const ezxml *parent);
    std::uint64_t hash(const EzxmlName &name, const ezxml *parent) const;
    /// The slot that holds the name, or the free one where it belongs.
    std::size_t slot(const EzxmlName &name, const ezxml *parent) const;
    /// Takes the topmost name into the table, and with the first that needs it those before.
    void indexTop(std::size_t mark);
    void index(std::size_t entry);
    void growIndex();

    struct Slot
    {
        const ezxml *parent;
        std::size_t entry;
    };

    EzxmlStack<Entry> m_entries;
    /// Entries by name and parent. What a closed parent leaves behind is dropped when the table grows.
    std::vector<Slot> m_index;
    std::size_t m_indexed = 0;
    /// Differs from run to run, so that no document can be made whose names all meet in one slot.
    std::uint64_t m_seed = 0;
};

#endif
