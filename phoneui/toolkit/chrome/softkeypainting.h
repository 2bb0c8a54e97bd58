#ifndef SOFTKEYPAINTING_H
#define SOFTKEYPAINTING_H

#include <QColor>
#include <QFont>

class QPainter;
class QRect;

/// What everything that looks like a soft key draws alike: the keys of a Tail, the buttons of boxes and popups.
namespace SoftKeyPainting {

constexpr int PointSize = 20;
constexpr int OutlineTop = 3; ///< the plate's outline above its body
constexpr int OutlineSide = 4; ///< what the plate's outline and the free pixels beside it take at either side

/// The phone's dark design swaps the colours and pictures of the keys. It is read from the settings: once a paint.
bool isDarkDesign();

/// The font as it is, or one step smaller and narrower when it has the point size of a soft key and the text is
/// `widest` pixels wide or more. There is no second step.
QFont fittedFont(QFont font, const QString &text, int widest);

/// Draws the key's plate into its rectangle. An `empty` key has nothing on it and does nothing. A valid `body` is
/// shown in the place of the design's.
void drawPlate(QPainter *painter, const QRect &key, bool dark, bool down, bool empty,
               const QColor &body = QColor());

QColor textColor(bool dark, bool down);

}

#endif
