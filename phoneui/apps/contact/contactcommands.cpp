// Contact: what keys and soft keys do.

#include "contact.h"

#include "core.h"
#include "gridselectview.h"
#include "listviewcontactitem.h"
#include "tail.h"

#include <QDebug>
#include <QKeyEvent>

namespace {

constexpr int Rows = 3; // of a column; the cells 0 to 2 are the left one, 3 to 5 the right one

enum SoftKey { GroupsKey = 0, SearchKey = 1, ModeKey = 2, PageKey = 3 };

}

void Contact::keyPressEvent(QKeyEvent *event)
{
    if (m_step == SelectStep || !m_listView) {
        BaseWidget::keyPressEvent(event);
        return;
    }
    switch (event->key()) {
    case Qt::Key_Up: pressedUp(event); break;
    case Qt::Key_Down: pressedDown(event); break;
    case Qt::Key_Left: pressedLeft(event); break;
    case Qt::Key_Right: pressedRight(event); break;
    case Qt::Key_Escape:
        if (m_step == ManagingStep) {
            leaveManagingStep();
            event->accept();
            break;
        }
        BaseWidget::keyPressEvent(event);
        break;
    default: BaseWidget::keyPressEvent(event);
    }
}

// The grid moves by itself within a page; these four take over where a page ends.

void Contact::pressedUp(QKeyEvent *event)
{
    event->accept();
    if (m_listView->itemSize() > 0 && m_listView->selectedIdx() == 0) {
        setListViewPage(false);
        m_listView->setSelectedIdx(m_listView->itemSize() - 1);
    }
}

void Contact::pressedDown(QKeyEvent *event)
{
    event->accept();
    if (m_listView->itemSize() == 0 || m_listView->selectedIdx() != m_listView->itemSize() - 1)
        return;
    const bool wraps = isLastPage();
    setListViewPage(true);
    if (wraps)
        m_listView->setSelectedIdx(0);
}

void Contact::pressedLeft(QKeyEvent *event)
{
    const int idx = m_listView->selectedIdx();
    if (m_listView->itemSize() == 0) {
        event->accept();
        return;
    }
    if (idx < 0 || idx >= Rows) {
        BaseWidget::keyPressEvent(event);
        return;
    }
    event->accept();
    setListViewPage(false);
    const int last = m_listView->itemSize() - 1;
    const bool hasRightColumn = !isLastPage() || last >= Rows;
    m_listView->setSelectedIdx(qMin(hasRightColumn ? idx + Rows : idx, last));
}

void Contact::pressedRight(QKeyEvent *event)
{
    event->accept();
    const int idx = m_listView->selectedIdx();
    const int size = m_listView->itemSize();
    if (size == 0)
        return;
    if (idx >= Rows) {
        setListViewPage(true);
        m_listView->setSelectedIdx(qMin(m_listView->itemSize() - 1, idx - Rows));
    } else if (isLastPage() && idx + Rows >= size) {
        setListViewPage(true);
        m_listView->setSelectedIdx(0);
    }
}

void Contact::leaveManagingStep()
{
    m_step = ListStep;
    setupTail();
}

void Contact::keyReleaseEvent(QKeyEvent *event)
{
    const bool isEscape = event->key() == Qt::Key_Escape;
    if (isEscape && m_step == ManagingStep) {
        leaveManagingStep();
        event->accept();
    } else if (isEscape && m_step == ListStep && m_systemPhonebookEnabled) {
        backToChooser();
        event->accept();
    } else {
        BaseWidget::keyReleaseEvent(event);
    }
}

void Contact::backToChooser()
{
    m_listView->hide();
    m_step = SelectStep;
    m_selectListView->show();
    m_selectListView->setFocus(Qt::OtherFocusReason);
    setupTail();
    setupStatus();
}

int Contact::getContactTypeOfselectItem()
{
    auto *cell = dynamic_cast<ListViewContactGridItem *>(m_listView->item(m_listView->selectedIdx()));
    if (!cell) {
        qDebug() << "Contact::getContactTypeOfselectItem no item at" << m_listView->selectedIdx();
        return ContactData::LocalContact;
    }
    return cell->getContactType();
}

void Contact::tailFuncButtonClicked(int idx)
{
    // The label decides, not the mode: a key does what it says.
    if (idx == ModeKey && tail->funcButtonText(idx) == tr("Edit Mode"))
        m_step = ManagingStep;
    else if (idx == PageKey && m_step == ListStep)
        setListViewPage(true);
    setupTail();
}
