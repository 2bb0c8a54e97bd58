#ifndef FETCHADDRESS_H
#define FETCHADDRESS_H

#include <QByteArray>
#include <QUrl>

/// What a request asks for. The id and the password stand in its text as they are, unescaped, so they are taken out
/// before the rest is read as a URL, and are never part of it again.
struct FetchAddress
{
    QUrl url; ///< without them; invalid when the text names no server
    QByteArray credentials; ///< "id:password"; empty when there are none

    static FetchAddress parse(const QByteArray &text);
    /// The URL as the log may show it: no credentials, no search word.
    static QString loggable(const QUrl &url);
};

#endif
