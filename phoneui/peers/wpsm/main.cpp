#include "mobiledevice.h"
#include "peerlink.h"
#include "vcardreport.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>

using VCardReport::complain;

static const char Description[]
    = "Plays a mobile device paired with a phone. A running phone shows the change at once.\n\n"
      "  wpsm [--home DIR] [--name NAME] connect FILE.vcf   a device with these contacts comes\n"
      "  wpsm [--home DIR] disconnect                       it goes";

static int connectDevice(const PhoneHome &home, const QString &fileName, const QString &name)
{
    QFile input(fileName);
    if (!input.open(QIODevice::ReadOnly)) {
        complain(QStringLiteral("cannot read %1: %2").arg(fileName, input.errorString()));
        return 1;
    }
    VCardFile file = VCardFile::read(&input, PhotoStore(home.photoFolder()),
                                     [](int count) { VCardReport::progress("read", count); });
    VCardReport::endProgress();
    VCardReport::skipped(file, fileName);
    if (file.contacts.isEmpty()) {
        complain(QStringLiteral("no contact could be read from %1; nothing was changed").arg(fileName));
        return 1;
    }
    // The groups of a device stay on the device.
    for (ContactImport &entry : file.contacts)
        entry.groups.clear();
    if (!MobileDevice(home).connectDevice(name, file.contacts)) {
        complain(QStringLiteral("the contacts could not be written to %1").arg(home.mobileFolder()));
        return 1;
    }
    VCardReport::counts(file, file.contacts.size());
    sendToShell(home, {"contact/WPSM", "wpsm2ui_noti_device_connected(int)", {file.contacts.size()}});
    return 0;
}

static int disconnectDevice(const PhoneHome &home)
{
    const int count = MobileDevice(home).disconnectDevice();
    if (count < 0)
        complain(QStringLiteral("no device is connected"));
    else
        sendToShell(home, {"contact/WPSM", "wpsm2ui_noti_device_disconnected(int)", {count}});
    return 0;
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
    const QCommandLineOption nameOption(QStringLiteral("name"),
                                        QStringLiteral("The device's name; else that of the file."),
                                        QStringLiteral("NAME"));
    parser.addOptions({homeOption, nameOption});
    parser.addPositionalArgument(QStringLiteral("command"), QStringLiteral("connect or disconnect."));
    parser.addPositionalArgument(QStringLiteral("file"), QStringLiteral("The vCard file."),
                                 QStringLiteral("[file]"));
    parser.process(app);

    const QStringList arguments = parser.positionalArguments();
    const bool connecting = arguments.value(0) == QLatin1String("connect") && arguments.size() == 2;
    const bool disconnecting = arguments.value(0) == QLatin1String("disconnect") && arguments.size() == 1;
    if (!connecting && !disconnecting) {
        qCritical("%s", qPrintable(parser.helpText()));
        return 2;
    }
    const PhoneHome home = PhoneHome::locate(parser.value(homeOption));
    if (!home.create())
        return 1;
    home.enter();
    QLockFile lock(home.mobileFolder() + QStringLiteral("/wpsm.lock"));
    if (!lock.tryLock(2000)) {
        complain(QStringLiteral("another device is being connected"));
        return 1;
    }
    if (disconnecting)
        return disconnectDevice(home);
    const QString name = parser.value(nameOption);
    return connectDevice(home, arguments.at(1),
                         name.isEmpty() ? QFileInfo(arguments.at(1)).completeBaseName() : name);
}
