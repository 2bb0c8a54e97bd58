#include "focusframe.h"

#include "rowpainting.h"

#include <QPainter>
#include <QRegion>

static QPixmap corner(const char *name, FocusFrame::Look look)
{
    return RowPainting::picture(QStringLiteral(":ui/images/widget/focus_02_") + QLatin1String(name)
                                + QLatin1String(look == FocusFrame::Pressed ? "_sel.png" : ".png"));
}

FocusFrame::FocusFrame(Look look)
    : m_color(look == Pressed ? Qt::black : Qt::white), m_leftTop(corner("lefttop", look)),
      m_leftBottom(corner("lefbottom", look)) // the picture's name lacks the t
      ,
      m_rightTop(corner("righttop", look)), m_rightBottom(corner("rightbottom", look))
{
}

QRect FocusFrame::leftTop(const QRect &rect) const
{
    return QRect(rect.topLeft(), m_leftTop.size());
}

QRect FocusFrame::leftBottom(const QRect &rect) const
{
    QRect place(QPoint(), m_leftBottom.size());
    place.moveBottomLeft(rect.bottomLeft());
    return place;
}

QRect FocusFrame::rightTop(const QRect &rect) const
{
    QRect place(QPoint(), m_rightTop.size());
    place.moveTopRight(rect.topRight());
    return place;
}

QRect FocusFrame::rightBottom(const QRect &rect) const
{
    QRect place(QPoint(), m_rightBottom.size());
    place.moveBottomRight(rect.bottomRight());
    return place;
}

QRect FocusFrame::topBand(const QRect &rect) const
{
    return rect.adjusted(m_leftTop.width(), 0, -m_rightTop.width(), m_leftTop.height() - rect.height());
}

QRect FocusFrame::bottomBand(const QRect &rect) const
{
    return rect.adjusted(m_leftBottom.width(), rect.height() - m_leftBottom.height(), -m_rightBottom.width(), 0);
}

QRect FocusFrame::leftBand(const QRect &rect) const
{
    return rect.adjusted(0, m_leftTop.height(), m_leftTop.width() - rect.width(), -m_leftBottom.height());
}

QRect FocusFrame::rightBand(const QRect &rect) const
{
    return rect.adjusted(rect.width() - m_rightTop.width(), m_rightTop.height(), 0, -m_rightBottom.height());
}

void FocusFrame::drawCorners(QPainter *painter, const QRect &rect) const
{
    painter->drawPixmap(leftTop(rect), m_leftTop);
    painter->drawPixmap(leftBottom(rect), m_leftBottom);
    painter->drawPixmap(rightTop(rect), m_rightTop);
    painter->drawPixmap(rightBottom(rect), m_rightBottom);
}

void FocusFrame::draw(QPainter *painter, const QRect &rect) const
{
    const QRegion between = QRegion(rect) - leftTop(rect) - leftBottom(rect) - rightTop(rect) - rightBottom(rect);
    for (const QRect &part : between)
        painter->fillRect(part, m_color);
    drawCorners(painter, rect);
}
