#include "historyitem.h"

#include "rowpainting.h"

#include <QPainter>

HistoryItem::HistoryItem(const QString &text, const QString &endText, CallRecord::Direction direction)
    : m_endText(endText), m_direction(direction)
{
    setText(text);
}

static QPixmap sign(CallRecord::Direction direction)
{
    switch (direction) {
    case CallRecord::Incoming: return QPixmap(":/ui/images/history/call_in.png");
    case CallRecord::Missed: return QPixmap(":/ui/images/history/call_missed.png");
    case CallRecord::Outgoing: break;
    }
    return QPixmap(":/ui/images/history/call_out.png");
}

void HistoryItem::paint(QPainter *painter, QRect &rect)
{
    static constexpr int SignLeft = 10, TextLeft = 36, EndFromRight = 10, Gap = 10;

    painter->save();
    paintGround(painter, rect);
    RowPainting::drawCentred(painter, rect, rect.left() + SignLeft,
                             RowPainting::inked(sign(m_direction), painter->pen().color()));
    const QRect content = rect.adjusted(TextLeft, 0, -EndFromRight, 0);
    const int endWidth = painter->fontMetrics().horizontalAdvance(m_endText);
    painter->drawText(content, Qt::AlignVCenter | Qt::AlignRight, m_endText);
    RowPainting::drawElided(painter, content.adjusted(0, 0, -endWidth - Gap, 0), alignment(), text());
    painter->restore();
}
