#ifndef PEOPLE_H
#define PEOPLE_H

#include "contactdata.h"

/// A contact with these numbers, all of the company kind, and a memo of that length.
inline ContactData person(const QString &name, const QStringList &numbers = {"1"}, int memo = 0)
{
    ContactData contact;
    contact.name = name;
    contact.setNumbers(numbers, {});
    contact.memo = QString(memo, QChar('m'));
    return contact;
}

#endif
