#ifndef ANSWERFOLDER_H
#define ANSWERFOLDER_H

#include "phonehome.h"

/// The answers in a home's run folder. Who is told of one reads it and deletes it; what nobody took goes in time.
class AnswerFolder
{
public:
    explicit AnswerFolder(const PhoneHome &home) : m_home(home) { }

    /// Writes a fresh file that its user alone can read, whole or not at all, and returns its path; empty, with the
    /// reason in the log, when it cannot.
    QString store(const QByteArray &body) const;
    /// Deletes the answers that are older than so many seconds.
    void clean(int seconds) const;

private:
    const PhoneHome m_home;
};

#endif
