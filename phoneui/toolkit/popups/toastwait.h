#ifndef TOASTWAIT_H
#define TOASTWAIT_H

#include "toast.h"

/// A toast for work that takes a while: a picture that turns in the place of the icon.
class ToastWait : public Toast
{
    Q_OBJECT

public:
    ToastWait(const QString &message, int timeoutMilliseconds, QWidget *parent);

public slots:
    /// Shows the next picture of the turn.
    void pixmapTimeout();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QTimer *m_pixmapTimer;
    int m_pixmapIndex = 0;
};

#endif
