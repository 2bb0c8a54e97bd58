#ifndef LISTVIEWTIMEEDITITEM_H
#define LISTVIEWTIMEEDITITEM_H

#include "listviewitem.h"

/// A time of day, typed into the list's masked line edit, with an optional choice of the half of the day.
class ListViewTimeEditItem : public ListViewItem
{
public:
    ListViewTimeEditItem(QString const &title, QString const &time, QString const &ampm);
    ~ListViewTimeEditItem() override;

    int type() override;
    void paint(QPainter *painter, QRect &rect) override;

    void setTime(QString const &time) { m_time = time; }
    QString getTime() { return m_time; }
    void setAMPM(QString const &ampm) { m_ampm = ampm; }
    QString getAMPM() { return m_ampm; }
    void setUse_ampmSelection(bool use) { m_useAmpmSelection = use; }
    bool use_ampmSelection() const { return m_useAmpmSelection; }

private:
    QString m_time;
    QString m_ampm;
    bool m_useAmpmSelection = true;
};

#endif
