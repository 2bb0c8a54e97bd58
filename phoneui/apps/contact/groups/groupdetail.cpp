#include "groupdetail.h"

#include "contactmanager.h"
#include "core.h"
#include "detailsdial.h"
#include "listview.h"
#include "listviewcontactitem.h"
#include "membership.h"
#include "messagebox.h"
#include "notices.h"
#include "numberedit.h"
#include "rowpainting.h"
#include "screenwatch.h"
#include "status.h"
#include "tail.h"

#include <QFile>
#include <QHash>
#include <QLabel>

#include <algorithm>

namespace {

const QRect listGeometry(QPoint(5, 2), QPoint(378, 105));
const char builtInName[] = "Unsigned"; // as the store has it
constexpr int FirstEntry = 0;

enum SoftKey { DetailKey = 0, AddKey = 1, DeleteKey = 2, DeleteAllKey = 3 };

QPixmap pictureOf(const ContactData &contact)
{
    const bool hasPhoto
        = contact.type == ContactData::LocalContact && !contact.picture.isEmpty() && QFile::exists(contact.picture);
    return hasPhoto ? QPixmap(contact.picture) : RowPainting::picture(":/contact/images/number_img_default.png");
}

}

GroupDetail::GroupDetail(QWidget *parent, int groupId) : BaseWidget(parent), m_groupId(groupId)
{
    setObjectName("GroupDetail");
    setupListView();
    setupListViewItems(groupId);
    m_noContactsLabel = new QLabel(tr("No contacts"), m_listView);
    m_noContactsLabel->setGeometry(m_listView->rect());
    m_noContactsLabel->setAlignment(Qt::AlignCenter);
    m_noContactsLabel->setStyleSheet("QLabel { color: #000000; }");
    m_noContactsLabel->hide();
    GroupDetail::setupStatus();
    setupTail();
    connect(tail, &Tail::clicked, this, &GroupDetail::tailFuncButtonClicked);
    setFocusPolicy(Qt::StrongFocus);
}

void GroupDetail::setupListView()
{
    m_listView = new ListView(this);
    m_listView->setObjectName("GroupDetail::m_listView");
    connect(m_listView, &ListView::clicked, this, &GroupDetail::clickedListViewItem);
    m_listView->setLineColor(Qt::black);
    m_listView->setGeometry(listGeometry);
    m_listView->setStartFuncKey(Qt::Key_F1);
    m_listView->setEnableFuncKey(true);
    m_listView->show();
    m_listView->setSelectedIdx(0);
}

void GroupDetail::setupStatus()
{
    if (!status)
        return;
    const QString name = theCore->contactManager()->getGroupName(m_groupId);
    const int count = theCore->contactManager()->getGroupMemberCount(m_groupId, true);
    status->setTitle(tr("Contacts | ") + (name == builtInName ? tr("Unassigned") : name)
                     + QString("(%1)").arg(count));
}

/// The members in the order of the rows. A member whose contact is gone stands as an empty one.
QList<ContactData> GroupDetail::members(int groupId) const
{
    QHash<int, ContactData> contacts;
    const QList<ContactData> all = theCore->contactManager()->getAllContacts();
    for (const ContactData &contact : all)
        contacts.insert(contact.id, contact);
    QList<ContactData> found;
    const QList<int> ids = theCore->contactManager()->getMembersOfGroup(groupId);
    for (const int id : ids)
        found.prepend(contacts.value(id)); // of one name, the one read last comes first
    std::stable_sort(found.begin(), found.end(),
                     [](const ContactData &a, const ContactData &b) { return a.name < b.name; });
    return found;
}

void GroupDetail::setupListViewItems(int groupId)
{
    if (groupId == GroupData::UnassignedId) {
        tail->setFuncButtonText(DeleteKey, QString());
        tail->setFuncButtonText(DeleteAllKey, QString());
    }
    m_listView->itemClear();
    const QList<ContactData> rows = members(groupId);
    m_listView->addItems(rows.size(), [rows](int i) {
        const ContactData &contact = rows.at(i);
        auto *row = new ListViewContactListItem(contact.name, contact.id, contact.type);
        row->setPixmap(pictureOf(contact), QPixmap());
        return row;
    });
    m_listView->update();
}

void GroupDetail::setupTail()
{
    const bool hasRows = m_listView->itemSize() > 0;
    const bool canRemove = hasRows && m_groupId != GroupData::UnassignedId;
    tail->setFuncButtonText(DetailKey, hasRows ? tr("Detail") : QString());
    tail->setFuncButtonText(AddKey, tr("Add Contact"));
    tail->setFuncButtonText(DeleteKey, canRemove ? tr("Delete") : QString());
    tail->setFuncButtonText(DeleteAllKey, canRemove ? tr("Delete All") : QString());
    m_noContactsLabel->setVisible(!hasRows);
    if (!hasRows)
        m_noContactsLabel->setFocus(Qt::OtherFocusReason);
    tail->update();
}

void GroupDetail::retranslate()
{
    m_noContactsLabel->setText(tr("No contacts"));
    setupTail();
}

void GroupDetail::refresh()
{
    setupStatus();
    setupListViewItems(m_groupId);
    setupTail();
    update();
}

void GroupDetail::showEvent(QShowEvent *)
{
    refresh();
}

void GroupDetail::hideEvent(QHideEvent *) { }

void GroupDetail::closeWindows()
{
    closeScreen(m_numberEdit);
    closeScreen(m_detailsDial);
}

/// The id of the contact that was saved, -1 for none.
int GroupDetail::addContact()
{
    int savedId = -1;
    runScreen(
        m_numberEdit, this, [this] { return new NumberEdit(this, -1, QString(), m_groupId); },
        [&savedId](NumberEdit *form) { savedId = form->getSavedId(); });
    return savedId;
}

void GroupDetail::tailFuncButtonClicked(int idx)
{
    const ScreenWatch watch(this);
    int savedId = -1;
    switch (idx) {
    case DetailKey:
        if (m_listView->itemSize() > 0)
            clickedListViewItem(m_listView->selectedIdx());
        break;
    case AddKey: savedId = addContact(); break;
    case DeleteKey: deleteContactInGroup(); break;
    case DeleteAllKey: deleteAllContactInGroup(); break;
    default: break;
    }
    if (watch.closed())
        return;
    refresh();
    m_listView->setSelectedIdx(0);
    m_listView->setStartIdx(0);
    for (int i = 0; i < m_listView->itemSize() && savedId >= 0; ++i) {
        auto *row = dynamic_cast<ListViewContactListItem *>(m_listView->item(i));
        if (row && row->getId() == savedId) {
            m_listView->setSelectedIdx(i);
            m_listView->setStartIdx(qMax(0, i - m_listView->pageCount() + 1));
        }
    }
    m_listView->setFocus(Qt::OtherFocusReason);
    update();
}

void GroupDetail::clickedListViewItem(int idx)
{
    auto *row = dynamic_cast<ListViewContactListItem *>(m_listView->item(idx));
    if (!row)
        return;
    const ContactData contact = theCore->contactManager()->getSpecificContactDetail(row->getId());
    runScreen(
        m_detailsDial, this, [this, contact] { return new DetailsDial(this, contact.id, contact.type); },
        [this](DetailsDial *) {
            m_listView->setFocus(Qt::OtherFocusReason);
            refresh();
            if (m_listView->selectedIdx() >= m_listView->itemSize())
                m_listView->setSelectedIdx(m_listView->itemSize() - 1);
        });
}

void GroupDetail::showOutcome(bool removed)
{
    const bool stillHere = removed ? Notices::show(this, tr("Deleted"), Notices::Icon::Delete)
                                   : Notices::show(this, tr("Failed"), Notices::Icon::Error);
    if (stillHere)
        m_listView->setFocus(Qt::OtherFocusReason);
}

void GroupDetail::deleteContactInGroup()
{
    auto *row = dynamic_cast<ListViewContactListItem *>(m_listView->item(m_listView->selectedIdx()));
    if (!row)
        return;
    const int id = row->getId();
    const QString question
        = tr("Do you want to delete the %1 in this group?").arg(theCore->contactManager()->getContactName(id));
    MessageBox box(this);
    if (!Notices::ask(this, box, tr("Delete Contact"), question, tr("Delete"), tr("No"))) {
        update();
        return;
    }
    showOutcome(Membership::leave(id, m_groupId, FirstEntry) != 0);
}

void GroupDetail::deleteAllContactInGroup()
{
    if (m_listView->itemSize() == 0)
        return;
    MessageBox box(this);
    if (!Notices::ask(this, box, tr("Delete All Contacts"),
                      tr("Do you want to delete all of contacts in this group?"), tr("Delete"), tr("No"))) {
        update();
        return;
    }
    bool allRemoved = true;
    const QList<int> ids = theCore->contactManager()->getMembersOfGroup(m_groupId);
    for (const int id : ids)
        allRemoved = Membership::leave(id, m_groupId, FirstEntry) && allRemoved;
    showOutcome(allRemoved);
}

buddyIdStatusType GroupDetail::currItemPresenceStatus(int row)
{
    auto *item = dynamic_cast<ListViewContactListItem *>(m_listView->item(row));
    if (!item || item->getContactType() != ContactData::LocalContact)
        return buddyIdStatusType();
    const ContactData contact = theCore->contactManager()->getSpecificContactDetail(item->getId());
    if (contact.buddyId.isEmpty())
        return buddyIdStatusType();
    return theCore->contactManager()->getPresenceStatus().value(contact.buddyId);
}
