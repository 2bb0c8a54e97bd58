#ifndef FETCHSERVICE_H
#define FETCHSERVICE_H

#include "answerfolder.h"
#include "requestsocket.h"

#include <QPointer>

class FetchProcess;

/// Takes what the applications want fetched, one at a time: a new request drops the fetch under way. The answer
/// becomes a file, and the contacts are told of it; of a fetch that fails only the log hears.
class FetchService : public RequestSocket
{
    Q_OBJECT

public:
    explicit FetchService(const PhoneHome &home, QObject *parent = nullptr);

private:
    const char *fetch(const QByteArray &address);
    const char *cancel();
    void answer(int status, const QByteArray &body);
    void drop();

    const PhoneHome m_home;
    const AnswerFolder m_answers;
    QPointer<FetchProcess> m_fetch;
};

#endif
