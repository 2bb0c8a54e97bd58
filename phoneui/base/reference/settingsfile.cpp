#include "settingsfile.h"

#include "initext.h"

#include <QDebug>
#include <QFileInfo>
#include <QStringList>
#include <QTemporaryFile>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

/// What is wrong with an open file, or null. Root can put anything anywhere, so a file of root's is as good as
/// ours.
static const char *faultOf(int handle, SettingsFile::Place place)
{
    struct stat info;
    if (::fstat(handle, &info) != 0 || !S_ISREG(info.st_mode))
        return "it is no plain file";
    if (place == SettingsFile::Shared && info.st_uid != ::geteuid() && info.st_uid != 0)
        return "it is somebody else's";
    return nullptr;
}

SettingsFile::SettingsFile(const QString &path, Place place) : m_path(path)
{
    // A pipe must not hold the phone up.
    const int handle = ::open(QFile::encodeName(path).constData(),
                              O_RDONLY | O_CLOEXEC | O_NONBLOCK | (place == Shared ? O_NOFOLLOW : 0));
    if (handle < 0 && (errno == ENOENT || errno == ENOTDIR))
        return;
    const char *fault = handle < 0 ? std::strerror(errno) : faultOf(handle, place);
    QFile file;
    if (fault)
        qWarning() << "SettingsFile: not read:" << path << fault;
    else if (file.open(handle, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle))
        IniText::read(file.readAll(), [this](const QString &key, const QString &value) { m_values[key] = value; });
    if (fault && handle >= 0)
        ::close(handle);
}

int SettingsFile::number(const QString &key, int fallback) const
{
    bool ok = false;
    const int number = value(key).toInt(&ok);
    return ok ? number : fallback;
}

bool SettingsFile::flag(const QString &key) const
{
    return value(key).compare(QLatin1String("true"), Qt::CaseInsensitive) == 0 || number(key) != 0;
}

QStringList SettingsFile::keys(const QString &section) const
{
    if (section.isEmpty())
        return m_values.keys();
    QStringList found;
    const QString prefix = section + QLatin1Char('/');
    for (auto it = m_values.lowerBound(prefix); it != m_values.end() && it.key().startsWith(prefix); ++it)
        found.append(it.key().mid(prefix.size()));
    return found;
}

void SettingsFile::removeSection(const QString &section)
{
    const QStringList names = keys(section);
    for (const QString &name : names)
        m_values.remove(section + QLatin1Char('/') + name);
}

/// Puts a folder's entries on the disk.
static bool syncFolder(const QString &file)
{
    const int handle
        = ::open(QFile::encodeName(QFileInfo(file).absolutePath()).constData(), O_RDONLY | O_DIRECTORY);
    if (handle < 0)
        return false;
    const bool synced = ::fsync(handle) == 0;
    ::close(handle);
    return synced;
}

bool SettingsFile::save() const
{
    // A fresh file takes the place of the old one, which may be a link that somebody has put there.
    QTemporaryFile fresh(m_path + QStringLiteral(".XXXXXX"));
    const QByteArray text = IniText::write(m_values);
    const bool saved = fresh.open() && fresh.write(text) == text.size() && fresh.flush()
        && ::fsync(fresh.handle()) == 0
        && std::rename(QFile::encodeName(fresh.fileName()).constData(), QFile::encodeName(m_path).constData()) == 0;
    if (!saved) {
        qWarning() << "SettingsFile: cannot keep" << m_path << std::strerror(errno);
        return false;
    }
    fresh.setAutoRemove(false);
    if (!syncFolder(m_path))
        qWarning() << "SettingsFile: the folder cannot be synced:" << m_path << std::strerror(errno);
    return true;
}
