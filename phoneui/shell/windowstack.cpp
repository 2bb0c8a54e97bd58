#include "windowstack.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>
#include <QWindow>

WindowStack::WindowStack(QObject *parent) : QObject(parent)
{
    qApp->installEventFilter(this);
}

QList<QWidget *> WindowStack::windows() const
{
    QList<QWidget *> visible;
    for (const QPointer<QWidget> &window : m_windows) {
        if (window && window->isVisible())
            visible.append(window);
    }
    return visible;
}

static bool canBeActive(const QWidget *window)
{
    return !window->windowFlags().testFlag(Qt::WindowDoesNotAcceptFocus);
}

QWidget *WindowStack::top() const
{
    const QList<QWidget *> visible = windows();
    for (int i = visible.size() - 1; i >= 0; --i) {
        if (canBeActive(visible.at(i)))
            return visible.at(i);
    }
    return nullptr;
}

bool WindowStack::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Show:
    case QEvent::Hide:
    case QEvent::ZOrderChange: break;
    default: return false;
    }
    auto *window = qobject_cast<QWidget *>(watched);
    if (!window || !window->isWindow())
        return false;
    if (event->type() == QEvent::Hide)
        remove(window);
    else if (event->type() == QEvent::Show || window->isVisible())
        moveToTop(window);
    return false;
}

void WindowStack::moveToTop(QWidget *window)
{
    m_windows.removeAll(nullptr);
    m_windows.removeAll(window);
    m_windows.append(window);
    // The platform makes the window that comes active by itself, once it is there.
    QMetaObject::invokeMethod(this, &WindowStack::activateTop, Qt::QueuedConnection);
    emit changed();
}

void WindowStack::remove(QWidget *window)
{
    m_windows.removeAll(nullptr);
    m_windows.removeAll(window);
    QMetaObject::invokeMethod(this, &WindowStack::activateTop, Qt::QueuedConnection);
    emit changed();
}

void WindowStack::activateTop()
{
    QWidget *window = top();
    if (!window || QApplication::activeWindow() == window)
        return;
    // A window that went and came back at once has lost its place in Qt, but not at the platform, which then sees
    // nothing to activate.
    if (QGuiApplication::focusWindow() == window->windowHandle())
        QApplication::setActiveWindow(window);
    else
        window->activateWindow();
}
