#include "soundplayer.h"

#include <QDebug>
#include <QProcess>
#include <QStandardPaths>

static constexpr int PatienceMs = 1000;

SoundPlayer::~SoundPlayer()
{
    const QList<QProcess *> processes = findChildren<QProcess *>();
    for (QProcess *process : processes) {
        process->disconnect(this);
        process->kill();
        process->waitForFinished(PatienceMs);
    }
}

void SoundPlayer::play(const QString &path)
{
    stop();
    const QString program = QStandardPaths::findExecutable("aplay");
    if (program.isEmpty())
        return;
    auto *process = new QProcess(this);
    m_process = process;
    process->setStandardInputFile(QProcess::nullDevice());
    process->setStandardOutputFile(QProcess::nullDevice());
    connect(process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this,
            [this, process] { processEnded(process); });
    connect(process, &QProcess::errorOccurred, this, [this, process](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            processEnded(process);
    });
    process->start(program, {"-q", "--", path});
}

void SoundPlayer::stop()
{
    if (QProcess *process = m_process) {
        // It goes when it has ended, which takes a moment.
        m_process.clear();
        process->kill();
    }
}

void SoundPlayer::processEnded(QProcess *process)
{
    process->deleteLater();
    if (process != m_process)
        return;
    m_process.clear();
    const QByteArray complaint = process->readAllStandardError().trimmed();
    if (!complaint.isEmpty())
        qDebug() << "SoundPlayer:" << complaint.left(complaint.indexOf('\n'));
    emit finished();
}
