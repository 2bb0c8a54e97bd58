#ifndef EZXMLMEMORY_H
#define EZXMLMEMORY_H

#include <cstddef>

/// Memory that is handed out piece by piece and freed as a whole: the records of one tree.
class EzxmlMemory
{
public:
    EzxmlMemory() = default;
    EzxmlMemory(const EzxmlMemory &) = delete;
    EzxmlMemory &operator=(const EzxmlMemory &) = delete;
    ~EzxmlMemory();

    /// How much will be needed, as far as one can tell beforehand.
    void expect(std::size_t bytes) { m_nextBlock = bytes; }

    /// Aligned for pointers; what it holds is undefined.
    void *allocate(std::size_t bytes)
    {
        bytes = (bytes + sizeof(void *) - 1) & ~(sizeof(void *) - 1);
        if (bytes > static_cast<std::size_t>(m_end - m_next))
            addBlock(bytes);
        char *piece = m_next;
        m_next += bytes;
        return piece;
    }

    template <typename T> T *array(std::size_t count) { return static_cast<T *>(allocate(count * sizeof(T))); }

    /// A copy that ends in a NUL.
    char *text(const char *from, std::size_t length);

private:
    struct Block;

    void addBlock(std::size_t bytes);

    Block *m_last = nullptr;
    std::size_t m_nextBlock = 0;
    char *m_next = nullptr;
    char *m_end = nullptr;
};

#endif
