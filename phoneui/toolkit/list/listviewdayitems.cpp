#include "listviewdayitems.h"

#include "formpainting.h"
#include "rowpainting.h"

#include <QPainter>

ListViewDateSelectItem::ListViewDateSelectItem(QString const &title)
{
    setText(title);
}

ListViewDateSelectItem::~ListViewDateSelectItem() = default;

int ListViewDateSelectItem::type()
{
    return 12;
}

void ListViewDateSelectItem::paint(QPainter *painter, QRect &rect)
{
    static constexpr int PlateLeft = 170, Gap = 4, DayPoints = 19;

    painter->save();
    paintGround(painter, rect);
    const QRect plate = FormPainting::plateRect(rect, rect.left() + PlateLeft);
    FormPainting::drawTitle(painter, rect, plate.left() - Gap, alignment(), text());
    FormPainting::drawValuePlate(painter, plate, isPressed(), chosenDays(),
                                 selectTextFontPt() > 0 ? selectTextFontPt() : DayPoints);
    painter->restore();
}

ListViewAlarmItem::ListViewAlarmItem(QString const &title, QString const &alarmName, bool const &checked)
    : m_checked(checked), m_alarmName(alarmName)
{
    setText(title);
}

ListViewAlarmItem::~ListViewAlarmItem() = default;

int ListViewAlarmItem::type()
{
    return 10;
}

void ListViewAlarmItem::paint(QPainter *painter, QRect &rect)
{
    static constexpr int InfoLeft = 110, Gap = 4;

    painter->save();
    paintGround(painter, rect);
    QRect plate = FormPainting::plateRect(rect, rect.left());
    plate.setLeft(plate.right() + 1 - FormPainting::CheckPlateWidth);
    QRect info = rect.adjusted(InfoLeft, 0, 0, 0);
    info.setRight(plate.left() - Gap);

    FormPainting::drawTitle(painter, rect, info.left() - Gap, alignment(), text());
    FormPainting::drawCheckPlate(painter, plate, false, m_checked);
    const QString days = chosenDays();
    const QString separator = m_alarmName.isEmpty() || days.isEmpty() ? QString() : QStringLiteral("  ");
    if (selectTextFontPt() > 0)
        RowPainting::setPointSize(painter, selectTextFontPt());
    RowPainting::drawElided(painter, info, m_infoAlignment, m_alarmName + separator + days);
    painter->restore();
}
