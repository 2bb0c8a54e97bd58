#include "fetchaddress.h"

static QByteArray schemeOf(const QByteArray &text)
{
    for (const char *scheme : {"http://", "https://"}) {
        if (text.toLower().startsWith(scheme))
            return scheme;
    }
    return QByteArray();
}

/// Where the credentials end in "id:password@server/path?pid=id": the password may hold an "@", and so may the id
/// wherever it comes again. -1 without credentials.
static int endOfCredentials(const QByteArray &text)
{
    const int idLength = text.indexOf(':');
    const int query = text.indexOf("?pid=");
    QByteArray rest = query < 0 ? text : text.left(query);
    if (idLength > 0)
        rest.replace(text.left(idLength), QByteArray(idLength, '-'));
    return rest.lastIndexOf('@');
}

FetchAddress FetchAddress::parse(const QByteArray &text)
{
    FetchAddress address;
    QByteArray scheme = schemeOf(text);
    QByteArray rest = text.mid(scheme.size());
    const int end = endOfCredentials(rest);
    if (end >= 0) {
        address.credentials = rest.left(end);
        rest.remove(0, end + 1);
    }
    // The provisioned address of a server may have the scheme in itself, and the credentials are put ahead of it.
    if (scheme.isEmpty()) {
        scheme = schemeOf(rest);
        rest.remove(0, scheme.size());
    }
    const QUrl url = QUrl::fromEncoded(scheme + rest);
    if (!scheme.isEmpty() && url.isValid() && !url.host().isEmpty() && url.userInfo().isEmpty())
        address.url = url;
    return address;
}

QString FetchAddress::loggable(const QUrl &url)
{
    return url.toString(QUrl::RemoveUserInfo | QUrl::RemoveQuery | QUrl::RemoveFragment | QUrl::FullyEncoded);
}
