#ifndef CONTACT_H
#define CONTACT_H

#include "baseappinterface.h"
#include "basewidget.h"
#include "buddyidstatustype.h"
#include "contactdata.h"
#include "mergedcontacts.h"

#include <QPointer>

class DetailsDial;
class GridSelectView;
class GroupList;
class ListView;
class ListViewItem;
class MessageBox;
class NumberEdit;
class QDataStream;
class QLabel;
class SearchAll;
class SearchDir;
class SystemPhonebookListWidget;

/// The contact application: the object that the shell talks to, and its first screen, the six-cell grid of all
/// contacts, local ones and those of the paired mobile device in one list by name.
///
/// With a provisioned system phonebook it opens on a chooser between the two phonebooks. The object lives as long
/// as its library; `start` and `end` show and hide it.
class Contact : public BaseWidget, public BaseAppInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID BaseAppInterface_iid)
    Q_INTERFACES(BaseAppInterface)

public:
    /// What the screen is for at the moment; the numbers stand in the log.
    enum Step { ListStep = 0, ManagingStep = 1, SelectStep = 10 };

    explicit Contact(QWidget *parent = nullptr);
    ~Contact() override;

    bool start(QWidget *parent, void *data) override;
    void end() override;
    void receiveMsg(const QString &command, const QByteArray &payload) override;

    /// True when the provisioned system phonebook has entries.
    bool checkSystemPhonebookEnabled();
    /// The id with the default presence domain behind it, unless it has one.
    QString checkDomain(QString id);

    // The data: contactdata.cpp.

    /// Reads both stores into the merged list and returns its length; the caller keeps that as the total. With both
    /// stores empty it returns 0 and leaves the list as it was.
    int loadContactData();
    /// The presence of a cell of the page; both values are -1 for a contact without any.
    buddyIdStatusType currItemPresenceStatus(int idx);

    // The screen: contactscreen.cpp.

    void setupStatus() override;
    /// Shows the place of a contact, counted from 0 over all pages, in the title.
    void setStatusTitle(int idx);
    void setupListView();
    void setupContactListView();
    void setupNoContact();
    void setupTail();
    /// Builds the page anew. `keepSelection` with a `contactId` (not -1) turns to the page of that contact and with
    /// a `selectIdx` keeps a cell; without it, the first cell is selected.
    void setupListViewItems(bool keepSelection, int contactId, int selectIdx, bool reservedFlag);
    /// Turns one page on or back, around the ends.
    void setListViewPage(bool next);

public slots:
    // Commands: contactcommands.cpp.
    void tailFuncButtonClicked(int idx);
    void clickedListViewItem(int idx);
    /// Dials the contact in a cell.
    void clickedFuncKeyEvent(int idx);
    int getContactTypeOfselectItem();
    void focusChangedListViewItem(int idx);
    void clickedContactListViewItem(int idx);
    void focusChangedContactListViewItem(int idx);
    void updateTail();

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    struct Command;

    QPixmap rowPicture(const ContactData &contact) const;

    void computePage(int found, int *cell, int *count);
    int findContact(int contactId) const;
    ListViewItem *makeCell(const ContactData &contact) const;
    void setupChooserRows();
    void showGrid();
    void openPersonalPhonebook();
    void openSystemPhonebook();
    bool isLastPage() const;

    void pressedUp(QKeyEvent *event);
    void pressedDown(QKeyEvent *event);
    void pressedLeft(QKeyEvent *event);
    void pressedRight(QKeyEvent *event);
    void leaveManagingStep();
    void backToChooser();

    MessageBox &messageBox();
    void openGroups();
    void openSearch();
    void editSelected();
    void addContact();
    void deleteSelected();
    void deleteAll();
    void closeAll();
    void selectContact(int id);
    bool showAfterDeletion();
    void closeChildren();

    void reload();
    void refreshIfVisible();
    void searchForCaller(int mode, const QString &number);
    void handleNewContact(QDataStream &payload);
    void handleViewContactSearchAll(QDataStream &payload);
    void handleViewContactSearchDir(QDataStream &payload);
    void handleViewContact(QDataStream &payload);
    void handleFindReceiver(QDataStream &payload);
    void handleSearchContact(QDataStream &payload);
    void handleDirectoryResponse(QDataStream &payload);
    void handleChangedLanguage(QDataStream &payload);
    void handlePhoneInit(QDataStream &payload);
    void handleContactChanged(QDataStream &payload);
    void handleMobileContactChanged(QDataStream &payload);
    void handlePictureAck(QDataStream &payload);
    void handleDeviceConnected(QDataStream &payload);
    void handleDeviceDisconnected(QDataStream &payload);
    void handleBuddyStatus(QDataStream &payload);
    void handleLogOut(QDataStream &payload);
    void handleCloseContact(QDataStream &payload);
    void handleCloseSearchAll(QDataStream &payload);
    void contactChanged();
    void refreshPresence();

    int m_totalCount = 0;
    int m_listViewPage = 0; ///< from 0
    int m_lastPage = 0;
    int m_step = ListStep;
    QLabel *m_noContactLabel = nullptr;
    GridSelectView *m_listView = nullptr;
    QPointer<DetailsDial> m_detailsDial;
    QPointer<NumberEdit> m_numberEdit;
    QPointer<GroupList> m_groupList;
    QPointer<SearchAll> m_searchAll;
    QPointer<SearchAll> m_searchAllOther; ///< a second place for one, closed with the others
    QPointer<SearchDir> m_searchDir;
    MessageBox *m_messageBox = nullptr; ///< made on first use and kept
    MergedContacts m_allContactList;
    ListView *m_selectListView = nullptr;
    QPointer<SystemPhonebookListWidget> m_systemPhonebookList;
    bool m_systemPhonebookEnabled = false;
};

#endif
