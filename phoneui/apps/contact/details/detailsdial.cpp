#include "detailsdial.h"

#include "contactmanager.h"
#include "contactremoval.h"
#include "core.h"
#include "groupnames.h"
#include "listview.h"
#include "listviewcontactitem.h"
#include "mergedcontacts.h"
#include "messagebox.h"
#include "neighbours.h"
#include "notices.h"
#include "numberedit.h"
#include "numbertypes.h"
#include "qcalllist.h"
#include "ringtones.h"
#include "rowpainting.h"
#include "screenwatch.h"
#include "settingsfile.h"
#include "status.h"
#include "tail.h"

#include <QLabel>
#include <QTimer>

namespace {

const QRect listGeometry(QPoint(5, 2), QPoint(378, 105));
constexpr QRect TypeIconGeometry(0, 4, 24, 24);
constexpr int FlowDelay = 1000; // ms

enum SoftKey { CallKey = 0, MessageKey = 1, DeleteKey = 2, EditKey = 3 };

}

DetailsDial::DetailsDial(QWidget *parent, int id, int contactType)
    : BaseWidget(parent), m_contactId(id), m_contactType(contactType), m_flowDelayTimer(new QTimer(this))
{
    setObjectName("DetailsDial");
    m_flowDelayTimer->setInterval(FlowDelay);
    m_flowDelayTimer->setSingleShot(true);
    connect(m_flowDelayTimer, &QTimer::timeout, this, &DetailsDial::startTimer);
    DetailsDial::setupStatus();
    setupContactTypePixmap(contactType);
    setupListView();
    setupListViewItems(id);
    setupTail();
    connect(tail, &Tail::clicked, this, &DetailsDial::tailFuncButtonClicked);
    setFocusPolicy(Qt::StrongFocus);
}

DetailsDial::~DetailsDial() = default;

void DetailsDial::setupStatus()
{
    if (status)
        status->setTitle(tr("Contacts | ") + tr("Details"));
}

void DetailsDial::setupContactTypePixmap(int type)
{
    if (!m_typeIconLabel) {
        m_typeIconLabel = new QLabel(this);
        m_typeIconLabel->setGeometry(TypeIconGeometry);
    }
    const bool isLocal = type == ContactData::LocalContact;
    m_typeIconLabel->setPixmap(isLocal ? QPixmap() : QPixmap(":/contact/images/menu_icon_mobile.png"));
}

void DetailsDial::setupListView()
{
    m_listView = new ListView(this);
    m_listView->setObjectName("DetailsDial::m_listView");
    m_listView->setGeometry(listGeometry);
    connect(m_listView, &ListView::clicked, this, &DetailsDial::clickedListViewItem);
    connect(m_listView, &ListView::clicked, this, &DetailsDial::selectedItem);
    connect(m_listView, &ListView::focusChanged, this, &DetailsDial::focusChangedListViewItem);
    connect(m_listView, &ListView::keyPressed, this, &DetailsDial::keyPressed);
    connect(m_listView, &ListView::clickedFuncKey, this, &DetailsDial::clickedFuncKey);
    m_listView->setFocus(Qt::OtherFocusReason);
}

ListViewContactItem *DetailsDial::addRow(const QString &label, const QString &text, const QString &picture)
{
    auto *row = new ListViewContactItem(text, label);
    row->setPixmap(RowPainting::picture(picture + ".png"), RowPainting::picture(picture + "_press.png"));
    m_listView->addItem(row);
    return row;
}

void DetailsDial::setupListViewItems(int id)
{
    stopTimer();
    m_flowItemIdx = -1;
    m_listView->itemClear();
    const ContactData contact = MergedContacts::read(id, m_contactType);
    m_contactName = contact.name;
    const QString plainPicture = numberPicture(ContactData::Etc);

    addRow(tr("Name"), contact.name, plainPicture);
    if (m_contactType == ContactData::LocalContact)
        addRow(tr("Group"), groupNames(theCore->contactManager()->getGroupIdsOfMember(id), tr("Unassigned")),
               plainPicture);
    m_numberCount = 0;
    for (int slot = 0; slot < ContactData::NumberCount; ++slot) {
        if (contact.number(slot).isEmpty())
            continue;
        const auto kind = contact.numberType(slot);
        addRow(getNumberTypeStr(kind), contact.number(slot), numberPicture(kind))
            ->setItemType(ListViewContactItem::ItemTypeMarked);
        ++m_numberCount;
    }
    for (int slot = 0; slot < ContactData::EmailCount; ++slot) {
        if (!contact.email(slot).isEmpty())
            addRow(tr("Email"), contact.email(slot), plainPicture);
    }
    if (!contact.bell.isEmpty())
        addRow(tr("Bell"), RingTones::baseName(contact.bell), plainPicture);
    if (!contact.memo.isEmpty())
        addRow(tr("Memo"), contact.memo, plainPicture);

    if (m_listView->selectedIdx() >= m_listView->itemSize()) {
        m_listView->setStartIdx(0);
        m_listView->setSelectedIdx(0);
    }
    startflowString(m_listView->selectedIdx());
    m_listView->update();
}

bool DetailsDial::isNumberRow(int idx) const
{
    auto *row = dynamic_cast<ListViewContactItem *>(m_listView->item(idx));
    return row && row->getItemType() == ListViewContactItem::ItemTypeMarked;
}

void DetailsDial::setupTail()
{
    const QString none;
    QStringList labels{none, none, none, none};
    if (m_listView) {
        if (isNumberRow(m_listView->selectedIdx())) {
            labels[CallKey] = tr("Call");
            labels[MessageKey] = tr("Message");
        }
        if (m_contactType == ContactData::LocalContact) {
            labels[DeleteKey] = tr("Delete");
            labels[EditKey] = tr("Edit");
        }
    }
    for (int i = 0; i < labels.size(); ++i)
        tail->setFuncButtonText(i, labels.at(i));
}

void DetailsDial::retranslate()
{
    setupListViewItems(m_contactId);
    setupTail();
}

void DetailsDial::showEvent(QShowEvent *) { }

void DetailsDial::hideEvent(QHideEvent *)
{
    stopTimer();
}

void DetailsDial::closeWindows()
{
    closeScreen(m_numberEdit);
}

void DetailsDial::tailFuncButtonClicked(int idx)
{
    const QString label = tail->funcButtonText(idx);
    if (idx == CallKey && label == tr("Call")) {
        callByNumber();
    } else if (idx == MessageKey && label == tr("Message")) {
        const SettingsFile provisioning(theCore->sipConfigFileName("phone_info.conf"));
        const bool loggedOut
            = provisioning.value("Prov_Info/LoginMode").isEmpty() && provisioning.value("Prov_Info/Id").isEmpty();
        if (loggedOut)
            Notices::show(this, tr("Logout status"), Notices::Icon::Error);
        else
            sendMessageByNumber();
    } else if (idx == DeleteKey && label == tr("Delete")) {
        deleteContact();
    } else if (idx == EditKey && label == tr("Edit")) {
        edit();
    }
}

void DetailsDial::edit()
{
    runScreen(
        m_numberEdit, this, [this] { return new NumberEdit(this, m_contactId, QString(), -1); },
        [this](NumberEdit *) {
            setupListViewItems(m_contactId);
            setupTail();
        });
}

void DetailsDial::clickedListViewItem(int idx)
{
    if (isNumberRow(idx))
        callAndLeave(getFocusedNumber(idx), getCurrentContactName());
}

void DetailsDial::callByNumber()
{
    const int idx = m_listView->selectedIdx();
    if (isNumberRow(idx))
        callAndLeave(getFocusedNumber(idx), m_contactName);
}

void DetailsDial::callAndLeave(const QString &number, const QString &name)
{
    if (Neighbours::isInCall())
        return;
    Neighbours::leaveAndDial(this, number, name);
}

void DetailsDial::sendMessageByNumber()
{
    const int idx = m_listView->selectedIdx();
    if (isNumberRow(idx))
        Neighbours::writeMessage(getFocusedNumber(idx));
}

void DetailsDial::showHistoryByNumber()
{
    const QString number = getFocusedNumber(m_listView->selectedIdx());
    if (theCore->callList()->callsbyNumber(number).isEmpty()) {
        Notices::show(this, tr("No History"), Notices::Icon::Error);
    } else if (m_tailClickedClose) {
        close();
    } else {
        theCore->launch("history", nullptr);
        Neighbours::send("history", "viewDetail(str)", {number});
    }
}

void DetailsDial::deleteContact()
{
    MessageBox box(this);
    if (!Notices::ask(this, box, tr("Delete the contact"), tr("Do you want to delete the contact?"), tr("Delete"),
                      tr("No")))
        return;
    const ContactRemoval removal(m_contactId, static_cast<ContactData::Contact_Type>(m_contactType));
    bool stillHere = true;
    switch (removal.remove()) {
    case ContactRemoval::Removed:
        stillHere = Notices::show(this, tr("Deleted"), Notices::Icon::Delete);
        removal.announce();
        break;
    case ContactRemoval::MembershipsFailed:
        stillHere = Notices::show(this, tr("Failed"), Notices::Icon::Error);
        break;
    case ContactRemoval::ContactFailed: return;
    }
    if (stillHere)
        close();
}
