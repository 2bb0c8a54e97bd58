#include "multitap.h"

#include "keypadletters.h"

void MultiTap::setAlphabet(IMEStatus mode, Language language)
{
    m_mode = mode;
    m_language = language;
}

QString MultiTap::press(int key, int room)
{
    if (key == m_tapKey) {
        m_index = (m_index + 1) % m_choice.size();
        return QString();
    }
    const QString finished = pending();
    clear();
    if (finished.size() >= room)
        return finished;
    const QString choice = KeypadLetters::of(key, m_mode, m_language);
    if (choice.size() == 1)
        return finished + choice;
    m_choice = choice;
    m_tapKey = key;
    return finished;
}

QString MultiTap::pending() const
{
    return m_choice.mid(m_index, 1);
}

void MultiTap::clear()
{
    m_choice.clear();
    m_index = 0;
    m_tapKey = 0;
}
