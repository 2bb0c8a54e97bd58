#include "directoryserver.h"

#include "answerdocument.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QRegularExpression>

#include <httplib.h>
#include <openssl/crypto.h>

static constexpr int Threads = 16;
static constexpr int UsualPageSize = 20;
static constexpr int LargestPageSize = 100;
static const char PageFolder[] = "/pages/";

static std::unique_ptr<httplib::Server> makeServer(const DirectoryServer::Setup &setup)
{
    if (setup.certificate.isEmpty())
        return std::make_unique<httplib::Server>();
    auto server = std::make_unique<httplib::SSLServer>(setup.certificate.constData(), setup.key.constData());
    if (server->is_valid())
        SSL_CTX_set_min_proto_version(server->ssl_context(), TLS1_2_VERSION);
    return server;
}

static QString parameter(const httplib::Request &request, const char *name)
{
    return QString::fromStdString(request.get_param_value(name));
}

static void refuse(httplib::Response &response, int status, const char *reason)
{
    response.status = status;
    response.set_content(std::string(reason) + '\n', "text/plain; charset=utf-8");
}

/// Takes as long for any text.
static bool isSame(const QByteArray &left, const QByteArray &right)
{
    const QByteArray leftHash = QCryptographicHash::hash(left, QCryptographicHash::Sha256);
    const QByteArray rightHash = QCryptographicHash::hash(right, QCryptographicHash::Sha256);
    return CRYPTO_memcmp(leftHash.constData(), rightHash.constData(), std::size_t(leftHash.size())) == 0;
}

DirectoryServer::DirectoryServer(const Company &company, const Setup &setup)
    : m_company(company), m_setup(setup), m_answers(setup.answerLife), m_server(makeServer(setup), Threads, 0)
{
    setUp();
}

bool DirectoryServer::isValid() const
{
    return m_server->is_valid();
}

void DirectoryServer::setUp()
{
    m_server->set_default_headers({{"Cache-Control", "no-store"}});

    using httplib::Request;
    using httplib::Response;
    m_server->set_pre_routing_handler([this](const Request &request, Response &response) {
        if (isUser(request))
            return httplib::Server::HandlerResponse::Unhandled;
        response.set_header("WWW-Authenticate", "Basic realm=\"Directory\", charset=\"UTF-8\"");
        refuse(response, 401, "The id or the password is wrong.");
        return httplib::Server::HandlerResponse::Handled;
    });
    m_server->Get("/servlet/DService",
                  [this](const Request &request, Response &response) { search(request, response); });
    m_server->Get(std::string(PageFolder) + "([0-9a-f]+)/([^/]+)",
                  [this](const Request &request, Response &response) { servePage(request, response); });
}

bool DirectoryServer::isUser(const httplib::Request &request) const
{
    const QByteArray header = QByteArray::fromStdString(request.get_header_value("Authorization"));
    const int space = header.indexOf(' ');
    return header.left(space).toLower() == "basic"
        && isSame(QByteArray::fromBase64(header.mid(space + 1)), m_setup.id + ':' + m_setup.password);
}

void DirectoryServer::search(const httplib::Request &request, httplib::Response &response)
{
    // A phone without the interface that it asks for has no address.
    static const QRegularExpression mac(QStringLiteral("\\A([0-9A-Fa-f]{12})?\\z"));
    const QString phone = parameter(request, "mac");
    if (parameter(request, "pid").toUtf8() != m_setup.id)
        return refuse(response, 403, "The pid is another user's.");
    if (!mac.match(phone).hasMatch())
        return refuse(response, 400, "The mac is none.");
    const QString encoding = parameter(request, "enc");
    if (!encoding.isEmpty() && encoding.compare(QLatin1String("UTF-8"), Qt::CaseInsensitive) != 0)
        return refuse(response, 400, "The enc is none but UTF-8.");
    const int pageSize = request.has_param("cap") ? parameter(request, "cap").toInt() : UsualPageSize;
    if (pageSize < 1 || pageSize > LargestPageSize)
        return refuse(response, 400, "The cap is no number of people on a page.");

    const QString word = parameter(request, "key").trimmed();
    const QString keyType = parameter(request, "keytype").toLower();
    Answer found;
    if (keyType == QLatin1String("name"))
        found.people = m_company.byName(word);
    else if (keyType == QLatin1String("number"))
        found.people = m_company.byNumber(word);
    else
        return refuse(response, 400, "The keytype is neither name nor number.");
    found.pageSize = pageSize;
    found.timestamp = QDateTime::currentDateTimeUtc().toString(QStringLiteral("yyyyMMddhhmmss"));
    found.phone = phone + QLatin1Char('_') + parameter(request, "pid") + QLatin1Char('_');
    answer(response, found, m_answers.put(found), 1);
}

void DirectoryServer::servePage(const httplib::Request &request, httplib::Response &response)
{
    const QString folder = QString::fromStdString(request.matches[1]);
    const std::optional<Answer> found = m_answers.find(folder);
    const int page = found ? found->pageOf(QString::fromStdString(request.matches[2])) : 0;
    if (page == 0)
        return refuse(response, 404, "There is no such page, or no longer.");
    answer(response, *found, folder, page);
}

void DirectoryServer::answer(httplib::Response &response, const Answer &answer, const QString &folder,
                             int page) const
{
    const QString path = QLatin1String(PageFolder) + folder + QLatin1Char('/');
    response.set_content(answerDocument(m_company, answer, path, page).toStdString(),
                         "application/xml; charset=utf-8");
}
