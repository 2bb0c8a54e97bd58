#ifndef IME_H
#define IME_H

#include <QObject>

class QEvent;

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

/// The input method: which mode is on. It is on while a line edit has the focus and off otherwise.
/// The reference starts small: it keeps and shows the mode and composes no text yet.
class IME : public QObject
{
    Q_OBJECT

public:
    explicit IME(QObject *parent = nullptr);

    /// 0 when no line edit has the focus, else an IMEStatus.
    int imeStatus() const { return m_active ? m_mode : IMEOff; }
    /// Chooses the mode; it shows when a line edit gets or has the focus.
    void setMode(IMEStatus mode);

signals:
    void changedIMEStatus(int status);

private:
    void followFocus(QObject *focusObject);
    void announce(int formerStatus);

    int m_mode = IMESmall;
    bool m_active = false;
};

#endif
