#include "conffile.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>

QString getConfFilePath(const QString &group, const QString &name)
{
    const QString list = qEnvironmentVariable("CONFIG_LIST");
    if (list.isEmpty())
        return QString();
    const QSettings settings(list, QSettings::IniFormat);
    const QString entry = settings.value(group + QLatin1Char('/') + name).toString();
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
    const QSettings settings(file, QSettings::IniFormat);
    return static_cast<quint16>(settings.value(peer.toUpper() + QStringLiteral("/Port")).toInt());
}
