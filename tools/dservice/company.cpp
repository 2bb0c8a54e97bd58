#include "company.h"

#include "contactdata.h"
#include "textcodec.h"

#include <QCollator>

#include <algorithm>

Company::Company(const QList<Person> &people) : m_people(people)
{
    QCollator order(QLocale::English);
    order.setCaseSensitivity(Qt::CaseInsensitive);
    std::stable_sort(m_people.begin(), m_people.end(), [&order](const Person &left, const Person &right) {
        return order.compare(left.name, right.name) < 0;
    });
}

template <typename Matches> QVector<int> Company::search(Matches matches) const
{
    QVector<int> found;
    for (int i = 0; i < m_people.size(); ++i) {
        if (matches(m_people.at(i)))
            found.append(i);
    }
    return found;
}

QVector<int> Company::byName(const QString &word) const
{
    return search([&word](const Person &person) { return word.isEmpty() || chosungCompare(person.name, word); });
}

QVector<int> Company::byNumber(const QString &word) const
{
    const QString digits = ContactData::bareNumber(word);
    if (digits.isEmpty() && !word.isEmpty())
        return {};
    return search([&digits](const Person &person) {
        return person.number.contains(digits) || person.mobile.contains(digits);
    });
}
