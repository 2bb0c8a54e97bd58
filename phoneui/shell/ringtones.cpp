#include "ringtones.h"

#include "phonehome.h"

#include <QDir>
#include <QFile>

// Outside any namespace, as the macro asks for it.
static void initTones()
{
    Q_INIT_RESOURCE(ringtones);
}

void installRingTones(const PhoneHome &home)
{
    initTones();
    const QDir folder(home.path("ringtones/basicring"));
    if (!folder.entryList(QDir::Files).isEmpty())
        return;
    const QDir own(":/ringtones/basicring");
    const QStringList names = own.entryList(QDir::Files);
    for (const QString &name : names) {
        const QString target = folder.filePath(name);
        // What comes out of a resource is read-only, and so would the copy be.
        if (!QFile::copy(own.filePath(name), target)
            || !QFile::setPermissions(target,
                                      QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther))
            qWarning("The ring tone %s cannot be written", qPrintable(target));
    }
}
