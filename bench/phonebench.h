#ifndef PHONEBENCH_H
#define PHONEBENCH_H

#include "contactmanager.h"
#include "displaysetup.h"
#include "testphone.h"
#include "testscreen.h"
#include "wpsmcontactmanager.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QThread>

#include <algorithm>
#include <benchmark/benchmark.h>
#include <ctime>
#include <memory>
#include <vector>

/// What the benchmarks share: people, a phone that holds them, keys and frames, and clocks.
///
/// Times are those of this thread on the processor, so that other programs at work do not blur them; the counters
/// have the time by the clock as well.
namespace PhoneBench {

constexpr int MobileShare = 20; ///< one contact in so many is the paired device's

inline QList<ContactImport> people(int count)
{
    const QStringList family{"Adams",      "Baker",    "Clarke",  "Dubois",   "Eriksson", "Fischer", "García",
                             "Hansen",     "Ivanović", "Jónsson", "Kowalski", "Łukasik",  "Müller",  "Novák",
                             "Østergaard", "Petit",    "Yılmaz",  "Şahin",    "Иванов",   "Орлова",  "Смирнов",
                             "김",         "이",       "박",      "최",       "정"};
    const QStringList first{"Anna", "Bruno", "Chloë", "David", "Élise", "Frank", "Greta",
                            "Hugo", "İpek",  "Борис", "철수",  "영희",  "민준"};
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

inline std::unique_ptr<TestPhone> &heldPhone()
{
    static std::unique_ptr<TestPhone> phone;
    return phone;
}

/// A phone with that many contacts, kept for the benchmarks that follow.
inline TestPhone &phoneWith(int count)
{
    static int held = 0;
    std::unique_ptr<TestPhone> &phone = heldPhone();
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

/// A phone with one group of 300: 299 people and a contact that fills its form, whose id comes back.
inline int makeTeam()
{
    static int fullId = 0;
    if (heldPhone())
        return fullId;
    heldPhone().reset(new TestPhone);
    ContactManager *store = heldPhone()->core.contactManager();
    QList<ContactImport> all = people(300);
    ContactData &full = all.first().contact;
    full.name = "Zacharias Fuller";
    QStringList numbers;
    QList<int> kinds;
    for (int i = 0; i < 9; ++i) {
        numbers.append(QString::number(20000000 + i));
        kinds.append(i % 5);
    }
    full.setNumbers(numbers, kinds);
    full.setEmails({"zacharias@example.org", "z.fuller@example.org", "fuller@example.org"});
    full.memo = "Knows everybody";
    full.bell = "/nowhere/Bell.wav";
    for (ContactImport &person : all)
        person.groups.append("Team");
    store->importContacts(all);
    fullId = store->getIdByUsingNameAndNumber(full.name, numbers.first());
    return fullId;
}

class Stopwatch
{
public:
    Stopwatch() : m_busyStart(busyNow()) { m_clock.start(); }

    /// Both in seconds.
    double busy() const { return busyNow() - m_busyStart; }
    double byClock() const { return double(m_clock.nsecsElapsed()) / 1e9; }

private:
    static double busyNow()
    {
        timespec now;
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
        return double(now.tv_sec) + double(now.tv_nsec) / 1e9;
    }

    QElapsedTimer m_clock;
    double m_busyStart;
};

/// The times of all passes of one benchmark.
class Passes
{
public:
    explicit Passes(benchmark::State &state) : m_state(state) { }

    void add(double busy, double byClock)
    {
        m_state.SetIterationTime(busy);
        m_busy.push_back(busy * 1e6);
        m_byClock.push_back(byClock * 1e6);
    }
    void add(const Stopwatch &watch)
    {
        const double busy = watch.busy();
        add(busy, watch.byClock());
    }
    /// Counters, in microseconds.
    void report() const
    {
        if (m_busy.empty())
            return;
        m_state.counters["busy_median_us"] = share(m_busy, 0.5);
        m_state.counters["busy_p99_us"] = share(m_busy, 0.99);
        m_state.counters["clock_median_us"] = share(m_byClock, 0.5);
        m_state.counters["clock_p99_us"] = share(m_byClock, 0.99);
    }

private:
    /// The value below which that share of all lies.
    static double share(std::vector<double> values, double part)
    {
        std::sort(values.begin(), values.end());
        return values.at(std::size_t(double(values.size()) * part));
    }

    benchmark::State &m_state;
    std::vector<double> m_busy, m_byClock;
};

/// Sees the window's last paint of a frame.
class FrameWatch : public QObject
{
public:
    explicit FrameWatch(QWidget *window) { window->installEventFilter(this); }

    /// False when none comes for two seconds.
    bool waitForFrame()
    {
        QElapsedTimer timer;
        timer.start();
        while (!painted && timer.elapsed() < 2000)
            QCoreApplication::processEvents();
        return painted;
    }

    bool painted = false;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        painted = painted || event->type() == QEvent::UpdateRequest;
        return false;
    }
};

/// Presses and releases a key; false when nothing was painted for it.
inline bool pressKey(FrameWatch &frame, int key, const QString &text = QString())
{
    frame.painted = false;
    for (const QEvent::Type half : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(half, key, Qt::NoModifier, text);
        QCoreApplication::sendEvent(QApplication::focusWidget(), &event);
    }
    QCoreApplication::sendPostedEvents();
    return frame.waitForFrame();
}

/// What lists put off by a millisecond, such as the cursor of a form's row, is done and painted after this.
inline void settle()
{
    QThread::usleep(1500);
    for (int i = 0; i < 3; ++i)
        QCoreApplication::processEvents();
}

/// Registers the benchmark WHAT/SIDE/SIZE, which is how the table finds it.
template <typename Run> benchmark::internal::Benchmark *add(const char *name, Run run, int size, int passes)
{
    return benchmark::RegisterBenchmark(name, run)->Arg(size)->Iterations(passes)->UseManualTime()->Unit(
        benchmark::kMicrosecond);
}

/// The main function of a benchmark on the phone's display.
template <typename Register> int run(int argc, char **argv, Register registerAll)
{
    DisplaySetup::prepareEnvironment();
    QApplication app(argc, argv);
    DisplaySetup::prepareApplication();
    TestScreen display;
    registerAll();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    heldPhone().reset(); // needs the application
    return 0;
}

}

#endif
