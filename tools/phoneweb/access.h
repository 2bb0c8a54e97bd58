#ifndef ACCESS_H
#define ACCESS_H

#include <QByteArray>

/// Who may use the page: whoever holds the token, which is new at each start and stands in the printed address.
class Access
{
public:
    explicit Access(int port);

    QByteArray token() const { return m_token; }
    /// The address to open; the only place where the token is shown.
    QByteArray address() const;

    bool isToken(const QByteArray &text) const;
    /// True when the request's cookies hold the token.
    bool isInCookies(const QByteArray &cookieHeader) const;
    /// The cookie that lets the page's further requests in.
    QByteArray cookie() const;

    /// True when the request was meant for this machine by name: a foreign name that leads here is an attack from
    /// a page of that name.
    bool isOwnHost(const QByteArray &hostHeader) const;

private:
    QByteArray cookieName() const;

    const int m_port;
    const QByteArray m_token;
};

#endif
