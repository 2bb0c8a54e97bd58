#include "fetch.h"

#include <QNetworkProxy>
#include <QSslError>

static constexpr int MostRedirects = 5;

static int status(const QNetworkReply &reply)
{
    return reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
}

/// The announced length; -1 when there is none.
static qint64 announced(const QNetworkReply &reply)
{
    const QVariant length = reply.header(QNetworkRequest::ContentLengthHeader);
    return length.isValid() ? length.toLongLong() : -1;
}

static bool isSecure(const QUrl &url)
{
    return url.scheme() == QLatin1String("https");
}

static int port(const QUrl &url)
{
    return url.port(isSecure(url) ? 443 : 80);
}

Fetch::Fetch(const FetchAddress &address, const FetchSettings &settings, QObject *parent)
    : QObject(parent), m_address(address), m_settings(settings)
{
    m_manager.setProxy(QNetworkProxy::NoProxy);
}

void Fetch::start()
{
    get(m_address.url);
}

void Fetch::get(const QUrl &url)
{
    m_body.clear();
    m_reply = m_manager.get(request(url));
    connect(m_reply, &QNetworkReply::sslErrors, this,
            [this](const QList<QSslError> &errors) { m_certificateFault = errors.first().errorString(); });
    connect(m_reply, &QNetworkReply::metaDataChanged, this, &Fetch::checkHead);
    connect(m_reply, &QNetworkReply::readyRead, this, &Fetch::read);
    connect(m_reply, &QNetworkReply::finished, this, &Fetch::handleFinished);
}

QNetworkRequest Fetch::request(const QUrl &url) const
{
    QNetworkRequest request(url);
    if (isSecure(url))
        request.setSslConfiguration(m_settings.tls());
    // Qt would take the credentials along wherever it is sent.
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    request.setHeader(QNetworkRequest::UserAgentHeader, QStringLiteral("phoneui"));
    request.setRawHeader("Accept", "application/xml, text/xml, */*;q=0.5");
    // What a packed body unpacks to is in nobody's hand.
    request.setRawHeader("Accept-Encoding", "identity");
    if (mayHaveCredentials(url))
        request.setRawHeader("Authorization", "Basic " + m_address.credentials.toBase64());
    return request;
}

/// The server that they are meant for, also where it moves from HTTP to HTTPS.
bool Fetch::mayHaveCredentials(const QUrl &url) const
{
    const QUrl &first = m_address.url;
    if (m_address.credentials.isEmpty() || url.host() != first.host())
        return false;
    return url.scheme() == first.scheme() ? port(url) == port(first) : isSecure(url);
}

void Fetch::checkHead()
{
    if (announced(*m_reply) > m_settings.sizeLimit)
        fail(QStringLiteral("it announces %1 bytes").arg(announced(*m_reply)));
}

void Fetch::read()
{
    // One byte beyond the limit is enough to know.
    m_body += m_reply->read(qint64(m_settings.sizeLimit) + 1 - m_body.size());
    if (m_body.size() > m_settings.sizeLimit)
        fail(QStringLiteral("it is longer than %1 bytes").arg(m_settings.sizeLimit));
}

void Fetch::handleFinished()
{
    read();
    if (!m_reply)
        return;
    if (isRedirect()) {
        follow(m_reply->url().resolved(m_reply->attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl()));
        return;
    }
    const QString reason = fault();
    if (!reason.isEmpty()) {
        fail(reason);
        return;
    }
    const int answer = status(*m_reply);
    leaveReply();
    emit succeeded(answer, m_body);
}

bool Fetch::isRedirect() const
{
    return m_reply->attribute(QNetworkRequest::RedirectionTargetAttribute).isValid();
}

void Fetch::follow(const QUrl &target)
{
    const bool lessSafe = isSecure(m_reply->url()) && !isSecure(target);
    const bool web = isSecure(target) || target.scheme() == QLatin1String("http");
    if (!web || lessSafe || target.host().isEmpty())
        return fail(QStringLiteral("it leads to an address that is none, or none that is safe"));
    if (++m_redirects > MostRedirects)
        return fail(QStringLiteral("it leads from address to address"));
    leaveReply();
    QUrl plain = target;
    plain.setUserInfo(QString());
    get(plain);
}

/// Why the finished reply is no answer; empty when it is one. Qt's texts for what a server answers hold the URL.
QString Fetch::fault() const
{
    const int answer = status(*m_reply);
    if (!m_certificateFault.isEmpty())
        return QStringLiteral("its certificate is refused: %1").arg(m_certificateFault);
    if (answer != 0 && (answer < 200 || answer >= 300))
        return QStringLiteral("it answers %1").arg(answer);
    // Qt reports a body that ends early as an error or not at all: it depends on what arrives together.
    const qint64 length = announced(*m_reply);
    if (m_reply->error() == QNetworkReply::RemoteHostClosedError || (length >= 0 && length != m_body.size()))
        return QStringLiteral("it is cut off");
    if (m_reply->error() != QNetworkReply::NoError)
        return m_reply->errorString();
    const QByteArray encoding = m_reply->rawHeader("Content-Encoding").toLower();
    if (!encoding.isEmpty() && encoding != "identity")
        return QStringLiteral("it is packed");
    if (m_body.isEmpty())
        return QStringLiteral("it is empty");
    return QString();
}

void Fetch::fail(const QString &reason)
{
    leaveReply();
    emit failed(reason);
}

void Fetch::leaveReply()
{
    if (!m_reply)
        return;
    m_reply->disconnect(this);
    m_reply->abort();
    m_reply->deleteLater();
    m_reply = nullptr;
}
