#include "gridselectview.h"

#include "gridlistviewitem.h"

#include <QKeyEvent>
#include <QPointer>

// The keypad's hash key.
static constexpr int HashKey = 223;

static bool isArrow(int key)
{
    return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_Left || key == Qt::Key_Right;
}

static bool isDigit(int key)
{
    return (key >= Qt::Key_0 && key <= Qt::Key_9) || key == Qt::Key_Asterisk || key == HashKey;
}

GridSelectView::GridSelectView(QWidget *parent) : ListView(parent)
{
    setPageCount(m_row);
    setUseDirectMovement(false);
}

GridSelectView::GridSelectView(int row, int col, QWidget *parent) : ListView(parent), m_row(row), m_col(col)
{
    setPageCount(m_row);
    setUseDirectMovement(false);
}

GridMoves::Grid GridSelectView::grid() const
{
    GridMoves::Grid grid;
    grid.rows = qMax(1, m_row);
    grid.columns = qMax(1, m_col);
    grid.size = itemSize();
    return grid;
}

int GridSelectView::totalPage()
{
    m_totalPage = grid().pages();
    return m_totalPage;
}

void GridSelectView::update()
{
    totalPage();
    QWidget::update();
}

void GridSelectView::setGridSize(int row, int col)
{
    m_row = row;
    m_col = col;
    setPageCount(m_row);
    update();
}

void GridSelectView::showPage(int page)
{
    // An empty grid has no page, and shows its first.
    m_currentPage = qMax(1, page);
    update();
    emit pageMoved(m_currentPage);
}

void GridSelectView::moveToNextPage()
{
    showPage(m_currentPage + 1 > totalPage() ? 1 : m_currentPage + 1);
}

void GridSelectView::moveToPrevPage()
{
    showPage(m_currentPage - 1 < 1 ? totalPage() : m_currentPage - 1);
}

void GridSelectView::repositionSelectedItem()
{
    const int perPage = grid().perPage();
    update();
    setSelectedIdx(qMin(selectedIdx() % perPage + perPage * (m_currentPage - 1), itemSize() - 1));
}

void GridSelectView::setCurrentIndex(int idx)
{
    const QPointer<GridSelectView> alive(this);
    setSelectedIdx(idx);
    if (!alive)
        return;
    m_currentPage = idx / grid().perPage() + 1;
    update();
}

void GridSelectView::keyPressEvent(QKeyEvent *event)
{
    const QPointer<GridSelectView> alive(this);
    if (m_useDigitMap && isDigit(event->key()))
        selectByDigit(event->key());
    if (alive)
        ListView::keyPressEvent(event);
}

void GridSelectView::selectByDigit(int key)
{
    const QPointer<GridSelectView> alive(this);
    setKeyPressFlag(true);
    // Only the first page's cells carry digits.
    for (int idx = firstOfPage(); alive && idx < itemCountPerPage(); ++idx) {
        const auto *cell = dynamic_cast<GridListViewItem *>(item(idx));
        if (cell && cell->digitKey() == key)
            setSelectedIdx(idx);
    }
}

void GridSelectView::keyReleaseEvent(QKeyEvent *event)
{
    if (!isKeyPressFlag())
        return;
    setSelectAndPressed(false);

    const QPointer<GridSelectView> alive(this);
    if (m_useDigitMap && isDigit(event->key())) {
        clickByDigit();
    } else if (isArrow(event->key())) {
        setKeyPressFlag(false);
        if (leadsOut(event->key()))
            emit reject();
        else
            moveByArrow(event->key());
        return;
    } else if (useHotKeyMove()) {
        jumpByHotKey(event->key());
    }
    if (alive)
        ListView::keyReleaseEvent(event);
}

void GridSelectView::clickByDigit()
{
    setKeyPressFlag(false);
    update();
    ListViewItem *cell = item(selectedIdx());
    if (cell && !cell->text().trimmed().isEmpty())
        emit clicked(selectedIdx());
}

void GridSelectView::jumpByHotKey(int key)
{
    const QPointer<GridSelectView> alive(this);
    const GridMoves::Grid cells = grid();
    const int cell = GridMoves::hotKeyCell(cells, key);
    if (cell >= 0) {
        setSelectedIdx(cells.perPage() * qMax(0, m_currentPage - 1) + cell);
    } else if (key == Qt::Key_Asterisk) {
        moveToPrevPage();
    } else if (key == HashKey) {
        moveToNextPage();
    } else if (key == Qt::Key_0) {
        setStartIdx(0);
        setSelectedIdx(0);
        setCurrentPage(1);
    }
    if (alive && (key == Qt::Key_Asterisk || key == HashKey || key == Qt::Key_0))
        repositionSelectedItem();
    if (alive)
        update();
}

bool GridSelectView::leadsOut(int key)
{
    if (!m_useNaviKeyReject)
        return false;
    return (key == Qt::Key_Left && m_currentPage == 1 && selectedIdx() < m_row)
        || (key == Qt::Key_Right && m_currentPage >= totalPage() && selectedIdx() >= itemSize() - m_row);
}

void GridSelectView::moveByArrow(int key)
{
    const GridMoves::Grid cells = grid();
    const int page = selectedIdx() / cells.perPage() + 1;
    if (page != m_currentPage) {
        m_currentPage = page;
        update();
    }
    totalPage();
    if (selectedIdx() == -1)
        setSelectedIdx(0);
    else if (m_scrollType == ScrollByColumn)
        apply(GridMoves::downColumns(cells, selectedIdx(), key));
    else
        apply(GridMoves::alongRows(cells, selectedIdx(), key));
}

void GridSelectView::apply(const GridMoves::Move &move)
{
    const QPointer<GridSelectView> alive(this);
    if (move.page == GridMoves::Page::Same)
        m_movedPart = QRegion(paintedRect(selectedIdx())) | paintedRect(move.index);
    setSelectedIdx(move.index);
    if (!alive)
        return;
    m_movedPart = QRegion();
    switch (move.page) {
    case GridMoves::Page::Same: break;
    case GridMoves::Page::Next: moveToNextPage(); break;
    case GridMoves::Page::Previous: moveToPrevPage(); break;
    case GridMoves::Page::First: showPage(1); break;
    case GridMoves::Page::Last: showPage(totalPage()); break;
    }
}
