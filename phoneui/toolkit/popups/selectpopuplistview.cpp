#include "selectpopuplistview.h"

#include "focusframe.h"
#include "listgeometry.h"
#include "listpainting.h"

#include <QPainter>

static const QColor thumbColor(34, 34, 34);

SelectPopupListView::SelectPopupListView(QWidget *parent) : ListView(parent)
{
    setAttribute(Qt::WA_OpaquePaintEvent, false); // the popup's ground shows between the rows
}

void SelectPopupListView::setSelectPixmap(const QPixmap &left, const QPixmap &middle, const QPixmap &right)
{
    if (m_selectPixmaps.isEmpty())
        m_selectPixmaps = {left, middle, right};
}

/// The outline between the corner pictures, and under it the line that separates the row from the next.
static void drawEdges(QPainter *painter, const FocusFrame &frame, const QRect &rect)
{
    static constexpr int Outline = 2, Lap = 4; // the lower pictures end with what laps over the row below
    const auto fill = [&](const QRect &band, int top, int height, const QColor &color) {
        painter->fillRect(QRect(band.left(), top, band.width(), height), color);
    };
    const QRect top = frame.topBand(rect), bottom = frame.bottomBand(rect);
    const QRect left = frame.leftBand(rect), right = frame.rightBand(rect);
    const int below = bottom.bottom() + 1 - Lap;
    fill(top, top.top(), Outline, Qt::black);
    fill(bottom, below - Outline, Outline, Qt::black);
    fill(bottom, below, 1, ListPainting::LightGrey);
    painter->fillRect(QRect(left.left(), left.top(), Outline, left.height()), Qt::black);
    painter->fillRect(QRect(right.right() + 1 - Outline, right.top(), Outline, right.height()), Qt::black);
}

void SelectPopupListView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    if (showsEmptyLook()) {
        painter.setPen(Qt::black);
        painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, emptyString());
        return;
    }
    if (scrollWidth() > 0)
        paintScrollBar(&painter, thumbColor);

    const int last = qMin(startIdx() + pageCount(), itemSize()) - 1;
    for (int idx = qMax(0, startIdx()); idx <= last; ++idx)
        paintRow(&painter, idx, idx == last);
    // The frame laps over the rows around it.
    const int current = selectedIdx();
    if (current >= startIdx() && current <= last)
        paintCurrent(&painter, item(current), rowRect(current), current == startIdx() + pageCount() - 1);
}

void SelectPopupListView::paintRow(QPainter *painter, int idx, bool lastOfPage)
{
    ListViewItem *row = item(idx);
    QRect rect = rowRect(idx);
    prepareRow(row, rect, scrollWidth());
    ListPainting::setColors(row, ListPainting::Role::Plain);
    row->setTextColor(Qt::black);
    row->setTextDisableColor(Qt::black);
    row->setIsPressed(false);
    row->paint(painter, rect);
    if (!lastOfPage)
        ListPainting::drawDottedLine(painter, QLine(rect.bottomLeft(), rect.bottomRight()), backgroundColor());
}

void SelectPopupListView::paintCurrent(QPainter *painter, ListViewItem *row, const QRect &rect, bool lastSlot)
{
    const bool pressed = isKeyPressFlag();
    const QRect place = ListGeometry::focusFrame(rect, lastSlot, row->hasScrollBar());
    ListPainting::drawFocused(painter, row, rect, place, pressed, Qt::black);
    if (!pressed)
        drawEdges(painter, FocusFrame(FocusFrame::Plain), place);
}
