#include "listviewitem.h"

#include "rowpainting.h"
#include "shapedtext.h"

#include <QPainter>

ListViewItem::ListViewItem() = default;

ListViewItem::ListViewItem(QString const &text, QPixmap const &normal, QPixmap const &selected) : m_text(text)
{
    if (!normal.isNull())
        m_pixmaps[0].reset(new QPixmap(normal));
    if (!selected.isNull())
        m_pixmaps[1].reset(new QPixmap(selected));
}

ListViewItem::~ListViewItem() = default;

int ListViewItem::type()
{
    return 0;
}

int ListViewItem::editTextLeftMargin()
{
    return 0;
}

void ListViewItem::setEditTextLeftMargin(int) { }

void ListViewItem::setPixmap(QPixmap const &normal, QPixmap const &selected)
{
    if (!normal.isNull())
        m_pixmaps[0].reset(new QPixmap(normal));
    m_pixmaps[1].reset(new QPixmap(selected.isNull() ? normal : selected));
}

QPixmap *ListViewItem::pixmap(int index)
{
    return index == 0 || index == 1 ? m_pixmaps[index].data() : nullptr;
}

bool ListViewItem::selected()
{
    return focusType() == ListViewFocusFloating ? m_isPressed : m_selected;
}

QColor ListViewItem::textDisableColor()
{
    return selected() ? textSelectColor() : m_textDisableColor;
}

void ListViewItem::paintGround(QPainter *painter, QRect const &rect)
{
    setItemRect(rect);
    if (selected()) {
        painter->fillRect(rect, m_hasFocus ? backGroundSelectColor() : backGroundNoFocusSelectColor());
        painter->setPen(m_hasFocus ? textSelectColor() : textNoFocusSelectColor());
    } else {
        painter->fillRect(rect, backGroundColor());
        painter->setPen(textColor());
    }
    if (!m_itemSelectEnable)
        painter->setPen(textDisableColor());
}

void ListViewItem::paint(QPainter *painter, QRect &rect)
{
    // The text rectangle behind an icon is narrow whatever the row's width, and the text runs out of it.
    static constexpr int TextLeft = 10, TextRight = 10, IconLeft = 10, IconTextLeft = 35, IconTextWidth = 35;
    static constexpr int TallIconTop = 9;
    static const QColor shadowColor(85, 85, 85);

    painter->save();
    paintGround(painter, rect);

    const int span = rect.right() - rect.left();
    QRect textRect = rect;
    int elideWidth = span - TextLeft - TextRight + 1;
    QPixmap *normal = pixmap(0);
    if (normal && !normal->isNull()) {
        const bool fits = normal->height() <= rect.bottom() - rect.top();
        const int top = fits ? RowPainting::centredTop(rect, normal->height()) : rect.top() + TallIconTop;
        const bool showsSelected = focusType() == ListViewFocusFloating ? m_isPressed : m_hasFocus && m_selected;
        painter->drawPixmap(rect.left() + IconLeft, top, showsSelected && pixmap(1) ? *pixmap(1) : *normal);
        textRect.setLeft(rect.left() + IconTextLeft);
        textRect.setWidth(IconTextWidth);
        elideWidth = span - IconTextLeft + 1;
    } else {
        textRect.setLeft(rect.left() + TextLeft);
        textRect.setWidth(elideWidth);
    }

    if (useShadow() && !selected()) {
        painter->setPen(shadowColor);
        ShapedText::draw(painter, textRect.adjusted(1, 2, 0, 0), alignment(), text(), elideWidth);
        painter->setPen(textColor());
    }
    ShapedText::draw(painter, textRect, alignment(), text(), elideWidth);
    painter->restore();
}
