// The plug-in from dlopen to its first frame, beside an empty dialog; and what it adds to the process's memory. The
// floor is what no such plug-in can leave out: the library is loaded, bare SQLite reads the rows, a bare dialog
// draws the first page.
//
// A library is loaded once in a process, so each pass is a process of its own: this program with a command.

#include "baseappinterface.h"
#include "phonebench.h"
#include "plainrows.h"
#include "pluginhost.h"

#include <QDialog>
#include <QFile>
#include <QLibrary>
#include <QPainter>
#include <QProcess>

#include <cstdio>
#include <unistd.h>

namespace {

using namespace PhoneBench;

double residentBytes()
{
    QFile file("/proc/self/statm");
    file.open(QIODevice::ReadOnly);
    return file.readAll().split(' ').at(1).toDouble() * double(sysconf(_SC_PAGESIZE));
}

/// What a record is without any store: its fields and the characters of its texts.
double recordBytes(const QList<ContactData> &contacts)
{
    int characters = 0;
    for (const ContactData &contact : contacts) {
        for (const QString *text : {&contact.name, &contact.picture, &contact.memo, &contact.bell, &contact.buddyId,
                                    &contact.extra, &contact.email1, &contact.email2, &contact.email3})
            characters += text->size();
        for (int slot = 0; slot < ContactData::NumberCount; ++slot)
            characters += contact.number(slot).size();
    }
    return double(contacts.size()) * double(sizeof(ContactData)) + 2.0 * characters;
}

void showFirstFrame(QWidget *window)
{
    FrameWatch frame(window);
    window->show();
    frame.waitForFrame();
}

/// The words, fonts and pictures of the phone's first page.
class PlainPage : public QDialog
{
public:
    std::vector<PlainRows::Record> records;

protected:
    void paintEvent(QPaintEvent *) override
    {
        static constexpr int Rows = 3, Cells = 6, CellWidth = 187, RowHeight = 34;
        QPainter painter(this);
        painter.fillRect(rect(), Qt::white);
        for (int i = 0; i < Cells; ++i) {
            const QRect cell(i / Rows * CellWidth, i % Rows * RowHeight, CellWidth, RowHeight);
            painter.drawText(cell, Qt::AlignVCenter, QString::fromStdString(records.at(std::size_t(i)).texts[0]));
        }
        for (const char *picture :
             {"widget/focus_02_lefttop", "widget/focus_02_lefbottom", "widget/focus_02_righttop",
              "widget/focus_02_rightbottom", "title/breadcrumb", "title/num_bg_left", "title/num_bg_right"})
            painter.drawPixmap(0, 0, QPixmap(QStringLiteral(":/ui/images/%1.png").arg(QLatin1String(picture))));
        drawWords(&painter, 20, QFont::Normal, {"Groups", "Search", "Edit Mode"});
        drawWords(&painter, 20, QFont::Bold, {">"});
        drawWords(&painter, 18, QFont::Normal, {"Contacts", "All", "1/300"});
    }

private:
    static void drawWords(QPainter *painter, int points, int weight, const QStringList &words)
    {
        QFont font = painter->font();
        font.setPointSize(points);
        font.setWeight(weight);
        painter->setFont(font);
        for (const QString &word : words)
            painter->drawText(0, points, word);
    }
};

/// Loads the library without making anything of it, and shows the first page of the contacts.
bool showLeast(PlainPage *page, const PhoneHome &home, const QString &library)
{
    if (!QLibrary(library).load())
        return false;
    page->records = PlainRows::readSorted(home);
    showFirstFrame(page);
    return true;
}

/// One pass: prints both times and the bytes that came.
int child(const QString &command, const QString &folder)
{
    const PhoneHome home(folder);
    home.enter();
    Core core(home);
    Status status;
    status.setGeometry(0, 0, 384, 26);
    core.setStatusWidget(&status);
    showFirstFrame(&status); // the bar stands long before an application starts

    QDialog dialog;
    PlainPage page;
    for (QWidget *window : {&dialog, static_cast<QDialog *>(&page)})
        window->setGeometry(0, 26, 384, 134);
    const QString library = QCoreApplication::applicationDirPath() + "/../bin/contact.so";
    PluginHost host;
    const double before = residentBytes();
    const Stopwatch watch;
    if (command == "plugin") {
        BaseAppInterface *app = host.load(library);
        auto *window = dynamic_cast<QWidget *>(app);
        if (!window)
            return 1;
        FrameWatch frame(window);
        app->start(nullptr, nullptr);
        frame.waitForFrame();
    } else if (command == "floor") {
        if (!showLeast(&page, home, library))
            return 1;
    } else {
        showFirstFrame(&dialog);
    }
    const double busy = watch.busy(), byClock = watch.byClock();
    std::printf("%.9f %.9f %.0f\n", busy, byClock, residentBytes() - before);
    return 0;
}

void measure(benchmark::State &state, const char *command, bool memory)
{
    const TestPhone &phone = phoneWith(int(state.range(0)));
    Passes passes(state);
    double bytes = 0;
    for (auto _ : state) {
        QProcess process;
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process.start(QCoreApplication::applicationFilePath(), {command, phone.home.root()});
        process.waitForFinished();
        const QList<QByteArray> values = process.readAllStandardOutput().trimmed().split(' ');
        if (process.exitCode() != 0 || values.size() != 3) {
            state.SkipWithError("the process failed");
            break;
        }
        passes.add(values.at(0).toDouble(), values.at(1).toDouble());
        bytes += values.at(2).toDouble();
    }
    passes.report();
    if (!memory)
        return;
    state.counters["added_bytes"] = bytes / double(state.iterations());
    state.counters["record_bytes"] = recordBytes(phone.core.contactManager()->getAllContacts())
        + recordBytes(phone.core.wpsmContactManager()->getAllContacts());
}

}

int main(int argc, char **argv)
{
    const QString command = argc == 3 ? QString::fromLocal8Bit(argv[1]) : QString();
    if (QStringList{"plugin", "floor", "dialog"}.contains(command)) {
        DisplaySetup::prepareEnvironment();
        QApplication app(argc, argv);
        DisplaySetup::prepareApplication();
        TestScreen display;
        return child(command, QString::fromLocal8Bit(argv[2]));
    }
    return run(argc, argv, [] {
        static constexpr int Processes = 15;
        add(
            "start/ours", [](auto &state) { measure(state, "plugin", false); }, 300, Processes);
        add(
            "start/QDialog", [](auto &state) { measure(state, "dialog", false); }, 300, Processes);
        add(
            "start/floor", [](auto &state) { measure(state, "floor", false); }, 300, Processes);
        for (const int count : {300, 10000})
            add(
                "memory/ours", [](auto &state) { measure(state, "plugin", true); }, count, 3);
    });
}
