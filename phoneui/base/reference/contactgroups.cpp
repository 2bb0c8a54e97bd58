#include "contactmanager.h"

#include "contactdatabase.h"

#include <QDebug>

// The groups' half of the contact store.

static GroupData groupOfRow(const SqliteStatement &row)
{
    return GroupData(row.number(0), row.text(1), row.text(2));
}

QList<GroupData> ContactManager::getAllGroups(bool withBuiltIn) const
{
    Q_UNUSED(withBuiltIn)
    QList<GroupData> groups;
    SqliteStatement rows = m_database->file().statement("SELECT id, name, bell FROM groups ORDER BY id");
    rows.run();
    while (rows.next())
        groups.append(groupOfRow(rows));
    return groups;
}

int ContactManager::getCountOfGroup() const
{
    return m_database->value("SELECT count(*) FROM groups").toInt();
}

QString ContactManager::getGroupName(int groupId) const
{
    return m_database->value("SELECT name FROM groups WHERE id = ?", {groupId}).toString();
}

GroupData ContactManager::getGroupDetail(int groupId) const
{
    SqliteStatement row = m_database->file().statement("SELECT id, name, bell FROM groups WHERE id = ?");
    return row.run({groupId}) && row.next() ? groupOfRow(row) : GroupData();
}

int ContactManager::getGroupMemberCount(int groupId, bool fresh) const
{
    Q_UNUSED(fresh)
    return m_database->value("SELECT count(*) FROM memberships WHERE group_id = ?", {groupId}).toInt();
}

QList<int> ContactManager::getMembersOfGroup(int groupId) const
{
    return m_database->ids("SELECT contact_id FROM memberships WHERE group_id = ? ORDER BY contact_id", groupId);
}

QList<int> ContactManager::getGroupIdsOfMember(int contactId) const
{
    return m_database->ids("SELECT group_id FROM memberships WHERE contact_id = ? ORDER BY position", contactId);
}

bool ContactManager::existGroupName(const QString &name) const
{
    return m_database->value("SELECT 1 FROM groups WHERE name = ?", {name}).isValid();
}

int ContactManager::saveGroup(const GroupData &group, bool modify)
{
    const QVariant holder = m_database->value("SELECT id FROM groups WHERE name = ?", {group.name});
    const bool nameTaken = holder.isValid() && !(modify && holder.toInt() == group.id);
    if (nameTaken || (modify && group.id == GroupData::UnassignedId)) {
        qDebug() << "ContactManager::saveGroup: refused" << group.id << group.name;
        return 0;
    }
    int id = group.id;
    const bool written = write([&] {
        SqliteStatement statement
            = m_database->file().statement(modify ? "UPDATE groups SET name = ?, bell = ? WHERE id = ?"
                                                  : "INSERT INTO groups (name, bell) VALUES (?, ?)");
        SqliteValues values = {QLatin1String("") + group.name, group.bell};
        if (modify)
            values.append(group.id);
        if (!statement.run(values) || statement.rowsAffected() != 1)
            return false;
        if (!modify)
            id = statement.lastId();
        return true;
    });
    return written ? id : 0;
}

int ContactManager::deleteGroup(int groupId)
{
    if (groupId == GroupData::UnassignedId) {
        qDebug() << "ContactManager::deleteGroup: refused" << groupId;
        return 0;
    }
    return write([&] {
        SqliteStatement statement = m_database->file().statement("DELETE FROM groups WHERE id = ?");
        return statement.run({groupId}) && statement.rowsAffected() == 1;
    });
}

int ContactManager::saveGroupMember(int contactId, const QList<int> &groupIds)
{
    if (!m_database->value("SELECT 1 FROM contacts WHERE id = ?", {contactId}).isValid()) {
        qDebug() << "ContactManager::saveGroupMember: no contact" << contactId;
        return 0;
    }
    return write([&] { return m_database->replaceMemberships(contactId, groupIds); });
}

int ContactManager::deleteGroupMemberbyContactId(int contactId)
{
    return write([&] {
        return m_database->file().statement("DELETE FROM memberships WHERE contact_id = ?").run({contactId});
    });
}

int ContactManager::deleteAllGroupMember()
{
    return write([&] { return m_database->file().statement("DELETE FROM memberships").run(); });
}
