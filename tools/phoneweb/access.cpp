#include "access.h"

#include <QList>
#include <QRandomGenerator>

static QByteArray randomToken()
{
    quint32 words[6];
    QRandomGenerator::system()->fillRange(words);
    return QByteArray(reinterpret_cast<const char *>(words), sizeof words).toHex();
}

Access::Access(int port) : m_port(port), m_token(randomToken()) { }

QByteArray Access::address() const
{
    return "http://127.0.0.1:" + QByteArray::number(m_port) + "/?token=" + m_token;
}

bool Access::isToken(const QByteArray &text) const
{
    if (text.size() != m_token.size())
        return false;
    // Looks at every character, so that the time taken tells nothing.
    int difference = 0;
    for (int i = 0; i < m_token.size(); ++i)
        difference |= text.at(i) ^ m_token.at(i);
    return difference == 0;
}

bool Access::isInCookies(const QByteArray &cookieHeader) const
{
    const QByteArray start = cookieName() + '=';
    const QList<QByteArray> cookies = cookieHeader.split(';');
    for (const QByteArray &cookie : cookies) {
        const QByteArray trimmed = cookie.trimmed();
        if (trimmed.startsWith(start) && isToken(trimmed.mid(start.size())))
            return true;
    }
    return false;
}

QByteArray Access::cookie() const
{
    return cookieName() + '=' + m_token + "; Path=/; HttpOnly; SameSite=Strict";
}

bool Access::isOwnHost(const QByteArray &hostHeader) const
{
    const QByteArray port = ':' + QByteArray::number(m_port);
    return hostHeader == "127.0.0.1" + port || hostHeader == "localhost" + port;
}

QByteArray Access::cookieName() const
{
    // Cookies know hosts but no ports, and two phones may be shown side by side.
    return "phoneweb_" + QByteArray::number(m_port);
}
