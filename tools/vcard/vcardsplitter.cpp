#include "vcardsplitter.h"

#include <QIODevice>
#include <QRegularExpression>
#include <QTextCodec>

#include <algorithm>
#include <utility>

namespace {

// A card with a large photo stays far below this; what goes beyond is no card.
constexpr int LargestCard = 16 * 1024 * 1024;
// What is read of the device at once.
constexpr int Piece = 64 * 1024;
// Without a photo.
constexpr int UsualCard = 4096;

bool isSpace(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

std::string_view trimmed(std::string_view line)
{
    while (!line.empty() && isSpace(line.front()))
        line.remove_prefix(1);
    while (!line.empty() && isSpace(line.back()))
        line.remove_suffix(1);
    return line;
}

bool beginsWith(std::string_view line, std::string_view name)
{
    return line.size() >= name.size() && qstrnicmp(line.data(), name.data(), uint(name.size())) == 0;
}

/// Whether the line holds this text and white space.
bool isLine(std::string_view line, std::string_view text)
{
    const std::string_view content = trimmed(line);
    return content.size() == text.size() && beginsWith(content, text);
}

bool endsWith(std::string_view line, char c)
{
    return !line.empty() && line.back() == c;
}

bool decodes(const QByteArray &bytes, QTextCodec *codec, QString *text)
{
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    *text = codec->toUnicode(bytes.constData(), bytes.size(), &state);
    return state.invalidChars == 0 && state.remainingChars == 0;
}

bool isAscii(std::string_view line)
{
    char any = 0; // looked at as a whole, which the compiler does many bytes at a time
    for (const char c : line)
        any |= c;
    return static_cast<signed char>(any) >= 0;
}

QByteArray inUtf8(const QByteArray &line)
{
    static QTextCodec *const utf8 = QTextCodec::codecForName("UTF-8");
    static QTextCodec *const korean = QTextCodec::codecForName("EUC-KR");
    QString text;
    if (decodes(line, utf8, &text) || line.toUpper().contains("CHARSET="))
        return line;
    if (!decodes(line, korean, &text))
        text = QString::fromLatin1(line);
    return text.toUtf8();
}

bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

bool isNameLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '-';
}

/// Whether the line begins with the name of a group, or of a property that has another plain form. Most lines do
/// not.
bool mayDiffer(std::string_view line)
{
    const auto nameEnd = std::find_if_not(line.begin(), line.end(), isNameLetter);
    return (nameEnd != line.end() && *nameEnd == '.') || beginsWith(line, "PHOTO")
        || beginsWith(line, "CATEGORIES");
}

QByteArray plainForm(const QByteArray &line)
{
    static const QRegularExpression group(QStringLiteral("^[A-Za-z0-9-]+\\.(?=[A-Za-z-]+[:;])"));
    static const QRegularExpression dataAddress(QStringLiteral("^PHOTO[^:]*:data:image/([a-z]+)[^,]*;base64,"),
                                                QRegularExpression::CaseInsensitiveOption);
    // The parser takes one level of escapes away before it looks for the commas between categories.
    static const QRegularExpression categories(QStringLiteral("^CATEGORIES[:;]"),
                                               QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression escapedComma(QStringLiteral("(?<!\\\\)\\\\,"));

    QString text = QString::fromLatin1(line);
    text.remove(group);
    text.replace(dataAddress, QStringLiteral("PHOTO;ENCODING=b;TYPE=\\1:"));
    if (text.contains(categories))
        text.replace(escapedComma, QStringLiteral("\\\\,"));
    return text.toLatin1();
}

void appendLine(QByteArray *card, std::string_view line, bool continued)
{
    const int size = int(line.size());
    const bool asItStands = continued || (size > 0 && isBlank(line.front())) || !mayDiffer(line);
    if (isAscii(line) && asItStands) {
        card->append(line.data(), size);
    } else {
        const QByteArray text = inUtf8(QByteArray(line.data(), size));
        *card += asItStands ? text : plainForm(text);
    }
    *card += "\r\n";
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

bool opensInnerCard(std::string_view line)
{
    return beginsWith(line, "AGENT") && endsWith(trimmed(line), ':');
}

}

VCardSplitter::VCardSplitter(QIODevice *device) : m_device(device) { }

bool VCardSplitter::readLine()
{
    int searched = 0, end = -1;
    do {
        end = m_buffer.indexOf('\n', m_nextLine + searched);
        searched = m_buffer.size() - m_nextLine;
    } while (end < 0 && searched < LargestCard && readMore());
    const int begin = std::exchange(m_nextLine, end < 0 ? m_buffer.size() : end + 1);
    m_line = {m_buffer.constData() + begin, std::size_t(m_nextLine - begin)};
    if (m_line.empty())
        return false;
    if (m_lineNumber == 0 && beginsWith(m_line, "\xef\xbb\xbf"))
        m_line.remove_prefix(3);
    ++m_lineNumber;
    return true;
}

/// Appends to the line that is not whole yet.
bool VCardSplitter::readMore()
{
    m_buffer.remove(0, std::exchange(m_nextLine, 0));
    const int size = m_buffer.size();
    m_buffer.resize(size + Piece);
    const qint64 read = m_device->read(m_buffer.data() + size, Piece);
    m_buffer.resize(size + int(qMax(read, qint64(0))));
    return read > 0;
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
        while (endsWith(m_line, '\n') || endsWith(m_line, '\r'))
            m_line.remove_suffix(1);
        if (ends)
            closeLastValue(&card->text);
        if (card->text.size() < LargestCard)
            appendLine(&card->text, m_line, continued);
        if (ends) {
            if (card->text.size() >= LargestCard)
                card->problem = QStringLiteral("too large");
            return true;
        }
        continued = endsWith(m_line, '=');
        announced = opensInnerCard(m_line);
    }
    card->problem = QStringLiteral("no END:VCARD");
    return true;
}
