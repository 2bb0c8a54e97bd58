#ifndef EZXMLSTACK_H
#define EZXMLSTACK_H

#include <cstddef>
#include <cstdlib>
#include <type_traits>

/// A stack of plain values in one piece of memory, for the inner loop of the XML reader: growing leaves new values
/// as they are, and dropping costs nothing.
template <typename T> class EzxmlStack
{
    static_assert(std::is_trivially_copyable_v<T>, "values are moved as bytes");

public:
    EzxmlStack() = default;
    EzxmlStack(const EzxmlStack &) = delete;
    EzxmlStack &operator=(const EzxmlStack &) = delete;
    ~EzxmlStack() { std::free(m_first); }

    std::size_t size() const { return static_cast<std::size_t>(m_behind - m_first); }
    bool isEmpty() const { return m_behind == m_first; }
    T *begin() { return m_first; }
    T *end() { return m_behind; }
    T &operator[](std::size_t index) { return m_first[index]; }
    const T &operator[](std::size_t index) const { return m_first[index]; }
    T &top() { return m_behind[-1]; }

    void truncate(std::size_t size) { m_behind = m_first + size; }
    void pop() { --m_behind; }

    /// A place on top, with room for `spare` more behind it.
    T *push(std::size_t count = 1, std::size_t spare = 0)
    {
        if (reinterpret_cast<char *>(m_limit) - reinterpret_cast<char *>(m_behind)
            < static_cast<std::ptrdiff_t>((count + spare) * sizeof(T)))
            grow(count + spare);
        T *place = m_behind;
        m_behind += count;
        return place;
    }

private:
    [[gnu::noinline]] void grow(std::size_t missing)
    {
        const std::size_t used = size();
        const std::size_t capacity = 2 * (used + missing) + 32;
        void *values = std::realloc(static_cast<void *>(m_first), capacity * sizeof(T));
        if (!values)
            std::abort();
        m_first = static_cast<T *>(values);
        m_behind = m_first + used;
        m_limit = m_first + capacity;
    }

    T *m_first = nullptr;
    T *m_behind = nullptr;
    T *m_limit = nullptr;
};

#endif
