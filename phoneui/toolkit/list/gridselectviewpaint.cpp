#include "gridselectview.h"

#include "gridlistviewitem.h"
#include "listgeometry.h"
#include "listpainting.h"

#include <QPaintEvent>
#include <QPainter>

QPoint GridSelectView::place(int slot) const
{
    return m_scrollType == ScrollByColumn ? QPoint(slot / m_row, slot % m_row) : QPoint(slot % m_col, slot / m_col);
}

QRect GridSelectView::cellRect(int slot) const
{
    const int width = (this->width() + (1 - m_col) * m_colGap) / m_col;
    const int height = (this->height() + (1 - m_row) * m_rowGap) / m_row;
    const QPoint at = place(slot);
    return QRect(at.x() * (width + m_colGap), at.y() * (height + m_rowGap), width, height);
}

QRect GridSelectView::paintedRect(int idx) const
{
    static constexpr int Around = 5;
    return cellRect(idx - firstOfPage()).adjusted(-Around, -Around, Around, Around);
}

void GridSelectView::paintEvent(QPaintEvent *event)
{
    m_row = qMax(1, m_row);
    m_col = qMax(1, m_col);

    QPainter painter(this);
    paintGround(&painter);
    if (showsEmptyLook()) {
        paintEmptyLook(&painter);
        return;
    }
    paintCells(&painter, event->region());
    paintLines(&painter);
    paintFocus(&painter);
}

void GridSelectView::paintCells(QPainter *painter, const QRegion &part)
{
    const auto focusType = static_cast<eListViewItemFocusType>(m_focusType);
    const int selected = selectedIdx();

    for (int slot = 0; slot < itemCountPerPage(); ++slot) {
        const int idx = firstOfPage() + slot;
        ListViewItem *cell = item(idx);
        if (!cell)
            break;
        QRect rect = cellRect(slot);
        auto *numbered = m_showIndex ? dynamic_cast<GridListViewItem *>(cell) : nullptr;
        if (numbered)
            numbered->setIndex(idx + 1);
        // The view alone says how its cells show the selection.
        cell->setFocusType(focusType);
        prepareRow(cell, rect, 0);
        ListPainting::setColors(cell, ListPainting::role(idx == selected, focusType, cell));
        cell->setSelected(idx == selected);
        if (idx != selected)
            cell->setIsPressed(false);
        if (idx == selected || part.intersects(rect))
            cell->paint(painter, rect);
    }
}

void GridSelectView::paintFocus(QPainter *painter)
{
    const int slot = selectedIdx() - firstOfPage();
    ListViewItem *cell = item(selectedIdx());
    if (m_focusType != ListViewFocusFloating || !cell || slot < 0 || slot >= itemCountPerPage())
        return;

    static constexpr int WideOverlap = 3;
    const bool lastLine = place(slot).y() == m_row - 1;
    // Cells are as wide as they say, so nothing is drawn in at the right. A cell may keep its frame to a part of
    // itself, which it stores as its rectangle.
    QRect frame = ListGeometry::focusFrame(cell->itemRect(), lastLine, true);
    if (cell->floatingFocusBoxSize() == ListViewItem::FloatingFocusBoxCell)
        frame = cell->geometry();
    else if (cell->floatingFocusBoxSize() == ListViewItem::FloatingFocusBoxWide)
        frame.adjust(-WideOverlap, 0, WideOverlap, 0);
    paintFloating(painter, cell, cell->geometry(), frame);
}

void GridSelectView::paintLines(QPainter *painter)
{
    if (m_useDivideLines || m_useDotLines)
        paintDivideLines(painter);
    paintOuterLines(painter);
}

void GridSelectView::paintDivideLines(QPainter *painter)
{
    const int perPage = itemCountPerPage();
    const int cells = m_drawAllLines ? perPage : qBound(0, itemSize() - firstOfPage(), perPage);
    QVector<QLine> lines;
    QVector<QLine> upright(m_col);
    for (int slot = 0; slot < cells; ++slot) {
        const QRect rect = cellRect(slot);
        const QPoint at = place(slot);
        const QPoint corner(rect.right() + m_colGap / 2, rect.bottom() + m_rowGap / 2);
        if (at.y() < m_row - 1)
            lines.append(QLine(rect.left(), corner.y(), rect.right(), corner.y()));
        // One line down a column, so that its dots run on from cell to cell.
        upright[at.x()] = QLine(corner.x(), 0, corner.x(), rect.bottom());
    }
    upright.removeLast();
    for (const QLine &line : qAsConst(upright)) {
        if (!line.isNull())
            lines.append(line);
    }

    if (m_useDotLines) {
        for (const QLine &line : qAsConst(lines))
            ListPainting::drawDottedLine(painter, line, backgroundColor());
    } else {
        painter->setPen(ListPainting::LightGrey);
        painter->drawLines(lines);
    }
}

void GridSelectView::paintOuterLines(QPainter *painter)
{
    const int right = width() - 1;
    const int bottom = m_useBottomLineOffset ? cellRect(itemCountPerPage() - 1).bottom() : height() - 1;
    QVector<QLine> lines;
    if (m_useTopLine)
        lines.append(QLine(0, 0, right, 0));
    if (m_useBottomLine)
        lines.append(QLine(0, bottom, right, bottom));
    if (m_useSideLine) {
        lines.append(QLine(0, 0, 0, bottom));
        lines.append(QLine(right, 0, right, bottom));
    }
    painter->setPen(lineColor());
    painter->drawLines(lines);
}
