#include "vcardsplitter.h"

#include <QIODevice>
#include <QRegularExpression>
#include <QTextCodec>

#include <algorithm>

namespace {

// A card with a large photo stays far below this; what goes beyond is no card.
constexpr int LargestCard = 16 * 1024 * 1024;
// The device makes room for this much before it knows how long a line is.
constexpr int LinePiece = 4096;

bool isLine(const QByteArray &line, const char *text)
{
    return line.trimmed().compare(text, Qt::CaseInsensitive) == 0;
}

bool decodes(const QByteArray &bytes, const char *charset, QString *text)
{
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    *text = QTextCodec::codecForName(charset)->toUnicode(bytes.constData(), bytes.size(), &state);
    return state.invalidChars == 0 && state.remainingChars == 0;
}

bool isAscii(const QByteArray &line)
{
    return std::all_of(line.begin(), line.end(), [](char c) { return static_cast<signed char>(c) >= 0; });
}

QByteArray inUtf8(const QByteArray &line)
{
    QString text;
    if (isAscii(line) || line.toUpper().contains("CHARSET=") || decodes(line, "UTF-8", &text))
        return line;
    if (!decodes(line, "EUC-KR", &text))
        text = QString::fromLatin1(line);
    return text.toUtf8();
}

/// Whether the line begins with the name of a group, or of a property that has another plain form. Most lines do
/// not.
bool mayDiffer(const QByteArray &line)
{
    static const QByteArray nameLetters("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-");
    const auto nameEnd
        = std::find_if(line.begin(), line.end(), [](char letter) { return !nameLetters.contains(letter); });
    const auto beginsWith = [&](const char *name) { return qstrnicmp(line.constData(), name, qstrlen(name)) == 0; };
    return (nameEnd != line.end() && *nameEnd == '.') || beginsWith("PHOTO") || beginsWith("CATEGORIES");
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
    return line.left(5).toUpper() == "AGENT" && line.trimmed().endsWith(':');
}

}

bool VCardSplitter::readLine(QByteArray *line)
{
    line->clear();
    QByteArray piece;
    do {
        piece = m_device->readLine(LinePiece);
        *line += piece;
    } while (!piece.isEmpty() && !line->endsWith('\n') && line->size() < LargestCard);
    if (line->isEmpty())
        return false;
    if (m_line == 0 && line->startsWith("\xef\xbb\xbf"))
        line->remove(0, 3);
    ++m_line;
    return true;
}

bool VCardSplitter::next(VCardText *card)
{
    *card = VCardText();
    QByteArray line;
    while (!m_beginRead) {
        if (!readLine(&line))
            return false;
        if (isLine(line, "END:VCARD")) {
            card->line = m_line;
            card->problem = QStringLiteral("END:VCARD without BEGIN:VCARD");
            return true;
        }
        m_beginRead = isLine(line, "BEGIN:VCARD");
    }
    m_beginRead = false;
    card->line = m_line;
    card->text = "BEGIN:VCARD\r\n";

    QByteArray former;
    int innerCards = 0;
    while (readLine(&line)) {
        if (isLine(line, "BEGIN:VCARD")) {
            if (!opensInnerCard(former)) {
                m_beginRead = true;
                break;
            }
            ++innerCards;
        }
        if (innerCards > 0) {
            innerCards -= isLine(line, "END:VCARD") ? 1 : 0;
            former.clear();
            continue;
        }
        while (line.endsWith('\n') || line.endsWith('\r'))
            line.chop(1);
        const bool isEnd = isLine(line, "END:VCARD");
        if (isEnd)
            closeLastValue(&card->text);
        if (card->text.size() < LargestCard)
            card->text += plainForm(line, former.endsWith('=')) + "\r\n";
        if (isEnd) {
            if (card->text.size() >= LargestCard)
                card->problem = QStringLiteral("too large");
            return true;
        }
        former = line;
    }
    card->problem = QStringLiteral("no END:VCARD");
    return true;
}
