// The directory server: a company's people for the phones that search them.

#include "directoryserver.h"
#include "endsignals.h"
#include "peoplefile.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>
#include <QTextCodec>

#include <cstdio>

static const char Description[]
    = "Serves a company's people to phones that search them, and prints the port as a line. Ends with Ctrl+C.\n\n"
      "A phone is told of it by its home's config/phone_info.conf:\n\n"
      "  [Prov_Info]\n  Id=ID\n  [Directory_svc]\n  Addr=SERVER:PORT   for HTTPS without the port,\n"
      "  Type=http          which then stands in Port=\n\n"
      "and by config/secret.ini:\n\n  [Prov]\n  Password=PASSWORD\n\n"
      "The data are vCards or a table (CSV) with a header row: name, number, type, position, department, mobile.";

static int complain(const QString &what)
{
    std::fputs(QStringLiteral("dservice: %1\n").arg(what).toUtf8().constData(), stderr);
    return 2;
}

/// "-" has it come from the standard input, where nobody sees it who lists processes.
static QByteArray userOf(const QString &option)
{
    if (option != QLatin1String("-"))
        return option.toUtf8();
    QFile input;
    return input.open(stdin, QIODevice::ReadOnly) ? input.readLine().trimmed() : QByteArray();
}

/// A whole number from 0 to `most`; -1 for anything else.
static int numberOf(const QString &text, int most)
{
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    return isNumber && number >= 0 && number <= most ? number : -1;
}

static int serve(const PeopleFile &file, const DirectoryServer::Setup &setup, const QByteArray &address, int port,
                 const EndSignals &endSignals)
{
    DirectoryServer server(Company(file.people), setup);
    if (!server.isValid())
        return complain(QStringLiteral("the certificate or its key cannot be used"));
    const int bound = server.bind(address, port);
    if (bound < 0)
        return complain(QStringLiteral("port %1 of %2 cannot be used").arg(port).arg(QString::fromUtf8(address)));
    server.start();
    std::printf("%d\n", bound);
    std::fflush(stdout);
    endSignals.wait();
    return 0;
}

int main(int argc, char **argv)
{
    const EndSignals endSignals;
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    const QCoreApplication app(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(QString::fromLatin1(Description));
    parser.addHelpOption();
    parser.addOptions({
        {QStringLiteral("data"), QStringLiteral("The people."), QStringLiteral("FILE")},
        {QStringLiteral("port"), QStringLiteral("The port to use; 0 for any free one."), QStringLiteral("N")},
        {QStringLiteral("user"),
         QStringLiteral("Who may search; \"-\" has it read from the standard input, so that no list of processes "
                        "shows it."),
         QStringLiteral("ID:PASSWORD")},
        {QStringLiteral("tls"), QStringLiteral("Serve HTTPS with this certificate; the file of its key follows."),
         QStringLiteral("CERT KEY")},
        {QStringLiteral("address"), QStringLiteral("Where to listen; 127.0.0.1 without it."),
         QStringLiteral("ADDRESS"), QStringLiteral("127.0.0.1")},
        {QStringLiteral("keep"), QStringLiteral("How long the pages of an answer can be fetched; 600 without it."),
         QStringLiteral("SECONDS"), QStringLiteral("600")},
    });
    parser.process(app);

    const QStringList rest = parser.positionalArguments();
    const bool secure = parser.isSet(QStringLiteral("tls"));
    if (rest.size() != (secure ? 1 : 0))
        return complain(secure ? QStringLiteral("--tls takes two files") : rest.first() + QStringLiteral("?"));
    const int port = numberOf(parser.value(QStringLiteral("port")), 65535);
    const int keep = numberOf(parser.value(QStringLiteral("keep")), 1000000);
    if (port < 0 || keep < 0)
        return complain(QStringLiteral("--port and --keep take a number"));
    const QByteArray user = userOf(parser.value(QStringLiteral("user")));
    const int colon = user.indexOf(':');
    if (colon < 1 || colon == user.size() - 1)
        return complain(QStringLiteral("--user takes an id and a password with a colon between them"));

    const PeopleFile file = PeopleFile::read(parser.value(QStringLiteral("data")));
    if (!file.fault.isEmpty())
        return complain(
            QStringLiteral("cannot use \"%1\": %2").arg(parser.value(QStringLiteral("data")), file.fault));
    if (file.skipped > 0)
        complain(QStringLiteral("%1 without name and number were passed over").arg(file.skipped));
    const DirectoryServer::Setup setup{user.left(colon), user.mid(colon + 1),
                                       parser.value(QStringLiteral("tls")).toLocal8Bit(),
                                       rest.value(0).toLocal8Bit(), std::chrono::seconds(keep)};
    return serve(file, setup, parser.value(QStringLiteral("address")).toUtf8(), port, endSignals);
}
