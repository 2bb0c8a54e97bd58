#include "directorytexts.h"

#include <cstring>

namespace {

bool isBlank(char c)
{
    return c == ' ' || c == '\t';
}

}

char *strduptrim(char *text)
{
    while (isBlank(*text))
        ++text;
    std::size_t length = std::strlen(text);
    while (length > 0 && isBlank(text[length - 1]))
        --length;
    return strndup(text, length);
}
