#ifndef MULTITAP_H
#define MULTITAP_H

#include "composer.h"
#include "core.h"

/// Letters by tapping: each further press of a key puts its next character in place of the last one.
class MultiTap : public Composer
{
public:
    void setAlphabet(IMEStatus mode, Language language);

    QString press(int key, int room) override;
    QString pending() const override;
    bool outlivesPause() const override { return false; }
    void endTap() override { m_tapKey = 0; }
    void erase() override { clear(); }
    void clear() override;

private:
    IMEStatus m_mode = IMESmall;
    Language m_language = English;
    QString m_choice; ///< the characters of the tapped key, empty when nothing is pending
    int m_index = 0;
    int m_tapKey = 0;
};

#endif
