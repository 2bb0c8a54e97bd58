#ifndef CONTACTMANAGER_H
#define CONTACTMANAGER_H

#include "buddyidstatustype.h"
#include "contactdata.h"
#include "groupdata.h"

#include <QHash>
#include <QObject>
#include <QScopedPointer>

#include <functional>

class ContactDatabase;

/// A contact on its way into the store together with the names of its groups, which are made when they are new.
struct ContactImport
{
    ContactData contact;
    QStringList groups;
};

/// The phone's own contacts and groups, one SQLite file.
///
/// Every write is one transaction and returns non-zero when it is safely on the disk; zero means that the
/// file is as it was, and the log has the reason. What another process writes is seen by the next call.
/// GUI thread only.
class ContactManager : public QObject
{
    Q_OBJECT

public:
    /// Opens or makes the database; one that is damaged, foreign or of a newer version is moved aside first.
    explicit ContactManager(const QString &databasePath, QObject *parent = nullptr);
    ~ContactManager() override;

    /// False when the database can be neither opened nor made; reads are then empty and writes return zero.
    bool isOpen() const;

    /// All local contacts in the order of their names, of one name by id.
    QList<ContactData> getAllContacts() const;
    /// The contact, or an empty one with id 0.
    ContactData getSpecificContactDetail(int id) const;
    int getCountOfContact() const;
    QString getContactName(int id) const;
    QString getTelnum1_valByUsingId(int id) const;
    /// The first contact, by id, that holds exactly this number in any slot; an empty one if there is none.
    ContactData getContactByUsingNumber(const QString &number) const;
    /// The newest contact of that name with that first number, or -1.
    int getIdByUsingNameAndNumber(const QString &name, const QString &number) const;
    /// The contacts whose name, initials or numbers hold the word, in the same order; all of them for an empty
    /// word.
    QList<ContactData> getContactSearchResults(const QString &word) const;
    /// Presence by buddy id.
    QHash<QString, buddyIdStatusType> getPresenceStatus() const;

    /// Adds the contact under a new id, or with `modify` replaces the one with contact.id. Returns that id.
    int saveContact(const ContactData &contact, bool modify);
    /// Adds all of them or none, each with its groups; a contact without groups goes to the built-in one.
    /// `progress` hears the number of contacts written so far. Returns how many were added.
    int importContacts(const QList<ContactImport> &contacts, const std::function<void(int)> &progress = {});
    int deleteContact(int id, ContactData::Contact_Type type);
    int deleteAllContacts();

    /// All groups by id, the built-in one included. `withBuiltIn` is true where a limit is counted; the store
    /// answers both alike.
    QList<GroupData> getAllGroups(bool withBuiltIn) const;
    int getCountOfGroup() const;
    QString getGroupName(int groupId) const;
    GroupData getGroupDetail(int groupId) const;
    /// `fresh` asks past any cached count; the store always counts anew and answers both alike.
    int getGroupMemberCount(int groupId, bool fresh) const;
    QList<int> getMembersOfGroup(int groupId) const;
    /// The groups of a contact in the order in which they were saved.
    QList<int> getGroupIdsOfMember(int contactId) const;
    bool existGroupName(const QString &name) const;
    /// Adds the group under a new id, or with `modify` replaces the one with group.id. Returns that id. The
    /// built-in group and a name that another group has are refused.
    int saveGroup(const GroupData &group, bool modify);
    /// Removes the group. Memberships that the caller left in place keep its id, which is never given again.
    int deleteGroup(int groupId);
    /// Replaces the contact's groups as a whole; an empty list puts it into the built-in group.
    int saveGroupMember(int contactId, const QList<int> &groupIds);
    int deleteGroupMemberbyContactId(int contactId);
    int deleteAllGroupMember();

private:
    bool write(const std::function<bool()> &work);

    QScopedPointer<ContactDatabase> m_database;
    QString m_presencePath;
};

#endif
