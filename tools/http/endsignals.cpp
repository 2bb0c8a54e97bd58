#include "endsignals.h"

#include <initializer_list>
#include <pthread.h>

EndSignals::EndSignals()
{
    sigemptyset(&m_set);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP})
        sigaddset(&m_set, signal);
    pthread_sigmask(SIG_BLOCK, &m_set, nullptr);
}

void EndSignals::wait() const
{
    int signal = 0;
    sigwait(&m_set, &signal);
}
