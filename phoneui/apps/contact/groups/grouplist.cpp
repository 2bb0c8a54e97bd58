#include "grouplist.h"

#include "contactmanager.h"
#include "core.h"
#include "groupadd.h"
#include "groupdetail.h"
#include "imagebutton.h"
#include "listview.h"
#include "listviewgrouplistitem.h"
#include "membership.h"
#include "messagebox.h"
#include "notices.h"
#include "screenwatch.h"
#include "status.h"
#include "tail.h"

namespace {

const QRect listGeometry(QPoint(5, 2), QPoint(378, 105));
constexpr int MostGroups = 30;
constexpr int SecondEntry = 1;

enum SoftKey { AllKey = 0, AddKey = 1, DeleteKey = 2, EditKey = 3 };

}

GroupList::GroupList(QWidget *parent) : BaseWidget(parent)
{
    setObjectName("GroupList");
    GroupList::setupStatus();
    setupTail();
    setupListView();
    setupListViewItems();
    setFocusPolicy(Qt::StrongFocus);
    connect(tail, &Tail::clicked, this, &GroupList::tailFuncButtonClicked);
}

void GroupList::setupStatus()
{
    if (status)
        status->setTitle(tr("Contacts | Groups"));
}

void GroupList::setupTail()
{
    tail->setFuncButtonText(AllKey, tr("All"));
    tail->setFuncButtonText(AddKey, tr("Add Group"));
    tail->setFuncButtonText(DeleteKey, QString());
    tail->setFuncButtonText(EditKey, QString());
}

void GroupList::retranslate()
{
    setupTail();
    setupListViewItems();
    focusChangedListViewItem(m_listView->selectedIdx());
}

void GroupList::setupListView()
{
    m_listView = new ListView(this);
    connect(m_listView, &ListView::clicked, this, &GroupList::clickedListViewItem);
    connect(m_listView, &ListView::focusChanged, this, &GroupList::focusChangedListViewItem);
    m_listView->setLineColor(Qt::black);
    m_listView->setGeometry(listGeometry);
    m_listView->show();
    m_listView->setSelectedIdx(0);
}

void GroupList::addRow(const QString &name, int id)
{
    const int count = theCore->contactManager()->getGroupMemberCount(id, false);
    m_listView->addItem(new ListViewGroupListItem(name, QString::number(count), id));
}

void GroupList::setupListViewItems()
{
    const int selected = m_listView->selectedIdx();
    m_listView->itemClear();
    theCore->openContactDatabase();
    addRow(tr("Unassigned"), GroupData::UnassignedId);
    const QList<GroupData> groups = theCore->contactManager()->getAllGroups(false);
    for (const GroupData &group : groups) {
        if (group.id != GroupData::UnassignedId)
            addRow(group.name, group.id);
    }
    theCore->closeContactDatabase();
    m_listView->update();
    m_listView->setFocus(Qt::OtherFocusReason);
    m_listView->setSelectedIdx(qMin(selected, m_listView->itemSize() - 1));
}

int GroupList::groupIdOf(int idx) const
{
    auto *row = dynamic_cast<ListViewGroupListItem *>(m_listView->item(idx));
    return row ? row->getId() : -1;
}

int GroupList::getGroupId()
{
    return groupIdOf(m_listView->selectedIdx());
}

void GroupList::focusChangedListViewItem(int idx)
{
    if (idx >= m_listView->itemSize())
        return;
    const bool own = groupIdOf(idx) != GroupData::UnassignedId;
    tail->setFuncButtonText(DeleteKey, own ? tr("Delete") : QString());
    tail->setFuncButtonText(EditKey, own ? tr("Edit") : QString());
    tail->update();
}

void GroupList::showEvent(QShowEvent *)
{
    setupListViewItems();
    focusChangedListViewItem(m_listView->selectedIdx());
    m_listView->setFocus(Qt::OtherFocusReason);
}

void GroupList::hideEvent(QHideEvent *) { }

void GroupList::closeWindows()
{
    closeScreen(m_groupAdd);
    closeScreen(m_groupDetail);
}

void GroupList::clickedListViewItem(int idx)
{
    const int id = groupIdOf(idx);
    if (id < 0)
        return;
    runScreen(
        m_groupDetail, this, [this, id] { return new GroupDetail(this, id); },
        [this, idx](GroupDetail *) {
            setupListViewItems();
            setupStatus();
            focusChangedListViewItem(qMin(idx, m_listView->itemSize() - 1));
        });
}

void GroupList::tailFuncButtonClicked(int idx)
{
    const QString label = tail->funcButtonText(idx);
    if (label == tr("All"))
        close();
    else if (label == tr("Add Group"))
        addGroup();
    else if (label == tr("Delete"))
        deleteGroup();
    else if (label == tr("Edit"))
        editGroup();
}

void GroupList::moveListItemByStr(QString name)
{
    m_moveItemStr = name;
}

void GroupList::selectRow(const QString &name)
{
    for (int row = 0; row < m_listView->itemSize(); ++row) {
        if (m_listView->item(row)->text() == name) {
            m_listView->setSelectedIdx(row);
            m_listView->setStartIdx(qMax(0, row - 2));
            return;
        }
    }
}

void GroupList::addGroup()
{
    if (theCore->contactManager()->getAllGroups(true).size() > MostGroups) {
        if (Notices::show(this, tr("Max limit exceeded"), Notices::Icon::Error))
            m_listView->setFocus(Qt::OtherFocusReason);
        return;
    }
    runScreen(
        m_groupAdd, this,
        [this] {
            auto *form = new GroupAdd(this, -1);
            connect(form, &GroupAdd::newGroupAdded, this, &GroupList::moveListItemByStr);
            return form;
        },
        [this](GroupAdd *) {
            setupStatus();
            setupListViewItems();
            selectRow(m_moveItemStr);
            m_listView->update();
        });
}

void GroupList::editGroup()
{
    if (m_listView->itemSize() == 0)
        return;
    runScreen(
        m_groupAdd, this, [this] { return new GroupAdd(this, getGroupId()); },
        [this](GroupAdd *) {
            setupStatus();
            setupListViewItems();
        });
}

/// False when a member could not be moved; the others are moved all the same.
bool GroupList::moveMembersOff(int groupId) const
{
    bool allMoved = true;
    const QList<int> members = theCore->contactManager()->getMembersOfGroup(groupId);
    for (const int member : members)
        allMoved = Membership::leave(member, groupId, SecondEntry) && allMoved;
    return allMoved;
}

void GroupList::deleteGroup()
{
    if (m_listView->itemSize() == 0)
        return;
    const ScreenWatch watch(this);
    const int groupId = getGroupId();
    MessageBox box(this);
    box.setMessage(tr("Delete the group?"));
    box.setSubMessage(tr("Group members will move to Unassigned group"));
    const bool wanted
        = Notices::ask(this, box, tr("Delete Group"), tr("Delete the group?"), tr("Delete"), tr("No"));
    if (watch.closed())
        return;
    if (wanted) {
        const bool deleted = moveMembersOff(groupId) && theCore->contactManager()->deleteGroup(groupId);
        if (deleted && m_listView->itemSize() > 0) {
            const int above = m_listView->selectedIdx() - 1;
            m_listView->setSelectedIdx(above);
            m_listView->setStartIdx(qMax(0, above - 4));
        }
        const bool stillHere = deleted ? Notices::show(this, tr("Deleted"), Notices::Icon::Delete)
                                       : Notices::show(this, tr("Failed"), Notices::Icon::Error);
        if (!stillHere)
            return;
    }
    setupListViewItems();
}
