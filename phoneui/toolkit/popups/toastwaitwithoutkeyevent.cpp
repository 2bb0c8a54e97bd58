#include "toastwaitwithoutkeyevent.h"

#include <QKeyEvent>

ToastWaitWithOutKeyEvent::ToastWaitWithOutKeyEvent(const QString &message, int timeoutMilliseconds, QWidget *parent)
    : ToastWait(message, timeoutMilliseconds, parent)
{
    setUseRollbackFocus(false);
}

void ToastWaitWithOutKeyEvent::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        emit escaped();
    else
        QWidget::keyPressEvent(event);
}

void ToastWaitWithOutKeyEvent::keyReleaseEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Escape)
        QWidget::keyReleaseEvent(event);
}
