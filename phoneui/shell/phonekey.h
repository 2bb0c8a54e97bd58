#ifndef PHONEKEY_H
#define PHONEKEY_H

#include <QString>
#include <Qt>

class QWindow;

/// The keys of the phone: their names, their codes and how they reach the screens.
namespace PhoneKey {

/// The code of the Hash key, which this phone sends in place of Qt::Key_NumberSign.
constexpr int Hash = 223;

/// The code of a key by its name ("Up", "Soft1", "F10", "VolumeMute", "7", "Star"); 0 for no key of the phone.
int code(const QString &name);
/// The name of a code, empty for no key of the phone.
QString name(int code);
/// Whether the key repeats while it is held: on a keypad the arrows, the volume and the erase key alone.
bool repeats(int code);

/// Posts one half of a key to the window that has the focus, as the keypad does. Keys of the keypad carry no text,
/// unlike those of a PC keyboard: what they write is the input method's business.
void post(int code, bool press, bool repeated = false);

/// Whether keys are still on their way.
bool pending();

/// Posts the typing of a text, as a PC keyboard types it.
void postText(const QString &text);

}

#endif
