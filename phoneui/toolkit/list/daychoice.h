#ifndef DAYCHOICE_H
#define DAYCHOICE_H

#include <QHash>
#include <QStringList>

/// The days of the week and which of them are chosen, for rows that show them. Day 0 is Monday.
class DayChoice
{
public:
    DayChoice();

    void setDateSelection(int day, bool chosen) { m_selection.insert(day, chosen); }
    /// False for a day that was never set.
    bool isDataSelected(int day) const { return m_selection.value(day, false); }
    QStringList weekList() const { return m_weekList; }
    /// -1 leaves the size to the row.
    void setSelectTextFontPt(int points) { m_selectTextFontPt = points; }
    int selectTextFontPt() { return m_selectTextFontPt; }

protected:
    ~DayChoice() = default;

    void replaceWeekList(const QStringList &days) { m_weekList = days; }
    /// The chosen days in the order of the week, in short when there are several.
    QString chosenDays() const;

private:
    int m_selectTextFontPt = -1;
    QHash<int, bool> m_selection;
    QStringList m_weekList;
};

#endif
