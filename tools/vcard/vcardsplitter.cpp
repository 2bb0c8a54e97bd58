#include "vcardsplitter.h"

#include <QIODevice>
#include <QRegularExpression>
#include <QTextCodec>

#include <algorithm>
#include <cstring>

namespace {

// A card with a large photo stays far below this; what goes beyond is no card.
constexpr int LargestCard = 16 * 1024 * 1024;
// The device makes room for this much before it knows how long a line is.
constexpr int LinePiece = 4096;
// Without a photo.
constexpr int UsualCard = 4096;

bool isSpace(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

/// Whether the line holds this text and white space.
bool isLine(const QByteArray &line, const char *text)
{
    const char *begin = line.constData(), *end = begin + line.size();
    while (begin < end && isSpace(*begin))
        ++begin;
    while (begin < end && isSpace(end[-1]))
        --end;
    const std::size_t length = std::size_t(end - begin);
    return length == std::strlen(text) && qstrnicmp(begin, text, uint(length)) == 0;
}

bool beginsWith(const QByteArray &line, const char *name)
{
    return qstrnicmp(line.constData(), name, uint(std::strlen(name))) == 0;
}

bool decodes(const QByteArray &bytes, QTextCodec *codec, QString *text)
{
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    *text = codec->toUnicode(bytes.constData(), bytes.size(), &state);
    return state.invalidChars == 0 && state.remainingChars == 0;
}

bool isAscii(const QByteArray &line)
{
    return std::all_of(line.begin(), line.end(), [](char c) { return static_cast<signed char>(c) >= 0; });
}

QByteArray inUtf8(const QByteArray &line)
{
    static QTextCodec *const utf8 = QTextCodec::codecForName("UTF-8");
    static QTextCodec *const korean = QTextCodec::codecForName("EUC-KR");
    QString text;
    if (isAscii(line) || decodes(line, utf8, &text) || line.toUpper().contains("CHARSET="))
        return line;
    if (!decodes(line, korean, &text))
        text = QString::fromLatin1(line);
    return text.toUtf8();
}

bool isNameLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '-';
}

/// Whether the line begins with the name of a group, or of a property that has another plain form. Most lines do
/// not.
bool mayDiffer(const QByteArray &line)
{
    const auto nameEnd = std::find_if_not(line.begin(), line.end(), isNameLetter);
    return (nameEnd != line.end() && *nameEnd == '.') || beginsWith(line, "PHOTO")
        || beginsWith(line, "CATEGORIES");
}

QByteArray plainForm(const QByteArray &line, bool continued)
{
    if (continued || line.startsWith(' ') || line.startsWith('\t') || !mayDiffer(line))
        return inUtf8(line);
    static const QRegularExpression group(QStringLiteral("^[A-Za-z0-9-]+\\.(?=[A-Za-z-]+[:;])"));
    static const QRegularExpression dataAddress(QStringLiteral("^PHOTO[^:]*:data:image/([a-z]+)[^,]*;base64,"),
                                                QRegularExpression::CaseInsensitiveOption);
    // The parser takes one level of escapes away before it looks for the commas between categories.
    static const QRegularExpression categories(QStringLiteral("^CATEGORIES[:;]"),
                                               QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression escapedComma(QStringLiteral("(?<!\\\\)\\\\,"));

    QString text = QString::fromLatin1(inUtf8(line));
    text.remove(group);
    text.replace(dataAddress, QStringLiteral("PHOTO;ENCODING=b;TYPE=\\1:"));
    if (text.contains(categories))
        text.replace(escapedComma, QStringLiteral("\\\\,"));
    return text.toLatin1();
}

bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

/// Where a text ends when blanks and line ends do not count.
int trimmedSize(const QByteArray &text)
{
    int size = text.size();
    while (size > 0 && isBlank(text.at(size - 1)))
        --size;
    return size;
}

/// Whether the last property of a card is written in quoted-printable. It may go on over several lines.
bool endsQuoted(const QByteArray &card)
{
    const QList<QByteArray> lines = card.split('\n');
    int i = lines.size() - 1;
    while (i > 0
           && (lines.at(i).isEmpty() || isBlank(lines.at(i).at(0)) || lines.at(i - 1).trimmed().endsWith('=')))
        --i;
    return lines.at(i).toUpper().contains("QUOTED-PRINTABLE");
}

/// The parser takes the line behind a soft line break into the value, and never comes back if that is the end of
/// the card. So nothing that looks like one may stand there.
void closeLastValue(QByteArray *card)
{
    int size = trimmedSize(*card);
    if (size == 0 || card->at(size - 1) != '=')
        return;
    if (endsQuoted(*card)) {
        while (size > 0 && (card->at(size - 1) == '=' || isBlank(card->at(size - 1))))
            --size;
        card->truncate(size);
        *card += "\r\n";
    } else {
        *card += "X-END:\r\n";
    }
}

bool opensInnerCard(const QByteArray &line)
{
    return beginsWith(line, "AGENT") && line.trimmed().endsWith(':');
}

}

VCardSplitter::VCardSplitter(QIODevice *device) : m_device(device)
{
    m_line.reserve(LinePiece);
}

bool VCardSplitter::readLine()
{
    m_line.resize(0);
    qint64 read = 0;
    do {
        const int size = m_line.size();
        m_line.resize(size + LinePiece);
        read = m_device->readLine(m_line.data() + size, LinePiece);
        m_line.resize(size + int(qMax(read, qint64(0))));
    } while (read > 0 && !m_line.endsWith('\n') && m_line.size() < LargestCard);
    if (m_line.isEmpty())
        return false;
    if (m_lineNumber == 0 && m_line.startsWith("\xef\xbb\xbf"))
        m_line.remove(0, 3);
    ++m_lineNumber;
    return true;
}

bool VCardSplitter::next(VCardText *card)
{
    card->problem.clear();
    card->text.reserve(UsualCard);
    card->text.resize(0);
    while (!m_beginRead) {
        if (!readLine())
            return false;
        if (isLine(m_line, "END:VCARD")) {
            card->line = m_lineNumber;
            card->problem = QStringLiteral("END:VCARD without BEGIN:VCARD");
            return true;
        }
        m_beginRead = isLine(m_line, "BEGIN:VCARD");
    }
    m_beginRead = false;
    card->line = m_lineNumber;
    card->text += "BEGIN:VCARD\r\n";

    bool continued = false, announced = false; // by the line before
    int innerCards = 0;
    while (readLine()) {
        const bool ends = isLine(m_line, "END:VCARD");
        if (isLine(m_line, "BEGIN:VCARD")) {
            if (!announced) {
                m_beginRead = true;
                break;
            }
            ++innerCards;
        }
        if (innerCards > 0) {
            innerCards -= ends ? 1 : 0;
            continued = announced = false;
            continue;
        }
        while (m_line.endsWith('\n') || m_line.endsWith('\r'))
            m_line.chop(1);
        if (ends)
            closeLastValue(&card->text);
        if (card->text.size() < LargestCard) {
            card->text += plainForm(m_line, continued);
            card->text += "\r\n";
        }
        if (ends) {
            if (card->text.size() >= LargestCard)
                card->problem = QStringLiteral("too large");
            return true;
        }
        continued = m_line.endsWith('=');
        announced = opensInnerCard(m_line);
    }
    card->problem = QStringLiteral("no END:VCARD");
    return true;
}
