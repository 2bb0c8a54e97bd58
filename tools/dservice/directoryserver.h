#ifndef DIRECTORYSERVER_H
#define DIRECTORYSERVER_H

#include "answershelf.h"
#include "company.h"
#include "httpservice.h"

#include <QByteArray>

#include <chrono>

namespace httplib {
struct Request;
struct Response;
}

/// Serves a company to phones over HTTP or HTTPS: the search, and the prepared pages of its answers, to the one
/// user who has the password. Requests are handled on threads of the server's own.
class DirectoryServer
{
public:
    struct Setup
    {
        QByteArray id, password;
        QByteArray certificate, key; ///< PEM files for HTTPS; empty for HTTP
        std::chrono::seconds answerLife;
    };

    DirectoryServer(const Company &company, const Setup &setup);

    /// False when the certificate or its key cannot be used.
    bool isValid() const;
    /// Listens there, on any free port for 0; the port, or -1 when it cannot.
    int bind(const QByteArray &address, int port) { return m_server.bind(address, port); }
    void start() { m_server.start(); }

private:
    void setUp();
    bool isUser(const httplib::Request &request) const;
    void search(const httplib::Request &request, httplib::Response &response);
    void servePage(const httplib::Request &request, httplib::Response &response);
    void answer(httplib::Response &response, const Answer &answer, const QString &folder, int page) const;

    const Company m_company;
    const Setup m_setup;
    AnswerShelf m_answers;
    HttpService m_server; ///< the last: its threads use all the rest
};

#endif
