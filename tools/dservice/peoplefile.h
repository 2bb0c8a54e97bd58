#ifndef PEOPLEFILE_H
#define PEOPLEFILE_H

#include "person.h"

#include <QList>

/// The people of a file: vCards, or a table with a header row that names its columns (name, number, type, position,
/// department, mobile; in any order, others are passed over).
struct PeopleFile
{
    QList<Person> people;
    int skipped = 0; ///< who has neither a name nor a number
    QString fault; ///< why the file cannot be used; empty when it can

    static PeopleFile read(const QString &fileName);
};

#endif
