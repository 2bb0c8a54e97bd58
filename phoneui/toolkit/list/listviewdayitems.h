#ifndef LISTVIEWDAYITEMS_H
#define LISTVIEWDAYITEMS_H

#include "daychoice.h"
#include "listviewitem.h"

/// A title and the days of the week that are chosen; Left and Right open the choice.
class ListViewDateSelectItem : public ListViewItem, public DayChoice
{
public:
    explicit ListViewDateSelectItem(QString const &title);
    ~ListViewDateSelectItem() override;

    int type() override;
    void paint(QPainter *painter, QRect &rect) override;

    void setWeekList(QStringList const &days) { replaceWeekList(days); }
};

/// An alarm: its time, its name or days, and whether it is on.
class ListViewAlarmItem : public ListViewItem, public DayChoice
{
public:
    ListViewAlarmItem(QString const &title, QString const &alarmName, bool const &checked);
    ~ListViewAlarmItem() override;

    int type() override;
    void paint(QPainter *painter, QRect &rect) override;

    void setChecked(bool const &checked) { m_checked = checked; }
    bool isChecked() { return m_checked; }
    void setAlarmName(QString const &name) { m_alarmName = name; }
    QString alarmName() { return m_alarmName; }
    void setInfoAlignment(int flags) { m_infoAlignment = flags; }
    int infoAlignment() { return m_infoAlignment; }

private:
    bool m_checked;
    QString m_alarmName;
    int m_infoAlignment = Qt::AlignVCenter | Qt::AlignLeft;
};

#endif
