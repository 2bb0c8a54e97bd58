#ifndef WEBSERVER_H
#define WEBSERVER_H

#include "access.h"
#include "httpservice.h"
#include "phonehome.h"

#include <QScopedPointer>
#include <QString>

#include <atomic>

class PhoneFeed;

namespace httplib {
struct Request;
struct Response;
}

/// Serves the page, the stream of what the phone shows and the door for keys, on 127.0.0.1 alone. Requests are
/// handled on threads of the server's own.
class WebServer
{
public:
    WebServer(const PhoneHome &home, PhoneFeed &feed);
    ~WebServer();

    /// Takes this port, or any free one for 0.
    bool bind(int port);
    void start() { m_server.start(); }
    void stop();

    /// The address of the page, with the token; once `bind` has succeeded.
    QByteArray address() const { return m_access->address(); }

private:
    void setUp();
    bool isAllowed(const httplib::Request &request) const;
    void servePage(httplib::Response &response) const;
    void serveEvents(httplib::Response &response);
    void serveKeys(const httplib::Request &request, httplib::Response &response);

    const PhoneHome m_home;
    PhoneFeed &m_feed;
    QScopedPointer<Access> m_access;
    std::atomic<int> m_viewers{0};
    HttpService m_server; ///< the last: its threads use all the rest
};

#endif
