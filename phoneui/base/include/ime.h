#ifndef IME_H
#define IME_H

#include <QObject>

class KeypadInput;

/// The input modes, as the status bar shows them.
enum IMEStatus {
    IMEOff = 0, ///< no text field has the focus
    IMEFirst = 1, ///< Korean under the Korean language, small letters under any other
    IMESmall = 2, ///< small letters
    IMECapital = 3, ///< capitals
    IMEDigit = 4, ///< digits
    IMENumeric = 5, ///< a number field: digits, "+", "*", "#"
    IMEReserved6 = 6, ///< of the phone's own input method
    IMEReserved7 = 7
};

/// The input method: what the keypad writes into the line edit that has the focus, by the mode that is on. Letters
/// are tapped, Korean is put together of strokes and consonants, and Hash goes from mode to mode. It is off while
/// no line edit that can be written has the focus.
class IME : public QObject
{
    Q_OBJECT

public:
    explicit IME(QObject *parent = nullptr);

    /// 0 when no line edit has the focus, else an IMEStatus.
    int imeStatus() const { return m_active ? m_mode : IMEOff; }
    /// Chooses the mode; it shows when a line edit gets or has the focus.
    void setMode(IMEStatus mode);
    /// What the Hash key does: small letters, capitals, digits, and Korean under the Korean language.
    void nextMode();

signals:
    void changedIMEStatus(int status);

private:
    void followFocus();
    void announce(int formerStatus);

    KeypadInput *m_input = nullptr;
    IMEStatus m_mode = IMESmall;
    bool m_active = false;
};

#endif
