#include "phonefeed.h"

#include "phonelink.h"

#include <QDeadlineTimer>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMutexLocker>

/// Between two tries to reach the phone, and between two looks at whether to stop, in milliseconds.
static constexpr int RetryPause = 250;
static constexpr int StopLook = 200;

PhoneFeed::PhoneFeed(const PhoneHome &home) : m_home(home)
{
    m_state.phoneNumber = 1;
    m_state.pictureNumber = 1;
}

PhoneFeed::~PhoneFeed()
{
    stop();
}

bool PhoneFeed::waitForNews(State *known, int timeLimit)
{
    QMutexLocker lock(&m_mutex);
    QDeadlineTimer deadline(timeLimit);
    while (!m_stopped && known->phoneNumber == m_state.phoneNumber
           && known->pictureNumber == m_state.pictureNumber) {
        if (!m_changed.wait(&m_mutex, deadline))
            break;
    }
    *known = m_state;
    return !m_stopped;
}

void PhoneFeed::stop()
{
    {
        QMutexLocker lock(&m_mutex);
        m_stopped = true;
        m_changed.wakeAll();
    }
    wait();
}

void PhoneFeed::run()
{
    while (!m_stopped) {
        PhoneLink link(m_home);
        if (link.connectToPhone())
            follow(link);
        if (!m_stopped)
            msleep(RetryPause);
    }
}

void PhoneFeed::follow(PhoneLink &link)
{
    QJsonValue keyMap;
    if (link.request({QStringLiteral("keymap")}, &keyMap) != PhoneLink::Outcome::Done)
        return;
    publishPhone(QJsonDocument(keyMap.toObject()).toJson(QJsonDocument::Compact));

    PhoneLink::Outcome outcome = link.watch();
    while (!m_stopped && (outcome == PhoneLink::Outcome::Done || outcome == PhoneLink::Outcome::Silent)) {
        QByteArray picture;
        outcome = link.nextPicture(&picture, StopLook);
        if (outcome == PhoneLink::Outcome::Done)
            publishPicture(picture);
    }
    publishPhone({});
}

void PhoneFeed::publishPhone(const QByteArray &keyMap)
{
    QMutexLocker lock(&m_mutex);
    m_state.keyMap = keyMap;
    ++m_state.phoneNumber;
    if (keyMap.isEmpty())
        m_state.picture.clear();
    m_changed.wakeAll();
}

void PhoneFeed::publishPicture(const QByteArray &picture)
{
    QMutexLocker lock(&m_mutex);
    m_state.picture = picture;
    ++m_state.pictureNumber;
    m_changed.wakeAll();
}
