#ifndef TEXTFOLDING_H
#define TEXTFOLDING_H

#include <QString>

/// Text as searches compare it.
namespace TextFolding {

/// Separates the parts of a line; no folded word holds it.
constexpr QChar Separator = u'\n';

/// Without case and accents, Korean in its consonants and vowels, so that a syllable under way already fits:
/// "처" is the beginning of "철". A consonant that stands alone is an initial one, "ㄳ" is two of them.
QString fold(const QString &text);

/// Appends the folded name, the initial consonants of its Korean syllables with the first letters of its other
/// words, and the first letters of all words.
void appendNameLine(QString *lines, const QString &name);

/// Whether the line of the name holds the folded word; an empty word never does. Makes neither of them.
bool nameHolds(const QString &name, const QString &word);

}

#endif
