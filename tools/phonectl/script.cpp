#include "script.h"

#include <QFile>

namespace {

/// Walks over one line and collects its words.
class Splitter
{
public:
    explicit Splitter(const QString &line) : m_line(line) { }

    QString run(QStringList *words)
    {
        while (m_at < m_line.size() && m_error.isEmpty()) {
            const QChar c = m_line.at(m_at);
            if (c.isSpace()) {
                endWord(words);
                ++m_at;
            } else if (c == '#' && !m_inWord) {
                break;
            } else {
                m_inWord = true;
                takePiece(c);
            }
        }
        endWord(words);
        return m_error;
    }

private:
    void takePiece(QChar c)
    {
        ++m_at;
        if (c == '\'')
            takeQuoted('\'', nullptr);
        else if (c == '"')
            takeQuoted('"', "\"\"\\\\");
        else if (c == '$' && m_line.midRef(m_at).startsWith('\''))
            ++m_at, takeQuoted('\'', "''\\\\n\nt\t");
        else if (c != '\\')
            m_word += c;
        else if (m_at < m_line.size())
            m_word += m_line.at(m_at++);
        else
            m_error = QStringLiteral("nothing follows the last \\");
    }

    /// `escapes` are pairs: the character after a `\` and what both stand for. Null: a `\` is nothing special.
    void takeQuoted(QChar quote, const char *escapes)
    {
        for (; m_at < m_line.size(); ++m_at) {
            QChar c = m_line.at(m_at);
            if (c == quote) {
                ++m_at;
                return;
            }
            if (c == '\\' && escapes && m_at + 1 < m_line.size())
                c = unescaped(m_line.at(m_at + 1), escapes);
            m_word += c;
        }
        m_error = QStringLiteral("a %1 is not closed").arg(quote);
    }

    QChar unescaped(QChar next, const char *escapes)
    {
        for (; *escapes; escapes += 2) {
            if (next == escapes[0]) {
                ++m_at;
                return escapes[1];
            }
        }
        return '\\';
    }

    void endWord(QStringList *words)
    {
        if (m_inWord)
            words->append(m_word);
        m_word.clear();
        m_inWord = false;
    }

    const QString &m_line;
    int m_at = 0;
    bool m_inWord = false;
    QString m_word;
    QString m_error;
};

}

namespace Script {

QString split(const QString &line, QStringList *words)
{
    words->clear();
    return Splitter(line).run(words);
}

QString read(const QString &fileName, QList<ScriptLine> *lines)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return QStringLiteral("%1: %2").arg(fileName, file.errorString());

    for (int number = 1; !file.atEnd(); ++number) {
        ScriptLine line{number, {}};
        const QString error = split(QString::fromUtf8(file.readLine()), &line.words);
        if (!error.isEmpty())
            return QStringLiteral("%1:%2: %3").arg(fileName).arg(number).arg(error);
        if (!line.words.isEmpty())
            lines->append(line);
    }
    return {};
}

}
