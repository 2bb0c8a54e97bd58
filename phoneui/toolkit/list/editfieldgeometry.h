#ifndef EDITFIELDGEOMETRY_H
#define EDITFIELDGEOMETRY_H

#include <QRect>

/// Where the text of an edit row stands: the rectangle of the line edit that floats over it, and so of the text
/// that the row paints while none does. `row` is the row's rectangle, `margin` its `editTextLeftMargin()`.
namespace EditFieldGeometry {

/// A title and a text field.
QRect lineEdit(const QRect &row, int margin);
/// The number rows of the edit form.
QRect numberEdit(const QRect &row, int margin);
/// A check box beside a text field. Without a title the field begins at the column's left, whatever the margin.
QRect checkLineEdit(const QRect &row, int margin, bool useTitleText);
/// A time, with or without the plate for the half of the day to its right.
QRect timeEdit(const QRect &row, bool useAmPm);

/// Where a frameless line edit with this rectangle puts a line of that height.
QRect textOf(const QRect &edit, int textHeight);

}

#endif
