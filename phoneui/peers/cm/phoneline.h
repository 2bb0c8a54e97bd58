#ifndef PHONELINE_H
#define PHONELINE_H

#include <QByteArray>
#include <QObject>
#include <QTimer>

/// The one line that the call manager plays: it dials, rings at the other side, talks, and falls back to idle.
///
/// A number that ends in "*00" is busy. How long each step takes is read from the configuration file at each call,
/// in milliseconds: Dial/AlertTime, Dial/AnswerTime, Dial/BusyTime.
class PhoneLine : public QObject
{
    Q_OBJECT

public:
    enum State { Idle, Dialing, Alert, Connect, Busy };

    explicit PhoneLine(const QString &configFile, QObject *parent = nullptr);

    State state() const { return m_state; }

    // Each is false, with everything as it was, when the line's state does not allow it.

    bool dial(const QByteArray &number, const QByteArray &name);
    /// Hands the other side on to another number: here the call is over.
    bool transfer();
    /// Takes another number into the conversation.
    bool join(const QByteArray &number);
    bool hangUp();

signals:
    /// The state as the shell names it, with the other side; `name` is empty when the caller gave none.
    void stateChanged(const QByteArray &state, const QByteArray &number, const QByteArray &name);

private:
    void enter(State state);
    void goOn();
    int milliseconds(State state) const;

    const QString m_configFile;
    State m_state = Idle;
    QByteArray m_number;
    QByteArray m_name;
    QTimer m_timer;
};

#endif
