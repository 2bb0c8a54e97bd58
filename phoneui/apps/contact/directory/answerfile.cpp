#include "answerfile.h"

#include "directorytransport.h"
#include "phonehome.h"

#include <QDebug>
#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

/// A file system may know no more than the second.
static bool isOlder(const timespec &time, const timespec &than)
{
    return time.tv_sec < than.tv_sec
        || (time.tv_sec == than.tv_sec && time.tv_nsec != 0 && time.tv_nsec < than.tv_nsec);
}

AnswerFile::AnswerFile(const PhoneHome &home, const QString &path)
{
    const QString folder = home.runFolder();
    const QString name = path.mid(folder.size() + 1);
    m_isForeign = path != folder + QLatin1Char('/') + name || !PhoneHome::isAnswerName(name);
    const char *fault = m_isForeign ? "it does not lie where answers do" : take(folder, QFile::encodeName(name));
    if (fault)
        qDebug() << "AnswerFile: not taken:" << fault;
}

AnswerFile::~AnswerFile()
{
    if (isOpen())
        ::close(m_descriptor);
}

QByteArray AnswerFile::path() const
{
    return isOpen() ? "/proc/self/fd/" + QByteArray::number(m_descriptor) : QByteArray();
}

/// What is wrong with the file, or null with the descriptor in place.
const char *AnswerFile::take(const QString &runFolder, const QByteArray &name)
{
    const int folder
        = ::open(QFile::encodeName(runFolder).constData(), O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    // A pipe in its place must not hold the phone up.
    const int file = ::openat(folder, name.constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    struct stat facts
    {
    };
    const char *fault = nullptr;
    if (file < 0 || ::fstat(file, &facts) != 0)
        fault = "it cannot be opened";
    else if (!S_ISREG(facts.st_mode) || facts.st_uid != ::geteuid() || facts.st_nlink != 1)
        fault = "it is no plain file of this user";
    // Nothing but a name of ours in the run folder goes, and the file that was looked at is the one that lost it.
    else if (::unlinkat(folder, name.constData(), 0) != 0 || ::fstat(file, &facts) != 0 || facts.st_nlink != 0)
        fault = "it was exchanged meanwhile";
    else if ((m_isForeign = isOlder(facts.st_mtim, lastDirectoryRequest())))
        fault = "it answers an older request";
    if (folder >= 0)
        ::close(folder);
    if (!fault)
        m_descriptor = file;
    else if (file >= 0)
        ::close(file);
    return fault;
}
