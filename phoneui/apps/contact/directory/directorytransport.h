#ifndef DIRECTORYTRANSPORT_H
#define DIRECTORYTRANSPORT_H

#include <QString>

#include <ctime>

// Requests of the directory to the processes beside the shell: each is one datagram on the loopback, on a socket of
// its own. Nothing comes back here, and nothing that goes wrong is reported: the answer is an application command.

/// The number that the process `peer` has under `key` in `ipc.conf`; 0 when there is none. The name of the process
/// may be in any case, the key may not.
int getPortNumber(const QString &peer, const QString &key);

/// Has the call manager act on a number: `mode` is "NEW_CALL", "SEMI_BLIND_XFER" or "COA_CONF", `line` -1 any line.
void sendUI2CMDirectoryServiceRequest(int line, const QString &mode, const QString &number);

// To the HTTP client. A URL must be escaped: what is beyond Latin-1 in it is lost.

/// Has a URL fetched, that of a search as well as that of a prepared page.
void sendUI2HTTPDirectorySearchRequest(const QString &url);
void sendUI2HTTPDirectoryPageRequest(const QString &url);
/// Drops the fetch under way.
void sendUI2HTTPDirectorySearchCancel();
/// When the HTTP client was last told something, by the clock that dates files; 0 before. What is older answers
/// another request.
timespec lastDirectoryRequest();

/// What is done with the number of a directory entry: 0 calls it, 1 saves it, 2 hands the call over to it, 3 takes
/// it into the conversation; any other action does nothing.
void directoryServiceRequest(int action, const QString &number, const QString &name);
/// A hook for who saves numbers: here it does nothing.
void directoryServiceSaveToPhonebook(const QString &name, const QString &number);

#endif
