#ifndef TOASTWAITWITHOUTKEYEVENT_H
#define TOASTWAITWITHOUTKEYEVENT_H

#include "toastwait.h"

/// A wait that lets the keys through to its screen. Escape alone is its own: the owner may then give up the work.
class ToastWaitWithOutKeyEvent : public ToastWait
{
    Q_OBJECT

public:
    ToastWaitWithOutKeyEvent(const QString &message, int timeoutMilliseconds, QWidget *parent);

signals:
    /// Escape was pressed.
    void escaped();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
};

#endif
