#include "ime.h"

#include "core.h"
#include "inputfield.h"
#include "keypadinput.h"

#include <QGuiApplication>

IME::IME(QObject *parent) : QObject(parent)
{
    auto *app = qobject_cast<QGuiApplication *>(QCoreApplication::instance());
    if (!app)
        return;
    m_input = new KeypadInput(this);
    connect(m_input, &KeypadInput::readOnlyChanged, this, &IME::followFocus);
    connect(app, &QGuiApplication::focusObjectChanged, this, &IME::followFocus);
    m_active = InputField::takesText(QGuiApplication::focusObject());
}

void IME::setMode(IMEStatus mode)
{
    // Off is not chosen: it is what shows without a line edit, and a screen that puts back what it read then
    // must not silence the next field.
    if (mode == IMEOff)
        return;
    if (m_input && mode != m_mode)
        m_input->finish();
    const int former = imeStatus();
    m_mode = mode;
    announce(former);
}

void IME::nextMode()
{
    const bool isKorean = theCore->language() == Korean;
    switch (m_mode) {
    case IMEFirst: setMode(isKorean ? IMESmall : IMECapital); break;
    case IMECapital: setMode(IMEDigit); break;
    case IMEDigit: setMode(isKorean ? IMEFirst : IMESmall); break;
    default: setMode(IMECapital); break;
    }
}

void IME::followFocus()
{
    m_input->finish();
    const int former = imeStatus();
    m_active = InputField::takesText(QGuiApplication::focusObject());
    announce(former);
}

void IME::announce(int formerStatus)
{
    if (imeStatus() != formerStatus)
        emit changedIMEStatus(imeStatus());
}
