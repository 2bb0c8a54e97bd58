#include "terminationsignals.h"

#include <QSocketNotifier>

#include <csignal>
#include <sys/socket.h>
#include <unistd.h>

namespace {

constexpr int caught[] = {SIGINT, SIGTERM, SIGHUP};
int sockets[2] = {-1, -1}; // a signal handler may do no more than write to a descriptor

void wakeUp(int)
{
    const char byte = 1;
    [[maybe_unused]] const ssize_t written = ::write(sockets[0], &byte, sizeof byte);
}

}

TerminationSignals::TerminationSignals(QObject *parent) : QObject(parent)
{
    if (::socketpair(AF_UNIX, SOCK_STREAM, 0, sockets) != 0) {
        qWarning("No sockets for signals: the program ends without clearing up");
        return;
    }
    auto *notifier = new QSocketNotifier(sockets[1], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this, notifier] {
        notifier->setEnabled(false);
        emit received();
    });
    for (const int signal : caught)
        std::signal(signal, wakeUp);
}

TerminationSignals::~TerminationSignals()
{
    for (const int signal : caught)
        std::signal(signal, SIG_DFL);
    for (int &descriptor : sockets) {
        if (descriptor >= 0)
            ::close(descriptor);
        descriptor = -1;
    }
}
