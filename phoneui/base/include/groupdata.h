#ifndef GROUPDATA_H
#define GROUPDATA_H

#include <QList>
#include <QString>

/// One group of contacts.
struct GroupData
{
    /// The built-in group: stored under the word "Unsigned", shown as "Unassigned", never edited or deleted.
    static constexpr int UnassignedId = 1;

    GroupData() = default;
    GroupData(int groupId, const QString &groupName) : id(groupId), name(groupName) { }
    GroupData(int groupId, const QString &groupName, const QString &groupBell)
        : id(groupId), name(groupName), bell(groupBell)
    {
    }

    int id = -1;
    QString name;
    QString bell; ///< path of the group's ring tone
};

Q_DECLARE_TYPEINFO(GroupData, Q_MOVABLE_TYPE);

#endif
