#ifndef TOCMSOCKET_H
#define TOCMSOCKET_H

#include <QString>

/// Requests to the call manager process, one UDP datagram each on the loopback.
class ToCMSocket
{
public:
    /// Asks for a call. `handle` is Core::callManagerHandle(); `name` is shown for the other side and travels
    /// byte by byte, so it is text in the phone's charset widened from Latin-1. `callType` 2 is a call from the
    /// contacts; `line` -1 leaves the choice of the line to the call manager.
    static void sendUI2CMSvcDialer(int handle, const QString &mode, const QString &number, const QString &name,
                                   const QString &callMode, int callType, int line);
    /// Ends the call, whatever its state.
    static void sendUI2CMSvcHangup();
};

#endif
