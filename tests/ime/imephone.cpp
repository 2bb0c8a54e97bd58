#include "imephone.h"

#include "phonekey.h"
#include "phonekeys.h"

#include <QInputMethodEvent>
#include <QSettings>

void Field::inputMethodEvent(QInputMethodEvent *event)
{
    pending = event->preeditString();
    underlined = false;
    for (const auto &attribute : event->attributes())
        underlined |= attribute.length == pending.size()
            && attribute.value.value<QTextFormat>().toCharFormat().fontUnderline();
    QLineEdit::inputMethodEvent(event);
}

ImePhone::ImePhone() : first(&window), second(&window), other(&window)
{
    window.setGeometry(0, 26, 384, 134);
    first.setGeometry(5, 5, 370, 28);
    second.setGeometry(5, 40, 370, 28);
    other.setGeometry(5, 75, 370, 28);
    other.setFocusPolicy(Qt::StrongFocus);
    setTapTime(600000);
}

bool ImePhone::show()
{
    if (!PhoneKeys::showAndActivate(&window))
        return false;
    first.setFocus();
    return first.hasFocus();
}

void ImePhone::setLanguage(const QString &name)
{
    phone.core.setLanguageName(name);
}

void ImePhone::setTapTime(int ms)
{
    QSettings(phone.core.configFileName(SystemConfig), QSettings::IniFormat).setValue("Input/MultiTapTime", ms);
}

void ImePhone::type(const QString &keys)
{
    for (const QChar c : keys) {
        switch (c.unicode()) {
        case '#': PhoneKeys::click(Qt::Key(PhoneKey::Hash)); break;
        case '<': PhoneKeys::click(Qt::Key_Backspace); break;
        case '>': PhoneKeys::click(Qt::Key_Right); break;
        case 'v': PhoneKeys::click(Qt::Key_Down); break;
        case 's': PhoneKeys::click(Qt::Key_Context3); break;
        default: PhoneKeys::click(Qt::Key(c.unicode())); break;
        }
    }
}
