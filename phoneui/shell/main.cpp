// The phone: makes or finds its home, starts the platform and the applications, and runs until it is told to end.

#include "demodirectory.h"
#include "displaysetup.h"
#include "log.h"
#include "phone.h"
#include "ringtones.h"
#include "terminationsignals.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTextStream>

namespace {

constexpr int UsageError = 2;

struct Options
{
    QString home, platform, language, script, directory;
    bool empty = false;
    bool peers = true;
};

/// Reads the command line; false when the program has to end with `exitCode`.
bool readOptions(const QStringList &arguments, Options *options, int *exitCode)
{
    QCommandLineParser parser;
    parser.setApplicationDescription("A desk telephone with its contacts.");
    parser.addHelpOption();
    parser.addOption({"home", "The folder with all that the phone keeps.", "DIR"});
    parser.addOption({"empty", "Give a new home no demonstration data."});
    parser.addOption({"no-peers", "Start no processes beside the phone: it calls nobody."});
    parser.addOption({"platform", "The Qt platform: offscreen (the default), linuxfb, eglfs, vnc.", "NAME"});
    parser.addOption({"language", "The language, such as de_DE; it is kept in the settings.", "NAME"});
    parser.addOption({"directory", "The demonstration directory, for a new home and one that was set up for it.",
                      "ID:PASSWORD@ADDRESS"});
    parser.addOption({"script", "Run this phonectl script and end with its exit code.", "FILE"});
    if (!parser.parse(arguments)) {
        QTextStream(stderr) << "phoneui: " << parser.errorText() << Qt::endl;
        *exitCode = UsageError;
        return false;
    }
    if (parser.isSet("help")) {
        // The text names the program, which it asks the application for.
        int count = 1;
        char name[] = "phoneui";
        char *names[] = {name, nullptr};
        const QCoreApplication app(count, names);
        QTextStream(stdout) << parser.helpText();
        *exitCode = 0;
        return false;
    }
    *options
        = {parser.value("home"),      parser.value("platform"), parser.value("language"), parser.value("script"),
           parser.value("directory"), parser.isSet("empty"),    !parser.isSet("no-peers")};
    return true;
}

QString programPath(const QString &name)
{
    return QCoreApplication::applicationDirPath() + '/' + name;
}

/// Brings the demonstration contacts into a new home.
void fillNewHome(const PhoneHome &home)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath("contacts.vcf");
    QFile::copy(":/demo/contacts.vcf", file);
    QProcess import;
    import.start(programPath("phonebook"), {"--home", home.root(), "import", file});
    if (!import.waitForFinished() || import.exitCode() != 0)
        qWarning("The demonstration contacts could not be imported: %s %s", qPrintable(import.errorString()),
                 import.readAllStandardError().constData());
}

/// Ends the phone with the script's exit code when the script is done.
void startScript(const PhoneHome &home, const QString &file, QObject *parent)
{
    auto *script = new QProcess(parent);
    script->setProcessChannelMode(QProcess::ForwardedChannels);
    QObject::connect(script, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), parent,
                     [](int code) { QCoreApplication::exit(code); });
    QObject::connect(script, &QProcess::errorOccurred, parent, [script](QProcess::ProcessError error) {
        qWarning("The script cannot be run: %s", qPrintable(script->errorString()));
        if (error == QProcess::FailedToStart)
            QCoreApplication::exit(UsageError);
    });
    script->start(programPath("phonectl"), {"--home", home.root(), "run", file});
}

}

int main(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    Options options;
    int exitCode = 0;
    if (!readOptions(arguments, &options, &exitCode))
        return exitCode;

    Log::install();
    const PhoneHome home = PhoneHome::locate(options.home);
    const bool isNew = !QFile::exists(home.configList());
    if (!home.create())
        return 1;
    installRingTones(home);
    home.enter();
    // A phone that runs without a login session brings its own runtime folder.
    if (!qEnvironmentVariableIsSet("XDG_RUNTIME_DIR"))
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(home.runFolder()));

    DisplaySetup::prepareEnvironment(options.platform);
    int qtArgc = 1; // the phone's own options are no business of Qt's
    QApplication app(qtArgc, argv);
    DisplaySetup::prepareApplication();
    if (isNew && !options.empty)
        fillNewHome(home);

    Phone phone(home);
    if (!options.language.isEmpty() && !theCore->setLanguageName(options.language)) {
        qWarning("\"%s\" is no language of the phone", qPrintable(options.language));
        return UsageError;
    }
    if (!phone.powerOn())
        return 1;
    const DemoDirectory directory(options.directory);
    if (directory.isValid())
        directory.provision(home, isNew && !options.empty);
    if (options.peers)
        phone.startPeers();
    TerminationSignals termination;
    QObject::connect(&termination, &TerminationSignals::received, &app, [] { QCoreApplication::exit(0); });
    if (!options.script.isEmpty())
        startScript(home, QFileInfo(options.script).absoluteFilePath(), &app);
    return QApplication::exec();
}
