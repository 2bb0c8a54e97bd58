#include "endsignals.h"
#include "phonefeed.h"
#include "phonehome.h"
#include "webserver.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QTextCodec>

#include <cstdio>

/// Where the page is looked for first, and how many ports beyond that are tried.
static constexpr int UsualPort = 8384;
static constexpr int PortsTried = 50;

static int complain(const QString &what)
{
    std::fputs(QStringLiteral("phoneweb: %1\n").arg(what).toUtf8().constData(), stderr);
    return 2;
}

static bool bindUsualPort(WebServer &server)
{
    for (int port = UsualPort; port < UsualPort + PortsTried; ++port) {
        if (server.bind(port))
            return true;
    }
    return false;
}

/// `port` is -1 for the usual one.
static int serve(const PhoneHome &home, int port, const EndSignals &endSignals)
{
    PhoneFeed feed(home);
    WebServer server(home, feed);
    if (!(port < 0 ? bindUsualPort(server) : server.bind(port)))
        return complain(QStringLiteral("the port is taken"));
    feed.start();
    server.start();
    std::puts(server.address().constData());
    std::fflush(stdout);

    endSignals.wait();
    server.stop();
    return 0;
}

int main(int argc, char **argv)
{
    const EndSignals endSignals;
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    QCoreApplication app(argc, argv);

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Shows a phone in a browser of this machine: open the address that is printed. The phone may\n"
        "come and go meanwhile. Ends with Ctrl+C."));
    const QCommandLineOption helpOption({QStringLiteral("h"), QStringLiteral("help")},
                                        QStringLiteral("Print this."));
    const QCommandLineOption homeOption(QStringLiteral("home"), QStringLiteral("The phone's home folder."),
                                        QStringLiteral("DIR"));
    const QCommandLineOption portOption(
        QStringLiteral("port"),
        QStringLiteral("The port to use; 0 for any free one. Without it: %1, or the next that is free.")
            .arg(UsualPort),
        QStringLiteral("N"));
    parser.addOptions({helpOption, homeOption, portOption});

    if (!parser.parse(QCoreApplication::arguments()))
        return complain(parser.errorText());
    if (parser.isSet(helpOption)) {
        std::fputs(parser.helpText().toUtf8().constData(), stdout);
        return 0;
    }
    if (!parser.positionalArguments().isEmpty())
        return complain(QStringLiteral("\"%1\" is no option").arg(parser.positionalArguments().first()));

    int port = -1;
    if (parser.isSet(portOption)) {
        bool isNumber = false;
        port = parser.value(portOption).toInt(&isNumber);
        if (!isNumber || port < 0 || port > 65535)
            return complain(QStringLiteral("\"%1\" is no port").arg(parser.value(portOption)));
    }
    return serve(PhoneHome::locate(parser.value(homeOption)), port, endSignals);
}
