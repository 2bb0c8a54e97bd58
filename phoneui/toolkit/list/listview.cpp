#include "listview.h"

#include "listgeometry.h"
#include "rowkinds.h"

#include <QDebug>
#include <QEvent>

#include <algorithm>
#include <utility>

ListView::ListView(QWidget *parent) : QWidget(parent)
{
    static constexpr int LongPressTime = 1000, AfterThisEvent = 1; // ms

    setFocusPolicy(Qt::StrongFocus);
    setBackgroundColor(Qt::white);
    setFont(QFont(QStringLiteral("1V_02_GO_UI"), 20));

    m_longPressTimer.setInterval(LongPressTime);
    connect(&m_longPressTimer, &QTimer::timeout, this, &ListView::longPressTimeout);
    m_checkFocusTimer.setInterval(AfterThisEvent);
    m_checkFocusTimer.setSingleShot(true);
    connect(&m_checkFocusTimer, &QTimer::timeout, this, &ListView::checkFocus);
}

void ListView::setBackgroundColor(QColor const &color)
{
    m_backgroundColor = color;
    // It covers the list: what lies behind needs no paint.
    setAttribute(Qt::WA_OpaquePaintEvent, color.alpha() == 0xff);
}

ListView::~ListView()
{
    qDeleteAll(m_items);
}

ListViewItem *ListView::addItem(ListViewItem *item)
{
    m_items.append(item);
    return item;
}

void ListView::addItems(int count, const std::function<ListViewItem *(int)> &make)
{
    makeAllItems(); // of rows added so before
    const int first = itemSize();
    m_items.resize(first + count);
    m_makeItem = [first, make](int idx) { return make(idx - first); };
}

ListViewItem *ListView::item(int idx) const
{
    if (idx < 0 || idx >= itemSize())
        return nullptr;
    if (!m_items.at(idx))
        m_items[idx] = m_makeItem(idx);
    return m_items.at(idx);
}

/// Where rows leave their places or all of them are looked at.
void ListView::makeAllItems() const
{
    for (int i = 0; m_makeItem && i < itemSize(); ++i)
        item(i);
}

void ListView::moveItem(int from, int to)
{
    makeAllItems();
    m_items.move(from, to);
}

void ListView::removeItem(int idx)
{
    if (idx < 0 || idx >= itemSize())
        return;
    makeAllItems();
    const int type = m_items.at(idx)->type();
    delete m_items.takeAt(idx);
    if (selectedIdx() >= itemSize())
        setSelectedIdx(itemSize() - 1);

    const bool movesField = type == RowKinds::CheckLineEdit && RowKinds::checkLineEdit(item(idx));
    if (type == RowKinds::LineEdit || type == RowKinds::NumberEdit || movesField)
        scheduleCheckFocus();
}

void ListView::itemClear()
{
    const QVector<ListViewItem *> rows = std::exchange(m_items, {});
    std::for_each(rows.rbegin(), rows.rend(), [](ListViewItem *row) { delete row; });
    m_makeItem = nullptr;
    m_keyPressFlag = false;
}

ListViewItem *ListView::item(QString const &text) const
{
    makeAllItems();
    for (ListViewItem *row : qAsConst(m_items)) {
        if (row->text() == text)
            return row;
    }
    return m_items.isEmpty() ? nullptr : m_items.last();
}

bool ListView::isRowEnabled(int idx) const
{
    const ListViewItem *row = item(idx);
    return row && row->m_itemSelectEnable;
}

int ListView::selectedIdx()
{
    return m_selectedIdx;
}

void ListView::setSelectedIdx(int idx)
{
    const QRegion moved = std::exchange(m_movedPart, QRegion());
    if (idx >= itemSize()) {
        qDebug() << "ListView::setSelectedIdx no row" << idx << "of" << itemSize();
        return;
    }
    if (idx >= 0 && !isRowEnabled(idx)) {
        qDebug() << "ListView::setSelectedIdx row is disabled" << idx;
        return;
    }
    const bool changed = m_selectedIdx != idx;
    m_selectedIdx = idx;
    if (moved.isEmpty())
        update();
    else
        update(moved);
    if (changed) {
        scheduleCheckFocus();
        emit focusChanged(m_selectedIdx);
    }
}

int ListView::searchNextItemIndex(int startIdx, bool isInverseOrder) const
{
    if (startIdx < 0) {
        qDebug() << "ListView::searchNextItemIndex start below the first row" << startIdx;
        return 0;
    }
    if (startIdx >= itemSize()) {
        qDebug() << "ListView::searchNextItemIndex start past the last row" << startIdx << "of" << itemSize();
        return itemSize() - 1;
    }
    int idx = startIdx;
    while (idx >= 0 && idx < itemSize() && !isRowEnabled(idx))
        idx += isInverseOrder ? -1 : 1;
    if (idx >= itemSize())
        return -1;
    if (idx < 0) {
        qDebug() << "ListView::searchNextItemIndex no enabled row up to" << startIdx;
        return startIdx;
    }
    return idx;
}

int ListView::keyToItemIdx(int key)
{
    // In a wide range the keys of the second column stand beside those of the first, and address the same rows.
    static constexpr int KeysPerColumn = 3;

    if (!m_isEnableFuncKey || key < m_startFuncKey || key > m_endFuncKey)
        return -1;
    const bool secondColumn
        = m_endFuncKey - m_startFuncKey > KeysPerColumn && key >= m_startFuncKey + KeysPerColumn;
    return m_startIdx + key - m_startFuncKey - (secondColumn ? KeysPerColumn : 0);
}

void ListView::setPage(int page)
{
    if (page < 0 || page > itemSize() / rowsPerPage()) {
        qDebug() << "ListView::setPage no page" << page << "of" << itemSize() << "rows";
        return;
    }
    m_page = page;
}

void ListView::setPageCount(int count)
{
    if (count < 0) {
        qDebug() << "ListView::setPageCount negative" << count;
        return;
    }
    m_pageCount = count;
}

int ListView::maxPage() const
{
    return itemSize() / rowsPerPage() - 1;
}

void ListView::nextPage()
{
    if (m_startIdx < itemSize()) {
        m_startIdx += m_pageCount;
        ++m_page;
        if (m_startIdx >= itemSize())
            m_startIdx = m_page = 0;
    }
    showRowOfPage();
}

void ListView::prevPage()
{
    m_startIdx -= m_pageCount;
    --m_page;
    if (m_startIdx < 0) {
        m_page = m_items.isEmpty() ? 0 : ListGeometry::lastPage(itemSize(), rowsPerPage());
        m_startIdx = m_page * m_pageCount;
    }
    showRowOfPage();
}

void ListView::showRowOfPage()
{
    update();
    setSelectedIdx(m_startIdx);
}

void ListView::doClick()
{
    if (selectedIdx() == -1)
        return;
    qDebug() << "ListView::doClick row" << selectedIdx();
    emit clickedFuncKey(selectedIdx());
}

void ListView::setDrawTopBottomLine(bool top, bool bottom)
{
    m_drawTopLine = top;
    m_drawBottomLine = bottom;
}

void ListView::scheduleCheckFocus()
{
    if (!m_checkFocusTimer.isActive())
        m_checkFocusTimer.start();
}

bool ListView::event(QEvent *event)
{
    if (event->type() == QEvent::WindowActivate) {
        scheduleCheckFocus();
    } else if (event->type() == QEvent::Hide) {
        m_checkFocusTimer.stop();
        m_longPressTimer.stop();
    }
    return QWidget::event(event);
}

void ListView::showEvent(QShowEvent *event)
{
    m_keyPressFlag = false;
    m_selectAndPressed = false;
    if (selectedIdx() > 0)
        m_startIdx = selectedIdx() / rowsPerPage() * m_pageCount;
    scheduleCheckFocus();
    QWidget::showEvent(event);
}

void ListView::focusInEvent(QFocusEvent *event)
{
    QWidget::focusInEvent(event);
    checkFocus();
    setSelectedIdx(selectedIdx());
}
