#ifndef SHAPEDTEXT_H
#define SHAPEDTEXT_H

#include <QString>

#include <limits>

class QFont;
class QPainter;
class QRect;

/// Texts in one line, kept as they were shaped for the last paints: a row is painted again with each key that moves
/// the selection, and shaping its words is most of the work.
namespace ShapedText {

constexpr int AnyWidth = std::numeric_limits<int>::max();

/// As QPainter::drawText() does it without word wrap; a text that is wider than `widest` is cut at its right end.
void draw(QPainter *painter, const QRect &rect, int flags, const QString &text, int widest = AnyWidth);

/// As QFontMetrics::horizontalAdvance() has it.
int width(const QFont &font, const QString &text);

}

#endif
