#include "peerprogram.h"

#include "conffile.h"
#include "requestsocket.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <cstdio>
#include <cstdlib>

PeerProgram::PeerProgram(const QString &description, const QString &section) : m_home(QString())
{
    QCommandLineParser parser;
    parser.setApplicationDescription(description);
    parser.addHelpOption();
    const QCommandLineOption homeOption(
        QStringLiteral("home"), QStringLiteral("The folder of the phone; else $PHONE_HOME, else the user's."),
        QStringLiteral("DIR"));
    const QCommandLineOption portOption(QStringLiteral("port"),
                                        QStringLiteral("The port, 0 for a free one; else the one in ipc.conf."),
                                        QStringLiteral("PORT"));
    parser.addOptions({homeOption, portOption});
    parser.process(*QCoreApplication::instance());

    m_home = PhoneHome::locate(parser.value(homeOption));
    if (!m_home.create())
        std::exit(1);
    m_home.enter();
    bool isPort = true;
    m_port = parser.isSet(portOption) ? parser.value(portOption).toUShort(&isPort) : getPeerPort(section);
    if (!isPort) {
        qCritical("\"%s\" is no port", qPrintable(parser.value(portOption)));
        std::exit(2);
    }
}

int PeerProgram::run(RequestSocket *requests) const
{
    if (!requests->listen(m_port)) {
        qCritical("The port %u cannot be used: %s", m_port, qPrintable(requests->errorString()));
        return 1;
    }
    std::printf("%u\n", requests->port());
    std::fflush(stdout);
    return QCoreApplication::exec();
}
