#ifndef ROWPAINTING_H
#define ROWPAINTING_H

#include <QPixmap>
#include <QRect>
#include <QString>

class QColor;
class QPainter;

/// What rows, boxes and fields draw alike.
namespace RowPainting {

/// A picture of the program's own resources, read once: Qt would ask for the file's time at every use.
QPixmap picture(const QString &resource);

/// The top at which something of that height stands in the vertical middle; an odd pixel goes below.
int centredTop(const QRect &rect, int height);

/// Draws the picture with its left edge at x, in the vertical middle of the rectangle.
void drawCentred(QPainter *painter, const QRect &rect, int x, const QPixmap &picture);

/// Draws the text cut at its right end to the rectangle's width.
void drawElided(QPainter *painter, const QRect &rect, int flags, const QString &text);

/// A plate of any width, put together once for each: the ends keep their width, the middle is stretched between
/// them from one column.
/// `stem` and `suffix` name the three pictures: "…/inputbox" and "_sel" read "…/inputbox_left_sel.png" and so on.
void drawSlices(QPainter *painter, const QRect &rect, const QString &stem, const QString &suffix = QString());
/// The same from one picture, whose ends are that wide.
void drawSlices(QPainter *painter, const QRect &rect, const QString &resource, int endWidth);
/// The same from pictures at hand, at each call.
void drawSlices(QPainter *painter, const QRect &rect, const QPixmap &left, const QPixmap &middle,
                const QPixmap &right);

/// The picture's shape in one colour, for signs that follow the pen of their row.
QPixmap inked(const QPixmap &picture, const QColor &ink);

void setPointSize(QPainter *painter, int points);

}

#endif
