// The call manager: a process beside the shell that plays a telephone line.

#include "callservice.h"
#include "peerlink.h"
#include "peerprogram.h"
#include "phoneline.h"
#include "settingsfile.h"

#include <QCoreApplication>

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
    const PeerProgram program(QString::fromLatin1(Description), QStringLiteral("CM"));
    const PhoneHome &home = program.home();

    PhoneLine line(home.path(QStringLiteral("config/cm.conf")));
    QObject::connect(
        &line, &PhoneLine::stateChanged,
        [&home](const QByteArray &state, const QByteArray &number, const QByteArray &name) {
            if (!sendToShell(home, {"call/CM", "cm2ui_call_state(str,str,str)", {state, number, name}}))
                qWarning("No phone hears that the line is %s", state.constData());
        });
    CallService service(&line, charset(home));
    return program.run(&service);
}
