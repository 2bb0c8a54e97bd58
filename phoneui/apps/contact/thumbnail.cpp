#include "thumbnail.h"

#include <QDebug>
#include <QFile>
#include <QSet>

#include <cstdlib>
#include <sys/stat.h>
#include <unistd.h>

namespace Thumbnail {

namespace {

const char folder[] = "/tmp/thumbnail_temp";
constexpr int Side = 32; // pixels

/// Where the thumbnail lies: the photo's path without its root behind the folder's name. For an album picture
/// nothing separates the two, which is all one as long as everyone asks here.
QString pathOf(const QString &picture)
{
    QString rest = picture;
    if (picture.contains(":/ui"))
        rest.remove(":/ui/images/album/");
    else
        rest.remove("/configs/ui/thumbnail");
    return folder + rest;
}

/// Anybody may put something where the cache lies: a link, a pipe, a folder of theirs. Such a thing is left alone,
/// and named once in the log.
enum class Holder { Nobody, Us, Others };

Holder holderOf(const QString &path, mode_t kind)
{
    static QSet<QString> named;
    struct stat info;
    if (::lstat(QFile::encodeName(path).constData(), &info) != 0)
        return Holder::Nobody;
    if ((info.st_mode & S_IFMT) == kind && info.st_uid == ::geteuid())
        return Holder::Us;
    const QString thing = QStringLiteral("%1 %2 %3").arg(path).arg(info.st_ino).arg(info.st_mode);
    if (!named.contains(thing))
        qWarning() << "Thumbnail: left alone, as somebody else has put it there:" << path;
    named.insert(thing);
    return Holder::Others;
}

bool isOurFolder()
{
    return holderOf(folder, S_IFDIR) == Holder::Us;
}

bool isInFolder(const QString &thumbnail)
{
    return thumbnail.startsWith(QLatin1String(folder) + '/');
}

void run(const char *command)
{
    [[maybe_unused]] const int result = std::system(command); // the cache can do without
}

}

void make(const QString &picture)
{
    if (picture.isEmpty() || !QFile::exists(picture))
        return;
    const QString thumbnail = pathOf(picture);
    if (holderOf(thumbnail, S_IFREG) != Holder::Nobody)
        return;
    const QPixmap photo(picture);
    if (holderOf(folder, S_IFDIR) == Holder::Nobody)
        run("mkdir /tmp/thumbnail_temp");
    if (photo.isNull() || (isInFolder(thumbnail) && !isOurFolder()))
        return;
    // A new file is never written through a link.
    QFile file(thumbnail);
    if (file.open(QIODevice::WriteOnly | QIODevice::NewOnly)
        && !photo.scaled(Side, Side, Qt::IgnoreAspectRatio, Qt::FastTransformation).save(&file))
        file.remove();
}

QPixmap load(const QString &picture)
{
    const QString thumbnail = pathOf(picture);
    const bool isOurs = (!isInFolder(thumbnail) || isOurFolder()) && holderOf(thumbnail, S_IFREG) == Holder::Us;
    return isOurs ? QPixmap(thumbnail) : QPixmap();
}

void clear()
{
    run("rm -rf /tmp/thumbnail_temp");
}

}
