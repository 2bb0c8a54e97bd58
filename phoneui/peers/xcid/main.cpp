// The HTTP client: a process beside the shell, so that no server can keep the phone waiting.

#include "fetchprocess.h"
#include "fetchservice.h"
#include "peerprogram.h"

#include <QCoreApplication>

static const char Description[]
    = "Fetches the pages of a directory server for a phone, which starts it by itself.\n\n"
      "It takes requests as datagrams on a port of the loopback, which it prints as a line, one fetch at a time. "
      "Each\n"
      "answer becomes a file in the home's run folder, and the phone is told its path. What a server may take "
      "stands\n"
      "in the home's config/xcid.conf, with the certificates (PEM) of an authority that the machine does not "
      "know:\n\n"
      "  [Limits]\n  Time=15000   milliseconds, from the first connection to the last byte\n"
      "  Size=1048576 bytes\n\n  [Tls]\n  Authority=config/authority.pem";

int main(int argc, char **argv)
{
    const QCoreApplication app(argc, argv);
    if (FetchProcess::isChild(QCoreApplication::arguments()))
        return FetchProcess::runChild(QCoreApplication::arguments());
    const PeerProgram program(QString::fromLatin1(Description), QStringLiteral("XCID"));
    FetchService service(program.home());
    return program.run(&service);
}
