#include "listviewinfoitem.h"

#include "formpainting.h"
#include "rowpainting.h"

#include <QPainter>

ListViewInfoItem::ListViewInfoItem(QString const &title, QString const &infoText) : m_infoText(infoText)
{
    setText(title);
}

ListViewInfoItem::~ListViewInfoItem() = default;

int ListViewInfoItem::type()
{
    return 6;
}

void ListViewInfoItem::paint(QPainter *painter, QRect &rect)
{
    static constexpr int Gap = 4;

    painter->save();
    paintGround(painter, rect);
    const QRect info = rect.adjusted(m_infoLeftMargin, 0, -m_infoRightMargin, 0);
    FormPainting::drawTitle(painter, rect, info.left() - Gap, alignment(), text());
    RowPainting::drawElided(painter, info, m_infoAlignment, m_infoText);
    painter->restore();
}
