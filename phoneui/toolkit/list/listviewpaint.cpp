#include "listview.h"

#include "listgeometry.h"
#include "listpainting.h"
#include "rowkinds.h"

#include <QPaintEvent>
#include <QPainter>

int ListView::scrollWidth() const
{
    return itemSize() > m_pageCount ? ListGeometry::ScrollWidth : 0;
}

QRect ListView::rowRect(int idx) const
{
    ListGeometry::Frame frame;
    frame.size = size();
    frame.leftMargin = m_lineLeftMargin;
    frame.rightMargin = m_lineRightMargin;
    frame.bottomMargin = m_listBottomMargin;
    frame.rowsPerPage = rowsPerPage();
    frame.scrollWidth = scrollWidth();
    return ListGeometry::rowRect(frame, idx - m_startIdx);
}

void ListView::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    paintGround(&painter);
    if (showsEmptyLook()) {
        paintEmptyLook(&painter);
        return;
    }
    if (scrollWidth() > 0)
        paintScrollBar(&painter, ListPainting::DarkGrey);
    paintRows(&painter, event->region());
}

void ListView::paintGround(QPainter *painter)
{
    painter->fillRect(rect(), m_backgroundColor);
    if (!m_backgroundPixmap.isNull())
        painter->drawPixmap(0, 0, m_backgroundPixmap);
}

void ListView::paintEmptyLook(QPainter *painter)
{
    ListPainting::drawEmptyLook(painter, size(), emptyString());
}

void ListView::paintScrollBar(QPainter *painter, const QColor &thumbColor)
{
    static constexpr int BoxWidth = 5, ThinWidth = 3; // from the box's left edge to the right margin
    static constexpr int ThumbWidth = 4, BoxedThumbWidth = 3;

    ListGeometry::Track track;
    track.height = height();
    track.topMargin = m_scrollTopMargin;
    track.bottomMargin = m_scrollBottomMargin;
    const ListGeometry::Thumb thumb = ListGeometry::scrollThumb(track, itemSize(), rowsPerPage(), selectedIdx());

    const bool thin = m_scrollbarBorderType == ScrollBarThinTrack;
    QRectF box(0, 0, width(), height());
    box.setLeft(width() - 1 - m_scrollRightMargin - (thin ? ThinWidth : BoxWidth));
    QRectF bar(box.left(), thumb.top, ThumbWidth, thumb.height);
    if (thin) {
        painter->fillRect(box, ListPainting::LightGrey);
    } else if (m_scrollbarBorderType == ScrollBarClearTrack) {
        painter->fillRect(box, m_backgroundColor);
        bar.moveLeft(box.left() + 1);
    } else {
        painter->fillRect(box, ListPainting::DarkGrey);
        painter->fillRect(box.adjusted(1, 0, -1, 0), m_backgroundColor);
        bar.moveLeft(box.left() + 2);
        bar.setWidth(BoxedThumbWidth);
    }
    painter->fillRect(bar, thumbColor);
}

void ListView::prepareRow(ListViewItem *row, const QRect &rect, int scrollWidth)
{
    row->setGeometry(rect);
    row->setFocus(hasFocus());
    row->setHasScrollBar(scrollWidth != 0);
    row->setScrollBarAreaWidth(scrollWidth);
    row->setItemRect(rect);
}

void ListView::paintRows(QPainter *painter, const QRegion &part)
{
    const int lastOfPage = m_startIdx + m_pageCount - 1;
    const int selected = selectedIdx();
    ListViewItem *floating = nullptr;

    for (int idx = m_startIdx; idx <= lastOfPage; ++idx) {
        ListViewItem *row = item(idx);
        if (!row)
            break;
        QRect rect = rowRect(idx);
        prepareRow(row, rect, scrollWidth());
        const ListPainting::Role role = ListPainting::role(idx == selected, m_focusType, row);
        ListPainting::setColors(row, role);
        if (role == ListPainting::Role::Floating)
            floating = row;
        if (m_focusType != ListViewFocusFloating && row->focusType() != ListViewFocusFloating)
            row->setSelected(idx == selected);
        if (idx != selected)
            row->setIsPressed(false);
        if (idx == selected || part.intersects(rect))
            row->paint(painter, rect);
        if (idx < lastOfPage)
            paintSeparator(painter, row, rect);
    }
    paintEdgeLines(painter);
    if (floating) {
        const QRect rect = rowRect(selected);
        paintFloating(painter, floating, rect,
                      ListGeometry::focusFrame(rect, selected == lastOfPage, floating->hasScrollBar()));
    }
}

void ListView::paintSeparator(QPainter *painter, const ListViewItem *row, const QRect &rect)
{
    const QLine line(rect.bottomLeft(), rect.bottomRight());
    if (m_useDotLine && row->underLineType() != ListViewItem::UnderLineSolid) {
        ListPainting::drawDottedLine(painter, line, m_backgroundColor);
    } else {
        painter->setPen(ListPainting::LightGrey);
        painter->drawLine(line);
    }
}

void ListView::paintEdgeLines(QPainter *painter)
{
    static constexpr int FewRows = 2;
    const int width = this->width() - scrollWidth();
    if (m_drawTopLine)
        painter->fillRect(0, 0, width, 1, m_backgroundColor);
    if (m_drawBottomLine && itemSize() > FewRows)
        painter->fillRect(0, height() - 1, width, 1, m_backgroundColor);
}

void ListView::paintFloating(QPainter *painter, ListViewItem *row, const QRect &rect, const QRect &frame)
{
    const bool edits = RowKinds::hasOverlay(row->type());
    if (row->hasFocus() && !edits) {
        ListPainting::drawFocused(painter, row, rect, frame, m_selectAndPressed, row->baseTextColor());
    } else if (!row->hasFocus() && edits) {
        // The line edit has the focus: the row shows it without a frame.
        row->setIsPressed(true);
        QRect place = rect;
        row->paint(painter, place);
    }
}
