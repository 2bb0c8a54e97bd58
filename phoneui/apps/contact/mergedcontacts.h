#ifndef MERGEDCONTACTS_H
#define MERGEDCONTACTS_H

#include "contactdata.h"

#include <QList>
#include <QVector>

/// The contacts of the phone and of the paired device as one list: by name in code units; of one name those of the
/// device come first, and of one store the one that it gave last.
///
/// It shares the lists that it was made from and copies no contact, so that one is made for every key of a search.
class MergedContacts
{
public:
    MergedContacts() = default;
    MergedContacts(const QList<ContactData> &local, const QList<ContactData> &mobile);

    /// The contact as the store of its type (ContactData::Contact_Type) has it.
    static ContactData read(int id, int type);

    bool isEmpty() const { return m_order.isEmpty(); }
    int size() const { return m_order.size(); }
    const ContactData &at(int idx) const { return *m_order.at(idx); }

    using const_iterator = QVector<const ContactData *>::const_iterator;
    const_iterator begin() const { return m_order.begin(); }
    const_iterator end() const { return m_order.end(); }

private:
    QList<ContactData> m_local;
    QList<ContactData> m_mobile;
    QVector<const ContactData *> m_order; ///< into the two lists
};

#endif
