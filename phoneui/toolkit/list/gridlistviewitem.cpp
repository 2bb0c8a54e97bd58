#include "gridlistviewitem.h"

#include "rowpainting.h"

#include <QPainter>

static constexpr int Gap = 4; // between icon, caption and the cell's edges
static constexpr int IndexWidth = 14;

GridListViewItem::GridListViewItem(QString const &text, QPixmap const &normal, QPixmap const &selected)
    : ListViewItem(text, normal, selected)
{
}

int GridListViewItem::digitKey() const
{
    return m_digitKey;
}

void GridListViewItem::setDigitKey(int key)
{
    m_digitKey = key;
}

QPixmap GridListViewItem::icon()
{
    const QPixmap *shown = selected() && pixmap(1) ? pixmap(1) : pixmap(0);
    return shown ? *shown : QPixmap();
}

QRect GridListViewItem::room(const QRect &rect) const
{
    return rect.adjusted(m_leftMargin + Gap + (m_index ? IndexWidth : 0), 0, -m_rightMargin - Gap, 0);
}

void GridListViewItem::drawIndex(QPainter *painter, const QRect &rect)
{
    static constexpr int PointSize = 13;
    if (m_index == 0)
        return;
    painter->save();
    QFont font = painter->font();
    font.setPointSize(PointSize);
    painter->setFont(font);
    painter->drawText(rect.adjusted(m_leftMargin + Gap, 1, 0, 0), Qt::AlignLeft | Qt::AlignTop,
                      QString::number(m_index));
    painter->restore();
}

void GridListViewItem::drawCaption(QPainter *painter, const QRect &rect, int flags)
{
    if (m_useWordWrap)
        painter->drawText(rect, flags | Qt::TextWordWrap, text());
    else
        RowPainting::drawElided(painter, rect, flags, text());
}

void GridListViewItem::paint(QPainter *painter, QRect &rect)
{
    painter->save();
    paintGround(painter, rect);
    drawIndex(painter, rect);

    QPixmap picture = icon();
    QRect caption = room(rect);
    if (!picture.isNull()) {
        // In a low cell the icon gives way to the caption.
        const int captionHeight = painter->fontMetrics().height();
        if (picture.height() + captionHeight > rect.height())
            picture = picture.scaledToHeight(qMax(1, rect.height() - captionHeight), Qt::SmoothTransformation);
        const int top = qMax(0, (rect.height() - picture.height() - captionHeight) / 2);
        painter->drawPixmap(caption.left() + (caption.width() - picture.width()) / 2, rect.top() + top, picture);
        caption.setTop(rect.top() + top + picture.height());
        drawCaption(painter, caption, Qt::AlignHCenter | Qt::AlignTop);
    } else {
        drawCaption(painter, caption, Qt::AlignCenter);
    }
    painter->restore();
}

GridListViewMenuItem::GridListViewMenuItem(QString const &text, QPixmap const &normal, QPixmap const &selected)
    : GridListViewItem(text, normal, selected)
{
    setItemSelectEnable(true);
}

void GridListViewMenuItem::paint(QPainter *painter, QRect &rect)
{
    painter->save();
    paintGround(painter, rect);
    drawIndex(painter, rect);

    QRect caption = room(rect);
    const QPixmap picture = icon();
    if (!picture.isNull()) {
        RowPainting::drawCentred(painter, rect, caption.left(), picture);
        caption.setLeft(caption.left() + picture.width() + Gap);
    }
    drawCaption(painter, caption, Qt::AlignLeft | Qt::AlignVCenter);
    painter->restore();
}

GridListViewFunctionItem::GridListViewFunctionItem(QString const &text, QPixmap const &normal,
                                                   QPixmap const &selected)
    : GridListViewItem(text, normal, selected)
{
    setFloatingFocusBoxSize(FloatingFocusBoxWide);
}

void GridListViewFunctionItem::paint(QPainter *painter, QRect &rect)
{
    painter->save();
    paintGround(painter, rect);
    drawIndex(painter, rect);

    const QRect whole = room(rect);
    const QPixmap picture = icon();
    const int iconWidth = picture.isNull() ? 0 : picture.width() + Gap;
    const int captionWidth = qMin(painter->fontMetrics().horizontalAdvance(text()) + 1, whole.width() - iconWidth);
    const int left = whole.left() + (whole.width() - iconWidth - captionWidth) / 2;
    if (!picture.isNull())
        RowPainting::drawCentred(painter, rect, left, picture);
    drawCaption(painter, QRect(left + iconWidth, rect.top(), captionWidth, rect.height()),
                Qt::AlignLeft | Qt::AlignVCenter);
    painter->restore();
}
