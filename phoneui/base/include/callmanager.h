#ifndef CALLMANAGER_H
#define CALLMANAGER_H

#include <QObject>
#include <QString>

/// The state of the line as the user interface sees it. The shell writes it from what the call manager process
/// tells. The reference starts small: one line.
class CallManager : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// "IDLE" without a call, "CONNECT" in one; other texts name the states between.
    QString callState() const { return m_callState; }
    void setCallState(const QString &state);

signals:
    void callStateChanged(const QString &state);

private:
    QString m_callState = QStringLiteral("IDLE");
};

/// The call mode that a dial request carries: "AUDIO", the only mode of this phone.
QString getCallMode();

#endif
