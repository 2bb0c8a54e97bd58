#include "webserver.h"

#include "phonefeed.h"
#include "phonelink.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <httplib.h>
#include <memory>

static const char Host[] = "127.0.0.1";
/// Each viewer holds a thread; the rest serve pages and keys.
static constexpr int MostViewers = 8;
static constexpr int Threads = 24;
static constexpr size_t LargestPost = 65536;
/// How often a stream without news looks whether its browser is still there, in milliseconds.
static constexpr int ViewerLook = 1000;

/// The page needs nothing from elsewhere, and nobody may frame it.
static const char ContentPolicy[]
    = "default-src 'none'; script-src 'self'; style-src 'self'; connect-src 'self'; img-src 'self'; "
      "base-uri 'none'; form-action 'none'; frame-ancestors 'none'";

/// What the page consists of beside its frame.
static const struct
{
    const char *name;
    const char *type;
} Files[] = {
    {"icon.svg", "image/svg+xml"},
    {"keyboard.js", "text/javascript; charset=utf-8"},
    {"keys.js", "text/javascript; charset=utf-8"},
    {"page.css", "text/css; charset=utf-8"},
    {"page.js", "text/javascript; charset=utf-8"},
};

static QByteArray header(const httplib::Request &request, const char *name)
{
    return QByteArray::fromStdString(request.get_header_value(name));
}

static QByteArray fileContents(const QString &name)
{
    QFile file(":/page/" + name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

static void answer(httplib::Response &response, int status, const QString &error = {})
{
    QJsonObject object{{"ok", error.isEmpty()}};
    if (!error.isEmpty())
        object.insert("error", error);
    response.status = status;
    response.set_content(QJsonDocument(object).toJson(QJsonDocument::Compact).toStdString(), "application/json");
}

/// A page may press, release and type; the phone's other requests are not for the browser.
static bool isKeyRequest(const QStringList &words)
{
    static const QStringList Allowed{"press", "release", "text"};
    return words.size() == 2 && Allowed.contains(words.first());
}

/// The posted list of requests; empty when it is anything else.
static QList<QStringList> keyRequests(const std::string &body)
{
    QList<QStringList> requests;
    const QJsonArray list = QJsonDocument::fromJson(QByteArray::fromStdString(body)).array();
    for (const QJsonValue &value : list) {
        QStringList words;
        const QJsonArray parts = value.toArray();
        for (const QJsonValue &part : parts)
            words.append(part.toString());
        if (!isKeyRequest(words))
            return {};
        requests.append(words);
    }
    return requests;
}

WebServer::WebServer(const PhoneHome &home, PhoneFeed &feed)
    : m_home(home), m_feed(feed), m_server(std::make_unique<httplib::Server>(), Threads, LargestPost)
{
    setUp();
}

WebServer::~WebServer()
{
    stop();
}

void WebServer::setUp()
{
    m_server->set_default_headers({{"Cache-Control", "no-store"},
                                   {"Content-Security-Policy", ContentPolicy},
                                   {"Referrer-Policy", "no-referrer"},
                                   {"X-Content-Type-Options", "nosniff"}});

    using httplib::Request;
    using httplib::Response;
    m_server->set_pre_routing_handler([this](const Request &request, Response &response) {
        if (isAllowed(request))
            return httplib::Server::HandlerResponse::Unhandled;
        response.status = 403;
        response.set_content("Open the address that phoneweb printed: it holds the key to this phone.\n",
                             "text/plain");
        return httplib::Server::HandlerResponse::Handled;
    });
    m_server->Get("/", [this](const Request &, Response &response) { servePage(response); });
    for (const auto &[name, type] : Files) {
        m_server->Get(std::string("/") + name, [name = name, type = type](const Request &, Response &response) {
            response.set_content(fileContents(name).toStdString(), type);
        });
    }
    m_server->Get("/events", [this](const Request &, Response &response) { serveEvents(response); });
    m_server->Post("/keys", [this](const Request &request, Response &response) { serveKeys(request, response); });
}

bool WebServer::bind(int port)
{
    const int bound = m_server.bind(Host, port);
    if (bound < 0)
        return false;
    m_access.reset(new Access(bound));
    return true;
}

void WebServer::stop()
{
    if (!m_server.isStarted())
        return;
    m_feed.stop(); // which lets go of the streams
    m_server.stop();
}

bool WebServer::isAllowed(const httplib::Request &request) const
{
    if (!m_access->isOwnHost(header(request, "Host")))
        return false;
    const bool inCookies = m_access->isInCookies(header(request, "Cookie"));
    if (request.method == "POST")
        return inCookies && m_access->isToken(header(request, "X-Phone-Token"));
    const bool inAddress
        = request.path == "/" && m_access->isToken(QByteArray::fromStdString(request.get_param_value("token")));
    return inAddress || inCookies;
}

void WebServer::servePage(httplib::Response &response) const
{
    response.set_header("Set-Cookie", m_access->cookie().toStdString());
    QByteArray page = fileContents("index.html");
    // The page's script cannot read the cookie and must show the token with each post.
    page.replace("@TOKEN@", m_access->token());
    response.set_content(page.toStdString(), "text/html; charset=utf-8");
}

void WebServer::serveEvents(httplib::Response &response)
{
    if (++m_viewers > MostViewers) {
        --m_viewers;
        answer(response, 503, QStringLiteral("This phone is shown in too many windows."));
        return;
    }
    const auto known = std::make_shared<PhoneFeed::State>();
    const auto sendNews = [this, known](size_t, httplib::DataSink &sink) {
        const PhoneFeed::State before = *known;
        if (!m_feed.waitForNews(known.get(), ViewerLook))
            return false;
        QByteArray events;
        if (known->phoneNumber != before.phoneNumber)
            events += "event: phone\ndata: " + (known->keyMap.isEmpty() ? "null" : known->keyMap) + "\n\n";
        if (known->pictureNumber != before.pictureNumber && !known->picture.isEmpty())
            events += "event: picture\ndata: " + known->picture + "\n\n";
        // Writing is how a browser that has gone is noticed.
        if (events.isEmpty())
            events = ":\n\n";
        return sink.write(events.constData(), size_t(events.size()));
    };
    response.set_chunked_content_provider("text/event-stream", sendNews, [this](bool) { --m_viewers; });
}

void WebServer::serveKeys(const httplib::Request &request, httplib::Response &response)
{
    const QList<QStringList> requests = keyRequests(request.body);
    if (requests.isEmpty())
        return answer(response, 400, QStringLiteral("A list of keys is expected."));

    PhoneLink link(m_home);
    if (!link.connectToPhone())
        return answer(response, 502, link.error());
    QString error;
    // One that the phone refuses must not keep back the release of a key that follows it.
    for (const QStringList &words : requests) {
        const PhoneLink::Outcome outcome = link.request(words);
        if (outcome != PhoneLink::Outcome::Done && error.isEmpty())
            error = link.error();
        if (outcome == PhoneLink::Outcome::Lost)
            return answer(response, 502, error);
    }
    answer(response, error.isEmpty() ? 200 : 409, error);
}
