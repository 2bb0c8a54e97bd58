#ifndef ROWCANVAS_H
#define ROWCANVAS_H

#include "listviewitem.h"

#include <QImage>
#include <QMetaType>
#include <QRect>
#include <QSharedPointer>

using RowPtr = QSharedPointer<ListViewItem>;
Q_DECLARE_METATYPE(RowPtr)

/// A piece of a list's ground to paint rows on, in the looks that a list gives them.
namespace RowCanvas {

enum Look { Normal, FloatingSelected, Pressed, BarSelected, Disabled };
constexpr Look Looks[] = {Normal, FloatingSelected, Pressed, BarSelected, Disabled};

/// A row as the phone's screens have it.
constexpr QRect Row(0, 0, 374, 34);

/// Paints the row into the rectangle on a white picture of the list's width.
QImage paint(ListViewItem &row, const QRect &rect = Row, Look look = Normal);

/// The smallest rectangle that holds all pixels of that colour; of all pixels that are not white by default.
QRect inkOf(const QImage &picture);
QRect pixelsOf(const QImage &picture, const QColor &color);

}

#endif
