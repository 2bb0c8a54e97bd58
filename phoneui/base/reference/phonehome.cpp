#include "phonehome.h"
#include "settingsfile.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QStandardPaths>

#include <array>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr std::array<const char *, 7> Folders
    = {"config", "data", "data/photos", "mobile", "ringtones", "ringtones/basicring", "ringtones/download"};

constexpr QFile::Permissions UserOnly = QFile::ReadOwner | QFile::WriteOwner;
constexpr QFile::Permissions Everyone = UserOnly | QFile::ReadGroup | QFile::ReadOther;

struct ConfigFile
{
    const char *path;
    const char *content;
    QFile::Permissions permissions;
};

const std::array<ConfigFile, 7> ConfigFiles = {{
    {"config/list.ini", "[CONFIG]\nPBOOK_CONF=config/phonebook.conf\nPINFO_CONF=config/phone_info.conf\n",
     Everyone},
    {"config/system.conf",
     "[System]\nCharset=utf-8\nType=0\n\n[Menu_Password]\nenable=false\n\n[Security]\nCallLock=0\n", Everyone},
    {"config/sound.conf", "[Volume]\nRing=5\n", Everyone},
    {"config/settings.conf", "[Settings]\n24HourTime=true\nDesign=0\nLanguage=en_US\n", Everyone},
    {"config/ipc.conf", "[CM]\nPort=0\n\n[XCID]\nPort=0\n", Everyone},
    {"config/phone_info.conf", "[Prov_Info]\nId=\nLoginMode=\n\n[Directory_svc]\nAddr=\nType=http\nPort=\nPath=\n",
     Everyone},
    {"config/secret.ini", "[Prov]\nPassword=\n", UserOnly},
}};

bool makeFile(const QString &path, const ConfigFile &config)
{
    QFile file(path);
    if (file.exists()) {
        if (config.permissions == UserOnly && !file.setPermissions(UserOnly))
            qWarning() << "PhoneHome: cannot close the file to others:" << path;
        return true;
    }
    // The rights come before the content.
    return file.open(QIODevice::WriteOnly | QIODevice::NewOnly) && file.setPermissions(config.permissions)
        && file.write(config.content) >= 0 && file.flush();
}

/// Makes the folder for the user alone, or takes the one that is there if it is really the user's own: whoever owns
/// it could put sockets of theirs in the place of the phone's.
bool makeOwnFolder(const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    ::mkdir(name.constData(), S_IRWXU);
    const int folder = ::open(name.constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    struct stat info;
    const bool isOwn = folder >= 0 && ::fstat(folder, &info) == 0 && info.st_uid == ::geteuid()
        && ::fchmod(folder, S_IRWXU) == 0;
    if (folder >= 0)
        ::close(folder);
    return isOwn;
}

}

PhoneHome::PhoneHome(const QString &root) : m_root(QDir::cleanPath(QDir(root).absolutePath())) { }

PhoneHome PhoneHome::locate(const QString &option)
{
    if (!option.isEmpty())
        return PhoneHome(option);
    const QString environment = qEnvironmentVariable("PHONE_HOME");
    if (!environment.isEmpty())
        return PhoneHome(environment);
    return PhoneHome(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)
                     + QStringLiteral("/phoneui"));
}

QString PhoneHome::path(const QString &relative) const
{
    return m_root + QLatin1Char('/') + relative;
}

bool PhoneHome::isAnswerName(const QString &name)
{
    static const QRegularExpression answer(QStringLiteral("\\Adirectory-[A-Za-z]{6}\\.xml\\z"));
    return answer.match(name).hasMatch();
}

bool PhoneHome::create() const
{
    for (const char *folder : Folders) {
        if (!QDir().mkpath(path(QLatin1String(folder)))) {
            qWarning() << "PhoneHome: cannot make the folder" << path(QLatin1String(folder));
            return false;
        }
    }
    // People's names and numbers concern nobody else.
    for (const char *folder : {"data", "mobile"}) {
        if (!QFile::setPermissions(path(QLatin1String(folder)), UserOnly | QFile::ExeOwner))
            qWarning() << "PhoneHome: cannot close the folder to others:" << path(QLatin1String(folder));
    }
    if (!makeOwnFolder(runFolder())) {
        qWarning() << "PhoneHome: this is no folder of the user alone:" << runFolder();
        return false;
    }
    for (const ConfigFile &config : ConfigFiles) {
        const QString file = path(QLatin1String(config.path));
        if (!makeFile(file, config)) {
            qWarning() << "PhoneHome: cannot write" << file;
            return false;
        }
    }
    // Applications open this one as it stands in the list, so it is absolute and follows a home that was moved.
    const QString key = QStringLiteral("COMMON/IPC_CONF");
    const QString ipcConf = path(QStringLiteral("config/ipc.conf"));
    SettingsFile list(configList());
    if (list.value(key) == ipcConf)
        return true;
    list.set(key, ipcConf);
    return list.save();
}

void PhoneHome::enter() const
{
    qputenv("CONFIG_LIST", QFile::encodeName(configList()));
    QDir::setSearchPaths(QStringLiteral("photo"), {photoFolder()});
}
