#include "listviewchecklineedititem.h"

#include "editfieldgeometry.h"
#include "formpainting.h"
#include "rowpainting.h"

#include <QPainter>

ListViewCheckLineEditItem::ListViewCheckLineEditItem(QString const &title, bool const &checked,
                                                     bool const &useTitleText, QString const &text)
    : CheckEditText(checked, true, text), m_useTitleText(useTitleText)
{
    setText(title);
}

ListViewCheckLineEditItem::ListViewCheckLineEditItem(QString const &title, bool const &checked, QString const &text)
    : ListViewCheckLineEditItem(title, checked, false, text)
{
}

ListViewCheckLineEditItem::~ListViewCheckLineEditItem() = default;

int ListViewCheckLineEditItem::type()
{
    return useEditText() ? 15 : 3;
}

int ListViewCheckLineEditItem::editTextLeftMargin()
{
    return m_editTextLeftMargin;
}

void ListViewCheckLineEditItem::setEditTextLeftMargin(int margin)
{
    m_editTextLeftMargin = margin;
}

void ListViewCheckLineEditItem::paint(QPainter *painter, QRect &rect)
{
    static constexpr int BoxLeft = 10, TitleBehindBox = 10, Gap = 4;

    painter->save();
    paintGround(painter, rect);
    const QRect edit = EditFieldGeometry::checkLineEdit(rect, m_editTextLeftMargin, m_useTitleText);
    const QRect box(QPoint(rect.left() + BoxLeft, FormPainting::markTop(rect)), FormPainting::markSize());
    FormPainting::drawCheckBox(painter, box.topLeft(), isChecked(), isPressed());
    // A row without a field always says what it is.
    if (m_useTitleText || !useEditText()) {
        const int end = useEditText() ? FormPainting::fieldRect(edit).left() - Gap : rect.right() + 1;
        FormPainting::drawTitle(
            painter,
            rect.adjusted(box.right() + 1 - rect.left() - FormPainting::TitleLeft + TitleBehindBox, 0, 0, 0), end,
            alignment(), text());
    }
    if (useEditText())
        FormPainting::drawField(painter, edit, selected(), shownText());
    painter->restore();
}

ListViewLineEditCheckItem::ListViewLineEditCheckItem(QString const &title, bool const &checked,
                                                     bool const &useEditText, QString const &text)
    : CheckEditText(checked, useEditText, text)
{
    setText(title);
}

ListViewLineEditCheckItem::~ListViewLineEditCheckItem() = default;

int ListViewLineEditCheckItem::type()
{
    return 16;
}

void ListViewLineEditCheckItem::paint(QPainter *painter, QRect &rect)
{
    // Text on the plate begins where it begins in a field of the rows above and below.
    static constexpr int WidePlateLeft = 191, PlateTextLeft = 4, Gap = 4;

    painter->save();
    paintGround(painter, rect);
    QRect plate = FormPainting::plateRect(rect, rect.left() + WidePlateLeft);
    if (!useEditText())
        plate.setLeft(plate.right() + 1 - FormPainting::CheckPlateWidth);
    FormPainting::drawTitle(painter, rect, plate.left() - Gap, alignment(), text());
    FormPainting::drawCheckPlate(painter, plate, useEditText(), isChecked());
    if (useEditText()) {
        if (selected())
            painter->setPen(Qt::black);
        RowPainting::drawElided(painter, plate.adjusted(PlateTextLeft, 0, -FormPainting::CheckPlateWidth - Gap, 0),
                                Qt::AlignVCenter | Qt::AlignLeft, shownText());
    }
    painter->restore();
}
