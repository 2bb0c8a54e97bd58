#ifndef COMPOSER_H
#define COMPOSER_H

#include <QString>

/// Text in the making by the keys of the keypad: what is pending may still change with the next key.
class Composer
{
public:
    virtual ~Composer() = default;

    /// One press of a key. Returns what is finished by it; what it began is pending. `room` is how many characters
    /// both may have together: a letter that does not fit is refused.
    virtual QString press(int key, int room) = 0;
    virtual QString pending() const = 0;
    /// Whether what is pending can grow on after a pause: a Korean syllable can, a letter cannot.
    virtual bool outlivesPause() const = 0;
    /// The next press of the same key begins a letter of its own.
    virtual void endTap() = 0;
    /// Takes the last letter of what is pending away.
    virtual void erase() = 0;
    virtual void clear() = 0;
};

#endif
