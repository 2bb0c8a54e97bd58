#ifndef PRESENCEFILE_H
#define PRESENCEFILE_H

#include "buddyidstatustype.h"

#include <QHash>
#include <QString>

/// The reference's presence: an INI file with one group a buddy id.
namespace PresenceFile {

QHash<QString, buddyIdStatusType> read(const QString &path);
void removeBuddy(const QString &path, const QString &buddyId);

}

#endif
