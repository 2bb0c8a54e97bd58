#ifndef CONTACTREMOVAL_H
#define CONTACTREMOVAL_H

#include "contactdata.h"

/// Takes one contact out of the store and tells those who keep its number.
class ContactRemoval
{
public:
    enum Result { Removed, MembershipsFailed, ContactFailed };

    /// Reads what the others will be told, before the contact goes.
    ContactRemoval(int id, ContactData::Contact_Type type);

    Result remove() const;
    /// Tells the home screen the first number, and presence the buddy.
    void announce() const;

private:
    ContactData m_contact;
    int m_id;
    ContactData::Contact_Type m_type;
};

#endif
