#include "ime.h"

#include <QGuiApplication>

// This library knows no widgets: a line edit is known by its class name.
static bool isLineEdit(const QObject *object)
{
    return object && object->inherits("QLineEdit");
}

IME::IME(QObject *parent) : QObject(parent)
{
    auto *app = qobject_cast<QGuiApplication *>(QCoreApplication::instance());
    if (!app)
        return;
    connect(app, &QGuiApplication::focusObjectChanged, this, &IME::followFocus);
    m_active = isLineEdit(QGuiApplication::focusObject());
}

void IME::setMode(IMEStatus mode)
{
    // Off is not chosen: it is what shows without a line edit, and a screen that puts back what it read then
    // must not silence the next field.
    if (mode == IMEOff)
        return;
    const int former = imeStatus();
    m_mode = mode;
    announce(former);
}

void IME::followFocus(QObject *focusObject)
{
    const int former = imeStatus();
    m_active = isLineEdit(focusObject);
    announce(former);
}

void IME::announce(int formerStatus)
{
    if (imeStatus() != formerStatus)
        emit changedIMEStatus(imeStatus());
}
