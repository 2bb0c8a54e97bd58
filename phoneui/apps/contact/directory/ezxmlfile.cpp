#include "ezxml.h"

#include <cstdlib>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

/// The tree takes over the text and frees it.
ezxml *parseOwned(char *text, std::size_t length)
{
    ezxml *root = ezxml_parse_str(text, length);
    reinterpret_cast<ezxml_root *>(root)->len = static_cast<std::size_t>(-1);
    return root;
}

}

ezxml *ezxml_parse_file(const char *path)
{
    const int fd = open(path, O_RDONLY | O_CLOEXEC);
    ezxml *root = ezxml_parse_fd(fd);
    if (fd >= 0)
        close(fd);
    return root;
}

ezxml *ezxml_parse_fd(int fd)
{
    struct stat status;
    if (fd < 0 || fstat(fd, &status) != 0)
        return nullptr;
    const std::size_t size = static_cast<std::size_t>(status.st_size);
    char *text = static_cast<char *>(std::malloc(size));
    if (!text && size > 0)
        return nullptr;
    const ssize_t length = read(fd, text, size);
    if (length < 0) {
        std::printf("[%s:%d] Error!!!!! read function returns negative value. \n", "ezxml_parse_fd", 864);
        std::free(text);
        return nullptr;
    }
    return parseOwned(text, static_cast<std::size_t>(length));
}

ezxml *ezxml_parse_fp(std::FILE *file)
{
    std::size_t capacity = 4096;
    std::size_t length = 0;
    char *text = nullptr;
    do {
        capacity *= 2;
        char *larger = static_cast<char *>(std::realloc(text, capacity));
        if (!larger)
            break;
        text = larger;
        length += std::fread(text + length, 1, capacity - length, file);
    } while (length == capacity);
    if (!text || length == capacity || std::ferror(file)) {
        std::free(text);
        return nullptr;
    }
    return parseOwned(text, length);
}
