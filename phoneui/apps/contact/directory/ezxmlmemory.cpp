#include "ezxmlmemory.h"

#include <sys/mman.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace {

const std::size_t s_smallestBlock = 4 * 1024;
const std::size_t s_largePage = 2 * 1024 * 1024;

/// Asks for large pages inside a large block: touching memory for the first time is then hundreds of times rarer.
void adviseLargePages(char *block, std::size_t size)
{
    const std::size_t start = reinterpret_cast<std::size_t>(block);
    const std::size_t first = (start + s_largePage - 1) / s_largePage * s_largePage;
    const std::size_t end = (start + size) / s_largePage * s_largePage;
    if (end > first)
        madvise(block + (first - start), end - first, MADV_HUGEPAGE); // only a hint: refusing it breaks nothing
}

}

struct EzxmlMemory::Block
{
    Block *earlier;
};

EzxmlMemory::~EzxmlMemory()
{
    while (m_last) {
        Block *block = m_last;
        m_last = block->earlier;
        std::free(block);
    }
}

void EzxmlMemory::addBlock(std::size_t bytes)
{
    const std::size_t size = std::max({bytes + sizeof(Block), m_nextBlock, s_smallestBlock});
    char *memory = static_cast<char *>(std::malloc(size));
    if (!memory)
        std::abort();
    adviseLargePages(memory, size);
    m_last = new (memory) Block{m_last};
    m_next = memory + sizeof(Block);
    m_end = memory + size;
    m_nextBlock = size * 2;
}

char *EzxmlMemory::text(const char *from, std::size_t length)
{
    char *copy = array<char>(length + 1);
    std::memcpy(copy, from, length);
    copy[length] = '\0';
    return copy;
}
