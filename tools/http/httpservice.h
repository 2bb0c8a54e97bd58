#ifndef HTTPSERVICE_H
#define HTTPSERVICE_H

#include <QByteArray>

#include <memory>
#include <thread>

namespace httplib {
class Server;
}

/// An HTTP server with a thread of its own and limits that a slow client or a held connection cannot use up.
class HttpService
{
public:
    /// Handles as many requests at a time as there are `threads`; a body may have `longestBody` bytes.
    HttpService(std::unique_ptr<httplib::Server> server, int threads, std::size_t longestBody);
    ~HttpService();

    httplib::Server *operator->() const { return m_server.get(); }

    /// Takes this port of an address, or any free one for 0; the port, or -1 when it cannot.
    int bind(const QByteArray &address, int port);
    /// Returns when requests are taken.
    void start();
    bool isStarted() const { return m_thread.joinable(); }
    void stop();

private:
    const std::unique_ptr<httplib::Server> m_server;
    std::thread m_thread;
};

#endif
