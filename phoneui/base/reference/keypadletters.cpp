#include "keypadletters.h"

namespace KeypadLetters {

namespace {

constexpr int DigitKeys = 10;

/// The keys 0 to 9, with their digit in its place among the letters. International numbers begin with "+".
constexpr const char16_t *latin[DigitKeys]
    = {u" 0+", u".,-'&()?!\"1", u"abc", u"def", u"ghi", u"jkl", u"mno", u"pqrs", u"tuv", u"wxyz"};

/// Russian letters stand before the Latin ones.
constexpr const char16_t *cyrillic[DigitKeys]
    = {u"", u"", u"абвг", u"деёжз", u"ийкл", u"мноп", u"рсту", u"фхцч", u"шщъы", u"ьэюя"};

struct Accents
{
    Language language;
    int digit;
    const char16_t *letters;
};

constexpr Accents accents[]
    = {{German, 2, u"ä"},  {German, 6, u"ö"},   {German, 7, u"ß"},  {German, 8, u"ü"},   {Spanish, 1, u"¿¡"},
       {Spanish, 2, u"á"}, {Spanish, 3, u"é"},  {Spanish, 4, u"í"}, {Spanish, 6, u"ñó"}, {Spanish, 8, u"úü"},
       {Italian, 2, u"à"}, {Italian, 3, u"èé"}, {Italian, 4, u"ì"}, {Italian, 6, u"ò"},  {Italian, 8, u"ù"},
       {Turkish, 2, u"ç"}, {Turkish, 4, u"ğı"}, {Turkish, 6, u"ö"}, {Turkish, 7, u"ş"},  {Turkish, 8, u"ü"}};

constexpr char16_t symbols[] = u".@-_/:*#+,;=%";
constexpr char16_t digitSymbols[] = u".*+,-/:";

bool isDigitKey(int key)
{
    return key >= Qt::Key_0 && key <= Qt::Key_9;
}

QString printed(int key)
{
    return QChar(key == HashKey ? '#' : key);
}

QString smallLetters(int digit, Language language)
{
    QString letters;
    if (language == Russian)
        letters += QString::fromUtf16(cyrillic[digit]);
    letters += QString::fromUtf16(latin[digit]);
    for (const Accents &accent : accents) {
        if (accent.language == language && accent.digit == digit)
            letters += QString::fromUtf16(accent.letters);
    }
    const QChar self('0' + digit);
    return letters.contains(self) ? letters : letters + self;
}

/// A letter that has no capital (ß) is left out. Turkish keeps the dot of the i.
QString capitalsOf(const QString &letters, Language language)
{
    QString capitals;
    for (const QChar letter : letters) {
        const QChar capital = language == Turkish && letter == u'i' ? QChar(u'İ') : letter.toUpper();
        if (!letter.isLower() || capital != letter)
            capitals += capital;
    }
    return capitals;
}

}

bool isKey(int key)
{
    return isDigitKey(key) || key == Qt::Key_Asterisk || key == HashKey;
}

QString of(int key, IMEStatus mode, Language language)
{
    const bool isStar = key == Qt::Key_Asterisk;
    if (mode == IMENumeric)
        return key == Qt::Key_0 ? QStringLiteral("0+") : printed(key);
    if (mode == IMEDigit)
        return isStar ? QString::fromUtf16(digitSymbols) : printed(key);
    if (isStar) {
        // Korean has a letter on the key 0, where the blank is otherwise.
        const QString all = QString::fromUtf16(symbols);
        return mode == IMEFirst && language == Korean ? QLatin1Char(' ') + all : all;
    }
    if (!isDigitKey(key))
        return printed(key);
    const QString letters = smallLetters(key - Qt::Key_0, language);
    return mode == IMECapital ? capitalsOf(letters, language) : letters;
}

}
