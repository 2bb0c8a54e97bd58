#ifndef CALLSERVICE_H
#define CALLSERVICE_H

#include "requestsocket.h"

class PhoneLine;

/// Takes what the applications ask of the call manager and has the line act on it.
class CallService : public RequestSocket
{
    Q_OBJECT

public:
    /// `charset` is the one in which names come; the shell is told them in UTF-8.
    CallService(PhoneLine *line, const QByteArray &charset, QObject *parent = nullptr);

private:
    const char *dialer(const QVariantList &arguments);
    const char *directory(const QVariantList &arguments);
    const char *hangUp();
    const char *dial(const QByteArray &number, const QByteArray &name);

    PhoneLine *m_line;
    const QByteArray m_charset;
};

#endif
