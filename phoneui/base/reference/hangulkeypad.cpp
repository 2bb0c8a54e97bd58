#include "hangulkeypad.h"

#include <Qt>

#include <algorithm>

namespace {

/// The letters as keys of the two-set keyboard, which the library knows.
constexpr char LibraryKeyboard[] = "2";

constexpr const char *consonants[] = {"da", nullptr, nullptr, nullptr, "rzR", "sf", "exE", "qvQ", "tgT", "wcW"};

struct Vowel
{
    const char *strokes;
    const char *keys;
};

// With every vowel, those that lead to it stand here too.
constexpr Vowel vowels[]
    = {{"1", "l"},    {"12", "k"},    {"121", "o"},    {"122", "i"},   {"1221", "O"},  {"2", ""},
       {"21", "j"},   {"211", "p"},   {"22", ""},      {"221", "u"},   {"2211", "P"},  {"23", "h"},
       {"231", "hl"}, {"2312", "hk"}, {"23121", "ho"}, {"223", "y"},   {"3", "m"},     {"31", "ml"},
       {"32", "n"},   {"321", "nl"},  {"322", "b"},    {"3221", "nj"}, {"32211", "np"}};

constexpr QChar Dot(u'ㆍ');

const Vowel *findVowel(const QByteArray &strokes)
{
    const auto found = std::find_if(std::begin(vowels), std::end(vowels),
                                    [&](const Vowel &vowel) { return strokes == vowel.strokes; });
    return found != std::end(vowels) ? found : nullptr;
}

bool isStroke(int key)
{
    return key >= Qt::Key_1 && key <= Qt::Key_3;
}

QString fromLibrary(const ucschar *text)
{
    return text ? QString::fromUcs4(text) : QString();
}

}

HangulKeypad::HangulKeypad() : m_context(hangul_ic_new(LibraryKeyboard), &hangul_ic_delete) { }

QByteArray HangulKeypad::libraryKeys(const Letter &letter)
{
    return letter.strokes.isEmpty() ? QByteArray(1, consonants[letter.key - Qt::Key_0][letter.tap])
                                    : QByteArray(findVowel(letter.strokes)->keys);
}

bool HangulKeypad::isUnfinished(const Letter &letter)
{
    return libraryKeys(letter).isEmpty();
}

int HangulKeypad::consonantCount(int key)
{
    return int(qstrlen(consonants[key - Qt::Key_0]));
}

HangulKeypad::Text HangulKeypad::compose(const QVector<Letter> &letters) const
{
    Text text;
    hangul_ic_reset(m_context.get());
    for (const Letter &letter : letters) {
        const QByteArray keys = libraryKeys(letter);
        for (const char key : keys) {
            hangul_ic_process(m_context.get(), key);
            text.closed += fromLibrary(hangul_ic_get_commit_string(m_context.get()));
        }
    }
    text.open = fromLibrary(hangul_ic_get_preedit_string(m_context.get()));
    if (!letters.isEmpty() && isUnfinished(letters.last()))
        text.open += QString(letters.last().strokes.size(), Dot);
    return text;
}

QString HangulKeypad::pending() const
{
    const Text text = compose(m_letters);
    return text.closed + text.open;
}

/// The dots of an unfinished vowel take no room of their own once the vowel is there.
int HangulKeypad::expectedLength() const
{
    QVector<Letter> letters = m_letters;
    if (!letters.isEmpty() && isUnfinished(letters.last()))
        letters.last().strokes.append('1');
    const Text text = compose(letters);
    return text.closed.size() + text.open.size();
}

QString HangulKeypad::press(int key, int room)
{
    const bool sameTap = m_tapOpen && !m_letters.isEmpty() && m_letters.last().key == key;
    if (sameTap) {
        nextConsonant(room);
        return QString();
    }
    const QVector<Letter> former = m_letters;
    QString finished;
    if (!isStroke(key))
        finished = begin({QByteArray(), key, 0});
    else if (!addStroke(key))
        finished = begin({QByteArray(1, char(key)), 0, 0});
    m_tapOpen = !isStroke(key);
    if (finished.size() + expectedLength() <= room)
        return finished;
    m_letters = former;
    m_tapOpen = false;
    return QString();
}

/// The next consonant of the key that fits: one that cannot close the syllable needs the room of a further one.
void HangulKeypad::nextConsonant(int room)
{
    Letter &letter = m_letters.last();
    const int count = consonantCount(letter.key);
    for (int i = 0; i < count; ++i) {
        letter.tap = (letter.tap + 1) % count;
        if (expectedLength() <= room)
            return;
    }
}

bool HangulKeypad::addStroke(int key)
{
    if (m_letters.isEmpty() || m_letters.last().strokes.isEmpty())
        return false;
    const QByteArray strokes = m_letters.last().strokes + char(key);
    if (!findVowel(strokes))
        return false;
    m_letters.last().strokes = strokes;
    return true;
}

QString HangulKeypad::begin(const Letter &letter)
{
    const QString finished = takeClosed();
    m_letters.append(letter);
    return finished;
}

/// Takes out the syllables that no further letter changes.
QString HangulKeypad::takeClosed()
{
    const Text text = compose(m_letters);
    if (!m_letters.isEmpty() && isUnfinished(m_letters.last())) {
        m_letters.clear();
        return text.closed + text.open;
    }
    if (text.closed.isEmpty())
        return QString();
    // The library does not tell how many letters went into them: a vowel may have taken the last one along.
    Text rest = text;
    while (!m_letters.isEmpty() && !(rest.closed.isEmpty() && rest.open == text.open)) {
        m_letters.removeFirst();
        rest = compose(m_letters);
    }
    return text.closed;
}

void HangulKeypad::erase()
{
    if (!m_letters.isEmpty())
        m_letters.removeLast();
    m_tapOpen = false;
}

void HangulKeypad::clear()
{
    m_letters.clear();
    m_tapOpen = false;
}
