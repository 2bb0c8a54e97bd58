#include "ezxmlnames.h"

#include <random>

void EzxmlNames::indexTop(std::size_t mark)
{
    const std::size_t top = m_entries.size() - 1;
    for (std::size_t entry = top - mark == s_scanned ? mark : top; entry <= top; ++entry)
        index(entry);
}

bool EzxmlNames::findHashed(Scope *scope, EzxmlName name, const ezxml *parent)
{
    const Slot &found = m_index[slot(name, parent)];
    if (found.parent)
        scope->latest = found.entry;
    return found.parent;
}

std::uint64_t EzxmlNames::hash(const EzxmlName &name, const ezxml *parent) const
{
    const auto mix = [](std::uint64_t sum, std::uint64_t word) {
        sum = (sum ^ word) * 0x9e3779b97f4a7c15U;
        return sum ^ (sum >> 32);
    };
    std::uint64_t sum = mix(mix(m_seed, name.key), name.length);
    std::size_t at = 8;
    for (; at + 8 <= name.length; at += 8) {
        std::uint64_t word;
        std::memcpy(&word, name.text + at, 8);
        sum = mix(sum, word);
    }
    for (; at < name.length; ++at)
        sum = mix(sum, static_cast<unsigned char>(name.text[at]));
    return mix(sum, reinterpret_cast<std::uintptr_t>(parent));
}

std::size_t EzxmlNames::slot(const EzxmlName &name, const ezxml *parent) const
{
    const std::size_t last = m_index.size() - 1;
    std::size_t at = hash(name, parent) & last;
    while (m_index[at].parent && (m_index[at].parent != parent || !(m_entries[m_index[at].entry].name == name)))
        at = (at + 1) & last;
    return at;
}

void EzxmlNames::index(std::size_t entry)
{
    if ((m_indexed + 1) * 2 > m_index.size())
        growIndex();
    const ezxml *parent = m_entries[entry].first->parent;
    m_index[slot(m_entries[entry].name, parent)] = {parent, entry};
    ++m_indexed;
}

void EzxmlNames::growIndex()
{
    if (m_index.empty())
        m_seed = (std::uint64_t(std::random_device()()) << 32) | std::random_device()();
    const std::vector<Slot> before = std::move(m_index);
    const auto lives = [this](const Slot &slot) {
        return slot.parent && slot.entry < m_entries.size() && m_entries[slot.entry].first->parent == slot.parent;
    };
    m_indexed = 0;
    for (const Slot &old : before)
        m_indexed += lives(old);
    std::size_t size = 64;
    while (size < m_indexed * 4)
        size *= 2;
    m_index.assign(size, Slot{nullptr, 0});
    for (const Slot &old : before) {
        if (lives(old))
            m_index[slot(m_entries[old.entry].name, old.parent)] = old;
    }
}
