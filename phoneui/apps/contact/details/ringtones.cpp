#include "ringtones.h"

#include "callmanager.h"
#include "core.h"
#include "soundmanager.h"

namespace RingTones {

QList<QFileInfo> files()
{
    QList<QFileInfo> found;
    if (!theCore->configFileName(SoundConfig).isEmpty()) {
        theCore->soundManager()->addRingDir(found, theCore->ringtonePath(), "*ring*");
        theCore->soundManager()->addRingDir(found, theCore->ringtoneDownloadPath(), "*.wav");
    }
    return found;
}

QString baseName(const QString &path)
{
    const QString name = path.section('/', -1);
    return name.endsWith(".wav", Qt::CaseInsensitive) ? name.left(name.lastIndexOf('.')) : name;
}

QString basicPath(const QString &name)
{
    return theCore->ringtonePath() + "/basicring/" + name + ".wav";
}

bool preview(const QString &path)
{
    if (theCore->callManager()->callState() != "IDLE")
        return false;
    theCore->soundManager()->playSound(path, false, "RING");
    return true;
}

void stopPreview()
{
    theCore->soundManager()->stopSound(false);
}

}
