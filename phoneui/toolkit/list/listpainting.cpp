#include "listpainting.h"

#include "focusframe.h"

#include <QImage>
#include <QPainter>

namespace ListPainting {

static void setGrounds(ListViewItem *row, const QColor &plain, const QColor &select)
{
    row->setBackGroundColor(plain);
    row->setBackGroundSelectColor(select);
    row->setBackGroundNoFocusSelectColor(select);
}

Role role(bool selected, eListViewItemFocusType listType, const ListViewItem *row)
{
    const auto either = [&](eListViewItemFocusType type) { return listType == type || row->focusType() == type; };
    if (selected && either(ListViewFocusFloating))
        return Role::Floating;
    return selected && either(ListViewFocusFlat) ? Role::Flat : Role::Plain;
}

void setColors(ListViewItem *row, Role role)
{
    row->setTextColor(row->baseTextColor());
    if (role == Role::Plain) {
        row->setTextSelectColor(Qt::white);
        row->setTextNoFocusSelectColor(Qt::white);
        row->setTextDisableColor(DarkGrey);
        setGrounds(row, Qt::white, Qt::black);
        return;
    }
    row->setTextSelectColor(Qt::black);
    row->setTextNoFocusSelectColor(Qt::black);
    row->setTextDisableColor(Qt::white);
    setGrounds(row, Qt::white, Qt::white);
    if (role == Role::Flat)
        row->setFocusType(ListViewFocusFlat);
}

void drawFocused(QPainter *painter, ListViewItem *row, const QRect &rect, const QRect &frame, bool pressed,
                 const QColor &text)
{
    const QColor contrast = pressed ? Qt::white : Qt::black;
    row->setTextColor(pressed ? contrast : text);
    row->setTextSelectColor(contrast);
    row->setTextDisableColor(contrast);
    if (!pressed)
        row->setTextNoFocusSelectColor(contrast);
    setGrounds(row, Qt::transparent, Qt::transparent);
    row->setIsPressed(pressed);

    FocusFrame(pressed ? FocusFrame::Pressed : FocusFrame::Plain).draw(painter, frame);
    QRect place = rect;
    row->paint(painter, place);
}

void drawDottedLine(QPainter *painter, const QLine &line, const QColor &ground)
{
    static constexpr int Dot = 2, Period = 3;
    const bool level = line.y1() == line.y2();
    QImage dots(level ? Period : 1, level ? 1 : Period, QImage::Format_RGB32);
    dots.fill(LightGrey);
    dots.setPixelColor(level ? Dot : 0, level ? 0 : Dot, ground);
    const QRect rect(line.p1(), line.p2());
    painter->setBrushOrigin(rect.topLeft());
    painter->fillRect(rect, QBrush(dots));
}

void drawEmptyLook(QPainter *painter, const QSize &size, const QString &text)
{
    static constexpr int PictureAboveMiddle = 15;
    const QPixmap picture(":/ui/images/widget/no_data.png");
    painter->setPen(Qt::black);
    painter->drawPixmap((size.width() - picture.width()) / 2,
                        (size.height() - picture.height()) / 2 - PictureAboveMiddle, picture);
    painter->drawText(QRect(0, size.height() / 2, size.width(), size.height() / 2),
                      Qt::AlignCenter | Qt::TextWordWrap, text);
}

}
