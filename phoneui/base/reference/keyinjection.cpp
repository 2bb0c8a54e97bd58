#include "keyinjection.h"

#include <QGuiApplication>
#include <QKeyEvent>

void injectKey(Qt::Key key, bool press)
{
    QObject *target = QGuiApplication::focusObject();
    if (!target)
        return;
    QKeyEvent event(press ? QEvent::KeyPress : QEvent::KeyRelease, key, Qt::NoModifier);
    QCoreApplication::sendEvent(target, &event);
}

void injectKeyStroke(Qt::Key key)
{
    injectKey(key, true);
    injectKey(key, false);
}
