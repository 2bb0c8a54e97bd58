#ifndef CALL_H
#define CALL_H

#include "baseappinterface.h"
#include "basewidget.h"
#include "callstrip.h"
#include "qcalllist.h"

#include <QElapsedTimer>
#include <QTimer>

/// The call under way. It keeps the state of the line for all applications, comes up when a call begins, and puts
/// the call into the history when it ends.
///
/// Escape hides the screen and the call goes on; starting the application shows it again. While the contacts lie
/// over the call, it is a strip in the status bar.
class Call : public BaseWidget, public BaseAppInterface
{
    Q_OBJECT
    Q_INTERFACES(BaseAppInterface)

public:
    Call();
    /// A call that is still under way goes into the history.
    ~Call() override;

    bool start(QWidget *parent, void *data) override;
    void end() override;
    void receiveMsg(const QString &command, const QByteArray &payload) override;

protected:
    void setupStatus() override;
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void setupTail();
    void softKeyClicked(int idx);
    bool isUnderWay() const;
    QString party() const;
    int seconds() const;
    QString stateLine() const;

    void takeState(const QString &state, const QString &number, const QString &name);
    void beginCall(const QString &number);
    void finishCall();
    void contactsGone();
    void showStrip(bool show);
    void refresh();

    CallRecord m_call;
    QElapsedTimer m_talking; ///< valid from the moment that the other side has answered
    QTimer m_tick;
    CallStrip m_strip;
    bool m_contactsOpen = false;
};

#endif
