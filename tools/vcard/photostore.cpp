#include "photostore.h"

#include <QBuffer>
#include <QCryptographicHash>
#include <QDebug>
#include <QFile>
#include <QImageReader>
#include <QSaveFile>

static const QLatin1String Prefix("photo:");

QString PhotoStore::pictureText(const QByteArray &photo)
{
    QBuffer buffer;
    buffer.setData(photo);
    buffer.open(QIODevice::ReadOnly);
    const QByteArray format = QImageReader::imageFormat(&buffer);
    if (format.isEmpty())
        return QString();
    const QByteArray digest = QCryptographicHash::hash(photo, QCryptographicHash::Sha1).toHex();
    const QByteArray ending = format == "jpeg" ? QByteArray("jpg") : format;
    return Prefix + QString::fromLatin1(digest + '.' + ending);
}

QString PhotoStore::store(const QByteArray &photo) const
{
    const QString text = pictureText(photo);
    if (text.isEmpty())
        return text;
    const QString path = m_folder + QLatin1Char('/') + text.mid(Prefix.size());
    if (QFile::exists(path))
        return text;
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(photo) == photo.size() && file.commit())
        return text;
    qWarning().noquote() << "PhotoStore: cannot write" << path + ":" << file.errorString();
    return QString();
}
