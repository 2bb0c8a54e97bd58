#ifndef EZXMLTEXT_H
#define EZXMLTEXT_H

#include <cstddef>
#include <cstring>
#include <string_view>
#ifdef __SSE2__
#include <emmintrin.h>
#endif

/// The character classes and searches of the XML reader.
namespace EzxmlText {

enum Class : unsigned char {
    NameStart = 1, ///< bytes from 0x80 on belong to letters outside of ASCII
    NameChar = 2,
    Space = 4,
    CarriageReturn = 8,
    LineFeedOrTab = 16,
    Ampersand = 32,
    Percent = 64
};

struct Classes
{
    constexpr Classes() : of()
    {
        for (int c = 0; c < 256; ++c) {
            const bool letter
                = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || c == ':' || c >= 0x80;
            if (letter)
                of[c] = NameStart | NameChar;
            else if ((c >= '0' && c <= '9') || c == '-' || c == '.')
                of[c] = NameChar;
        }
        of[unsigned{' '}] = Space;
        of[unsigned{'\t'}] = of[unsigned{'\n'}] = Space | LineFeedOrTab;
        of[unsigned{'\r'}] = Space | CarriageReturn;
        of[unsigned{'&'}] = Ampersand;
        of[unsigned{'%'}] = Percent;
    }

    unsigned char of[256];
};

static constexpr Classes classes;

inline bool is(char c, int wanted)
{
    return classes.of[static_cast<unsigned char>(c)] & wanted;
}

/// The first byte from `at` on that is of none of these classes. A NUL is of no class.
template <typename Char> Char *skip(Char *at, int skipped)
{
    while (is(*at, skipped))
        ++at;
    return at;
}

template <typename Char> Char *skip(Char *at, const char *end, int skipped)
{
    while (at < end && is(*at, skipped))
        ++at;
    return at;
}

/// The first `wanted` from `at` on, or null.
template <typename Char> Char *find(Char *at, const char *end, char wanted)
{
    const void *found = std::memchr(at, wanted, static_cast<std::size_t>(end - at));
    return found ? at + (static_cast<const char *>(found) - at) : nullptr;
}

/// Writes a code point in UTF-8, at most four bytes, and returns what lies behind it.
inline char *putUtf8(char *to, unsigned code)
{
    if (code < 0x80) {
        *to++ = static_cast<char>(code);
        return to;
    }
    const int tails = code < 0x800 ? 1 : code < 0x10000 ? 2 : 3;
    const unsigned lead = tails == 1 ? 0xc0 : tails == 2 ? 0xe0 : 0xf0;
    *to++ = static_cast<char>(lead | (code >> (6 * tails)));
    for (int tail = tails - 1; tail >= 0; --tail)
        *to++ = static_cast<char>(0x80 | ((code >> (6 * tail)) & 0x3f));
    return to;
}

/// How many bytes the functions below read at once, up to the last place from which so many can be read.
const std::size_t reach = 16;

#ifdef __SSE2__
inline __m128i block(const char *at)
{
    return _mm_loadu_si128(reinterpret_cast<const __m128i *>(at));
}

/// 0xff for each byte that is one of two.
inline __m128i either(__m128i bytes, char a, char b)
{
    return _mm_or_si128(_mm_cmpeq_epi8(bytes, _mm_set1_epi8(a)), _mm_cmpeq_epi8(bytes, _mm_set1_epi8(b)));
}

inline unsigned bits(__m128i found)
{
    return static_cast<unsigned>(_mm_movemask_epi8(found));
}
#endif

#ifdef __SSE2__
/// A bit for each of 16 bytes that text does not go on over.
inline unsigned contentMarks(const char *at)
{
    const __m128i bytes = block(at);
    return bits(_mm_or_si128(either(bytes, '<', '&'), _mm_cmpeq_epi8(bytes, _mm_set1_epi8('\r'))));
}

/// 0xff for each byte from `low` to `high`.
inline __m128i within(__m128i bytes, char low, char high)
{
    const __m128i above = _mm_sub_epi8(bytes, _mm_set1_epi8(low));
    return _mm_cmpeq_epi8(_mm_min_epu8(above, _mm_set1_epi8(static_cast<char>(high - low))), above);
}
#endif

/// Whether the text up to `end` starts with these bytes.
inline bool startsWith(const char *at, const char *end, std::string_view bytes)
{
    return static_cast<std::size_t>(end - at) >= bytes.size() && std::memcmp(at, bytes.data(), bytes.size()) == 0;
}

/// The same for bytes behind which as many more can be read as are read at once: quicker for a few of them.
inline bool startsWithPadded(const char *at, const char *lastReach, const char *end, std::string_view bytes)
{
#ifdef __SSE2__
    const char *from = bytes.data(), *const last = from + bytes.size();
    for (; at <= lastReach; at += reach, from += reach) {
        const unsigned same = bits(_mm_cmpeq_epi8(block(at), block(from)));
        if (last - from <= static_cast<std::ptrdiff_t>(reach))
            return (~same & ((1U << (last - from)) - 1)) == 0;
        if (same != 0xffff)
            return false;
    }
    bytes.remove_prefix(static_cast<std::size_t>(from - bytes.data()));
#endif
    return startsWith(at, end, bytes);
}

/// The first byte that is no NameChar.
inline char *findNameEnd(char *at, const char *lastReach)
{
#ifdef __SSE2__
    for (; at <= lastReach; at += reach) {
        const __m128i bytes = block(at);
        const __m128i letters = within(_mm_or_si128(bytes, _mm_set1_epi8(0x20)), 'a', 'z');
        const __m128i others = _mm_andnot_si128(_mm_cmpeq_epi8(bytes, _mm_set1_epi8('/')), within(bytes, '-', ':'));
        const __m128i line = _mm_cmpeq_epi8(bytes, _mm_set1_epi8('_'));
        // The sign bits that are gathered are those of the bytes from 0x80 on as well.
        const unsigned names = bits(_mm_or_si128(_mm_or_si128(letters, others), _mm_or_si128(line, bytes)));
        if (names != 0xffff)
            return at + __builtin_ctz(~names);
    }
#endif
    return skip(at, NameChar);
}

/// The first of `<`, `&` and CR, or `end`.
template <typename Char> Char *findContentMark(Char *at, const char *lastReach, const char *end)
{
#ifdef __SSE2__
    for (; at <= lastReach; at += reach) {
        if (const unsigned set = contentMarks(at))
            return at + __builtin_ctz(set);
    }
#endif
    while (at < end && *at != '<' && *at != '&' && *at != '\r')
        ++at;
    return at;
}

/// The first quote, `&` or control character, or `end`.
inline char *findValueMark(char *at, const char *lastReach, const char *end, char quote)
{
#ifdef __SSE2__
    for (; at <= lastReach; at += reach) {
        const __m128i bytes = block(at);
        const __m128i control = _mm_cmpeq_epi8(_mm_min_epu8(bytes, _mm_set1_epi8(0x1f)), bytes);
        if (const unsigned set = bits(_mm_or_si128(either(bytes, quote, '&'), control)))
            return at + __builtin_ctz(set);
    }
#endif
    while (at < end && *at != quote && *at != '&' && static_cast<unsigned char>(*at) >= 0x20)
        ++at;
    return at;
}

}

#endif
