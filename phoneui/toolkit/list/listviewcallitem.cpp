#include "listviewcallitem.h"

#include "rowpainting.h"
#include "shapedtext.h"

#include <QPainter>

namespace {

QString stateIconName(ListViewCallItem::CallState state)
{
    switch (state) {
    case ListViewCallItem::CallHold: return QStringLiteral(":/ui/images/title/status_call_hold.png");
    case ListViewCallItem::CallMute: return QStringLiteral(":/ui/images/title/status_mute.png");
    case ListViewCallItem::CallActive: break;
    }
    return QStringLiteral(":/ui/images/title/status_call.png");
}

}

ListViewCallItem::ListViewCallItem(QString const &nameOrNumber, ListViewCallItem::CallState state)
    : m_callState(state)
{
    setText(nameOrNumber);
}

ListViewCallItem::~ListViewCallItem() = default;

int ListViewCallItem::type()
{
    return 13;
}

QString ListViewCallItem::timerText() const
{
    const QChar zero = QLatin1Char('0');
    const int shown = qMax(0, m_seconds);
    const int hours = shown / 3600;
    const QString minutesAndSeconds
        = QStringLiteral("%1:%2").arg(shown / 60 % 60, 2, 10, zero).arg(shown % 60, 2, 10, zero);
    return hours == 0 ? minutesAndSeconds : QStringLiteral("%1:%2").arg(hours).arg(minutesAndSeconds);
}

void ListViewCallItem::paint(QPainter *painter, QRect &rect)
{
    static constexpr int IconLeft = 10, TextLeft = 36, TimerFromRight = 10, Gap = 8;

    painter->save();
    paintGround(painter, rect);
    RowPainting::drawCentred(painter, rect, rect.left() + IconLeft,
                             RowPainting::inked(QPixmap(stateIconName(m_callState)), painter->pen().color()));
    const QString timer = timerText();
    const int timerWidth = ShapedText::width(painter->font(), timer);
    const QRect content = rect.adjusted(TextLeft, 0, -TimerFromRight, 0);
    ShapedText::draw(painter, content, Qt::AlignVCenter | Qt::AlignRight, timer);
    RowPainting::drawElided(painter, content.adjusted(0, 0, -timerWidth - Gap, 0), alignment(), text());
    painter->restore();
}
