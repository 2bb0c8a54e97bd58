#ifndef SOUNDPLAYER_H
#define SOUNDPLAYER_H

#include <QObject>
#include <QPointer>

class QProcess;

/// Makes the machine sound, through ALSA's `aplay` in a process of its own. Silent on a machine without that
/// program or without a sound card.
class SoundPlayer : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;
    ~SoundPlayer() override;

    /// Plays the file from its start; what sounds is cut off.
    void play(const QString &path);
    void stop();
    bool isSounding() const { return !m_process.isNull(); }

signals:
    /// The last file that was played has sounded to its end, or could not.
    void finished();

private:
    void processEnded(QProcess *process);

    QPointer<QProcess> m_process; ///< null in silence
};

#endif
