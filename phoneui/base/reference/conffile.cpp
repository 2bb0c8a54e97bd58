#include "conffile.h"
#include "settingsfile.h"

#include <QDir>
#include <QFileInfo>

QString getConfFilePath(const QString &group, const QString &name)
{
    const QString list = qEnvironmentVariable("CONFIG_LIST");
    if (list.isEmpty())
        return QString();
    const QString entry = SettingsFile(list).value(group + QLatin1Char('/') + name);
    if (entry.isEmpty() || QDir::isAbsolutePath(entry))
        return entry;
    // The list lies in the home's "config" folder.
    return QDir::cleanPath(QFileInfo(list).absolutePath() + QStringLiteral("/../") + entry);
}

quint16 getPeerPort(const QString &peer)
{
    const QString file = getConfFilePath(QStringLiteral("COMMON"), QStringLiteral("IPC_CONF"));
    if (file.isEmpty())
        return 0;
    return static_cast<quint16>(SettingsFile(file).number(peer.toUpper() + QStringLiteral("/Port")));
}
