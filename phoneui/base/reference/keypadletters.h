#ifndef KEYPADLETTERS_H
#define KEYPADLETTERS_H

#include "core.h"

#include <QString>

/// What is printed on the twelve keys of the keypad.
namespace KeypadLetters {

/// The Hash key as this phone's keypad sends it.
constexpr int HashKey = 223;

/// Whether the code is that of one of the twelve keys.
bool isKey(int key);

/// The characters that a key offers in turn, never empty.
QString of(int key, IMEStatus mode, Language language);

}

#endif
