#ifndef ANSWERSHELF_H
#define ANSWERSHELF_H

#include <QString>
#include <QVector>

#include <chrono>
#include <map>
#include <mutex>
#include <optional>

/// What a search found, prepared to be fetched page by page.
struct Answer
{
    QVector<int> people; ///< indexes into the company
    int pageSize = 1;
    QString timestamp;
    QString phone; ///< "MAC_id_", what the names of its pages begin with

    /// An answer without anybody has one page too.
    int pageCount() const { return qMax(1, (people.size() + pageSize - 1) / pageSize); }
    /// The page that a file of this name is; 0 when it is none of them.
    int pageOf(const QString &fileName) const;
};

/// The prepared answers, each in a folder of its own with a name that nobody guesses. They vanish after a while,
/// and the oldest when there are too many. Any thread may use it.
class AnswerShelf
{
public:
    explicit AnswerShelf(std::chrono::seconds life) : m_life(life) { }

    /// Returns the name of its folder.
    QString put(const Answer &answer);
    std::optional<Answer> find(const QString &folder);

private:
    using Clock = std::chrono::steady_clock;
    struct Place
    {
        Answer answer;
        Clock::time_point end;
    };

    void removeOld();

    const std::chrono::seconds m_life;
    std::mutex m_mutex;
    std::map<QString, Place> m_places;
};

#endif
