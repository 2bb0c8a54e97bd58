#ifndef RINGTONES_H
#define RINGTONES_H

#include <QFileInfo>
#include <QList>
#include <QString>

/// The ring tones of the phone: those that it came with and those that were loaded onto it.
namespace RingTones {

/// All of them, the phone's own first; empty while the phone has no sound settings.
QList<QFileInfo> files();

/// The name that is shown for a tone's path: what stands between the last "/" and the last ".".
QString baseName(const QString &path);

/// The path of one of the phone's own tones by the name that is shown.
QString basicPath(const QString &name);

/// A preview, unless a call is under way. True when it sounds.
bool preview(const QString &path);
void stopPreview();

}

#endif
