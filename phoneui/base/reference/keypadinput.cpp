#include "keypadinput.h"

#include "core.h"
#include "keypadletters.h"
#include "settingsfile.h"

#include <QGuiApplication>
#include <QInputMethod>
#include <QKeyEvent>

namespace {

constexpr int DefaultTapTime = 1000; // ms
constexpr int HoldTime = 500; // ms

bool isKeypadKey(const QKeyEvent *event)
{
    return event->text().isEmpty() && event->modifiers() == Qt::NoModifier && KeypadLetters::isKey(event->key());
}

bool isSoftKey(int key)
{
    return key >= Qt::Key_Context1 && key <= Qt::Key_Context4;
}

/// Shift, Alt and their like do nothing alone: a PC keyboard reaches the keypad with them.
bool isModifier(int key)
{
    return (key >= Qt::Key_Shift && key <= Qt::Key_ScrollLock) || key == Qt::Key_AltGr;
}

int configuredTapTime()
{
    return SettingsFile(theCore->configFileName(SystemConfig))
        .number(QStringLiteral("Input/MultiTapTime"), DefaultTapTime);
}

}

KeypadInput::KeypadInput(IME *ime) : QObject(ime), m_ime(ime)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &KeypadInput::timeIsUp);
    // A field that anyone else writes into leaves what is pending where it was, so it has to go.
    connect(QGuiApplication::inputMethod(), &QInputMethod::cursorRectangleChanged, this,
            &KeypadInput::abandonWhenDisturbed, Qt::QueuedConnection);
    QCoreApplication::instance()->installEventFilter(this);
}

bool KeypadInput::eventFilter(QObject *watched, QEvent *event)
{
    // Windows hand their keys on to widgets; these are where keys are taken.
    const QPointer<QObject> alive(watched);
    switch (event->type()) {
    case QEvent::KeyPress:
        if (watched->isWidgetType() && pressKey(watched, static_cast<QKeyEvent *>(event)))
            return true;
        break;
    case QEvent::KeyRelease: return watched->isWidgetType() && releaseKey(static_cast<QKeyEvent *>(event));
    case QEvent::FocusOut:
        if (m_field.is(watched))
            finish();
        break;
    case QEvent::ReadOnlyChange:
        if (watched == QGuiApplication::focusObject())
            emit readOnlyChanged();
        break;
    default: return false;
    }
    // What was committed may have cost the receiver its life, and a dead one receives nothing.
    return !alive;
}

bool KeypadInput::pressKey(QObject *watched, const QKeyEvent *event)
{
    const int key = event->key();
    m_down.remove(key);
    if (m_ime->imeStatus() == IMEOff || watched != QGuiApplication::focusObject() || isModifier(key))
        return false;
    if (isKeypadKey(event)) {
        m_down.insert(key);
        if (!event->isAutoRepeat())
            useKey(watched, key);
        return true;
    }
    if (key == Qt::Key_Backspace) {
        if (!erase())
            return false;
        m_down.insert(key);
        return true;
    }
    // The erase key is a soft key, and takes up again what it finds.
    if (isSoftKey(key))
        pause();
    else
        finish();
    return false;
}

bool KeypadInput::releaseKey(const QKeyEvent *event)
{
    const int key = event->key();
    if (event->isAutoRepeat())
        return m_down.contains(key);
    if (key == m_heldKey)
        finish();
    // Whatever opened since the press does not see the release.
    return m_down.remove(key);
}

void KeypadInput::useKey(QObject *edit, int key)
{
    if (key == KeypadLetters::HashKey && m_ime->imeStatus() != IMENumeric) {
        m_ime->nextMode();
        return;
    }
    if (!m_field.is(edit)) {
        finish();
        m_field = InputField(edit);
    }
    abandonWhenDisturbed();
    if (m_composer && m_composer != composerOf(key))
        finish();
    // What was committed may have sent the focus elsewhere.
    if (m_field.hasFocus())
        writeKey(key);
}

Composer *KeypadInput::composerOf(int key)
{
    const bool isKorean = m_ime->imeStatus() == IMEFirst && theCore->language() == Korean;
    if (isKorean && key != Qt::Key_Asterisk && !m_field.isMasked())
        return &m_hangul;
    return &m_letters;
}

int KeypadInput::room() const
{
    return m_field.isMasked() ? 1 : m_field.room() + m_written;
}

bool KeypadInput::isPending() const
{
    return m_composer && !m_composer->pending().isEmpty();
}

void KeypadInput::writeKey(int key)
{
    if (!m_composer)
        m_tapTime = configuredTapTime();
    m_letters.setAlphabet(m_field.isMasked() ? IMEDigit : IMEStatus(m_ime->imeStatus()), theCore->language());
    Composer *composer = composerOf(key);
    const QString finished = composer->press(key, room());
    const QString pending = composer->pending();
    m_composer = pending.isEmpty() ? nullptr : composer;
    startTimer(key);
    write(finished, pending);
}

void KeypadInput::startTimer(int key)
{
    m_heldKey = 0;
    if (!m_composer) {
        m_timer.stop();
    } else if (m_ime->imeStatus() == IMENumeric) {
        m_heldKey = key;
        m_timer.start(HoldTime);
    } else {
        m_timer.start(m_tapTime);
    }
}

void KeypadInput::write(const QString &finished, const QString &pending)
{
    const int replaced = m_written;
    if (finished.isEmpty() && replaced == 0 && pending == m_shown)
        return;
    m_written = 0;
    m_shown = pending;
    const bool wasWriting = m_writing;
    m_writing = true;
    m_field.write(finished, replaced, pending);
    m_writing = wasWriting;
    m_place = m_field.place();
}

void KeypadInput::finish()
{
    abandonWhenDisturbed();
    if (!m_composer)
        return;
    const bool isWritten = m_written > 0;
    const QString text = m_composer->pending();
    m_composer->clear();
    m_composer = nullptr;
    m_written = 0;
    m_heldKey = 0;
    m_timer.stop();
    if (!isWritten)
        write(text, QString());
}

/// Commits what is pending; the next key or Backspace may take it up again.
void KeypadInput::pause()
{
    abandonWhenDisturbed();
    if (!m_composer || m_written > 0)
        return;
    if (!m_composer->outlivesPause()) {
        finish();
        return;
    }
    m_timer.stop();
    m_composer->endTap();
    const QString text = m_composer->pending();
    write(text, QString());
    if (!m_composer)
        return;
    m_written = text.size();
    // A field may have refused it.
    if (!m_place.endsWith(text))
        abandon();
}

void KeypadInput::timeIsUp()
{
    if (m_heldKey == 0) {
        pause();
        return;
    }
    abandonWhenDisturbed();
    if (m_composer)
        m_composer->press(m_heldKey, room());
    finish();
}

bool KeypadInput::erase()
{
    abandonWhenDisturbed();
    if (!m_composer)
        return false;
    m_composer->erase();
    const QString pending = m_composer->pending();
    if (pending.isEmpty())
        m_composer = nullptr;
    m_heldKey = 0;
    if (m_composer)
        m_timer.start(m_tapTime);
    else
        m_timer.stop();
    write(QString(), pending);
    return true;
}

void KeypadInput::abandonWhenDisturbed()
{
    if (m_composer && !m_writing && !(m_field.place() == m_place))
        abandon();
}

void KeypadInput::abandon()
{
    m_composer->clear();
    m_composer = nullptr;
    m_written = 0;
    m_heldKey = 0;
    m_timer.stop();
    write(QString(), QString());
}
