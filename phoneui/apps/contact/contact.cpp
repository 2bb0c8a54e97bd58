#include "contact.h"

#include "callmanager.h"
#include "contactmanager.h"
#include "core.h"
#include "detailsdial.h"
#include "gridselectview.h"
#include "grouplist.h"
#include "messagebox.h"
#include "numberedit.h"
#include "phonebookfile.h"
#include "pluginverification.h"
#include "screenwatch.h"
#include "searchall.h"
#include "searchdir.h"
#include "status.h"
#include "systemphonebooklistwidget.h"
#include "tail.h"
#include "wpsmcontactmanager.h"

#include <QDebug>
#include <QEvent>
#include <QLabel>
#include <QPainter>

PHONEUI_EXPORT_PLUGIN_VERIFICATION

static const char defaultPresenceDomain[] = "presence.local";

Contact::Contact(QWidget *parent) : BaseWidget(parent), BaseAppInterface("contact", parent)
{
    setFocusPolicy(Qt::StrongFocus);
    reloadLanguage();
    m_totalCount = loadContactData();
    setObjectName("contact");

    setupListView();
    setupListViewItems(false, -1, 0, true);
    setupContactListView();
    m_systemPhonebookEnabled = checkSystemPhonebookEnabled();
    if (m_systemPhonebookEnabled) {
        m_listView->hide();
        m_step = SelectStep;
    } else {
        m_selectListView->hide();
    }

    Contact::setupStatus();
    setupTail();
    connect(tail, &Tail::clicked, this, &Contact::tailFuncButtonClicked);
}

Contact::~Contact() = default;

bool Contact::start(QWidget *, void *)
{
    if (isVisible()) {
        end();
        return true;
    }
    m_systemPhonebookEnabled = checkSystemPhonebookEnabled();
    m_step = m_systemPhonebookEnabled ? SelectStep : ListStep;
    setModal(true);
    setVisible(true);
    m_listView->setFocus(Qt::OtherFocusReason);
    theCore->setVisibleContact(true);
    return true;
}

/// Closes the screens that this one has opened, and with each what that one has opened.
void Contact::closeChildren()
{
    closeScreen(m_detailsDial);
    closeScreen(m_groupList);
    closeScreen(m_searchAll);
    closeScreen(m_searchAllOther);
    closeScreen(m_numberEdit);
    closeScreen(m_searchDir);
}

void Contact::end()
{
    closeChildren();
    if (m_messageBox)
        m_messageBox->close();
    closeScreen(m_systemPhonebookList);
    m_Directory = 0;
    theCore->setVisibleContact(false);
    if (isVisible())
        close();
}

bool Contact::checkSystemPhonebookEnabled()
{
    const QString path = PhonebookFile::path();
    if (path.isEmpty()) {
        qDebug() << "Contact::checkSystemPhonebookEnabled empty config file path:"
                 << "CONFIG"
                 << "PBOOK_CONF";
        return false;
    }
    return PhonebookFile::announcedCount(path) != 0;
}

QString Contact::checkDomain(QString id)
{
    return id.contains('@') ? id : id + '@' + defaultPresenceDomain;
}

bool Contact::event(QEvent *event)
{
    if (event->type() == QEvent::WindowActivate && status)
        status->setVisible(true);
    return BaseWidget::event(event);
}

void Contact::paintEvent(QPaintEvent *)
{
    QPainter(this).fillRect(rect(), QBrush(QColor(255, 255, 255, 255)));
}

void Contact::showEvent(QShowEvent *)
{
    if (m_listView->isHidden())
        m_listView->show();
    theCore->sendAppMsg("call", "m_isContactOpened()", QByteArray(""));
    theCore->setVisibleMenu(true);
    theCore->setCurrentActivateApp(appName());
    if (theCore->callManager()->callState() != "IDLE") {
        theCore->sendAppMsg("call", "ShowPopup", QByteArray(""));
        theCore->sendAppMsg("idle", "raiseStatus()", QByteArray(""));
        repaint();
    }
    m_totalCount
        = theCore->wpsmContactManager()->getCountOfContact() + theCore->contactManager()->getCountOfContact();
    if (m_systemPhonebookEnabled) {
        m_listView->hide();
        m_selectListView->setSelectedIdx(0);
        m_selectListView->raise();
        m_selectListView->show();
        m_selectListView->setFocus(Qt::OtherFocusReason);
    } else {
        m_selectListView->hide();
        openPersonalPhonebook();
    }
    setupTail();
    update();
}

void Contact::hideEvent(QHideEvent *)
{
    const bool messageOnTop = theCore->currentActivateApp() == "message";
    if (theCore->callManager()->callState() == "CONNECT" && !theCore->keepStatus && !messageOnTop) {
        theCore->sendAppMsg("idle", "lowerStatus()", QByteArray(""));
        theCore->sendAppMsg("call", "HidePopup", QByteArray(""));
    }
    closeChildren();
    theCore->sendAppMsg("call", "m_isContactOpenedOff()", QByteArray(""));
    if (m_messageBox)
        m_messageBox->close();
    theCore->setVisibleMenu(false);
    theCore->setVisibleContact(false);
}
