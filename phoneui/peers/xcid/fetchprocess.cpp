#include "fetchprocess.h"

#include "fetch.h"

#include <QCoreApplication>
#include <QFile>

#include <csignal>
#include <cstdio>
#include <sys/prctl.h>
#include <unistd.h>

static const char ChildWord[] = "fetch";

FetchProcess::FetchProcess(const PhoneHome &home, QObject *parent)
    : QProcess(parent), m_ownPid(QCoreApplication::applicationPid())
{
    setProgram(QCoreApplication::applicationFilePath());
    setArguments({QLatin1String(ChildWord), home.root()});
    setProcessChannelMode(ForwardedErrorChannel);
    m_timeLimit.setSingleShot(true);
    m_timeLimit.setInterval(FetchSettings::read(home).timeLimit);
    connect(&m_timeLimit, &QTimer::timeout, this, [this] {
        end();
        emit failed(QStringLiteral("it takes too long"));
    });
    connect(this, QOverload<int, ExitStatus>::of(&QProcess::finished), this, &FetchProcess::handleEnd);
    connect(this, &QProcess::errorOccurred, this, [this](ProcessError error) {
        if (error == FailedToStart)
            emit failed(errorString());
    });
}

FetchProcess::~FetchProcess()
{
    end();
}

void FetchProcess::end()
{
    disconnect(this, nullptr, this, nullptr);
    m_timeLimit.stop();
    if (state() == NotRunning)
        return;
    kill();
    waitForFinished();
}

void FetchProcess::setupChildProcess()
{
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    // The parent may have died before the system was asked.
    if (::getppid() != m_ownPid)
        ::_exit(1);
}

void FetchProcess::fetch(const QByteArray &request)
{
    m_timeLimit.start();
    start(ReadWrite);
    write(request);
    closeWriteChannel();
}

/// Its first line is the status of an answer, which follows, or the reason why there is none.
void FetchProcess::handleEnd()
{
    m_timeLimit.stop();
    const QByteArray line = readLine().trimmed();
    if (exitStatus() == NormalExit && exitCode() == 0)
        emit succeeded(line.toInt(), readAll());
    else
        emit failed(line.isEmpty() ? QStringLiteral("its process died") : QString::fromUtf8(line));
}

bool FetchProcess::isChild(const QStringList &arguments)
{
    return arguments.size() == 3 && arguments.at(1) == QLatin1String(ChildWord);
}

int FetchProcess::runChild(const QStringList &arguments)
{
    QFile input;
    QFile output;
    if (!input.open(stdin, QIODevice::ReadOnly) || !output.open(stdout, QIODevice::WriteOnly))
        return 1;
    const auto finish = [&output](int code, const QByteArray &line, const QByteArray &body = QByteArray()) {
        const QByteArray text = line + '\n' + body;
        const bool written = output.write(text) == text.size() && output.flush();
        QCoreApplication::exit(written ? code : 1);
    };
    Fetch fetch(FetchAddress::parse(input.readAll()), FetchSettings::read(PhoneHome(arguments.at(2))));
    QObject::connect(&fetch, &Fetch::succeeded, &output, [&finish](int status, const QByteArray &body) {
        finish(0, QByteArray::number(status), body);
    });
    QObject::connect(&fetch, &Fetch::failed, &output,
                     [&finish](const QString &reason) { finish(1, reason.toUtf8()); });
    fetch.start();
    return QCoreApplication::exec();
}
