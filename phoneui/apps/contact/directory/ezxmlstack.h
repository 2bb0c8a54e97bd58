#ifndef EZXMLSTACK_H
#define EZXMLSTACK_H

#include <cstddef>
#include <cstdlib>
#include <cstring>
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
    ~EzxmlStack() { std::free(m_values); }

    std::size_t size() const { return m_size; }
    bool isEmpty() const { return m_size == 0; }
    T *data() { return m_values; }
    T &operator[](std::size_t index) { return m_values[index]; }
    const T &operator[](std::size_t index) const { return m_values[index]; }
    T &top() { return m_values[m_size - 1]; }

    void truncate(std::size_t size) { m_size = size; }
    void pop() { --m_size; }

    /// A place on top, with room for `spare` more behind it.
    T *push(std::size_t count = 1, std::size_t spare = 0)
    {
        if (m_size + count + spare > m_capacity)
            grow(m_size + count + spare);
        T *place = m_values + m_size;
        m_size += count;
        return place;
    }

private:
    [[gnu::noinline]] void grow(std::size_t wanted)
    {
        m_capacity = wanted < 32 ? 64 : wanted * 2;
        void *values = std::realloc(static_cast<void *>(m_values), m_capacity * sizeof(T));
        if (!values)
            std::abort();
        m_values = static_cast<T *>(values);
    }

    T *m_values = nullptr;
    std::size_t m_size = 0;
    std::size_t m_capacity = 0;
};

#endif
