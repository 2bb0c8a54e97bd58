#ifndef LISTPAINTING_H
#define LISTPAINTING_H

#include "listviewitem.h"

#include <QLine>

class QPainter;

/// What lists and grids draw alike around their rows.
namespace ListPainting {

inline const QColor DarkGrey(85, 85, 85);
inline const QColor LightGrey(187, 187, 187);

/// What the selection makes of a row.
enum class Role { Plain, Floating, Flat };

/// The list's or the row's own focus type makes a selected row float, or lie flat if none asks for floating.
Role role(bool selected, eListViewItemFocusType listType, const ListViewItem *row);

/// Gives the row the colours of its role; its base text colour becomes its text colour.
void setColors(ListViewItem *row, Role role);

/// The row's content once more, on the ground of a focus frame. `text` is the colour of a row that is not pressed.
void drawFocused(QPainter *painter, ListViewItem *row, const QRect &rect, const QRect &frame, bool pressed,
                 const QColor &text);

/// Two pixels of light grey and one of the ground, from the line's start; for level and upright lines.
void drawDottedLine(QPainter *painter, const QLine &line, const QColor &ground);

/// The picture and the words of a list without rows.
void drawEmptyLook(QPainter *painter, const QSize &size, const QString &text);

}

#endif
