// Contact: the commands of other applications and of the peers.

#include "contact.h"
#include "thumbnail.h"

#include "answerfile.h"
#include "contactmanager.h"
#include "core.h"
#include "detailsdial.h"
#include "directorydocument.h"
#include "gridselectview.h"
#include "grouplist.h"
#include "numberedit.h"
#include "screenwatch.h"
#include "searchall.h"
#include "searchdir.h"
#include "wpsmcontactmanager.h"

#include <QDataStream>
#include <QDebug>
#include <QPixmapCache>

struct Contact::Command
{
    const char *text;
    void (Contact::*handler)(QDataStream &payload);
};

void Contact::receiveMsg(const QString &command, const QByteArray &payload)
{
    // The text is matched as a whole; the blank within one of them is part of it.
    static const Command commands[] = {
        {"newContact(str)", &Contact::handleNewContact},
        {"viewContactSearchAll(str)", &Contact::handleViewContactSearchAll},
        {"viewContactSearchDir(str)", &Contact::handleViewContactSearchDir},
        {"viewContact(str)", &Contact::handleViewContact},
        {"showSearchAllToFindReceiver()", &Contact::handleFindReceiver},
        {"searchContact()", &Contact::handleSearchContact},
        {"http2ui_directory_service_response(str,int)", &Contact::handleDirectoryResponse},
        {"changedLanguage()", &Contact::handleChangedLanguage},
        {"noti_phoneInit()", &Contact::handlePhoneInit},
        {"api2ui_noti_contact_changed()", &Contact::handleContactChanged},
        {"wpsm2ui _noti_contact_changed(int)", &Contact::handleMobileContactChanged},
        {"wpsm2ui_contact_picture_ack(str,int,str)", &Contact::handlePictureAck},
        {"wpsm2ui_noti_device_connected(int)", &Contact::handleDeviceConnected},
        {"wpsm2ui_noti_device_disconnected(int)", &Contact::handleDeviceDisconnected},
        {"BuddyStatusChanged()", &Contact::handleBuddyStatus},
        {"LogOutResponse(int)", &Contact::handleLogOut},
        {"CloseContact()", &Contact::handleCloseContact},
        {"closeSearchAll()", &Contact::handleCloseSearchAll},
    };
    for (const Command &known : commands) {
        if (command == QLatin1String(known.text)) {
            QDataStream stream(payload);
            (this->*known.handler)(stream);
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

void Contact::handleNewContact(QDataStream &payload)
{
    QString number;
    payload >> number;
    runScreen(
        m_numberEdit, this, [this, number] { return new NumberEdit(this, -1, number, -1); },
        [this](NumberEdit *) {
            reload();
            close();
        });
}

/// Another application asked for the search: with it the contacts go, too.
void Contact::searchForCaller(int mode, const QString &number)
{
    runScreen(
        m_searchAll, this, [this, mode, number] { return new SearchAll(this, mode, number); },
        [this](SearchAll *) {
            reload();
            update();
            close();
        });
}

void Contact::handleViewContactSearchAll(QDataStream &payload)
{
    QString number;
    payload >> number;
    searchForCaller(SearchAll::AddNumberMode, number);
}

void Contact::handleFindReceiver(QDataStream &)
{
    closeScreen(m_searchAll);
    searchForCaller(SearchAll::ReceiverMode, QString());
}

void Contact::handleSearchContact(QDataStream &)
{
    searchForCaller(SearchAll::ProgramKeyMode, QString());
}

void Contact::handleViewContactSearchDir(QDataStream &payload)
{
    QString word;
    payload >> word;
    closeScreen(m_searchDir);
    m_listView->hide();
    runScreen(
        m_searchDir, this, [this, word] { return new SearchDir(this, word); }, [this](SearchDir *) { close(); });
}

void Contact::handleViewContact(QDataStream &payload)
{
    QString number;
    payload >> number;
    const ContactData contact = theCore->contactManager()->getContactByUsingNumber(number);
    closeScreen(m_detailsDial);
    runScreen(
        m_detailsDial, this,
        [this, contact] {
            auto *details = new DetailsDial(this, contact.id, contact.type);
            details->setTailClickedClose(true);
            return details;
        },
        [this](DetailsDial *) { end(); });
}

void Contact::handleDirectoryResponse(QDataStream &payload)
{
    QString path;
    qint32 number = 0;
    payload >> path >> number;
    qDebug() << "Contact::handleDirectoryResponse" << path << number;
    const AnswerFile answer(theCore->home(), path);
    if (answer.isForeign())
        return;
    int totalCount = 0;
    const QList<QList<DirectoryData>> results = loadData(answer.path().constData(), &totalCount);
    if (m_searchAll)
        m_searchAll->showSearchDirResult(results, totalCount);
    else if (m_searchDir)
        m_searchDir->showSearchDirResult(results, totalCount);
}

void Contact::handleChangedLanguage(QDataStream &)
{
    reloadLanguage();
    setupChooserRows();
    setupStatus();
    setupTail();
    update();
}

void Contact::handlePhoneInit(QDataStream &)
{
    reload();
    Thumbnail::clear();
    setupListViewItems(false, -1, 0, true);
}

void Contact::contactChanged()
{
    reload();
    if (m_groupList) {
        if (m_groupList->isVisible())
            m_groupList->setupListViewItems();
        return;
    }
    refreshIfVisible();
}

void Contact::handleContactChanged(QDataStream &)
{
    contactChanged();
}

void Contact::handleMobileContactChanged(QDataStream &)
{
    theCore->wpsmContactManager()->readWpsmConfigFile();
    Thumbnail::clear();
    QPixmapCache::clear();
    contactChanged();
}

void Contact::handlePictureAck(QDataStream &payload)
{
    QString text, result;
    qint32 number = 0;
    payload >> text >> number >> result;
    qDebug() << "Contact::handlePictureAck" << text << number << result;
}

void Contact::handleDeviceConnected(QDataStream &)
{
    theCore->wpsmContactManager()->readWpsmConfigFile();
    reload();
    refreshIfVisible();
}

void Contact::handleDeviceDisconnected(QDataStream &payload)
{
    closeChildren(); // they may show a contact of the device
    handleDeviceConnected(payload);
}

void Contact::handleBuddyStatus(QDataStream &)
{
    refreshPresence();
}

void Contact::handleLogOut(QDataStream &payload)
{
    qint32 value = 0;
    payload >> value;
    if (value != 0)
        refreshPresence();
}

void Contact::refreshPresence()
{
    const int cell = m_listView->selectedIdx();
    if (!isVisible() || m_listView->itemSize() == 0 || cell < 0)
        return;
    reload();
    setupListViewItems(true, -1, cell, false);
}

void Contact::handleCloseSearchAll(QDataStream &)
{
    closeScreen(m_searchAll);
    closeScreen(m_searchDir);
}

void Contact::handleCloseContact(QDataStream &)
{
    if (isHidden())
        return;
    closeChildren();
    update();
    close();
}
