// Screens opened and closed and answers of the directory, over and over, on one phone. It prints what the process
// holds as it goes; whatever can be counted must at the end be no more than after the first round.
//   longrun --screens N --answers N

#include "contactmanager.h"
#include "contactscreen.h"
#include "displaysetup.h"
#include "phonescript.h"
#include "testphone.h"
#include "testscreen.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QPixmapCache>

#include <cstdio>
#include <unistd.h>

using namespace PhoneKeys;

namespace {

/// What the process holds at a moment.
struct Holdings
{
    int files, windows, widgets, objects;
    long memory; ///< resident, in KiB; it may grow for as long as the allocator likes, so it is told and not judged

    static Holdings count(const QObject &app)
    {
        QFile statm("/proc/self/statm");
        const bool opened = statm.open(QIODevice::ReadOnly);
        const long pages = opened ? statm.readAll().split(' ').value(1).toLong() : 0;
        return {int(QDir("/proc/self/fd").count()), QApplication::topLevelWidgets().size(),
                QApplication::allWidgets().size(), app.findChildren<QObject *>().size(),
                pages * sysconf(_SC_PAGESIZE) / 1024};
    }
    bool isNoMoreThan(const Holdings &other) const
    {
        return files <= other.files && windows <= other.windows && widgets <= other.widgets
            && objects <= other.objects;
    }
    void print(const char *what, int done) const
    {
        std::printf("%s %d: %d files, %d windows, %d widgets, %d objects, %ld KiB\n", what, done, files, windows,
                    widgets, objects, memory);
        std::fflush(stdout);
    }
};

class LongRun
{
public:
    LongRun()
    {
        const int team = m_phone.core.contactManager()->saveGroup(GroupData(-1, "Team", ""), false);
        for (const char *name : {"Anna", "Bert", "Kim"})
            m_phone.core.contactManager()->saveGroupMember(m_phone.addContact(name), {team});
        m_screen.reset(new ContactScreen);
        m_screen->open();
    }

    /// Runs at least that many rounds of a kind, one to warm up before; false when something was left behind.
    bool repeat(const char *what, int count, int perRound, const PhoneScript &script)
    {
        if (count == 0)
            return true;
        if (!round(script))
            return false;
        const Holdings first = Holdings::count(m_screen->app);
        first.print(what, 0);
        int done = 0;
        for (int report = 1; done < count; done += perRound) {
            if (!round(script))
                return false;
            if (done >= count / 5 * report) {
                Holdings::count(m_screen->app).print(what, done);
                ++report;
            }
        }
        const Holdings last = Holdings::count(m_screen->app);
        last.print(what, done);
        return last.isNoMoreThan(first);
    }

    void showForm() { m_phone.send("contact", "viewContactSearchDir(str)", {}); }
    void answer()
    {
        const QString name = "run/directory-AbCdEf.xml";
        m_phone.writeFile(name,
                          "<a><display count=\"30\"/><item><data><type>name</type><value>Kim</value></data>"
                          "<data><type>number</type><value>12</value></data></item></a>");
        m_phone.send("contact", "http2ui_directory_service_response(str,int)", {m_phone.home.path(name)});
    }

private:
    bool round(PhoneScript script)
    {
        static constexpr int Pace = 1; // ms
        const QString fault = script.run(Pace);
        if (!fault.isEmpty())
            std::fprintf(stderr, "fault: %s\n", qPrintable(fault));
        return fault.isEmpty();
    }

    TestScreen m_display;
    TestPhone m_phone;
    std::unique_ptr<ContactScreen> m_screen;
};

constexpr int ScreensOfRound = 9;

/// Seven screens, a popup and a box.
PhoneScript screens()
{
    PhoneScript script;
    script.opens(Qt::Key_Return, "DetailsDial")
        .opens(Qt::Key_Context3, "MessageBox")
        .opens(Qt::Key_Escape, "DetailsDial")
        .opens(Qt::Key_Context4, "NumberEdit")
        .opens(Qt::Key_Context1, "SelectPopup")
        .opens(Qt::Key_Escape, "NumberEdit")
        .opens(Qt::Key_Escape, "DetailsDial")
        .opens(Qt::Key_Escape, "Contact")
        .opens(Qt::Key_Context2, "SearchAll")
        .opens(Qt::Key_Escape, "Contact")
        .opens(Qt::Key_Context1, "GroupList")
        .opens(Qt::Key_Context2, "GroupAdd")
        .opens(Qt::Key_Escape, "GroupList")
        .keys({Qt::Key_Down})
        .opens(Qt::Key_Return, "GroupDetail")
        .opens(Qt::Key_Return, "DetailsDial")
        .opens(Qt::Key_Escape, "GroupDetail")
        .opens(Qt::Key_Escape, "GroupList")
        .opens(Qt::Key_Escape, "Contact");
    return script;
}

constexpr int AnswersOfRound = 10;

/// Answers to one form, and the form left.
PhoneScript answers(LongRun *run)
{
    PhoneScript script;
    script.call([run] { run->showForm(); }).untilActive("SearchDir");
    for (int i = 0; i < AnswersOfRound; ++i)
        script.call([run] { run->answer(); }).untilActive("SearchDirResult").opens(Qt::Key_Escape, "SearchDir");
    return script.keys({Qt::Key_Escape}).until("the form to go", [] { return !QApplication::activeWindow(); });
}

}

int main(int argc, char **argv)
{
    DisplaySetup::prepareEnvironment();
    QApplication app(argc, argv);
    DisplaySetup::prepareApplication();
    QCommandLineParser parser;
    parser.addOptions({{"screens", "", "N", "0"}, {"answers", "", "N", "0"}});
    parser.process(app);

    LongRun run;
    const bool flat = run.repeat("screens", parser.value("screens").toInt(), ScreensOfRound, screens())
        && run.repeat("answers", parser.value("answers").toInt(), AnswersOfRound, answers(&run));
    if (!flat)
        std::fprintf(stderr, "fault: something was left behind\n");
    return flat ? 0 : 1;
}
