#ifndef PHONEFEED_H
#define PHONEFEED_H

#include "phonehome.h"

#include <QByteArray>
#include <QMutex>
#include <QThread>
#include <QWaitCondition>

#include <atomic>

class PhoneLink;

/// Follows one phone, through its ends and new starts, and keeps what it shows for any number of readers. Each
/// reader asks for what is newer than it knows, so one that is slow misses pictures and holds up nobody.
class PhoneFeed : public QThread
{
public:
    /// What a reader knows. The numbers grow with each change and start below any.
    struct State
    {
        quint64 phoneNumber = 0;
        /// The phone's map of PC keys as a JSON object; empty while no phone is there.
        QByteArray keyMap;
        quint64 pictureNumber = 0;
        /// The display, as base64 of a PNG; empty while no phone is there.
        QByteArray picture;
    };

    explicit PhoneFeed(const PhoneHome &home);
    ~PhoneFeed() override;

    /// Brings `known` up to date, waiting up to `timeLimit` milliseconds until there is something to bring. False
    /// once the feed has ended.
    bool waitForNews(State *known, int timeLimit);

    /// Ends the thread and all waiting.
    void stop();

protected:
    void run() override;

private:
    void follow(PhoneLink &link);
    void publishPhone(const QByteArray &keyMap);
    void publishPicture(const QByteArray &picture);

    const PhoneHome m_home;
    std::atomic<bool> m_stopped{false};
    QMutex m_mutex;
    QWaitCondition m_changed;
    State m_state;
};

#endif
