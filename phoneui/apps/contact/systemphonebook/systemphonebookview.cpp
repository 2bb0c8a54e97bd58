#include "systemphonebookview.h"

#include "listviewsysphonebookitem.h"

#include <QAbstractItemModel>
#include <QKeyEvent>

static constexpr int PageRows = 5;

SystemPhonebookView::SystemPhonebookView(QWidget *parent) : ListView(parent)
{
    setObjectName("SystemPhonebookView");
    setPageCount(PageRows);
    setFocusType(ListViewFocusBar); // the floating frame is too high for five rows
    installEventFilter(this);
}

void SystemPhonebookView::setModel(QAbstractItemModel *model)
{
    m_model = model;
    connect(model, &QAbstractItemModel::dataChanged, this, &SystemPhonebookView::dataChanged);
    connect(model, &QAbstractItemModel::rowsInserted, this, &SystemPhonebookView::rowsInserted);
    setupListViewItems();
}

QModelIndex SystemPhonebookView::currentIndex()
{
    return m_model ? m_model->index(selectedIdx(), 0) : QModelIndex();
}

void SystemPhonebookView::setupListViewItems()
{
    itemClear();
    const int rows = m_model ? m_model->rowCount() : 0;
    for (int row = 0; row < rows; ++row)
        addItem(new ListViewSysPhonebookItem(m_model->index(row, 0)));
}

int SystemPhonebookView::firstOfPage()
{
    return selectedIdx() / PageRows * PageRows;
}

void SystemPhonebookView::goToRow(int row)
{
    setStartIdx(row);
    setCurrentRow(row);
}

void SystemPhonebookView::scrollToNext()
{
    const int next = firstOfPage() + PageRows;
    goToRow(next < itemSize() ? next : 0);
}

void SystemPhonebookView::scrollToPrevious()
{
    const int first = firstOfPage();
    goToRow(first < PageRows ? (itemSize() - 1) / PageRows * PageRows : first - PageRows);
}

bool SystemPhonebookView::sideKeyEvent(QKeyEvent *)
{
    return false;
}

QRect SystemPhonebookView::visualRect(const QModelIndex &) const
{
    return QRect();
}

int SystemPhonebookView::keyToItemIdx(int key)
{
    const int slot = key - Qt::Key_F1;
    return slot >= 0 && slot < PageRows ? startIdx() + slot : -1;
}

void SystemPhonebookView::dataChanged(const QModelIndex &, const QModelIndex &) { }

void SystemPhonebookView::rowsInserted(const QModelIndex &, int, int) { }

bool SystemPhonebookView::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return ListView::eventFilter(watched, event);
    auto *keyEvent = static_cast<QKeyEvent *>(event);
    if (sideKeyEvent(keyEvent))
        return true;
    switch (keyEvent->key()) {
    case Qt::Key_Left:
    case Qt::Key_Up: scrollToPrevious(); return true;
    case Qt::Key_Right:
    case Qt::Key_Down: scrollToNext(); return true;
    default: return ListView::eventFilter(watched, event);
    }
}
