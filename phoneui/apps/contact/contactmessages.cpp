// Contact: the commands of other applications and of the peers.

#include "contact.h"
#include "thumbnail.h"

#include "core.h"
#include "gridselectview.h"
#include "wpsmcontactmanager.h"

#include <QPixmapCache>

struct Contact::Command
{
    const char *text;
    void (Contact::*handler)();
};

void Contact::receiveMsg(const QString &command, const QByteArray &)
{
    // The text is matched as a whole; the blank within one of them is part of it.
    static const Command commands[] = {
        {"changedLanguage()", &Contact::handleChangedLanguage},
        {"noti_phoneInit()", &Contact::handlePhoneInit},
        {"api2ui_noti_contact_changed()", &Contact::handleContactChanged},
        {"wpsm2ui _noti_contact_changed(int)", &Contact::handleMobileContactChanged},
        {"wpsm2ui_noti_device_connected(int)", &Contact::handleDevice},
        {"wpsm2ui_noti_device_disconnected(int)", &Contact::handleDevice},
        {"BuddyStatusChanged()", &Contact::refreshPresence},
        {"CloseContact()", &Contact::handleCloseContact},
    };
    for (const Command &known : commands) {
        if (command == QLatin1String(known.text)) {
            (this->*known.handler)();
            return;
        }
    }
}

void Contact::reload()
{
    m_totalCount = loadContactData();
}

void Contact::refreshIfVisible()
{
    if (!isVisible())
        return;
    setupListViewItems(false, -1, 0, true);
    setupTail();
    update();
}

void Contact::handleChangedLanguage()
{
    reloadLanguage();
    setupChooserRows();
    setupStatus();
    setupTail();
    update();
}

void Contact::handlePhoneInit()
{
    reload();
    Thumbnail::clear();
    setupListViewItems(false, -1, 0, true);
}

void Contact::handleContactChanged()
{
    reload();
    refreshIfVisible();
}

void Contact::handleMobileContactChanged()
{
    theCore->wpsmContactManager()->readWpsmConfigFile();
    Thumbnail::clear();
    QPixmapCache::clear();
    handleContactChanged();
}

void Contact::handleDevice()
{
    theCore->wpsmContactManager()->readWpsmConfigFile();
    reload();
    refreshIfVisible();
}

void Contact::handleCloseContact()
{
    if (isHidden())
        return;
    update();
    close();
}

void Contact::refreshPresence()
{
    const int cell = m_listView->selectedIdx();
    if (!isVisible() || m_listView->itemSize() == 0 || cell < 0)
        return;
    reload();
    setupListViewItems(true, -1, cell, false);
}
