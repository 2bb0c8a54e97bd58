#include "answerfolder.h"

#include <QDateTime>
#include <QDir>
#include <QTemporaryFile>

QString AnswerFolder::store(const QByteArray &body) const
{
    QTemporaryFile file(m_home.answerTemplate());
    // It has a name only once it is asked for, where the file system knows how.
    if (!file.open() || file.write(body) != body.size() || !file.flush()) {
        qWarning("An answer cannot be written to %s: %s", qPrintable(m_home.runFolder()),
                 qPrintable(file.errorString()));
        return QString();
    }
    const QString path = file.fileName();
    file.setAutoRemove(path.isEmpty());
    return path;
}

void AnswerFolder::clean(int seconds) const
{
    const QDateTime limit = QDateTime::currentDateTime().addSecs(-seconds);
    const QFileInfoList files = QDir(m_home.runFolder()).entryInfoList(QDir::Files | QDir::System | QDir::Hidden);
    for (const QFileInfo &file : files) {
        if (PhoneHome::isAnswerName(file.fileName()) && (file.isSymLink() || file.lastModified() <= limit))
            QFile::remove(file.filePath());
    }
}
