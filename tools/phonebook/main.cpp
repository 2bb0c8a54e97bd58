#include "phonebook.h"

#include <QCommandLineParser>
#include <QCoreApplication>

static const char Description[] = "Contacts in and out of a phone. A running phone shows the change at once.\n\n"
                                  "  phonebook [--home DIR] import FILE.vcf   adds the people of a vCard file\n"
                                  "  phonebook [--home DIR] import -          the same from the standard input\n"
                                  "  phonebook [--home DIR] export FILE.vcf   writes all local contacts\n"
                                  "  phonebook [--home DIR] list              id, name, numbers, groups";

int main(int argc, char **argv)
{
    const QCoreApplication app(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(QString::fromLatin1(Description));
    parser.addHelpOption();
    const QCommandLineOption homeOption(
        QStringLiteral("home"), QStringLiteral("The folder of the phone; else $PHONE_HOME, else the user's."),
        QStringLiteral("DIR"));
    parser.addOption(homeOption);
    parser.addPositionalArgument(QStringLiteral("command"), QStringLiteral("import, export or list."));
    parser.addPositionalArgument(QStringLiteral("file"), QStringLiteral("The vCard file."),
                                 QStringLiteral("[file]"));
    parser.process(app);

    const PhoneHome home = PhoneHome::locate(parser.value(homeOption));
    home.enter();
    const Phonebook phonebook(home);
    const QStringList arguments = parser.positionalArguments();
    const QString command = arguments.value(0);
    if (command == QLatin1String("import") && arguments.size() == 2)
        return phonebook.importFile(arguments.at(1));
    if (command == QLatin1String("export") && arguments.size() == 2)
        return phonebook.exportFile(arguments.at(1));
    if (command == QLatin1String("list") && arguments.size() == 1)
        return phonebook.list();
    qCritical("%s", qPrintable(parser.helpText()));
    return 2;
}
