#ifndef GROUPNAMES_H
#define GROUPNAMES_H

#include <QList>
#include <QString>

/// The names of the groups, joined by commas as contact screens show them. The built-in group reads `unassigned`,
/// and so does a list that names no group; groups that are gone are left out.
QString groupNames(const QList<int> &groupIds, const QString &unassigned);

#endif
