#include "daychoice.h"

#include <QObject>

DayChoice::DayChoice()
    : m_weekList{QObject::tr("Monday"), QObject::tr("Tuesday"),  QObject::tr("Wednesday"), QObject::tr("Thursday"),
                 QObject::tr("Friday"), QObject::tr("Saturday"), QObject::tr("Sunday")}
{
}

QString DayChoice::chosenDays() const
{
    // All seven fit a value plate in this length.
    static constexpr int ShortName = 2;

    QStringList days;
    for (int day = 0; day < m_weekList.size(); ++day) {
        if (isDataSelected(day))
            days.append(m_weekList.at(day));
    }
    if (days.size() > 1) {
        for (QString &day : days)
            day.truncate(ShortName);
    }
    return days.join(QLatin1Char(' '));
}
