#ifndef ROWCANVAS_H
#define ROWCANVAS_H

#include "listviewitem.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

/// A piece of a list's ground to paint rows on, in the looks that a list gives them.
namespace RowCanvas {

enum Look { Normal, FloatingSelected, Pressed, BarSelected, Disabled };
constexpr Look Looks[] = {Normal, FloatingSelected, Pressed, BarSelected, Disabled};

/// A row as the phone's screens have it.
constexpr QRect Row(0, 0, 374, 34);

inline void applyLook(ListViewItem &row, Look look)
{
    const bool pressed = look == Pressed, framed = pressed || look == FloatingSelected;
    row.setFocusType(look == BarSelected ? ListViewFocusBar : ListViewFocusFloating);
    row.setItemSelectEnable(look != Disabled);
    row.setSelected(look == BarSelected);
    row.setIsPressed(pressed);
    row.setTextColor(pressed ? QColor(Qt::white) : row.baseTextColor());
    row.setTextSelectColor(look == FloatingSelected ? Qt::black : Qt::white);
    row.setTextDisableColor(QColor(85, 85, 85));
    row.setBackGroundColor(framed ? Qt::transparent : Qt::white);
    row.setBackGroundSelectColor(framed ? Qt::transparent : Qt::black);
}

/// Paints the row into the rectangle on a white picture of the list's width.
inline QImage paint(ListViewItem &row, QRect rect = Row, Look look = Normal)
{
    QImage picture(qMax(Row.width(), rect.right() + 1), rect.bottom() + 1, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setFont(QGuiApplication::font());
    if (look == Pressed)
        painter.fillRect(rect, Qt::black);
    applyLook(row, look);
    row.paint(&painter, rect);
    return picture;
}

/// The smallest rectangle that holds all pixels of that colour; of all pixels that are not white by default.
inline QRect inkOf(const QImage &picture, const QColor &color = QColor())
{
    QRect found;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QColor pixel = picture.pixelColor(x, y);
            if (color.isValid() ? pixel == color : pixel != Qt::white)
                found |= QRect(x, y, 1, 1);
        }
    }
    return found;
}

}

#endif
