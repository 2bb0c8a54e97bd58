#ifndef SEARCHLINES_H
#define SEARCHLINES_H

#include <QString>
#include <QStringList>
#include <QVector>

/// The contacts as a search sees them: one folded line each, scanned whole for every word.
class SearchLines
{
public:
    /// Whether the lines are missing, or older than the data of that version.
    bool needsReload(int dataVersion) const { return !m_loaded || dataVersion != m_dataVersion; }
    void setLoaded(int dataVersion);
    void clear();
    int size() const { return m_lines.size(); }

    void append(int id, const QString &name, const QStringList &numbers);
    /// The ids of the lines that hold the word, in the order of the lines; none for a word of accents alone.
    QVector<int> matches(const QString &word) const;

private:
    struct Line
    {
        int id;
        QString text;
    };

    QVector<Line> m_lines;
    int m_dataVersion = 0;
    bool m_loaded = false;
};

#endif
