#include "directorysettings.h"

#include <QDebug>
#include <QSettings>

#include <cstdlib>

namespace {

const char s_file[] = "/dev/shm/DirectorySearch.ini";
const char s_page[] = "DirectoryService/Page";
const char s_path[] = "DirectoryService/Path";
const char s_timeStamp[] = "DirectoryService/TimeStamp";

class Settings : public QSettings
{
public:
    Settings() : QSettings(QLatin1String(s_file), QSettings::IniFormat) { }

    void finish()
    {
        sync();
        if (std::system("sync") != 0)
            qDebug() << "DirectorySettings: the kernel's caches could not be written";
    }
};

}

int DirectorySettings::page()
{
    return Settings().value(QLatin1String(s_page)).toInt();
}

void DirectorySettings::setPage(int page)
{
    Settings settings;
    settings.setValue(QLatin1String(s_page), page);
    settings.finish();
}

QString DirectorySettings::path()
{
    return Settings().value(QLatin1String(s_path)).toString();
}

QString DirectorySettings::timeStamp()
{
    return Settings().value(QLatin1String(s_timeStamp)).toString();
}

void DirectorySettings::setHandles(const QString &path, const QString &timeStamp)
{
    Settings settings;
    if (!path.isNull())
        settings.setValue(QLatin1String(s_path), path);
    if (!timeStamp.isNull())
        settings.setValue(QLatin1String(s_timeStamp), timeStamp);
    settings.finish();
}
