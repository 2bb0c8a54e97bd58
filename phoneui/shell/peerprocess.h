#ifndef PEERPROCESS_H
#define PEERPROCESS_H

#include "phonehome.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QTimer>

/// A process beside the shell that takes requests as datagrams. It picks a free port and prints it as its first
/// line; what it says on its error stream goes into the phone's log. One that dies is started again, some times.
///
/// It never outlives the shell: the destructor ends it, and the system does if the shell is killed.
class PeerProcess : public QProcess
{
    Q_OBJECT

public:
    PeerProcess(const QString &program, const PhoneHome &home, QObject *parent = nullptr);
    ~PeerProcess() override;

    void begin();
    /// Waits until the port is known. False, with the reason in the log, when it does not come.
    bool waitForPort();

signals:
    /// 0 when the process has gone.
    void portChanged(quint16 port);

protected:
    void setupChildProcess() override;

private:
    void takePort();
    void relayLog();
    void relayLine(const QByteArray &line) const;
    void setPort(quint16 port);
    void handleError(QProcess::ProcessError error);
    void handleEnd();

    const QString m_name;
    const qint64 m_shellPid;
    quint16 m_port = 0;
    int m_restarts = 0;
    QElapsedTimer m_life;
    QTimer m_restartTimer;
};

#endif
