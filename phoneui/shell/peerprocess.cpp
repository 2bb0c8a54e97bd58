#include "peerprocess.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QFileInfo>

#include <csignal>
#include <sys/prctl.h>
#include <unistd.h>

namespace {

constexpr int PortPatience = 5000; // ms
constexpr int EndPatience = 1000; // ms
constexpr int RestartDelay = 200; // ms
constexpr int MostRestarts = 5;
constexpr int HealthyLife = 60000; // ms; who lived that long is worth all restarts again

}

PeerProcess::PeerProcess(const QString &program, const PhoneHome &home, QObject *parent)
    : QProcess(parent), m_name(QFileInfo(program).fileName()), m_shellPid(QCoreApplication::applicationPid())
{
    setProgram(program);
    setArguments({"--home", home.root(), "--port", "0"});
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_MESSAGE_PATTERN", "%{type}: %{message}");
    setProcessEnvironment(environment);
    m_restartTimer.setSingleShot(true);
    m_restartTimer.setInterval(RestartDelay);
    connect(&m_restartTimer, &QTimer::timeout, this, &PeerProcess::begin);
    connect(this, &QProcess::readyReadStandardOutput, this, &PeerProcess::takePort);
    connect(this, &QProcess::readyReadStandardError, this, &PeerProcess::relayLog);
    connect(this, &QProcess::errorOccurred, this, &PeerProcess::handleError);
    connect(this, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this, &PeerProcess::handleEnd);
}

PeerProcess::~PeerProcess()
{
    disconnect();
    if (state() == NotRunning)
        return;
    terminate();
    if (!waitForFinished(EndPatience)) {
        kill();
        waitForFinished(EndPatience);
    }
}

void PeerProcess::setupChildProcess()
{
    ::prctl(PR_SET_PDEATHSIG, SIGTERM);
    // The shell may have died before the system was asked.
    if (::getppid() != m_shellPid)
        ::_exit(1);
}

void PeerProcess::begin()
{
    m_life.start();
    start(ReadOnly);
}

bool PeerProcess::waitForPort()
{
    const QDeadlineTimer deadline(PortPatience);
    while (m_port == 0 && waitForReadyRead(static_cast<int>(deadline.remainingTime()))) { }
    if (m_port == 0)
        qWarning("%s gives no port", qPrintable(m_name));
    return m_port != 0;
}

void PeerProcess::takePort()
{
    while (canReadLine()) {
        const quint16 port = readLine().trimmed().toUShort();
        if (port != 0)
            setPort(port);
    }
}

void PeerProcess::setPort(quint16 port)
{
    if (port == m_port)
        return;
    m_port = port;
    emit portChanged(port);
}

void PeerProcess::relayLog()
{
    setReadChannel(StandardError);
    while (canReadLine())
        relayLine(readLine());
    setReadChannel(StandardOutput);
}

void PeerProcess::relayLine(const QByteArray &line) const
{
    const QByteArray said = line.trimmed();
    if (said.startsWith("info: ") || said.startsWith("debug: "))
        qInfo("%s: %s", qPrintable(m_name), said.mid(said.indexOf(' ') + 1).constData());
    else if (!said.isEmpty())
        qWarning("%s: %s", qPrintable(m_name), said.constData());
}

void PeerProcess::handleError(QProcess::ProcessError error)
{
    if (error == FailedToStart)
        qWarning("%s cannot be started: %s", qPrintable(m_name), qPrintable(errorString()));
}

void PeerProcess::handleEnd()
{
    relayLine(readAllStandardError());
    const QString how = exitStatus() == CrashExit ? errorString() : QString("code %1").arg(exitCode());
    if (m_life.hasExpired(HealthyLife))
        m_restarts = 0;
    const bool again = m_restarts++ < MostRestarts;
    qWarning("%s ended (%s) and %s", qPrintable(m_name), qPrintable(how),
             again ? "is started again" : "stays off until the phone is started again");
    if (again)
        m_restartTimer.start();
    setPort(0);
}
