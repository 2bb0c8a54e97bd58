#include "softkeypainting.h"

#include "shapedtext.h"

#include "core.h"

#include <QPainter>

namespace {

constexpr int SmallPointSize = 18;
constexpr int SmallStretch = 90; // percent of its width: two words stand clear of the outline
const QColor grey(187, 187, 187);

/// The colours of the two designs of the phone.
struct Colours
{
    QColor outline, body, empty, textUp, textDown;
};

Colours colours(bool dark)
{
    return dark ? Colours{grey, Qt::black, grey, Qt::white, Qt::black}
                : Colours{Qt::black, Qt::white, Qt::white, Qt::black, Qt::white};
}

}

namespace SoftKeyPainting {

bool isDarkDesign()
{
    return theCore->designType() == 1;
}

QFont fittedFont(QFont font, const QString &text, int widest)
{
    if (font.pointSize() == PointSize && ShapedText::width(font, text) >= widest) {
        font.setPointSize(SmallPointSize);
        font.setStretch(SmallStretch);
    }
    return font;
}

void drawPlate(QPainter *painter, const QRect &key, bool dark, bool down, bool empty, const QColor &body)
{
    const Colours c = colours(dark);
    const QColor fill = body.isValid() ? body : c.body;
    const QRect plate = key.adjusted(2, 0, -2, 0);
    if (down) {
        painter->fillRect(plate, c.outline);
    } else if (dark) {
        painter->fillRect(plate, empty ? c.empty : fill);
    } else if (empty) {
        painter->fillRect(plate, grey);
    } else {
        painter->fillRect(plate, c.outline);
        painter->fillRect(key.adjusted(OutlineSide, OutlineTop, -OutlineSide, 0), fill);
    }
}

QColor textColor(bool dark, bool down)
{
    const Colours c = colours(dark);
    return down ? c.textDown : c.textUp;
}

}
