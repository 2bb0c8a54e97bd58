#include "toastwithoutkeyevent.h"

ToastWithOutKeyEvent::ToastWithOutKeyEvent(const QString &message, int timeoutMilliseconds, QWidget *parent)
    : Toast(message, timeoutMilliseconds, parent)
{
    setUseRollbackFocus(false);
}

void ToastWithOutKeyEvent::keyPressEvent(QKeyEvent *event)
{
    QWidget::keyPressEvent(event);
}

void ToastWithOutKeyEvent::keyReleaseEvent(QKeyEvent *event)
{
    QWidget::keyReleaseEvent(event);
}
