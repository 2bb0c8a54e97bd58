#ifndef FORMPAINTING_H
#define FORMPAINTING_H

#include <QPoint>
#include <QRect>
#include <QString>

class QPainter;

/// The parts that the rows of a form share: titles, text fields, value plates and marks. Everything is placed from
/// the row's rectangle, for rows of 33 or 34 pixels.
namespace FormPainting {

/// Where titles begin, from the row's left edge.
constexpr int TitleLeft = 10;
/// The size of the text in fields, which is that of the line edit over them.
constexpr int FieldPoints = 20;

/// A title from the row's left margin up to, and without, x = `end`, cut where it does not fit.
void drawTitle(QPainter *painter, const QRect &row, int end, int flags, const QString &title);

/// The plate or box of a row that reaches from `left` to the row's end; as high as a field.
QRect plateRect(const QRect &row, int left);

/// The rectangle of a text field's outline, from that of its line edit.
QRect fieldRect(const QRect &edit);
/// A text field, given the rectangle of its line edit, with the text where the line edit shows it. The ground of a
/// field is white in every look of the row, so the text of a selected row's field is black.
void drawField(QPainter *painter, const QRect &edit, bool selected, const QString &text);

/// A plate with an arrow at each end for a value that Left and Right change, and the value at its right between
/// them.
void drawValuePlate(QPainter *painter, const QRect &plate, bool strong, const QString &value, int points = 19);

/// The size of the check box and of the radio mark.
QSize markSize();
/// The top of a mark in its row: one pixel above the middle, where the middle of the letters is.
int markTop(const QRect &row);
/// Where a mark at the row's end stands.
QPoint markAtEnd(const QRect &row);
void drawCheckBox(QPainter *painter, const QPoint &at, bool checked, bool pressed);

/// A plate whose right end holds a check sign: the sign alone, or, if `divided`, a line between it and the rest.
void drawCheckPlate(QPainter *painter, const QRect &plate, bool divided, bool checked);
/// The width of that right end, and of the whole plate when it holds the sign alone.
constexpr int CheckPlateWidth = 36;

}

#endif
