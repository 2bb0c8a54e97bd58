#include "groupnames.h"

#include "contactmanager.h"
#include "core.h"

#include <QStringList>

QString groupNames(const QList<int> &groupIds, const QString &unassigned)
{
    QStringList names;
    for (const int id : groupIds) {
        const QString name
            = id == GroupData::UnassignedId ? unassigned : theCore->contactManager()->getGroupName(id);
        if (!name.isEmpty())
            names.append(name);
    }
    return names.isEmpty() ? unassigned : names.join(',');
}
