#include "contactremoval.h"

#include "contactmanager.h"
#include "core.h"
#include "neighbours.h"
#include "topresencesocket.h"

ContactRemoval::ContactRemoval(int id, ContactData::Contact_Type type)
    : m_contact(theCore->contactManager()->getSpecificContactDetail(id)), m_id(id), m_type(type)
{
}

ContactRemoval::Result ContactRemoval::remove() const
{
    ContactManager *store = theCore->contactManager();
    if (!store->deleteGroupMemberbyContactId(m_id))
        return MembershipsFailed;
    return store->deleteContact(m_id, m_type) ? Removed : ContactFailed;
}

void ContactRemoval::announce() const
{
    Neighbours::send("idle", "contactDeletedNumber(str)", {m_contact.telnum1});
    if (!m_contact.buddyId.isEmpty())
        ToPresenceSocket::DeleteBuddyMemberRequest(m_contact.buddyId, "__");
}
