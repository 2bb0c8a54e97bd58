#ifndef HISTORYITEM_H
#define HISTORYITEM_H

#include "listviewitem.h"
#include "qcalllist.h"

/// A call of the history: its direction as a sign, who or when, and at the right end when or how long.
class HistoryItem : public ListViewItem
{
public:
    HistoryItem(const QString &text, const QString &endText, CallRecord::Direction direction);

    void paint(QPainter *painter, QRect &rect) override;

    QString endText() const { return m_endText; }

private:
    const QString m_endText;
    const CallRecord::Direction m_direction;
};

#endif
