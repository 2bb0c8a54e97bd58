#include "textfolding.h"

#include <QVarLengthArray>

#include <algorithm>
#include <array>
#include <memory>

namespace {

constexpr ushort FirstInitial = 0x1100, LastInitial = 0x1112;

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

/// A folded text on the stack: names are short, and a search folds thousands of them between two keys.
using Buffer = QVarLengthArray<ushort, 128>;

void append(Buffer &out, const QString &text)
{
    // Most often it is one letter.
    for (const QChar c : text)
        out.append(c.unicode());
}

QString foldedLetter(QChar c)
{
    if (c.isMark())
        return QLatin1String("");
    const QChar folded = c.toCaseFolded();
    const char16_t *replacement = replacementOf(Letters, folded.unicode());
    if (!replacement)
        replacement = replacementOf(JoinedJamo, folded.unicode());
    if (replacement)
        return QString::fromUtf16(replacement);
    return c.isSpace() || c.category() == QChar::Other_Control ? QStringLiteral(" ") : QString(folded);
}

/// A character without its accents, a syllable as its jamo, a lone consonant as initial ones.
QString foldedCharacter(const QString &character)
{
    const int lone = character.at(0).unicode() - FirstLoneConsonant;
    const QString parts = lone >= 0 && lone < static_cast<int>(LoneConsonants.size())
        ? QString::fromUtf16(LoneConsonants[static_cast<std::size_t>(lone)])
        : character.normalized(QString::NormalizationForm_KD);
    QString folded = QLatin1String("");
    for (const QChar c : parts)
        folded += foldedLetter(c);
    return folded;
}

/// The characters of the basic plane, each folded when it is first met. One folds like the other whatever stands
/// beside it: what normalization would reorder are marks, and they go.
class FoldedCharacters
{
public:
    const QString &at(ushort code)
    {
        std::unique_ptr<Page> &page = m_pages[code >> 8];
        if (!page)
            page = std::make_unique<Page>();
        QString &folded = (*page)[code & 0xff];
        if (folded.isNull())
            folded = foldedCharacter(QString(QChar(code)));
        return folded;
    }

private:
    using Page = std::array<QString, 256>;
    std::array<std::unique_ptr<Page>, 256> m_pages;
};

FoldedCharacters &foldedCharacters()
{
    static thread_local FoldedCharacters characters;
    return characters;
}

ushort foldedAscii(ushort code)
{
    if (code >= 'A' && code <= 'Z')
        return code | 0x20;
    return code < ' ' || code == 0x7f ? ' ' : code;
}

void appendFolded(Buffer &out, const QString &text)
{
    for (int i = 0; i < text.size(); ++i) {
        const ushort code = text.at(i).unicode();
        if (code < 0x80)
            out.append(foldedAscii(code));
        else if (QChar::isHighSurrogate(code) && i + 1 < text.size())
            append(out, foldedCharacter(text.mid(i++, 2)));
        else
            append(out, foldedCharacters().at(code));
    }
}

bool isInitial(QChar c)
{
    return c.unicode() >= FirstInitial && c.unicode() <= LastInitial;
}

/// The first letters of all words; with `ofSyllables` the initial consonants of Korean syllables as well.
void appendInitials(Buffer &out, const Buffer &folded, bool ofSyllables)
{
    bool inWord = false;
    for (const ushort code : folded) {
        const QChar c(code);
        const bool letter = c.isLetterOrNumber() || c.isSurrogate() || (inWord && (c == u'\'' || c == u'\u2019'));
        if ((letter && !inWord) || (ofSyllables && isInitial(c)))
            out.append(code);
        inWord = letter;
    }
}

bool holds(const Buffer &text, const Buffer &word)
{
    return std::search(text.begin(), text.end(), word.begin(), word.end()) != text.end();
}

void append(QString *text, const Buffer &buffer)
{
    text->append(reinterpret_cast<const QChar *>(buffer.constData()), buffer.size());
}

}

QString TextFolding::fold(const QString &text)
{
    Buffer folded;
    appendFolded(folded, text);
    return QString(reinterpret_cast<const QChar *>(folded.constData()), folded.size());
}

void TextFolding::appendNameLine(QString *lines, const QString &name)
{
    Buffer folded, initials, wordInitials;
    appendFolded(folded, name);
    appendInitials(initials, folded, true);
    appendInitials(wordInitials, folded, false);
    append(lines, folded);
    *lines += Separator;
    append(lines, initials);
    if (wordInitials != initials) {
        *lines += Separator;
        append(lines, wordInitials);
    }
}

bool TextFolding::nameHolds(const QString &name, const QString &word)
{
    Buffer folded, sought;
    appendFolded(folded, name);
    appendFolded(sought, word);
    if (sought.isEmpty())
        return false;
    if (holds(folded, sought))
        return true;
    // All initials stand in the name too.
    if (sought.size() == 1 || !std::count(folded.begin(), folded.end(), sought.at(0)))
        return false;
    Buffer initials, wordInitials;
    appendInitials(initials, folded, true);
    appendInitials(wordInitials, folded, false);
    return holds(initials, sought) || holds(wordInitials, sought);
}
