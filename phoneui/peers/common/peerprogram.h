#ifndef PEERPROGRAM_H
#define PEERPROGRAM_H

#include "phonehome.h"

class RequestSocket;

/// The command line of a peer, and how it begins: the home of its phone and the port where it listens.
class PeerProgram
{
public:
    /// `section` is the peer's in `ipc.conf`. Reads the command line of the application that runs and ends the
    /// program when there is nothing more to do.
    PeerProgram(const QString &description, const QString &section);

    const PhoneHome &home() const { return m_home; }
    /// Listens, prints the port as a line and serves until the end; returns the exit code.
    int run(RequestSocket *requests) const;

private:
    PhoneHome m_home;
    quint16 m_port = 0;
};

#endif
