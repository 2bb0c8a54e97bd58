#include "searchlines.h"

#include "textfolding.h"

#include <QStringMatcher>

void SearchLines::setLoaded(int dataVersion)
{
    m_loaded = true;
    m_dataVersion = dataVersion;
}

void SearchLines::clear()
{
    m_lines.clear();
    m_loaded = false;
}

void SearchLines::append(int id, const QString &name, const QStringList &numbers)
{
    QString text = TextFolding::nameLine(name);
    for (const QString &number : numbers)
        text += TextFolding::Separator + number;
    m_lines.append({id, text});
}

QVector<int> SearchLines::matches(const QString &word) const
{
    QVector<int> ids;
    const QString folded = TextFolding::fold(word);
    if (folded.isEmpty())
        return ids;
    const QStringMatcher matcher(folded);
    for (const Line &line : m_lines) {
        if (matcher.indexIn(line.text) >= 0)
            ids.append(line.id);
    }
    return ids;
}
