#ifndef TOPRESENCESOCKET_H
#define TOPRESENCESOCKET_H

#include <QString>

/// Requests to presence. The reference has no presence server: it keeps the buddies in `data/presence.ini`, a
/// group a buddy id with `Status` and `Device`, and a request changes that file.
class ToPresenceSocket
{
public:
    /// Takes the buddy off the watch list; `group` is the list's name, "__" for all lists.
    static void DeleteBuddyMemberRequest(const QString &buddyId, const QString &group);
};

#endif
