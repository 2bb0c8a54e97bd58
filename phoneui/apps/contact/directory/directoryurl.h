#ifndef DIRECTORYURL_H
#define DIRECTORYURL_H

#include <QByteArray>
#include <QString>

// What the HTTP client is told to fetch, made anew from the provisioning at every call. The texts hold the
// provisioning password and must not be logged.

/// A search for `key`; `keyType` is "name" or "number". Empty when the server, the id, the password or one of the
/// arguments is.
QByteArray makeDirectoryServiceSearchURL(const QString &key, const QString &keyType);

/// A page that the server has prepared, by the handles of its last answer; empty for a negative page alone.
QByteArray makeDirectoryServicePageURL(int page, const QString &path, const QString &timestamp);

#endif
