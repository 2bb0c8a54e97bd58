#ifndef SOUNDMANAGER_H
#define SOUNDMANAGER_H

#include <QFileInfo>
#include <QList>
#include <QObject>
#include <QString>

/// Ring tones, their preview and the key tones. The reference starts small: it knows what plays and tells it,
/// and makes no sound yet.
class SoundManager : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Appends the files of the folder that fit the pattern ("*ring*", "*.wav"), sorted by name.
    void addRingDir(QList<QFileInfo> &files, const QString &folder, const QString &pattern) const;

    /// Plays the file on the volume of the channel ("RING"), again and again with `repeat`; what played before
    /// ends.
    void playSound(const QString &path, bool repeat, const QString &channel);
    /// Ends what plays; with `keepChannel` the channel stays reserved for the next sound.
    void stopSound(bool keepChannel);
    /// The file that plays now, empty in silence.
    QString playing() const { return m_playing; }

    void setEnableKeytone(bool enable) { m_keytoneEnabled = enable; }
    bool isEnabledKeytone() const { return m_keytoneEnabled; }

signals:
    void soundStarted(const QString &path, const QString &channel);
    void soundStopped();

private:
    QString m_playing;
    bool m_keytoneEnabled = true;
};

#endif
