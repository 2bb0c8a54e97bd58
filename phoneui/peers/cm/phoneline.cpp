#include "phoneline.h"
#include "settingsfile.h"

namespace {

struct Step
{
    const char *text;
    const char *key; ///< of the time after which the line goes on by itself; null where it stays
    int milliseconds; ///< unless the configuration has another
};

// By PhoneLine::State.
constexpr Step Steps[] = {
    {"IDLE", nullptr, 0},    {"DIALING", "Dial/AlertTime", 1000}, {"ALERT", "Dial/AnswerTime", 2500},
    {"CONNECT", nullptr, 0}, {"BUSY", "Dial/BusyTime", 3000},
};

}

PhoneLine::PhoneLine(const QString &configFile, QObject *parent) : QObject(parent), m_configFile(configFile)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &PhoneLine::goOn);
}

bool PhoneLine::dial(const QByteArray &number, const QByteArray &name)
{
    if (m_state != Idle)
        return false;
    m_number = number;
    m_name = name;
    enter(Dialing);
    return true;
}

bool PhoneLine::transfer()
{
    if (m_state != Connect)
        return false;
    enter(Idle);
    return true;
}

bool PhoneLine::join(const QByteArray &number)
{
    if (m_state != Connect)
        return false;
    m_name = (m_name.isEmpty() ? m_number : m_name) + ", " + number;
    enter(Connect);
    return true;
}

bool PhoneLine::hangUp()
{
    if (m_state == Idle)
        return false;
    enter(Idle);
    return true;
}

void PhoneLine::enter(State state)
{
    m_state = state;
    m_timer.stop();
    if (Steps[state].key)
        m_timer.start(milliseconds(state));
    emit stateChanged(Steps[state].text, m_number, m_name);
}

void PhoneLine::goOn()
{
    switch (m_state) {
    case Dialing: enter(m_number.endsWith("*00") ? Busy : Alert); break;
    case Alert: enter(Connect); break;
    case Busy: enter(Idle); break;
    case Idle:
    case Connect: break;
    }
}

int PhoneLine::milliseconds(State state) const
{
    return qMax(0, SettingsFile(m_configFile).number(QLatin1String(Steps[state].key), Steps[state].milliseconds));
}
