#include "mergedcontacts.h"

#include <algorithm>

namespace {

using Order = QVector<const ContactData *>;

bool precedes(const ContactData *a, const ContactData *b)
{
    return a->name < b->name;
}

/// The store's contacts by name, in its own order within one name. The stores sort already, as a rule.
Order byName(const QList<ContactData> &contacts)
{
    Order order;
    order.reserve(contacts.size());
    for (const ContactData &contact : contacts)
        order.append(&contact);
    if (!std::is_sorted(order.begin(), order.end(), precedes))
        std::stable_sort(order.begin(), order.end(), precedes);
    return order;
}

}

MergedContacts::MergedContacts(const QList<ContactData> &local, const QList<ContactData> &mobile)
    : m_local(local), m_mobile(mobile), m_order(byName(m_local))
{
    if (!m_mobile.isEmpty()) {
        const Order locals = m_order, mobiles = byName(m_mobile);
        m_order.resize(locals.size() + mobiles.size());
        std::merge(locals.begin(), locals.end(), mobiles.begin(), mobiles.end(), m_order.begin(), precedes);
    }
    for (auto first = m_order.begin(); first != m_order.end();) {
        const auto next = std::find_if(first, m_order.end(),
                                       [&](const ContactData *contact) { return contact->name != (*first)->name; });
        std::reverse(first, next);
        first = next;
    }
}
