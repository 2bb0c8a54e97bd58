#ifndef IMEPHONE_H
#define IMEPHONE_H

#include "testphone.h"

#include <QLineEdit>
#include <QWidget>

/// A line edit that keeps what it was shown as pending.
class Field : public QLineEdit
{
public:
    using QLineEdit::QLineEdit;

    QString pending;
    bool underlined = false;

protected:
    void inputMethodEvent(QInputMethodEvent *event) override;
};

/// A phone with a window of two line edits and something else that takes the focus. A tapped letter waits for the
/// next key for as long as a test may take.
class ImePhone
{
public:
    ImePhone();

    /// Shows the window with the first field in focus.
    bool show();
    void setLanguage(const QString &name);
    void setTapTime(int ms);
    /// Keys of the keypad: digits, '*', '#', '<' for Backspace, '>' and 'v' for arrows, 's' for the third soft key.
    static void type(const QString &keys);

    TestPhone phone;
    QWidget window;
    Field first;
    Field second;
    QWidget other;
};

#endif
