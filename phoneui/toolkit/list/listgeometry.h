#ifndef LISTGEOMETRY_H
#define LISTGEOMETRY_H

#include <QRect>
#include <QSize>

/// The arithmetic of a list's window, rows and scroll bar, in pixels and row numbers.
namespace ListGeometry {

/// The room that the scroll bar takes from the rows.
constexpr int ScrollWidth = 8;

/// What a list's rows are laid out in.
struct Frame
{
    QSize size; ///< of the list
    int leftMargin = 0;
    int rightMargin = 0;
    int bottomMargin = 0; ///< added to the height that the rows share
    int rowsPerPage = 1;
    int scrollWidth = 0;
};

/// The row's rectangle in a slot of the page. Its right edge is counted as a width, so that the row reaches one
/// pixel further than the margins say.
QRect rowRect(const Frame &frame, int slot);

/// The focus frame of a row: it laps over the separators above and below.
QRect focusFrame(const QRect &row, bool lastSlot, bool hasScrollBar);

/// What the scroll bar's thumb moves in.
struct Track
{
    int height = 0; ///< of the list
    int topMargin = 0;
    int bottomMargin = 0;
};

struct Thumb
{
    qreal top = 0;
    qreal height = 0;
};

/// The thumb for the selected row, -1 counting as the first; `rows` is above `rowsPerPage`.
Thumb scrollThumb(const Track &track, int rows, int rowsPerPage, int selected);

/// The number of the last page, counted from 0; an incomplete page counts.
int lastPage(int rows, int rowsPerPage);

}

#endif
