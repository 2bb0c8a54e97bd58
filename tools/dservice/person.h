#ifndef PERSON_H
#define PERSON_H

#include <QString>

/// One entry of the directory. The numbers are bare, as phones keep and dial them.
struct Person
{
    QString name;
    QString number;
    QString type; ///< what kind of number that is
    QString position;
    QString department;
    QString mobile;
};

#endif
