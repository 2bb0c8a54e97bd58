#include "commands.h"
#include "expectation.h"
#include "phonehome.h"
#include "phonelink.h"
#include "script.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QTextCodec>

#include <cstdio>

/// How long `--wait` waits for a phone that is starting, in milliseconds.
static constexpr int StartTime = 5000;

static const char Keys[]
    = "Keys: Up Down Left Right Ok Esc Soft1..Soft4 F1..F10 VolumeUp VolumeDown VolumeMute 0..9\n"
      "      Star Hash Backspace\n";

static const char ScriptHelp[]
    = "  run FILE                   run a script: one command a line, quoted as in a shell ($'...' knows \\n),\n"
      "                             # starts a comment; it stops at the first command that fails\n";

static const char ExitHelp[]
    = "Exit code: 0 done; 1 not as expected, or the phone refused; 2 no phone, or a wrong command.\n";

static void say(FILE *stream, const QString &text)
{
    std::fputs(text.toUtf8().constData(), stream);
}

static int complain(const QString &what)
{
    say(stderr, QStringLiteral("phonectl: %1\n").arg(what));
    return Commands::Unable;
}

static QString help(const QCommandLineParser &parser)
{
    return parser.helpText() + "\nCommands:\n" + Commands::help() + QLatin1String(ScriptHelp) + '\n'
        + QLatin1String(Keys) + "\nExpectations:\n" + Expectation::help() + '\n' + QLatin1String(ExitHelp);
}

static int drive(const QString &home, int patience, const QStringList &words)
{
    const bool isScript = words.first() == "run";
    QList<ScriptLine> lines;
    if (isScript && words.size() != 2)
        return complain(QStringLiteral("it reads: run FILE"));
    const QString wrong = isScript ? Script::read(words.at(1), &lines) : Commands::complaint(words);
    if (!wrong.isEmpty())
        return complain(wrong);

    PhoneLink link(PhoneHome::locate(home));
    if (!link.connectToPhone(patience))
        return complain(link.error());
    Commands commands(link);
    const Commands::Result result = isScript ? commands.runScript(words.at(1), lines) : commands.run(words);
    if (result != Commands::Done)
        say(stderr, (isScript ? QString() : QStringLiteral("phonectl: ")) + commands.error() + '\n');
    return result;
}

int main(int argc, char **argv)
{
    // Names and texts are UTF-8 in whatever locale a script runs.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    QCoreApplication app(argc, argv);

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Drives a running phone."));
    parser.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsPositionalArguments);
    const QCommandLineOption helpOption({QStringLiteral("h"), QStringLiteral("help")},
                                        QStringLiteral("Print this."));
    const QCommandLineOption homeOption(QStringLiteral("home"), QStringLiteral("The phone's home folder."),
                                        QStringLiteral("DIR"));
    const QCommandLineOption waitOption(QStringLiteral("wait"),
                                        QStringLiteral("Wait up to 5 s for a phone that is starting."));
    parser.addOptions({helpOption, homeOption, waitOption});
    parser.addPositionalArgument(QStringLiteral("COMMAND"), QStringLiteral("What to do."),
                                 QStringLiteral("COMMAND [ARG...]"));

    if (!parser.parse(QCoreApplication::arguments()))
        return complain(parser.errorText());
    if (parser.isSet(helpOption)) {
        say(stdout, help(parser));
        return Commands::Done;
    }
    if (parser.positionalArguments().isEmpty())
        return complain(QStringLiteral("no command given; phonectl --help lists them"));
    return drive(parser.value(homeOption), parser.isSet(waitOption) ? StartTime : 0, parser.positionalArguments());
}
