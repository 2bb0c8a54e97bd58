#include "listviewselectitem.h"

#include "formpainting.h"
#include "rowpainting.h"

#include <QPainter>

ListViewSelectItem::ListViewSelectItem(QString const &title, QString const &selectedText)
    : m_selectedText(selectedText)
{
    setText(title);
}

ListViewSelectItem::~ListViewSelectItem() = default;

int ListViewSelectItem::type()
{
    return 2;
}

void ListViewSelectItem::paint(QPainter *painter, QRect &rect)
{
    static constexpr int IconLeft = 10, TitleBehindIcon = 35;

    painter->save();
    paintGround(painter, rect);
    int titleLeft = rect.left() + FormPainting::TitleLeft;
    if (pixmap(0)) {
        const QPixmap &icon = selected() && pixmap(1) ? *pixmap(1) : *pixmap(0);
        RowPainting::drawCentred(painter, rect, rect.left() + IconLeft, icon);
        titleLeft = rect.left() + TitleBehindIcon;
    }
    RowPainting::drawElided(painter, QRect(titleLeft, rect.top(), m_textWidth - 1, rect.height()), alignment(),
                            text());
    FormPainting::drawValuePlate(painter, FormPainting::plateRect(rect, titleLeft + m_textWidth), isPressed(),
                                 m_selectedText);
    painter->restore();
}
