#include "numberedititems.h"

#include "editfieldgeometry.h"
#include "formpainting.h"
#include "rowpainting.h"

#include <QPainter>

static const QColor labelGrey(0x55, 0x55, 0x55);

NumberEditLineEditItem::NumberEditLineEditItem(const QString &label, const QString &value)
    : ListViewLineEditItem(label, value)
{
}

NumberEditLineEditItem::~NumberEditLineEditItem() = default;

int NumberEditLineEditItem::type()
{
    return 0x11;
}

void NumberEditLineEditItem::paint(QPainter *painter, QRect &rect)
{
    paintTitleAndField(painter, rect, EditFieldGeometry::numberEdit(rect, editTextLeftMargin()), labelGrey);
}

NumberEditSelectItem::NumberEditSelectItem(const QString &label, const QString &value)
    : ListViewSelectItem(label, value)
{
}

NumberEditSelectItem::~NumberEditSelectItem() = default;

void NumberEditSelectItem::paint(QPainter *painter, QRect &rect)
{
    static constexpr int Gap = 4;

    painter->save();
    paintGround(painter, rect);
    const QColor ink = painter->pen().color();
    // The plate stands under the input boxes of the rows around it.
    const int plateLeft = FormPainting::fieldRect(EditFieldGeometry::numberEdit(rect, 0)).left();
    painter->setPen(selected() ? ink : labelGrey);
    FormPainting::drawTitle(painter, rect, plateLeft - Gap, alignment(), text());
    painter->setPen(ink);
    FormPainting::drawValuePlate(painter, FormPainting::plateRect(rect, plateLeft), isPressed(), selectedText());
    painter->restore();
}
