#ifndef NUMBERTYPES_H
#define NUMBERTYPES_H

#include <QString>

/// The label of a number of that kind (ContactData::Telnum_Type), "Mobile Number"; an unknown kind reads as "Etc".
QString getNumberTypeStr(int type);

/// The kind of a label, 0 for one that names none.
int getNumberType(const QString &label);

/// Whether the label is that of a number.
bool isNumberLabel(const QString &label);

/// The path of a kind's picture without its ".png"; with "_press" behind it, that of the pressed one.
QString numberPicture(int type);

#endif
