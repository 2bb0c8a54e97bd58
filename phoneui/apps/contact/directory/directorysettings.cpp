#include "directorysettings.h"

#include "settingsfile.h"

#include <QDebug>

#include <cstdlib>

namespace {

const char s_file[] = "/dev/shm/DirectorySearch.ini";
const char s_page[] = "DirectoryService/Page";
const char s_path[] = "DirectoryService/Path";
const char s_timeStamp[] = "DirectoryService/TimeStamp";

class Settings : public SettingsFile
{
public:
    Settings() : SettingsFile(QLatin1String(s_file), Shared) { }

    void finish() const
    {
        save();
        if (std::system("sync") != 0)
            qDebug() << "DirectorySettings: the kernel's caches could not be written";
    }
};

}

int DirectorySettings::page()
{
    return Settings().number(QLatin1String(s_page));
}

void DirectorySettings::setPage(int page)
{
    Settings settings;
    settings.set(QLatin1String(s_page), QString::number(page));
    settings.finish();
}

QString DirectorySettings::path()
{
    return Settings().value(QLatin1String(s_path));
}

QString DirectorySettings::timeStamp()
{
    return Settings().value(QLatin1String(s_timeStamp));
}

void DirectorySettings::setHandles(const QString &path, const QString &timeStamp)
{
    Settings settings;
    if (!path.isNull())
        settings.set(QLatin1String(s_path), path);
    if (!timeStamp.isNull())
        settings.set(QLatin1String(s_timeStamp), timeStamp);
    settings.finish();
}
