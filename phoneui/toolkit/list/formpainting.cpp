#include "formpainting.h"

#include "editfieldgeometry.h"
#include "rowpainting.h"

#include <QPainter>

namespace {

constexpr int PlateTop = 2;
constexpr int PlateHeight = 30;

QString widgetPictureName(const char *name)
{
    return QStringLiteral(":/ui/images/widget/%1.png").arg(QLatin1String(name));
}

QPixmap widgetPicture(const char *name)
{
    return RowPainting::picture(widgetPictureName(name));
}

}

namespace FormPainting {

void drawTitle(QPainter *painter, const QRect &row, int end, int flags, const QString &title)
{
    QRect rect = row;
    rect.setLeft(row.left() + TitleLeft);
    rect.setRight(end - 1);
    RowPainting::drawElided(painter, rect, flags, title);
}

QRect plateRect(const QRect &row, int left)
{
    static constexpr int FromRight = 4;
    return QRect(left, row.top() + PlateTop, row.right() - FromRight - left + 1, PlateHeight);
}

QRect fieldRect(const QRect &edit)
{
    static constexpr int Outline = 2;
    const int above = (PlateHeight - edit.height()) / 2;
    return QRect(edit.left() - Outline, edit.top() - above, edit.width() + 2 * Outline, PlateHeight);
}

void drawField(QPainter *painter, const QRect &edit, bool selected, const QString &text)
{
    const QRect textRect = EditFieldGeometry::textOf(edit, painter->fontMetrics().height());

    RowPainting::drawSlices(painter, fieldRect(edit), QStringLiteral(":/ui/images/widget/inputbox"),
                            selected ? QString() : QStringLiteral("_sel"));
    painter->save();
    if (selected)
        painter->setPen(Qt::black);
    RowPainting::drawElided(painter, textRect, Qt::AlignTop | Qt::AlignLeft, text);
    painter->restore();
}

void drawValuePlate(QPainter *painter, const QRect &plate, bool strong, const QString &value, int points)
{
    static constexpr int ArrowWidth = 16;
    RowPainting::drawSlices(painter, plate, widgetPictureName(strong ? "list_focus_sel" : "list_focus"),
                            ArrowWidth);

    painter->save();
    RowPainting::setPointSize(painter, points);
    RowPainting::drawElided(painter, plate.adjusted(ArrowWidth, 0, -ArrowWidth, 0),
                            Qt::AlignVCenter | Qt::AlignRight, value);
    painter->restore();
}

QSize markSize()
{
    return widgetPicture("checkbox").size();
}

int markTop(const QRect &row)
{
    return RowPainting::centredTop(row, markSize().height()) - 1;
}

QPoint markAtEnd(const QRect &row)
{
    static constexpr int FromRight = 6;
    return QPoint(row.right() - markSize().width() - FromRight, markTop(row));
}

void drawCheckBox(QPainter *painter, const QPoint &at, bool checked, bool pressed)
{
    painter->drawPixmap(at, widgetPicture("checkbox"));
    if (checked)
        painter->drawPixmap(at, widgetPicture(pressed ? "checkbox_check_sel" : "checkbox_check"));
}

void drawCheckPlate(QPainter *painter, const QRect &plate, bool divided, bool checked)
{
    RowPainting::drawSlices(painter, plate, QPixmap(QStringLiteral(":/ui/images/checkbox_bg_left.png")),
                            QPixmap(QStringLiteral(":/ui/images/checkbox_bg_center.png")),
                            QPixmap(divided ? QStringLiteral(":/ui/images/call_hold_bg_right.png")
                                            : QStringLiteral(":/ui/images/checkbox_bg_right.png")));
    if (checked) {
        const QPixmap sign(QStringLiteral(":/ui/images/checkbox_check_icon.png"));
        const int left = plate.right() + 1 - CheckPlateWidth + (CheckPlateWidth - sign.width()) / 2;
        RowPainting::drawCentred(painter, plate, left, sign);
    }
}

}
