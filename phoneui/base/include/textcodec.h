#ifndef TEXTCODEC_H
#define TEXTCODEC_H

#include <QByteArray>
#include <QString>

/// The codec name for text whose own name is given, or the phone's charset for an empty name.
QString getTextCodecType(const QString &name);

/// The text in the byte encoding that the phone stores, the charset of Core.
QByteArray getEncodedString(const QString &text);

/// NUL-terminated UTF-8 as one value of a URL query: all but letters, digits, "-", ".", "_" and "~" is
/// percent-encoded, so that the result is ASCII.
QByteArray makeBuffEscape(char *text);

/// True when the word matches the name by initials: Korean initial consonants, the initials of words, or letters
/// in any case and accent. An empty word matches nothing.
bool chosungCompare(const QString &name, const QString &word);

#endif
