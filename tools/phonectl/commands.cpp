#include "commands.h"

#include "expectation.h"

#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>
#include <QThread>

#include <algorithm>
#include <cstdio>

/// Between two looks at the phone while an expectation waits, in milliseconds.
static constexpr int LookPause = 15;
static constexpr int LongestPause = 600000;

/// A command and how many words may follow it (`most` -1: any number). `milliseconds` is the index of the word that
/// is a time, 0 for none.
struct Commands::Command
{
    const char *name;
    int least;
    int most;
    int milliseconds;
    bool ends;
    Result (Commands::*run)(const QStringList &words);
    const char *usage;
    const char *help;
};

const Commands::Command Commands::Table[] = {
    {"key", 1, -1, 0, true, &Commands::key, "key NAME...", "press and release each key"},
    {"hold", 2, 2, 2, true, &Commands::hold, "hold NAME MS", "press, wait, release"},
    {"press", 1, 1, 0, true, &Commands::passOn, "press NAME", "the first half of a key"},
    {"release", 1, 1, 0, true, &Commands::passOn, "release NAME", "the second half"},
    {"text", 1, -1, 0, true, &Commands::text, "text WORDS", "type into the focused line edit"},
    {"launch", 1, 1, 0, true, &Commands::passOn, "launch APP", "start an application"},
    {"send", 2, -1, 0, true, &Commands::passOn, "send APP COMMAND [ARG...]",
     "send an application command, such as \"viewContact(str)\""},
    {"broadcast", 1, 1, 0, true, &Commands::passOn, "broadcast NAME", "send a broadcast to all applications"},
    {"sleep", 1, 1, 1, true, &Commands::sleep, "sleep MS", "wait"},
    {"shot", 1, 1, 0, true, &Commands::shot, "shot FILE.png", "save a picture of the display"},
    {"watch", 0, 0, 0, false, &Commands::watch, "watch",
     "print a picture now and at each change: a PNG a line, in base64"},
    {"screen", 0, 0, 0, true, &Commands::print, "screen", "print what is shown, as JSON"},
    {"sent", 0, 0, 0, true, &Commands::print, "sent", "print what was sent since the last `sent`, as JSON"},
    {"expect", 1, -1, 0, true, &Commands::expect, "expect FIELD VALUE...", "wait up to 2 s for it (see below)"},
};

const Commands::Command *Commands::find(const QString &name)
{
    const auto found = std::find_if(std::begin(Table), std::end(Table), [&name](const Command &command) {
        return name == QLatin1String(command.name);
    });
    return found == std::end(Table) ? nullptr : found;
}

QString Commands::complaint(const QStringList &words)
{
    const Command *command = find(words.value(0));
    if (!command)
        return QStringLiteral("there is no command \"%1\"").arg(words.value(0));
    const int count = words.size() - 1;
    if (count < command->least || (command->most >= 0 && count > command->most))
        return QStringLiteral("it reads: %1").arg(QLatin1String(command->usage));
    if (command->milliseconds) {
        const QString &time = words.at(command->milliseconds);
        bool isNumber = false;
        const int value = time.toInt(&isNumber);
        if (!isNumber || value < 0 || value > LongestPause)
            return QStringLiteral("\"%1\" is no time in milliseconds").arg(time);
    }
    return command->run == &Commands::expect ? Expectation().parse(words.mid(1)) : QString();
}

QString Commands::scriptComplaint(const QStringList &words)
{
    const Command *command = find(words.value(0));
    if (command && !command->ends)
        return QStringLiteral("\"%1\" never ends, so a script cannot use it").arg(words.first());
    return complaint(words);
}

Commands::Result Commands::run(const QStringList &words)
{
    const QString wrong = complaint(words);
    return wrong.isEmpty() ? (this->*find(words.first())->run)(words) : fail(Unable, wrong);
}

Commands::Result Commands::runScript(const QString &fileName, const QList<ScriptLine> &lines)
{
    const auto place = [&fileName](const ScriptLine &line, const QString &what) {
        return QStringLiteral("%1:%2: %3").arg(fileName).arg(line.number).arg(what);
    };
    for (const ScriptLine &line : lines) {
        const QString wrong = scriptComplaint(line.words);
        if (!wrong.isEmpty())
            return fail(Unable, place(line, wrong));
    }
    for (const ScriptLine &line : lines) {
        const Result result = run(line.words);
        if (result != Done)
            return fail(result, place(line, m_error));
    }
    return Done;
}

Commands::Result Commands::key(const QStringList &words)
{
    const QStringList names = words.mid(1);
    for (const QString &name : names) {
        for (const char *half : {"press", "release"}) {
            const Result result = ask({half, name});
            if (result != Done)
                return result;
        }
    }
    return Done;
}

Commands::Result Commands::hold(const QStringList &words)
{
    const Result result = ask({"press", words.at(1)});
    if (result != Done)
        return result;
    QThread::msleep(words.at(2).toUInt());
    return ask({"release", words.at(1)});
}

Commands::Result Commands::text(const QStringList &words)
{
    return ask({words.first(), words.mid(1).join(' ')});
}

Commands::Result Commands::sleep(const QStringList &words)
{
    QThread::msleep(words.at(1).toUInt());
    return Done;
}

Commands::Result Commands::shot(const QStringList &words)
{
    QJsonValue picture;
    const Result result = ask({"shot"}, &picture);
    if (result != Done)
        return result;
    QSaveFile file(words.at(1));
    if (file.open(QIODevice::WriteOnly)) {
        file.write(QByteArray::fromBase64(picture.toString().toLatin1()));
        if (file.commit())
            return Done;
    }
    return fail(Unable, QStringLiteral("cannot write %1: %2").arg(file.fileName(), file.errorString()));
}

Commands::Result Commands::watch(const QStringList &)
{
    PhoneLink::Outcome outcome = m_link.watch();
    QByteArray picture;
    while (outcome == PhoneLink::Outcome::Done) {
        outcome = m_link.nextPicture(&picture, PhoneLink::Forever);
        if (outcome == PhoneLink::Outcome::Done) {
            std::puts(picture.constData());
            std::fflush(stdout);
        }
    }
    return resultOf(outcome);
}

Commands::Result Commands::print(const QStringList &words)
{
    QJsonValue value;
    const Result result = ask(words, &value);
    if (result != Done)
        return result;
    const QJsonDocument document
        = value.isArray() ? QJsonDocument(value.toArray()) : QJsonDocument(value.toObject());
    std::fputs(document.toJson().constData(), stdout);
    std::fflush(stdout);
    return Done;
}

Commands::Result Commands::expect(const QStringList &words)
{
    Expectation expectation;
    expectation.parse(words.mid(1));
    QElapsedTimer waited;
    waited.start();
    for (;;) {
        QJsonValue answer;
        const Result result = ask({expectation.request()}, &answer);
        if (result != Done || expectation.holds(answer))
            return result;
        if (waited.hasExpired(expectation.patience()))
            return fail(
                Failed,
                QStringLiteral("expected %1, found %2").arg(expectation.wanted(), expectation.found(answer)));
        QThread::msleep(LookPause);
    }
}

Commands::Result Commands::passOn(const QStringList &words)
{
    return ask(words);
}

Commands::Result Commands::ask(const QStringList &request, QJsonValue *value)
{
    return resultOf(m_link.request(request, value));
}

Commands::Result Commands::resultOf(PhoneLink::Outcome outcome)
{
    if (outcome == PhoneLink::Outcome::Done)
        return Done;
    return fail(outcome == PhoneLink::Outcome::Refused ? Failed : Unable, m_link.error());
}

Commands::Result Commands::fail(Result result, const QString &why)
{
    m_error = why;
    return result;
}

QString Commands::help()
{
    QString text;
    for (const Command &command : Table)
        text += QStringLiteral("  %1 %2\n").arg(QLatin1String(command.usage), -26).arg(QLatin1String(command.help));
    return text;
}
