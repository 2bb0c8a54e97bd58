#include "csvfile.h"

namespace {

QChar separatorOf(const QString &text)
{
    const QString header = text.left(text.indexOf(u'\n'));
    for (const QChar separator : {u'\t', u';'}) {
        if (header.contains(separator))
            return separator;
    }
    return u',';
}

class Parser
{
public:
    explicit Parser(const QString &text) : m_text(text), m_separator(separatorOf(text)) { }

    QList<QStringList> rows()
    {
        while (m_at < m_text.size())
            take(m_text.at(m_at++));
        if (!m_field.isEmpty() || !m_row.isEmpty())
            endRow();
        return m_rows;
    }

private:
    void take(QChar c)
    {
        if (c == u'"')
            takeQuote();
        else if (m_quoted || (c != m_separator && c != u'\n' && c != u'\r'))
            m_field += c;
        else if (c == m_separator)
            endField();
        else if (c == u'\n')
            endRow();
    }

    /// A doubled one within quotes is one.
    void takeQuote()
    {
        if (m_quoted && m_at < m_text.size() && m_text.at(m_at) == u'"')
            m_field += m_text.at(m_at++);
        else
            m_quoted = !m_quoted;
    }

    void endField()
    {
        m_row.append(m_field);
        m_field.clear();
    }

    void endRow()
    {
        endField();
        if (m_row != QStringList{QString()})
            m_rows.append(m_row);
        m_row.clear();
    }

    const QString m_text;
    const QChar m_separator;
    int m_at = 0;
    bool m_quoted = false;
    QString m_field;
    QStringList m_row;
    QList<QStringList> m_rows;
};

}

QList<QStringList> CsvFile::parse(const QByteArray &content)
{
    return Parser(QString::fromUtf8(content)).rows(); // which takes a byte-order mark away
}
