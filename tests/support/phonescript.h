#ifndef PHONESCRIPT_H
#define PHONESCRIPT_H

#include <QByteArray>
#include <QList>
#include <QString>
#include <Qt>

#include <functional>

/// Keys and checks that go on while screens, boxes and popups run event loops inside each other: each step comes
/// from a timer, as a key comes from a keypad, and the next one waits for what it expects.
class PhoneScript
{
public:
    /// Presses and releases keys, soft keys as Qt::Key_Context1 and so on.
    PhoneScript &keys(const QList<int> &codes);
    /// Types into the focused field, as a PC keyboard does.
    PhoneScript &text(const QString &words);
    PhoneScript &call(const std::function<void()> &action);
    /// Waits until the condition holds; `what` is told when it does not within three seconds.
    PhoneScript &until(const QString &what, const std::function<bool()> &condition);
    /// Waits until a widget of that class is the one whose window is active.
    PhoneScript &untilActive(const QByteArray &className);
    /// Presses a key and waits for the window that becomes active by it.
    PhoneScript &opens(int key, const QByteArray &className) { return keys({key}).untilActive(className); }
    /// Waits until the focus is in a widget of that class.
    PhoneScript &untilFocus(const QByteArray &className);
    /// Waits for a toast, reads what it says, sends it away with a key and waits until it is gone.
    PhoneScript &dismissToast(QString *message = nullptr);

    /// Runs all steps, one every `pace` milliseconds, and returns when they are done; the reason of a failure, or
    /// an empty text.
    QString run(int pace = 4);

private:
    struct Step
    {
        std::function<void()> action;
        std::function<bool()> condition;
        QString what;
    };
    QList<Step> m_steps;
};

#endif
