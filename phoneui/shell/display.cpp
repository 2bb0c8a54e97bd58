#include "display.h"

#include "displaysetup.h"
#include "windowstack.h"

#include <QApplication>
#include <QEvent>
#include <QPainter>
#include <QWidget>

Display::Display(WindowStack *windows, QObject *parent) : QObject(parent), m_windows(windows)
{
    m_changeTimer.setSingleShot(true);
    connect(&m_changeTimer, &QTimer::timeout, this, &Display::changed);
    connect(windows, &WindowStack::changed, this, [this] {
        if (m_watchers > 0)
            m_changeTimer.start(0);
    });
}

QImage Display::picture()
{
    m_composing = true;
    QImage image(DisplaySetup::Size, QImage::Format_RGB32);
    image.fill(Qt::black);
    QPainter painter(&image);
    const QList<QWidget *> windows = m_windows->windows();
    for (QWidget *window : windows)
        window->render(&painter, window->pos(), QRegion(), QWidget::DrawWindowBackground | QWidget::DrawChildren);
    m_composing = false;
    return image;
}

void Display::watch()
{
    if (m_watchers++ == 0)
        qApp->installEventFilter(this);
}

void Display::unwatch()
{
    if (--m_watchers == 0)
        qApp->removeEventFilter(this);
}

bool Display::eventFilter(QObject *, QEvent *event)
{
    if (event->type() == QEvent::Paint && !m_composing)
        m_changeTimer.start(0);
    return false;
}
