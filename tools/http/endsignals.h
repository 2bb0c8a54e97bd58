#ifndef ENDSIGNALS_H
#define ENDSIGNALS_H

#include <csignal>

/// The signals that end a program. They are waited for in one place, and no thread is interrupted by them: made
/// before any thread.
class EndSignals
{
public:
    EndSignals();

    /// Returns when one of them has come.
    void wait() const;

private:
    sigset_t m_set;
};

#endif
