#ifndef COMPANY_H
#define COMPANY_H

#include "person.h"

#include <QList>
#include <QVector>

/// All people of the directory, in the order of their names. It never changes, so many may search it at a time.
class Company
{
public:
    explicit Company(const QList<Person> &people);

    int size() const { return m_people.size(); }
    const Person &at(int index) const { return m_people.at(index); }

    // The indexes of those who match, all of them for an empty word.

    /// By name as a phone searches its own contacts: in any case and accent, by initials, within the name.
    QVector<int> byName(const QString &word) const;
    /// By the digits of either number; a word without any matches nobody.
    QVector<int> byNumber(const QString &word) const;

private:
    template <typename Matches> QVector<int> search(Matches matches) const;

    QList<Person> m_people;
};

#endif
