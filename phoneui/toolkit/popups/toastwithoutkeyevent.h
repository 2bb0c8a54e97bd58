#ifndef TOASTWITHOUTKEYEVENT_H
#define TOASTWITHOUTKEYEVENT_H

#include "toast.h"

/// A toast that lets every key through to its screen and so ends by its time alone.
class ToastWithOutKeyEvent : public Toast
{
    Q_OBJECT

public:
    ToastWithOutKeyEvent(const QString &message, int timeoutMilliseconds, QWidget *parent);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
};

#endif
