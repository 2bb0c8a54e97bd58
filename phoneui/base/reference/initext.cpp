#include "initext.h"

#include <algorithm>
#include <cstring>

namespace {

bool isBlank(char ch)
{
    return ch == ' ' || ch == '\t';
}

bool isLineEnd(char ch)
{
    return ch == '\n' || ch == '\r';
}

/// The value of a digit in the number system, or -1.
int digit(char ch, int base)
{
    int value = -1;
    if (ch >= '0' && ch <= '9')
        value = ch - '0';
    else if (ch >= 'a' && ch <= 'f')
        value = ch - 'a' + 10;
    else if (ch >= 'A' && ch <= 'F')
        value = ch - 'A' + 10;
    return value < base ? value : -1;
}

/// A stretch of the text, `end` not included.
struct Span
{
    int begin = 0;
    int end = 0;
};

/// One line that is neither empty nor a comment.
struct Line
{
    Span span;
    int equals = -1; ///< where the first "=" stands outside quotes
};

class Lines
{
public:
    explicit Lines(const QByteArray &text) : m_text(text)
    {
        if (text.startsWith("\xef\xbb\xbf"))
            m_pos = 3;
    }

    bool next(Line *line)
    {
        skipToLine();
        *line = Line();
        line->span.begin = m_pos;
        scan(line);
        line->span.end = m_pos;
        return line->span.end > line->span.begin;
    }

private:
    /// Passes over blanks, empty lines and comments.
    void skipToLine()
    {
        while (m_pos < m_text.size()) {
            const char ch = m_text.at(m_pos);
            if (ch == ';') {
                while (m_pos < m_text.size() && !isLineEnd(m_text.at(m_pos)))
                    ++m_pos;
            } else if (isBlank(ch) || isLineEnd(ch)) {
                ++m_pos;
            } else {
                return;
            }
        }
    }

    /// Goes to the end of the line: its end or a comment behind it.
    void scan(Line *line)
    {
        bool inQuotes = false;
        for (; m_pos < m_text.size(); ++m_pos) {
            const char ch = m_text.at(m_pos);
            if (isLineEnd(ch) || (ch == ';' && !inQuotes))
                return;
            if (ch == '"')
                inQuotes = !inQuotes;
            else if (ch == '=' && !inQuotes && line->equals < 0)
                line->equals = m_pos;
            else if (ch == '\\')
                skipEscaped();
        }
    }

    /// Goes on to the last byte of what a backslash takes along: one byte, or a line end of two.
    void skipEscaped()
    {
        if (m_pos + 1 < m_text.size())
            ++m_pos;
        const bool pair = isLineEnd(m_text.at(m_pos)) && m_pos + 1 < m_text.size()
            && isLineEnd(m_text.at(m_pos + 1)) && m_text.at(m_pos) != m_text.at(m_pos + 1);
        if (pair)
            ++m_pos;
    }

    const QByteArray &m_text;
    int m_pos = 0;
};

/// A key or the name of a section, with its percent signs decoded: two hexadecimal digits, or "U" and four.
QString plainKey(const QByteArray &text, const Span &span)
{
    QString key;
    key.reserve(span.end - span.begin);
    for (int i = span.begin; i < span.end; ++i) {
        const char ch = text.at(i);
        if (ch == '%' && i + 1 < span.end) {
            const bool wide = text.at(i + 1) == 'U';
            const int first = wide ? i + 2 : i + 1;
            const int digits = wide ? 4 : 2;
            bool ok = false;
            const ushort code = first + digits <= span.end ? text.mid(first, digits).toUShort(&ok, 16) : 0;
            if (ok) {
                key += QChar(code);
                i = first + digits - 1;
                continue;
            }
        }
        key += ch == '\\' ? QLatin1Char('/') : QLatin1Char(ch);
    }
    return key;
}

/// A value without its quotes and escapes.
class Value
{
public:
    Value(const QByteArray &text, const Span &span) : m_text(text), m_pos(span.begin), m_end(span.end) { }

    QString read()
    {
        m_result.reserve(m_end - m_pos);
        skipBlanks();
        while (m_pos < m_end) {
            const char ch = m_text.at(m_pos++);
            if (ch == '\\') {
                readEscape();
                m_fixed = m_result.size();
            } else if (ch == '"') {
                m_inQuotes = !m_inQuotes;
                m_isQuoted = true;
                if (!m_inQuotes)
                    skipBlanks();
            } else {
                m_result += QLatin1Char(ch);
            }
        }
        if (!m_isQuoted)
            chopBlanks();
        // A text that begins with "@" is written with two.
        return m_result.startsWith(QLatin1String("@@")) ? m_result.mid(1) : m_result;
    }

private:
    void skipBlanks()
    {
        while (m_pos < m_end && isBlank(m_text.at(m_pos)))
            ++m_pos;
    }

    /// Blanks at the end count only in a value with quotes, or behind an escape.
    void chopBlanks()
    {
        int size = m_result.size();
        while (size > m_fixed && (m_result.at(size - 1) == ' ' || m_result.at(size - 1) == '\t'))
            --size;
        m_result.truncate(size);
    }

    void readEscape()
    {
        static const char letters[] = "abfnrtv\"?'\\";
        static const char meanings[] = "\a\b\f\n\r\t\v\"?'\\";

        if (m_pos >= m_end)
            return;
        const char ch = m_text.at(m_pos++);
        const char *letter = ch ? std::strchr(letters, ch) : nullptr;
        if (letter) {
            m_result += QLatin1Char(meanings[letter - letters]);
        } else if (ch == 'x') {
            if (m_pos < m_end && digit(m_text.at(m_pos), 16) >= 0)
                readNumber(16);
        } else if (digit(ch, 8) >= 0) {
            --m_pos;
            readNumber(8);
        } else if (isLineEnd(ch) && m_pos < m_end && isLineEnd(m_text.at(m_pos)) && m_text.at(m_pos) != ch) {
            ++m_pos; // the line goes on in the next one, whose line end has two bytes
        }
    }

    void readNumber(int base)
    {
        ushort code = 0;
        for (int value = 0; m_pos < m_end && (value = digit(m_text.at(m_pos), base)) >= 0; ++m_pos)
            code = static_cast<ushort>(code * base + value);
        m_result += QChar(code);
    }

    const QByteArray &m_text;
    int m_pos;
    const int m_end;
    bool m_inQuotes = false;
    bool m_isQuoted = false;
    int m_fixed = 0; ///< how much of the result stays when blanks are cut off its end
    QString m_result;
};

/// What stands before the keys of a section; those of "General" have nothing before them.
QString sectionPrefix(const QByteArray &text, const Line &line)
{
    const int close = text.indexOf(']', line.span.begin);
    const int end = close >= 0 && close < line.span.end ? close : line.span.end;
    const QByteArray name = text.mid(line.span.begin + 1, end - line.span.begin - 1).trimmed();
    if (name.compare("general", Qt::CaseInsensitive) == 0)
        return QString();
    if (name.compare("%general", Qt::CaseInsensitive) == 0)
        return QString::fromLatin1(name.mid(1)) + QLatin1Char('/');
    return plainKey(name, {0, name.size()}) + QLatin1Char('/');
}

}

void IniText::read(const QByteArray &text, const Visitor &visit)
{
    Lines lines(text);
    Line line;
    QString section;
    while (lines.next(&line)) {
        if (text.at(line.span.begin) == '[') {
            section = sectionPrefix(text, line);
        } else if (line.equals >= 0) {
            int keyEnd = line.equals;
            while (keyEnd > line.span.begin && isBlank(text.at(keyEnd - 1)))
                --keyEnd;
            visit(section + plainKey(text, {line.span.begin, keyEnd}),
                  Value(text, {line.equals + 1, line.span.end}).read());
        }
    }
}

namespace {

bool isPlain(QChar ch)
{
    return ch.unicode() < 0x80 && (ch.isLetterOrNumber() || ch == '_' || ch == '-' || ch == '.');
}

/// The twin of `plainKey`. A backslash at the end would take the "=" behind it along.
QByteArray escapedKey(const QString &key)
{
    QByteArray text;
    for (int i = 0; i < key.size(); ++i) {
        const QChar ch = key.at(i);
        if (isPlain(ch))
            text += ch.toLatin1();
        else if (ch == '/' && i < key.size() - 1)
            text += '\\';
        else if (ch.unicode() < 0x100)
            text += '%' + QByteArray::number(ch.unicode(), 16).rightJustified(2, '0');
        else
            text += "%U" + QByteArray::number(ch.unicode(), 16).rightJustified(4, '0');
    }
    return text;
}

/// The twin of `Value`. All hexadecimal digits behind an "x" belong to it, so that one that follows is escaped too.
QByteArray escapedValue(const QString &value)
{
    if (std::all_of(value.begin(), value.end(), isPlain))
        return value.toLatin1();
    QByteArray text = value.startsWith('@') ? "\"@" : "\"";
    bool isBehindNumber = false;
    for (const QChar ch : value) {
        const bool isAscii = ch.unicode() >= 0x20 && ch.unicode() < 0x7f;
        const bool isNumber = !isAscii || (isBehindNumber && digit(ch.toLatin1(), 16) >= 0);
        if (isNumber)
            text += "\\x" + QByteArray::number(ch.unicode(), 16);
        else if (ch == '"' || ch == '\\')
            text += QByteArray("\\") + ch.toLatin1();
        else
            text += ch.toLatin1();
        isBehindNumber = isNumber;
    }
    return text + '"';
}

}

/// The twin of `sectionPrefix`: keys without a section stand in "General", so that a section of this name is
/// another.
static QByteArray escapedSection(const QString &section)
{
    const bool isGeneral = section.compare(QLatin1String("general"), Qt::CaseInsensitive) == 0;
    return isGeneral ? '%' + section.toLatin1() : escapedKey(section);
}

QByteArray IniText::write(const QMap<QString, QString> &values)
{
    QMap<QByteArray, QByteArray> sections;
    for (auto it = values.begin(); it != values.end(); ++it) {
        const int slash = it.key().indexOf('/');
        const QByteArray section = slash < 0 ? QByteArray("General") : escapedSection(it.key().left(slash));
        sections[section] += escapedKey(it.key().mid(slash + 1)) + '=' + escapedValue(it.value()) + '\n';
    }
    QByteArray text;
    for (auto it = sections.begin(); it != sections.end(); ++it)
        text += (text.isEmpty() ? "[" : "\n[") + it.key() + "]\n" + it.value();
    return text;
}
