#include "listviewtimeedititem.h"

#include "editfieldgeometry.h"
#include "formpainting.h"

#include <QPainter>

ListViewTimeEditItem::ListViewTimeEditItem(QString const &title, QString const &time, QString const &ampm)
    : m_time(time), m_ampm(ampm)
{
    setText(title);
}

ListViewTimeEditItem::~ListViewTimeEditItem() = default;

int ListViewTimeEditItem::type()
{
    return 11;
}

void ListViewTimeEditItem::paint(QPainter *painter, QRect &rect)
{
    static constexpr int Gap = 4;

    painter->save();
    paintGround(painter, rect);
    const QRect edit = EditFieldGeometry::timeEdit(rect, m_useAmpmSelection);
    const QRect field = FormPainting::fieldRect(edit);
    FormPainting::drawTitle(painter, rect, field.left() - Gap, alignment(), text());
    FormPainting::drawField(painter, edit, selected(), m_time);
    if (m_useAmpmSelection)
        FormPainting::drawValuePlate(painter, FormPainting::plateRect(rect, field.right() + 1 + Gap), false,
                                     m_ampm);
    painter->restore();
}
