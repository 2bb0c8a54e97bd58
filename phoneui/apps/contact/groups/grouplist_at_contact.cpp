#include "grouplist_at_contact.h"

#include "contactmanager.h"
#include "core.h"
#include "imagebutton.h"
#include "inputpopup.h"
#include "listview.h"
#include "listviewcheckitem.h"
#include "notices.h"
#include "screenwatch.h"
#include "status.h"
#include "tail.h"

#include <QCloseEvent>
#include <QTextCodec>

namespace {

const QRect listGeometry(QPoint(5, 2), QPoint(378, 105));
constexpr int MostRows = 10; // fewer than a phone may have in all
constexpr int NameLength = 30, MostNameBytes = 30;

enum SoftKey { CreateKey = 0, DoneKey = 3 };

}

GroupList_At_Contact::GroupList_At_Contact(QWidget *parent, QList<int> selectedIds) : BaseWidget(parent)
{
    setObjectName("GroupList_At_Contact");
    GroupList_At_Contact::setupStatus();
    setupTail();
    connect(tail, &Tail::clicked, this, &GroupList_At_Contact::tailFuncButtonClicked);
    setupListView();
    setupListViewItems();
    setSelectedGroups(selectedIds);
    setFocusPolicy(Qt::StrongFocus);
}

void GroupList_At_Contact::setupStatus()
{
    if (status)
        status->setTitle(tr("Contacts | Groups"));
}

void GroupList_At_Contact::setupTail()
{
    tail->setFuncButtonText(CreateKey, tr("Create Group"));
    tail->setFuncButtonText(1, QString());
    tail->setFuncButtonText(2, QString());
    tail->setFuncButtonText(DoneKey, tr("Done"));
}

void GroupList_At_Contact::retranslate()
{
    setupTail();
    rowOfGroup(GroupData::UnassignedId)->setText(tr("Unassigned"));
    m_listView->update();
}

void GroupList_At_Contact::setupListView()
{
    m_listView = new ListView(this);
    m_listView->setGeometry(listGeometry);
    m_listView->setLineColor(Qt::black);
    connect(m_listView, &ListView::clicked, this, &GroupList_At_Contact::clickedListViewItem);
    m_listView->show();
    m_listView->setSelectedIdx(0);
    m_listView->setFocus(Qt::OtherFocusReason);
}

ListViewCheckGroupItem *GroupList_At_Contact::row(int idx) const
{
    return dynamic_cast<ListViewCheckGroupItem *>(m_listView->item(idx));
}

ListViewCheckGroupItem *GroupList_At_Contact::rowOfGroup(int id) const
{
    for (int i = 0; i < m_listView->itemSize(); ++i) {
        if (row(i)->getId() == id)
            return row(i);
    }
    return nullptr;
}

ListViewCheckGroupItem *GroupList_At_Contact::addRow(const QString &name, int id)
{
    auto *added = new ListViewCheckGroupItem(name, false, id);
    added->setTextColor(Qt::black);
    added->setTextSelectColor(Qt::white);
    added->setBackGroundSelectColor(Qt::black);
    m_listView->addItem(added);
    return added;
}

void GroupList_At_Contact::setupListViewItems()
{
    m_listView->itemClear();
    addRow(tr("Unassigned"), GroupData::UnassignedId);
    const QList<GroupData> groups = theCore->contactManager()->getAllGroups(false);
    for (const GroupData &group : groups) {
        if (group.id != GroupData::UnassignedId)
            addRow(group.name, group.id);
    }
    m_listView->update();
}

void GroupList_At_Contact::setSelectedGroups(QList<int> ids)
{
    const int end = qMin(theCore->contactManager()->getCountOfGroup(), m_listView->itemSize());
    for (int i = 0; i < end; ++i) {
        if (ids.contains(row(i)->getId()))
            row(i)->setChecked(true);
    }
    m_listView->update();
}

bool GroupList_At_Contact::isAnyChecked() const
{
    for (int i = 0; i < m_listView->itemSize(); ++i) {
        if (row(i)->isChecked())
            return true;
    }
    return false;
}

void GroupList_At_Contact::clickedListViewItem(int idx)
{
    ListViewCheckGroupItem *clicked = row(idx);
    if (!clicked)
        return;
    if (clicked->getId() == GroupData::UnassignedId) {
        for (int i = 0; i < m_listView->itemSize(); ++i) {
            if (row(i) != clicked)
                row(i)->setChecked(false);
        }
    } else {
        ListViewCheckGroupItem *unassigned = rowOfGroup(GroupData::UnassignedId);
        unassigned->setChecked(false);
        unassigned->setChecked(!isAnyChecked());
    }
    m_listView->update();
}

QList<GroupData> GroupList_At_Contact::getGroupSelection()
{
    QList<GroupData> chosen;
    const int end = qMin(theCore->contactManager()->getAllGroups(true).size(), m_listView->itemSize());
    for (int i = 0; i < end; ++i) {
        if (row(i)->isChecked())
            chosen.append(GroupData(row(i)->getId(), row(i)->text()));
    }
    return chosen;
}

void GroupList_At_Contact::tailFuncButtonClicked(int idx)
{
    if (idx == CreateKey) {
        createGroup();
    } else if (idx == DoneKey) {
        if (!isAnyChecked())
            rowOfGroup(GroupData::UnassignedId)->setChecked(true);
        close();
    }
}

/// False when no name was given or the screen was closed meanwhile.
bool GroupList_At_Contact::askForName(QString *name)
{
    const ScreenWatch watch(this);
    InputPopup popup(this);
    popup.setTitle(tr("Create Group"));
    popup.setMaxLength(NameLength);
    popup.setIMEType(theCore->getLanguage() == Korean ? IMEFirst : IMESmall);
    popup.additionalButton()->setText(tr("Erase"));
    popup.displayAdditionalButton(true);
    popup.setSoft3ButtonToErase(true);
    popup.okButton()->setText(tr("OK"));
    popup.cancelButton()->setText(tr("Cancel"));
    popup.setFocus(Qt::OtherFocusReason);
    const bool accepted = popup.exec() != QDialog::Rejected;
    *name = popup.editText();
    return accepted && !watch.closed();
}

/// Why the name is refused, empty when it is not. The length is that of the name as the store keeps it.
QString GroupList_At_Contact::nameFault(const QString &name) const
{
    const QTextCodec *codec = QTextCodec::codecForName(theCore->charset().toLatin1());
    if (!codec)
        return QString();
    const size_t length = qstrlen(codec->fromUnicode(name).constData());
    if (length < 1)
        return tr("Enter name");
    if (length > MostNameBytes)
        return tr("Input name max 30 byte");
    return theCore->contactManager()->existGroupName(name) ? tr("Group name already exists") : QString();
}

void GroupList_At_Contact::createGroup()
{
    const ScreenWatch watch(this);
    QList<int> checked;
    for (int i = 0; i < m_listView->itemSize(); ++i) {
        if (row(i)->isChecked())
            checked.append(row(i)->getId());
    }
    if (m_listView->itemSize() > MostRows) {
        if (Notices::show(this, tr("Max limit exceeded"), Notices::Icon::Error))
            m_listView->setFocus(Qt::OtherFocusReason);
        return;
    }

    if (status)
        status->setTitle(tr("Contacts | Create Group"));
    QString name;
    const bool given = askForName(&name);
    if (watch.closed())
        return;
    m_listView->setFocus(Qt::OtherFocusReason);
    m_listView->update();
    if (!given)
        return;
    const QString fault = nameFault(name);
    if (!fault.isEmpty()) {
        if (Notices::show(this, fault, Notices::Icon::Error))
            m_listView->setFocus(Qt::OtherFocusReason);
        return;
    }

    createSimpleGroup(name);
    setupListViewItems();
    for (int i = 0; i < m_listView->itemSize(); ++i)
        row(i)->setChecked(checked.contains(row(i)->getId()));
    if (!Notices::show(this, tr("Created"), Notices::Icon::Confirm))
        return;
    setupStatus();
    m_listView->setFocus(Qt::OtherFocusReason);
    m_listView->update();
}

void GroupList_At_Contact::createSimpleGroup(QString name)
{
    theCore->contactManager()->saveGroup(GroupData(-1, name, QString("")), false);
    m_listView->update();
}
