#include "httpservice.h"

#include <httplib.h>

/// In seconds: for a client that sends or reads no more, and for a connection that it keeps for later.
static constexpr int TransferTime = 5;
static constexpr int KeepTime = 2;

HttpService::HttpService(std::unique_ptr<httplib::Server> server, int threads, std::size_t longestBody)
    : m_server(std::move(server))
{
    // The library would let a second program of this user share the port.
    m_server->set_socket_options([](socket_t socket) {
        const int yes = 1;
        setsockopt(socket, SOL_SOCKET, SO_REUSEADDR, &yes, sizeof yes);
    });
    m_server->new_task_queue = [threads] { return new httplib::ThreadPool(static_cast<std::size_t>(threads)); };
    m_server->set_tcp_nodelay(true);
    m_server->set_read_timeout(TransferTime);
    m_server->set_write_timeout(TransferTime);
    m_server->set_keep_alive_timeout(KeepTime);
    m_server->set_payload_max_length(longestBody);
}

HttpService::~HttpService()
{
    stop();
}

int HttpService::bind(const QByteArray &address, int port)
{
    if (port == 0)
        return m_server->bind_to_any_port(address.constData());
    return m_server->bind_to_port(address.constData(), port) ? port : -1;
}

void HttpService::start()
{
    m_thread = std::thread([this] { m_server->listen_after_bind(); });
    while (!m_server->is_running())
        std::this_thread::yield();
}

void HttpService::stop()
{
    if (!isStarted())
        return;
    m_server->stop();
    m_thread.join();
}
