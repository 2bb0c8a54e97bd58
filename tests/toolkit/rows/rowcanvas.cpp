#include "rowcanvas.h"

#include <QGuiApplication>
#include <QPainter>

#include <functional>

namespace {

using RowCanvas::Look;

void applyLook(ListViewItem &row, Look look)
{
    const bool pressed = look == RowCanvas::Pressed;
    row.setFocusType(look == RowCanvas::BarSelected ? ListViewFocusBar : ListViewFocusFloating);
    row.setItemSelectEnable(look != RowCanvas::Disabled);
    row.setSelected(look == RowCanvas::BarSelected);
    row.setIsPressed(pressed);
    row.setTextColor(pressed ? QColor(Qt::white) : row.baseTextColor());
    row.setTextSelectColor(look == RowCanvas::FloatingSelected ? Qt::black : Qt::white);
    row.setTextDisableColor(QColor(85, 85, 85));
    const bool framed = pressed || look == RowCanvas::FloatingSelected;
    row.setBackGroundColor(framed ? Qt::transparent : Qt::white);
    row.setBackGroundSelectColor(framed ? Qt::transparent : Qt::black);
}

QRect bounds(const QImage &picture, const std::function<bool(QRgb)> &counts)
{
    QRect found;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (counts(picture.pixel(x, y)))
                found |= QRect(x, y, 1, 1);
        }
    }
    return found;
}

}

namespace RowCanvas {

QImage paint(ListViewItem &row, const QRect &rect, Look look)
{
    QImage picture(qMax(Row.width(), rect.right() + 1), rect.bottom() + 1, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setFont(QGuiApplication::font());
    if (look == Pressed)
        painter.fillRect(rect, Qt::black);
    applyLook(row, look);
    QRect place = rect;
    row.paint(&painter, place);
    return picture;
}

QRect inkOf(const QImage &picture)
{
    return bounds(picture, [](QRgb pixel) { return pixel != qRgb(255, 255, 255); });
}

QRect pixelsOf(const QImage &picture, const QColor &color)
{
    return bounds(picture, [&](QRgb pixel) { return pixel == color.rgb(); });
}

}
