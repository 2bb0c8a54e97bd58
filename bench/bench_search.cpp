// From a key in the search line to the finished frame, beside a filtered model in Qt's own list.
//
// Each pass is one key: words are typed letter by letter and erased again. The counters are in microseconds; that
// of the processor time is the one to look at on a machine that is busy with other things.

#include "contactmanager.h"
#include "displaysetup.h"
#include "phonekeys.h"
#include "searchall.h"
#include "testphone.h"
#include "testscreen.h"
#include "wpsmcontactmanager.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QVBoxLayout>

#include <algorithm>
#include <benchmark/benchmark.h>
#include <ctime>
#include <memory>
#include <vector>

namespace {

constexpr int MobileShare = 20; // one contact in so many is the paired device's

QStringList families()
{
    return {"Adams",   "Baker",    "Clarke",  "Dubois", "Eriksson", "Fischer",    "García", "Hansen", "Ivanović",
            "Jónsson", "Kowalski", "Łukasik", "Müller", "Novák",    "Østergaard", "Petit",  "Yılmaz", "Şahin",
            "Иванов",  "Орлова",   "Смирнов", "김",     "이",       "박",         "최",     "정"};
}

QStringList firstNames()
{
    return {"Anna", "Bruno", "Chloë", "David", "Élise", "Frank", "Greta",
            "Hugo", "İpek",  "Борис", "철수",  "영희",  "민준"};
}

QList<ContactImport> people(int count)
{
    const QStringList family = families(), first = firstNames();
    QList<ContactImport> people;
    for (int i = 0; i < count; ++i) {
        ContactImport person;
        person.contact.name = QString("%1 %2 %3%4")
                                  .arg(family.at(i % family.size()), first.at(i / family.size() % first.size()))
                                  .arg(QChar('A' + i % 23))
                                  .arg(QChar('a' + i % 19));
        const auto number
            = [i](int kind) { return QString::number(10000000LL + (i * 7919LL + kind * 104729LL) % 90000000LL); };
        person.contact.setNumbers({number(1), "0" + number(2), "+82" + number(3)},
                                  {ContactData::Company, ContactData::Mobile, ContactData::Home});
        people.append(person);
    }
    return people;
}

/// The keys of one round: every letter of every word, and as many times Backspace.
QStringList keys()
{
    QStringList keys;
    for (const QString &word :
         {QString("anna"), QString("kowalski"), QString("müller"), QString("김철"), QString("ㄱㅊㅅ"),
          QString("орл"), QString("ea"), QString("0104"), QString("555"), QString("qxq")}) {
        for (const QChar letter : word)
            keys.append(letter);
        for (int i = 0; i < word.size(); ++i)
            keys.append(QString());
    }
    return keys;
}

/// Sees the window's last paint of a frame.
class FrameWatch : public QObject
{
public:
    explicit FrameWatch(QWidget *window) { window->installEventFilter(this); }

    bool painted = false;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        painted = painted || event->type() == QEvent::UpdateRequest;
        return false;
    }
};

/// The processor time of this thread, in microseconds.
double busyTime()
{
    timespec now;
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return double(now.tv_sec) * 1e6 + double(now.tv_nsec) / 1e3;
}

/// The value below which that share of all lies.
double share(std::vector<double> values, double part)
{
    std::sort(values.begin(), values.end());
    return values.at(std::size_t(double(values.size()) * part));
}

/// Presses one key after the other, each timed until what it changed is painted.
void type(benchmark::State &state, QWidget *window)
{
    const QStringList round = keys();
    std::vector<double> times, busyTimes;
    FrameWatch frame(window);
    int next = 0;
    for (auto _ : state) {
        const QString letter = round.at(next++ % round.size());
        const int code = letter.isEmpty() ? int(Qt::Key_Backspace) : letter.at(0).toUpper().unicode();
        frame.painted = false;
        QElapsedTimer timer;
        timer.start();
        const double busyBefore = busyTime();
        QWidget *focus = QApplication::focusWidget();
        for (const QEvent::Type half : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(half, code, Qt::NoModifier, letter);
            QCoreApplication::sendEvent(focus, &event);
        }
        QCoreApplication::sendPostedEvents();
        while (!frame.painted)
            QCoreApplication::processEvents();
        const double seconds = double(timer.nsecsElapsed()) / 1e9;
        state.SetIterationTime(seconds);
        times.push_back(seconds * 1e6);
        busyTimes.push_back(busyTime() - busyBefore);
        QCoreApplication::processEvents(); // what is put off until after the frame
    }
    state.counters["median_us"] = share(times, 0.5);
    state.counters["p99_us"] = share(times, 0.99);
    state.counters["busy_p99_us"] = share(busyTimes, 0.99);
}

std::unique_ptr<TestPhone> phone;

/// A phone with that many contacts, kept for the benchmarks that follow.
TestPhone &phoneWith(int count)
{
    static int held = 0;
    if (held == count)
        return *phone;
    phone.reset();
    phone.reset(new TestPhone);
    held = count;
    phone->core.contactManager()->importContacts(people(count - count / MobileShare));
    QStringList mobile;
    const QList<ContactImport> others = people(count / MobileShare);
    for (const ContactImport &other : others)
        mobile.append(other.contact.name);
    phone->connectMobile(mobile);
    phone->core.wpsmContactManager()->readWpsmConfigFile();
    return *phone;
}

void searchScreen(benchmark::State &state)
{
    phoneWith(int(state.range(0)));
    SearchAll screen(nullptr, SearchAll::ViewMode, QString());
    PhoneKeys::showAndActivate(&screen);
    QCoreApplication::processEvents();
    type(state, &screen);
}

void proxyModel(benchmark::State &state)
{
    const Core &core = phoneWith(int(state.range(0))).core;
    QStandardItemModel model;
    const QList<ContactData> contacts
        = core.contactManager()->getAllContacts() + core.wpsmContactManager()->getAllContacts();
    for (const ContactData &contact : contacts) {
        for (int slot = 0; slot < ContactData::NumberCount; ++slot) {
            if (!contact.number(slot).isEmpty())
                model.appendRow(new QStandardItem(contact.name + ' ' + contact.number(slot)));
        }
    }
    QSortFilterProxyModel proxy;
    proxy.setFilterCaseSensitivity(Qt::CaseInsensitive);
    proxy.setSourceModel(&model);

    QWidget window;
    window.setFixedSize(384, 134);
    QVBoxLayout layout(&window);
    QLineEdit line;
    QListView list;
    list.setUniformItemSizes(true);
    list.setModel(&proxy);
    layout.addWidget(&line);
    layout.addWidget(&list);
    QObject::connect(&line, &QLineEdit::textChanged, &proxy, &QSortFilterProxyModel::setFilterFixedString);
    PhoneKeys::showAndActivate(&window);
    line.setFocus();
    QCoreApplication::processEvents();
    type(state, &window);
}

}

int main(int argc, char **argv)
{
    DisplaySetup::prepareEnvironment();
    QApplication app(argc, argv);
    DisplaySetup::prepareApplication();
    TestScreen display;
    const int round = keys().size();
    const auto add = [](const char *name, void (*run)(benchmark::State &), int contacts, int passes) {
        benchmark::RegisterBenchmark(name, run)->Arg(contacts)->Iterations(passes)->UseManualTime()->Unit(
            benchmark::kMicrosecond);
    };
    for (const int count : {300, 10000, 100000}) {
        add("search screen", searchScreen, count, (count > 10000 ? 5 : 40) * round);
        // Of 100 000 the model takes a minute for some keys.
        if (count <= 10000)
            add("QSortFilterProxyModel in QListView", proxyModel, count, 5 * round);
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    phone.reset(); // needs the application
    return 0;
}
