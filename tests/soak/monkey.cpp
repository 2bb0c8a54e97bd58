// The contacts under a random mix of keys, commands and mishaps, for as long as one likes:
//   monkey --seed N --events N [--record FILE]    a new run; the events go to the file as they happen
//   monkey --replay FILE                          the same again
//   monkey --reduce FILE                          fewest events that still fail, to FILE.reduced

#include "monkeyrun.h"

#include "displaysetup.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QFile>
#include <QProcess>

static QList<MonkeyEvent> readEvents(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s cannot be read", qPrintable(path));
    QList<MonkeyEvent> events = file.readAll().split('\n');
    events.removeAll(MonkeyEvent());
    return events;
}

/// How a run of these events ends in a process of its own: the kind of fault, without the figures in it, or a
/// signal; empty when all is well.
static QString verdict(const QList<MonkeyEvent> &events, const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(events.join('\n')) < 0)
        qFatal("%s cannot be written", qPrintable(path));
    file.close();
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {"--replay", path, "--record", "/dev/null"});
    process.waitForFinished(-1);
    if (process.exitStatus() == QProcess::CrashExit)
        return "a crash";
    if (process.exitCode() == 0)
        return QString();
    const QString said = QString::fromUtf8(process.readAllStandardError());
    QString kind = said.mid(said.indexOf(QRegularExpression("fault:|ERROR: |runtime error: "))).section('\n', 0, 0);
    return kind.remove(QRegularExpression("0x\\w+|\\d+"));
}

/// Delta debugging: ever smaller pieces are left out while the same fault comes.
static void reduce(const QString &path)
{
    const QString tried = path + ".tried", reduced = path + ".reduced";
    QList<MonkeyEvent> events = readEvents(path);
    const QString fault = verdict(events, tried);
    std::printf("%d events: %s\n", events.size(), qPrintable(fault.isEmpty() ? "no fault" : fault));
    if (fault.isEmpty())
        return;
    // Most faults lie in what came last.
    for (int tail = 25; tail < events.size(); tail *= 3) {
        if (verdict(events.mid(events.size() - tail), tried) == fault)
            events = events.mid(events.size() - tail);
    }
    for (int piece = events.size() / 2; piece > 0;) {
        bool shorter = false;
        for (int from = 0; from < events.size();) {
            const QList<MonkeyEvent> fewer = events.mid(0, from) + events.mid(from + piece);
            if (verdict(fewer, tried) == fault) {
                events = fewer;
                shorter = true;
                QFile::remove(reduced);
                QFile::copy(tried, reduced);
            } else {
                from += piece;
            }
        }
        if (!shorter || piece > 1)
            piece /= 2;
    }
    std::printf("%s\n", events.join('\n').constData());
}

int main(int argc, char **argv)
{
    DisplaySetup::prepareEnvironment();
    QApplication app(argc, argv);
    DisplaySetup::prepareApplication();
    QCommandLineParser parser;
    parser.addOptions({{"seed", "", "N", "1"},
                       {"events", "", "N", "20000"},
                       {"record", "", "FILE", "monkey.txt"},
                       {"replay", "", "FILE"},
                       {"reduce", "", "FILE"}});
    parser.process(app);
    if (parser.isSet("reduce")) {
        reduce(parser.value("reduce"));
        return 0;
    }

    const unsigned seed = parser.value("seed").toUInt();
    const int count = parser.value("events").toInt();
    MonkeyEvents drawn(seed);
    QList<MonkeyEvent> recorded;
    int done = 0;
    MonkeyRun::Source source = [&](MonkeyEvent *event) {
        *event = drawn.next();
        return done++ < count;
    };
    if (parser.isSet("replay")) {
        recorded = readEvents(parser.value("replay"));
        source = [&](MonkeyEvent *event) {
            *event = recorded.value(done);
            return done++ < recorded.size();
        };
    } else {
        std::printf("seed %u, %d events, recorded in %s\n", seed, count, qPrintable(parser.value("record")));
        std::fflush(stdout);
    }
    std::FILE *record = std::fopen(QFile::encodeName(parser.value("record")).constData(), "w");
    if (!record)
        qFatal("%s cannot be written", qPrintable(parser.value("record")));
    MonkeyRun(source, record).run();
    std::fclose(record);
    std::printf("all well; event loops up to %d deep, the longest turn %s\n", MonkeyRun::deepestLoop(),
                qPrintable(MonkeyRun::longestStall()));
    return 0;
}
