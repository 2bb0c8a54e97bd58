#include "mergedcontacts.h"

#include "contactmanager.h"
#include "core.h"
#include "wpsmcontactmanager.h"

#include <algorithm>

namespace {

using Order = QVector<const ContactData *>;

bool precedes(const ContactData *a, const ContactData *b)
{
    return a->name < b->name;
}

void append(Order &order, const QList<ContactData> &contacts)
{
    for (const ContactData &contact : contacts)
        order.append(&contact);
}

/// Turns around the contacts of each name; false, with the work half done, where the names are not in order.
bool reverseWithinNames(Order &order)
{
    auto first = order.begin();
    for (auto next = first; next != order.end(); ++next) {
        const int difference = QString::compare((*first)->name, (*next)->name);
        if (difference > 0)
            return false;
        if (difference < 0) {
            std::reverse(first, next);
            first = next;
        }
    }
    std::reverse(first, order.end());
    return true;
}

}

MergedContacts::MergedContacts(const QList<ContactData> &local, const QList<ContactData> &mobile)
    : m_local(local), m_mobile(mobile)
{
    const auto concatenate = [this] {
        m_order.clear();
        m_order.reserve(m_local.size() + m_mobile.size());
        append(m_order, m_local);
        append(m_order, m_mobile);
    };
    concatenate();
    // As a rule both stores have sorted already.
    if (!m_local.isEmpty() && !m_mobile.isEmpty())
        std::inplace_merge(m_order.begin(), m_order.begin() + m_local.size(), m_order.end(), precedes);
    if (!reverseWithinNames(m_order)) {
        concatenate();
        std::stable_sort(m_order.begin(), m_order.end(), precedes);
        reverseWithinNames(m_order);
    }
}

ContactData MergedContacts::read(int id, int type)
{
    return type == ContactData::LocalContact ? theCore->contactManager()->getSpecificContactDetail(id)
                                             : theCore->wpsmContactManager()->getSpecificContactDetail(id);
}
