// The call manager: a process beside the shell that plays a telephone line.

#include "callservice.h"
#include "conffile.h"
#include "peerlink.h"
#include "phonehome.h"
#include "phoneline.h"
#include "settingsfile.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <cstdio>

static const char Description[]
    = "Plays the telephone line of a phone, which starts it by itself.\n\n"
      "It takes requests as datagrams on a port of the loopback, which it prints as a line, and tells the phone\n"
      "each state of its call. A call goes from DIALING over ALERT to CONNECT; a number that ends in *00 is BUSY.\n"
      "How long that takes stands in the home's config/cm.conf, in milliseconds:\n\n"
      "  [Dial]\n  AlertTime=1000\n  AnswerTime=2500\n  BusyTime=3000";

static QByteArray charset(const PhoneHome &home)
{
    const SettingsFile system(home.path(QStringLiteral("config/system.conf")));
    return system.value(QStringLiteral("System/Charset"), QStringLiteral("utf-8")).toLatin1();
}

int main(int argc, char **argv)
{
    const QCoreApplication app(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(QString::fromLatin1(Description));
    parser.addHelpOption();
    const QCommandLineOption homeOption(
        QStringLiteral("home"), QStringLiteral("The folder of the phone; else $PHONE_HOME, else the user's."),
        QStringLiteral("DIR"));
    const QCommandLineOption portOption(QStringLiteral("port"),
                                        QStringLiteral("The port, 0 for a free one; else the one in ipc.conf."),
                                        QStringLiteral("PORT"));
    parser.addOptions({homeOption, portOption});
    parser.process(app);

    const PhoneHome home = PhoneHome::locate(parser.value(homeOption));
    if (!home.create())
        return 1;
    home.enter();
    bool isPort = true;
    const quint16 port
        = parser.isSet(portOption) ? parser.value(portOption).toUShort(&isPort) : getPeerPort(QStringLiteral("CM"));
    if (!isPort) {
        qCritical("\"%s\" is no port", qPrintable(parser.value(portOption)));
        return 2;
    }

    PhoneLine line(home.path(QStringLiteral("config/cm.conf")));
    QObject::connect(
        &line, &PhoneLine::stateChanged,
        [&home](const QByteArray &state, const QByteArray &number, const QByteArray &name) {
            if (!sendToShell(home, {"call/CM", "cm2ui_call_state(str,str,str)", {state, number, name}}))
                qWarning("No phone hears that the line is %s", state.constData());
        });
    CallService service(&line, charset(home));
    if (!service.listen(port)) {
        qCritical("The port %u cannot be used: %s", port, qPrintable(service.errorString()));
        return 1;
    }
    std::printf("%u\n", service.port());
    std::fflush(stdout);
    return QCoreApplication::exec();
}
