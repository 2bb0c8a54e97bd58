#include "presencefile.h"
#include "settingsfile.h"

static const QLatin1String StatusKey("/Status");
static const QLatin1String DeviceKey("/Device");

QHash<QString, buddyIdStatusType> PresenceFile::read(const QString &path)
{
    QHash<QString, buddyIdStatusType> buddies;
    const SettingsFile file(path);
    const QStringList keys = file.keys();
    for (const QString &key : keys) {
        if (key.endsWith(StatusKey))
            buddies[key.chopped(StatusKey.size())].status = file.number(key);
        else if (key.endsWith(DeviceKey))
            buddies[key.chopped(DeviceKey.size())].device = file.number(key);
    }
    return buddies;
}

void PresenceFile::removeBuddy(const QString &path, const QString &buddyId)
{
    // By full keys: removing the group would also take the buddies whose ids go on after a slash.
    SettingsFile file(path);
    file.remove(buddyId + StatusKey);
    file.remove(buddyId + DeviceKey);
    file.save();
}
