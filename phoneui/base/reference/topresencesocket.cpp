#include "topresencesocket.h"

#include "core.h"
#include "presencefile.h"

void ToPresenceSocket::DeleteBuddyMemberRequest(const QString &buddyId, const QString &group)
{
    Q_UNUSED(group) // The reference keeps one list.
    if (theCore && !buddyId.isEmpty())
        PresenceFile::removeBuddy(theCore->home().path(QStringLiteral("data/presence.ini")), buddyId);
}
