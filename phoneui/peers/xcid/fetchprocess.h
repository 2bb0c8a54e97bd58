#ifndef FETCHPROCESS_H
#define FETCHPROCESS_H

#include "phonehome.h"

#include <QProcess>
#include <QTimer>

/// A fetch in a process of its own, which is killed when it takes too long or is no longer wanted: whatever a
/// server does, it does it to that process. The program is this one; the request goes in through its standard
/// input, out of sight of who lists processes, and the answer comes back through its standard output.
class FetchProcess : public QProcess
{
    Q_OBJECT

public:
    explicit FetchProcess(const PhoneHome &home, QObject *parent = nullptr);
    ~FetchProcess() override;

    /// `request` is the text of a FetchAddress.
    void fetch(const QByteArray &request);

    // The other end.

    static bool isChild(const QStringList &arguments);
    static int runChild(const QStringList &arguments);

signals:
    // One of the two comes, once.

    void succeeded(int status, const QByteArray &body);
    void failed(const QString &reason);

protected:
    void setupChildProcess() override;

private:
    void handleEnd();
    void end();

    const qint64 m_ownPid;
    QTimer m_timeLimit;
};

#endif
