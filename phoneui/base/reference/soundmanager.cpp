#include "soundmanager.h"

#include "soundplayer.h"
#include "wavfile.h"

#include <QDebug>
#include <QDir>
#include <QRegExp>

#include <algorithm>

static constexpr int ShortestMs = 100; // a click that repeats must not keep the machine busy

SoundManager::SoundManager(QObject *parent) : QObject(parent), m_player(new SoundPlayer(this))
{
    m_lengthTimer.setSingleShot(true);
    m_lengthTimer.setTimerType(Qt::PreciseTimer);
    connect(&m_lengthTimer, &QTimer::timeout, this, &SoundManager::timeIsOver);
    connect(m_player, &SoundPlayer::finished, this, [this] {
        if (m_repeat && !m_lengthTimer.isActive())
            sound();
    });
}

SoundManager::~SoundManager() = default;

/// What matches the pattern, in the order of the names. QDir makes a regular expression of a pattern at each call,
/// which costs more than reading the folder.
static QFileInfoList matching(const QDir &folder, QDir::Filters kind, const QString &pattern)
{
    const QRegExp matcher(pattern, Qt::CaseInsensitive, QRegExp::Wildcard);
    QFileInfoList found = folder.entryInfoList(kind, QDir::Name);
    found.erase(std::remove_if(found.begin(), found.end(),
                               [&](const QFileInfo &entry) { return !matcher.exactMatch(entry.fileName()); }),
                found.end());
    return found;
}

void SoundManager::addRingDir(QList<QFileInfo> &files, const QString &folder, const QString &pattern) const
{
    const QDir root(folder);
    files += matching(root, QDir::Files, pattern);
    const QFileInfoList folders = matching(root, QDir::Dirs | QDir::NoDotAndDotDot, pattern);
    for (const QFileInfo &inner : folders)
        files += matching(inner.filePath(), QDir::Files, "*.wav");
}

void SoundManager::playSound(const QString &path, bool repeat, const QString &channel)
{
    stopSound(true);
    const int length = wavDuration(path);
    if (length <= 0) {
        qDebug() << "SoundManager::playSound: nothing to hear in" << path;
        return;
    }
    m_playing = path;
    m_repeat = repeat;
    m_lengthTimer.setInterval(qMax(length, ShortestMs));
    sound();
    emit soundStarted(path, channel);
}

void SoundManager::sound()
{
    m_lengthTimer.start();
    m_player->play(m_playing);
}

void SoundManager::timeIsOver()
{
    // The sound card is a moment behind: the last of the sound is neither cut off nor overtaken.
    if (!m_repeat)
        becomeSilent();
    else if (!m_player->isSounding())
        sound();
}

void SoundManager::stopSound(bool keepChannel)
{
    Q_UNUSED(keepChannel) // the reference has one channel
    m_player->stop();
    becomeSilent();
}

void SoundManager::becomeSilent()
{
    m_lengthTimer.stop();
    m_repeat = false;
    if (m_playing.isEmpty())
        return;
    m_playing.clear();
    emit soundStopped();
}
