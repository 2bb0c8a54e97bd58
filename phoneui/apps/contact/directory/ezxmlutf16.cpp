#include "ezxmldocument.h"
#include "ezxmltext.h"

#include <cstdlib>

namespace {

const unsigned s_replacement = 0xfffd;

class Utf16
{
public:
    Utf16(const char *text, std::size_t length)
        : m_at(reinterpret_cast<const unsigned char *>(text)), m_end(m_at + length / 2 * 2),
          m_high(*m_at == 0xfe ? 0 : 1)
    {
        m_at += 2;
    }

    bool atEnd() const { return m_at >= m_end; }

    unsigned next()
    {
        const unsigned unit = take();
        if (unit < 0xd800 || unit > 0xdfff)
            return unit;
        if (unit > 0xdbff || atEnd())
            return s_replacement;
        const unsigned second = peek();
        if (second < 0xdc00 || second > 0xdfff)
            return s_replacement;
        m_at += 2;
        return 0x10000 + ((unit - 0xd800) << 10) + (second - 0xdc00);
    }

private:
    unsigned peek() const { return static_cast<unsigned>(m_at[m_high] << 8 | m_at[1 - m_high]); }
    unsigned take()
    {
        const unsigned unit = peek();
        m_at += 2;
        return unit;
    }

    const unsigned char *m_at;
    const unsigned char *m_end;
    int m_high; // which byte of a pair is the high one
};

}

char *ezxml_str2utf8(const char *text, std::size_t *length)
{
    // Two bytes become three at most, four become four.
    char *utf8 = static_cast<char *>(std::malloc(*length / 2 * 3 + 1));
    if (!utf8)
        std::abort();
    char *out = utf8;
    if (*length >= 2) {
        Utf16 source(text, *length);
        while (!source.atEnd())
            out = EzxmlText::putUtf8(out, source.next());
    }
    *length = static_cast<std::size_t>(out - utf8);
    return utf8;
}
