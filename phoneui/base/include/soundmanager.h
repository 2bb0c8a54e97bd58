#ifndef SOUNDMANAGER_H
#define SOUNDMANAGER_H

#include <QFileInfo>
#include <QList>
#include <QObject>
#include <QString>
#include <QTimer>

class SoundPlayer;

/// Ring tones and their preview. One sound at a time, WAV files alone.
///
/// The reference plays through ALSA's `aplay` at the volume that the sound card has. On a machine that cannot
/// sound everything goes its way in silence: a sound lasts as long as its file says.
class SoundManager : public QObject
{
    Q_OBJECT

public:
    explicit SoundManager(QObject *parent = nullptr);
    ~SoundManager() override;

    /// Appends the files of the folder that fit the pattern ("*ring*", "*.wav"), then the WAV files in its sub
    /// folders whose names fit, each folder sorted by name. The phone's own tones lie in "basicring".
    void addRingDir(QList<QFileInfo> &files, const QString &folder, const QString &pattern) const;

    /// Plays the file, again and again with `repeat`; what played before ends. `channel` tells what the sound is
    /// for ("RING"). A file that is missing or no WAV is silence.
    void playSound(const QString &path, bool repeat, const QString &channel);
    /// Ends what plays; with `keepChannel` the channel stays reserved for the next sound.
    void stopSound(bool keepChannel);
    /// The file that plays now, empty in silence.
    QString playing() const { return m_playing; }

    /// Whether keys may make tones; off while a tone is chosen by its preview.
    void setEnableKeytone(bool enable) { m_keytoneEnabled = enable; }
    bool isEnabledKeytone() const { return m_keytoneEnabled; }

signals:
    void soundStarted(const QString &path, const QString &channel);
    /// What played has come to its end or was stopped.
    void soundStopped();

private:
    void sound();
    void timeIsOver();
    void becomeSilent();

    SoundPlayer *m_player;
    QTimer m_lengthTimer;
    QString m_playing;
    bool m_repeat = false;
    bool m_keytoneEnabled = true;
};

#endif
