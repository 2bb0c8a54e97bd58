#include "answershelf.h"

#include <QRandomGenerator>

#include <algorithm>

static constexpr std::size_t MostAnswers = 1000;

int Answer::pageOf(const QString &fileName) const
{
    const QString start = phone + timestamp + QLatin1Char('_');
    const int page = fileName.mid(start.size()).section(QLatin1Char('.'), 0, 0).toInt();
    const bool exists = page >= 1 && page <= pageCount();
    return exists && fileName == start + QString::number(page) + QStringLiteral(".xml") ? page : 0;
}

QString AnswerShelf::put(const Answer &answer)
{
    const QString folder = QStringLiteral("%1").arg(QRandomGenerator::system()->generate64(), 16, 16, QChar(u'0'));
    const std::lock_guard<std::mutex> lock(m_mutex);
    removeOld();
    m_places[folder] = {answer, Clock::now() + m_life};
    return folder;
}

std::optional<Answer> AnswerShelf::find(const QString &folder)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto place = m_places.find(folder);
    if (place == m_places.end() || place->second.end <= Clock::now())
        return std::nullopt;
    return place->second.answer;
}

void AnswerShelf::removeOld()
{
    const Clock::time_point now = Clock::now();
    for (auto place = m_places.begin(); place != m_places.end();)
        place = place->second.end <= now ? m_places.erase(place) : std::next(place);
    if (m_places.size() < MostAnswers)
        return;
    m_places.erase(std::min_element(m_places.begin(), m_places.end(), [](const auto &left, const auto &right) {
        return left.second.end < right.second.end;
    }));
}
