#include "soundmanager.h"

#include <QDir>

void SoundManager::addRingDir(QList<QFileInfo> &files, const QString &folder, const QString &pattern) const
{
    files += QDir(folder).entryInfoList({pattern}, QDir::Files, QDir::Name);
}

void SoundManager::playSound(const QString &path, bool repeat, const QString &channel)
{
    Q_UNUSED(repeat)
    stopSound(true);
    m_playing = path;
    emit soundStarted(path, channel);
}

void SoundManager::stopSound(bool keepChannel)
{
    Q_UNUSED(keepChannel)
    if (m_playing.isEmpty())
        return;
    m_playing.clear();
    emit soundStopped();
}
