#include "membership.h"

#include "contactmanager.h"
#include "core.h"

namespace Membership {

int leave(int contactId, int groupId, int from)
{
    QList<int> groups = theCore->contactManager()->getGroupIdsOfMember(contactId);
    if (groups.size() == 1 && groups.first() == groupId) {
        groups.first() = GroupData::UnassignedId;
    } else if (groups.size() > 1) {
        const int at = groups.indexOf(groupId, from);
        if (at >= 0)
            groups.removeAt(at);
    }
    return theCore->contactManager()->saveGroupMember(contactId, groups);
}

}
