// Contact: the merged list and its thumbnails.

#include "contact.h"
#include "thumbnail.h"

#include "contactmanager.h"
#include "core.h"
#include "gridselectview.h"
#include "listviewcontactitem.h"
#include "wpsmcontactmanager.h"

int Contact::loadContactData()
{
    const MergedContacts contacts(theCore->contactManager()->getAllContacts(),
                                  theCore->wpsmContactManager()->getAllContacts());
    if (contacts.isEmpty())
        return 0;
    m_allContactList = contacts;
    for (const ContactData *contact : qAsConst(m_allContactList)) {
        if (contact->type == ContactData::LocalContact)
            Thumbnail::make(contact->picture);
    }
    return m_allContactList.size();
}

buddyIdStatusType Contact::currItemPresenceStatus(int idx)
{
    auto *cell = dynamic_cast<ListViewContactGridItem *>(m_listView->item(idx));
    if (!cell || cell->getContactType() != ContactData::LocalContact)
        return buddyIdStatusType();
    const ContactData contact = theCore->contactManager()->getSpecificContactDetail(cell->getId());
    if (contact.buddyId.isEmpty())
        return buddyIdStatusType();
    return theCore->contactManager()->getPresenceStatus().value(contact.buddyId);
}
