#include "ezxmlmemory.h"

#include <sys/mman.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace {

const std::size_t s_firstBlock = 4 * 1024;
const std::size_t s_largestBlock = 64 * 1024 * 1024;
/// From this size on blocks come from the kernel, in pages so large that touching them for the first time is cheap.
const std::size_t s_largePage = 2 * 1024 * 1024;

char *mapLargePages(std::size_t bytes)
{
    void *memory = mmap(nullptr, bytes + s_largePage, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED)
        return nullptr;
    char *start = static_cast<char *>(memory);
    const std::size_t odd = reinterpret_cast<std::size_t>(start) % s_largePage;
    const std::size_t before = odd == 0 ? 0 : s_largePage - odd;
    if (before > 0)
        munmap(start, before);
    munmap(start + before + bytes, s_largePage - before);
    madvise(start + before, bytes, MADV_HUGEPAGE); // without it the pages are small and all works the same
    return start + before;
}

}

struct EzxmlMemory::Block
{
    Block *earlier;
    std::size_t size;
};

EzxmlMemory::~EzxmlMemory()
{
    while (m_last) {
        Block *block = m_last;
        m_last = block->earlier;
        if (block->size >= s_largePage)
            munmap(block, block->size);
        else
            std::free(block);
    }
}

void EzxmlMemory::addBlock(std::size_t bytes)
{
    std::size_t size = m_last ? std::min(m_last->size * 2, s_largestBlock) : s_firstBlock;
    while (size < bytes + sizeof(Block))
        size *= 2;
    char *memory = size >= s_largePage ? mapLargePages(size) : static_cast<char *>(std::malloc(size));
    if (!memory)
        std::abort();
    m_last = new (memory) Block{m_last, size};
    m_next = memory + sizeof(Block);
    m_end = memory + size;
}

char *EzxmlMemory::text(const char *from, std::size_t length)
{
    char *copy = array<char>(length + 1);
    std::memcpy(copy, from, length);
    copy[length] = '\0';
    return copy;
}
