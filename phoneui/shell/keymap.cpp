#include "keymap.h"

#include "phonekey.h"
#include "settingsfile.h"

#include <QCoreApplication>
#include <QFile>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QKeySequence>
#include <QWindow>

static const char defaultMap[] = "; PC key = phone key\n"
                                 "[Keys]\n"
                                 "F1=Soft1\nF2=Soft2\nF3=Soft3\nF4=Soft4\n"
                                 "Shift+F1=F1\nShift+F2=F2\nShift+F3=F3\nShift+F4=F4\nShift+F5=F5\n"
                                 "Shift+F6=F6\nShift+F7=F7\nShift+F8=F8\nShift+F9=F9\nShift+F10=F10\n"
                                 "Up=Up\nDown=Down\nLeft=Left\nRight=Right\n"
                                 "Return=Ok\nEnter=Ok\nEscape=Esc\nBackspace=Backspace\n"
                                 "Alt+0=0\nAlt+1=1\nAlt+2=2\nAlt+3=3\nAlt+4=4\n"
                                 "Alt+5=5\nAlt+6=6\nAlt+7=7\nAlt+8=8\nAlt+9=9\n"
                                 "Alt+*=Star\nAlt+#=Hash\n"
                                 "PgUp=VolumeUp\nPgDown=VolumeDown\nEnd=VolumeMute\n";

/// A key with its modifiers, but for those that tell where on the keyboard it lies.
static int keyCode(int key)
{
    return key & ~int(Qt::KeypadModifier | Qt::GroupSwitchModifier);
}

KeyMap::KeyMap(const QString &path, QObject *parent) : QObject(parent)
{
    if (!QFile::exists(path)) {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(defaultMap) < 0)
            qWarning("The key map %s cannot be written: %s", qPrintable(path), qPrintable(file.errorString()));
    }
    load(path);
    qApp->installEventFilter(this);
}

void KeyMap::load(const QString &path)
{
    const SettingsFile settings(path);
    const QStringList pcKeys = settings.keys("Keys");
    for (const QString &pcKey : pcKeys) {
        const QKeySequence sequence(pcKey, QKeySequence::PortableText);
        const QString phoneName = settings.value("Keys/" + pcKey);
        const int code = PhoneKey::code(phoneName);
        if (sequence.count() != 1 || sequence[0] == Qt::Key_unknown || code == 0) {
            qWarning("Key map: left out \"%s=%s\"", qPrintable(pcKey), qPrintable(phoneName));
            continue;
        }
        m_names.insert(pcKey, phoneName);
        m_codes.insert(keyCode(sequence[0]), code);
    }
}

int KeyMap::phoneKey(const QKeyEvent *event) const
{
    const int pressed = keyCode(event->key() | int(event->modifiers()));
    const int exact = m_codes.value(pressed);
    // Signs such as the star need Shift on many keyboards.
    return exact ? exact : m_codes.value(pressed & ~int(Qt::ShiftModifier));
}

bool KeyMap::eventFilter(QObject *watched, QEvent *event)
{
    const bool press = event->type() == QEvent::KeyPress;
    if ((!press && event->type() != QEvent::KeyRelease) || !event->spontaneous()
        || !qobject_cast<QWindow *>(watched))
        return false;
    const auto *key = static_cast<QKeyEvent *>(event);
    // A release belongs to the phone key that its press became, whatever modifiers were let go meanwhile.
    const int code = press ? phoneKey(key) : m_down.value(key->key());
    if (code == 0)
        return false;
    if (key->isAutoRepeat() && !PhoneKey::repeats(code))
        return true;
    if (press)
        m_down.insert(key->key(), code);
    else if (!key->isAutoRepeat())
        m_down.remove(key->key());
    PhoneKey::post(code, press, key->isAutoRepeat());
    return true;
}
