#ifndef MEMBERSHIP_H
#define MEMBERSHIP_H

/// Taking a contact out of a group. A contact never ends up in no group: the last one gives way to the built-in
/// one.
namespace Membership {

/// Takes the contact out of the group. The search for the group begins at the entry `from` of the contact's list,
/// so that from 1 on a contact whose list begins with the group keeps it there. Zero when the store refuses.
int leave(int contactId, int groupId, int from);

}

#endif
