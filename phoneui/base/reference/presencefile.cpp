#include "presencefile.h"

#include <QSettings>

static const QLatin1String StatusKey("/Status");
static const QLatin1String DeviceKey("/Device");

QHash<QString, buddyIdStatusType> PresenceFile::read(const QString &path)
{
    QHash<QString, buddyIdStatusType> buddies;
    const QSettings file(path, QSettings::IniFormat);
    const QStringList keys = file.allKeys();
    for (const QString &key : keys) {
        if (key.endsWith(StatusKey))
            buddies[key.chopped(StatusKey.size())].status = file.value(key).toInt();
        else if (key.endsWith(DeviceKey))
            buddies[key.chopped(DeviceKey.size())].device = file.value(key).toInt();
    }
    return buddies;
}

void PresenceFile::removeBuddy(const QString &path, const QString &buddyId)
{
    // By full keys: removing the group would also take the buddies whose ids go on after a slash.
    QSettings file(path, QSettings::IniFormat);
    file.remove(buddyId + StatusKey);
    file.remove(buddyId + DeviceKey);
}
