#ifndef KEYPADINPUT_H
#define KEYPADINPUT_H

#include "hangulkeypad.h"
#include "inputfield.h"
#include "multitap.h"

#include <QObject>
#include <QSet>
#include <QTimer>

class IME;
class QKeyEvent;

/// Writes into the line edit with the focus by the keys of the keypad, which come without text. Those of a PC
/// keyboard carry theirs and are left alone.
///
/// Every call into the line edit may run a screen's code: it may move the focus, write into the field, delete it,
/// or run an event loop. The state here is complete before such a call, and asked anew after it.
class KeypadInput : public QObject
{
    Q_OBJECT

public:
    explicit KeypadInput(IME *ime);

    /// Commits what is pending.
    void finish();

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    void readOnlyChanged();

private:
    bool pressKey(QObject *watched, const QKeyEvent *event);
    bool releaseKey(const QKeyEvent *event);
    void useKey(QObject *edit, int key);
    void writeKey(int key);
    bool erase();
    void pause();
    void timeIsUp();
    void abandon();
    void abandonWhenDisturbed();

    Composer *composerOf(int key);
    int room() const;
    bool isPending() const;
    void startTimer(int key);
    void write(const QString &finished, const QString &pending);

    IME *const m_ime;
    MultiTap m_letters;
    HangulKeypad m_hangul;
    Composer *m_composer = nullptr; ///< the one that has something pending
    InputField m_field;
    InputField::Place m_place; ///< as the last call left it
    QString m_shown; ///< what is pending and stands underlined
    int m_written = 0; ///< characters that are pending and yet stand in the text, after a pause
    bool m_writing = false;
    QSet<int> m_down; ///< the keys that were used and are down
    int m_heldKey = 0; ///< that writes something else when it is held
    int m_tapTime = 0;
    QTimer m_timer;
};

#endif
