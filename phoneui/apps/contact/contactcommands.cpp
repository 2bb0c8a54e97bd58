// Contact: what keys and soft keys do.

#include "contact.h"

#include "contactmanager.h"
#include "contactremoval.h"
#include "core.h"
#include "detailsdial.h"
#include "gridselectview.h"
#include "grouplist.h"
#include "listviewcontactitem.h"
#include "messagebox.h"
#include "neighbours.h"
#include "notices.h"
#include "numberedit.h"
#include "screenwatch.h"
#include "searchall.h"
#include "tail.h"

#include <QDebug>
#include <QKeyEvent>

#include <algorithm>

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

void Contact::clickedListViewItem(int idx)
{
    auto *cell = dynamic_cast<ListViewContactGridItem *>(m_listView->item(idx));
    if (!cell)
        return;
    const int id = cell->getId();
    const int type = cell->getContactType();
    runScreen(
        m_detailsDial, this, [this, id, type] { return new DetailsDial(this, id, type); },
        [this, id](DetailsDial *) {
            reload();
            setupListViewItems(true, id, 0, true);
            setupTail();
        });
}

void Contact::clickedFuncKeyEvent(int idx)
{
    auto *cell = dynamic_cast<ListViewContactGridItem *>(m_listView->item(idx));
    if (!cell)
        return;
    const ContactData contact = MergedContacts::read(cell->getId(), cell->getContactType());
    if (Neighbours::isInCall())
        return;
    Neighbours::leaveAndDial(this, contact.telnum1, contact.name);
}

void Contact::tailFuncButtonClicked(int idx)
{
    // The label decides, not the mode: a key does what it says.
    struct Action
    {
        int key;
        QString label;
        void (Contact::*run)();
    };
    const Action actions[] = {
        {GroupsKey, tr("Groups"), &Contact::openGroups},   {GroupsKey, tr("Edit"), &Contact::editSelected},
        {SearchKey, tr("Search"), &Contact::openSearch},   {SearchKey, tr("Add Contact"), &Contact::addContact},
        {ModeKey, tr("Delete"), &Contact::deleteSelected}, {PageKey, tr("Close"), &Contact::closeAll},
    };
    const ScreenWatch watch(this);
    const QString label = tail->funcButtonText(idx);
    const Action *found = std::find_if(std::begin(actions), std::end(actions), [&](const Action &action) {
        return action.key == idx && action.label == label;
    });
    if (found != std::end(actions))
        (this->*found->run)();
    else if (idx == ModeKey && label == tr("Edit Mode"))
        m_step = ManagingStep;
    else if (idx == PageKey && m_step == ListStep)
        setListViewPage(true);
    else if (idx == PageKey && label == tr("Delete All"))
        deleteAll();
    if (!watch.closed())
        setupTail();
}

MessageBox &Contact::messageBox()
{
    if (!m_messageBox)
        m_messageBox = new MessageBox(this);
    return *m_messageBox;
}

void Contact::openGroups()
{
    runScreen(
        m_groupList, this, [this] { return new GroupList(this); },
        [this](GroupList *) {
            setupStatus();
            setupListViewItems(true, -1, qMax(0, m_listView->selectedIdx()), true);
        });
}

void Contact::openSearch()
{
    m_Directory = 0;
    runScreen(
        m_searchAll, this, [this] { return new SearchAll(this, SearchAll::ViewMode, QString()); },
        [this](SearchAll *) {
            // A contact found may have been edited or deleted.
            setupStatus();
            reload();
            setupListViewItems(true, -1, qMax(0, m_listView->selectedIdx()), true);
        });
}

void Contact::editSelected()
{
    auto *cell = dynamic_cast<ListViewContactGridItem *>(m_listView->item(m_listView->selectedIdx()));
    if (!cell)
        return;
    const int id = cell->getId();
    runScreen(
        m_numberEdit, this, [this, id] { return new NumberEdit(this, id, QString(), -1); },
        [this, id](NumberEdit *) {
            reload();
            setupListViewItems(true, id, 0, true);
        });
}

void Contact::addContact()
{
    runScreen(
        m_numberEdit, this, [this] { return new NumberEdit(this, -1, QString(), -1); },
        [this](NumberEdit *form) {
            const int id = form->getSavedId();
            const int cell = m_listView->selectedIdx();
            reload();
            if (id >= 0)
                setupListViewItems(true, id, 0, true);
            else if (cell >= 0)
                setupListViewItems(true, -1, cell, true);
            else
                setupListViewItems(false, 0, 0, true);
            setupTail();
            selectContact(id);
            m_listView->setFocus(Qt::OtherFocusReason);
        });
}

/// Selects the cell of a contact on the page that shows.
void Contact::selectContact(int id)
{
    for (int i = 0; i < m_listView->itemSize(); ++i) {
        auto *cell = dynamic_cast<ListViewContactGridItem *>(m_listView->item(i));
        if (cell && cell->getId() == id) {
            m_listView->setSelectedIdx(i);
            m_listView->setStartIdx(qMax(0, i - 2));
            return;
        }
    }
}

/// The first page as it is without what was deleted, and the word about it. False when the screen was closed.
bool Contact::showAfterDeletion()
{
    reload();
    setupListViewItems(false, -1, 0, true);
    setupTail();
    if (!Notices::show(this, tr("Deleted"), Notices::Icon::Delete))
        return false;
    m_listView->setFocus(Qt::OtherFocusReason);
    return true;
}

void Contact::deleteSelected()
{
    auto *cell = dynamic_cast<ListViewContactGridItem *>(m_listView->item(m_listView->selectedIdx()));
    if (!cell)
        return;
    const ContactRemoval removal(cell->getId(), static_cast<ContactData::Contact_Type>(cell->getContactType()));
    if (!Notices::ask(this, messageBox(), tr("Delete the contact"), tr("Do you want to delete the contact?"),
                      tr("Delete"), tr("No")))
        return;
    switch (removal.remove()) {
    case ContactRemoval::Removed:
        showAfterDeletion();
        removal.announce();
        break;
    case ContactRemoval::MembershipsFailed:
        if (Notices::show(this, tr("Failed"), Notices::Icon::Error))
            m_listView->setFocus(Qt::OtherFocusReason);
        break;
    case ContactRemoval::ContactFailed: break;
    }
}

void Contact::deleteAll()
{
    if (m_listView->itemSize() == 0)
        return;
    const QString question
        = tr("Do you want to delete all of contacts?") + '\n' + tr("Mobile Contacts will not be deleted.");
    if (!Notices::ask(this, messageBox(), tr("Delete All Contacts"), question, tr("Delete"), tr("No")))
        return;
    ContactManager *store = theCore->contactManager();
    if (!store->deleteAllGroupMember())
        return;
    if (!store->deleteAllContacts()) {
        qDebug() << "Contact::deleteAll Failed to delete all of contacts";
        return;
    }
    if (showAfterDeletion())
        m_listViewPage = 0;
    theCore->sendAppMsg("idle", "contactAllDelete()", QByteArray(""));
}

void Contact::closeAll()
{
    update();
    closeChildren();
    accept();
}
