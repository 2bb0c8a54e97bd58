#ifndef MONKEYEVENTS_H
#define MONKEYEVENTS_H

#include <QByteArray>
#include <QList>

#include <random>

/// One thing that happens to the phone, as a line of words: "tap 16777235", "send newContact(str)|00000000". A line
/// means the same in every run, so that a recorded run can be played again and cut down.
using MonkeyEvent = QByteArray;

/// Draws events. Spells of keys alone lead deep into the screens, spells of commands shake them there.
class MonkeyEvents
{
public:
    explicit MonkeyEvents(unsigned seed) : m_random(seed) { }

    MonkeyEvent next();

private:
    enum Spell { Keys, Mixed, Storm, Typing, SpellCount };

    int below(int count) { return std::uniform_int_distribution<int>(0, count - 1)(m_random); }
    MonkeyEvent key();
    MonkeyEvent text();
    MonkeyEvent command();
    MonkeyEvent answer();
    MonkeyEvent outside();
    QByteArray payload(const QByteArray &command);
    QByteArray word();

    std::mt19937 m_random;
    int m_spell = Keys;
    int m_left = 0; ///< events of this spell
};

#endif
