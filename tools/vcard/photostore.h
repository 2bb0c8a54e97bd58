#ifndef PHOTOSTORE_H
#define PHOTOSTORE_H

#include <QByteArray>
#include <QString>

/// The photos of a home's contacts, each under the name of its content, so that none is kept twice and a home can
/// be moved: a contact's picture reads "photo:NAME".
class PhotoStore
{
public:
    explicit PhotoStore(const QString &folder) : m_folder(folder) { }

    /// What a contact with this photo has as its picture; empty when it is no picture that the phone can show.
    static QString pictureText(const QByteArray &photo);

    /// Keeps the photo. The contact's picture, or an empty text when it cannot be kept.
    QString store(const QByteArray &photo) const;

private:
    const QString m_folder;
};

#endif
