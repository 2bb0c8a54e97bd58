#include "textfolding.h"

#include <algorithm>
#include <array>

namespace {

constexpr ushort FirstInitial = 0x1100, LastInitial = 0x1112;
constexpr ushort FirstSyllable = 0xac00, LastSyllable = 0xd7a3;

struct Replacement
{
    ushort from;
    const char16_t *to;
};

// Letters that have no decomposition but are typed as others.
constexpr std::array<Replacement, 11> Letters = {{{0x00df, u"ss"},
                                                  {0x00e6, u"ae"},
                                                  {0x00f0, u"d"},
                                                  {0x00f8, u"o"},
                                                  {0x00fe, u"th"},
                                                  {0x0111, u"d"},
                                                  {0x0127, u"h"},
                                                  {0x0131, u"i"},
                                                  {0x0142, u"l"},
                                                  {0x0153, u"oe"},
                                                  {0x0167, u"t"}}};

// Consonants as the keypad writes them while no syllable is made of them, U+3131 to U+314E. An input method
// joins two that follow each other, which initials do all the time.
constexpr std::array<const char16_t *, 30> LoneConsonants
    = {u"ᄀ",   u"ᄁ",   u"ᄀᄉ", u"ᄂ",   u"ᄂᄌ", u"ᄂᄒ", u"ᄃ", u"ᄄ", u"ᄅ", u"ᄅᄀ",
       u"ᄅᄆ", u"ᄅᄇ", u"ᄅᄉ", u"ᄅᄐ", u"ᄅᄑ", u"ᄅᄒ", u"ᄆ", u"ᄇ", u"ᄈ", u"ᄇᄉ",
       u"ᄉ",   u"ᄊ",   u"ᄋ",   u"ᄌ",   u"ᄍ",   u"ᄎ",   u"ᄏ", u"ᄐ", u"ᄑ", u"ᄒ"};
constexpr ushort FirstLoneConsonant = 0x3131;

// Vowels and final consonants that are typed in two steps.
constexpr std::array<Replacement, 18> JoinedJamo = {{{0x116a, u"\u1169\u1161"},
                                                     {0x116b, u"\u1169\u1162"},
                                                     {0x116c, u"\u1169\u1175"},
                                                     {0x116f, u"\u116e\u1165"},
                                                     {0x1170, u"\u116e\u1166"},
                                                     {0x1171, u"\u116e\u1175"},
                                                     {0x1174, u"\u1173\u1175"},
                                                     {0x11aa, u"\u11a8\u11ba"},
                                                     {0x11ac, u"\u11ab\u11bd"},
                                                     {0x11ad, u"\u11ab\u11c2"},
                                                     {0x11b0, u"\u11af\u11a8"},
                                                     {0x11b1, u"\u11af\u11b7"},
                                                     {0x11b2, u"\u11af\u11b8"},
                                                     {0x11b3, u"\u11af\u11ba"},
                                                     {0x11b4, u"\u11af\u11c0"},
                                                     {0x11b5, u"\u11af\u11c1"},
                                                     {0x11b6, u"\u11af\u11c2"},
                                                     {0x11b9, u"\u11b8\u11ba"}}};

template <std::size_t N> const char16_t *replacementOf(const std::array<Replacement, N> &table, ushort code)
{
    const auto found = std::lower_bound(table.begin(), table.end(), code,
                                        [](const Replacement &entry, ushort value) { return entry.from < value; });
    return found != table.end() && found->from == code ? found->to : nullptr;
}

void append(QString &out, const char16_t *text)
{
    for (; *text; ++text)
        out += QChar(*text);
}

void appendFolded(QString &out, QChar c)
{
    if (c.isMark())
        return;
    const QChar folded = c.toCaseFolded();
    const char16_t *replacement = replacementOf(Letters, folded.unicode());
    if (!replacement)
        replacement = replacementOf(JoinedJamo, folded.unicode());
    if (replacement)
        append(out, replacement);
    else if (c.isSpace() || c.category() == QChar::Other_Control)
        out += u' ';
    else
        out += folded;
}

bool isAscii(const QString &text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 0x80; });
}

/// Lone consonants become initial ones; the rest is taken apart into letters and marks, syllables into jamo.
QString takenApart(const QString &text)
{
    if (isAscii(text))
        return text;
    QString spread;
    spread.reserve(text.size());
    for (const QChar c : text) {
        const int lone = c.unicode() - FirstLoneConsonant;
        if (lone >= 0 && lone < static_cast<int>(LoneConsonants.size()))
            append(spread, LoneConsonants[static_cast<std::size_t>(lone)]);
        else
            spread += c;
    }
    return spread.normalized(QString::NormalizationForm_KD);
}

bool isInitial(QChar c)
{
    return c.unicode() >= FirstInitial && c.unicode() <= LastInitial;
}

}

QString TextFolding::fold(const QString &text)
{
    const QString parts = takenApart(text);
    QString folded;
    folded.reserve(parts.size());
    for (const QChar c : parts)
        appendFolded(folded, c);
    return folded;
}

QString TextFolding::nameLine(const QString &name)
{
    const QString folded = fold(name);
    QString initials;
    QString wordInitials;
    bool inWord = false;
    for (const QChar c : folded) {
        const bool letter = c.isLetterOrNumber() || c.isSurrogate() || (inWord && (c == u'\'' || c == u'\u2019'));
        if (letter && !inWord)
            wordInitials += c;
        if (isInitial(c) || (letter && !inWord))
            initials += c;
        inWord = letter;
    }
    QString line = folded + Separator + initials;
    if (wordInitials != initials)
        line += Separator + wordInitials;
    return line;
}
