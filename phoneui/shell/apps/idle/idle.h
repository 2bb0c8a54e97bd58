#ifndef IDLE_H
#define IDLE_H

#include "baseappinterface.h"
#include "basewidget.h"

#include <QTimer>

/// The home screen: the clock, the date, and the way into the applications. It is always there below the others.
class Idle : public BaseWidget, public BaseAppInterface
{
    Q_OBJECT
    Q_INTERFACES(BaseAppInterface)

public:
    Idle();

    bool start(QWidget *parent, void *data) override;
    void end() override;
    void receiveMsg(const QString &command, const QByteArray &payload) override;

protected:
    void setupStatus() override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void setupTail();
    void softKeyClicked(int idx);
    void raiseStatus();
    void lowerStatus();

    QTimer m_clockTimer;
};

#endif
