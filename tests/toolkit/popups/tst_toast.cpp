#include "idletoast.h"
#include "screentest.h"
#include "toastwaitwithoutkeyevent.h"
#include "toastwithoutkeyevent.h"

using namespace PhoneKeys;

struct KeyCase
{
    bool ignoreKey;
    QString keys; ///< presses and releases
    bool stays;
};
Q_DECLARE_METATYPE(KeyCase)

struct TimeCase
{
    int first;
    QList<int> later; ///< times that are set, Words for a message
    int runs; ///< ms, -1 for a time that does not run
};
Q_DECLARE_METATYPE(TimeCase)

constexpr int Forever = 0, Words = 1;

using Act = void (*)(Toast *, KeyScreen &);
Q_DECLARE_METATYPE(Act)

class ToastTest : public ScreenTest
{
    Q_OBJECT

private slots:
    void isSmallOverANarrowParent()
    {
        QWidget narrow;
        narrow.resize(383, 134);
        QVERIFY(Toast("Words", Forever, &narrow).resized());
        QVERIFY(!IdleToast("Words", Forever, m_screen.get()).resized());
    }

    void keysEndIt_data()
    {
        addCases<KeyCase>({{"a key", {false, "+-", false}},
                           {"a press alone", {false, "+", true}},
                           {"the release of a key held before", {false, "-", true}},
                           {"a key after a stray release", {false, "-+-", false}},
                           {"keys that are ignored", {true, "+-+-", true}}});
    }

    void keysEndIt()
    {
        QFETCH(KeyCase, c);
        Toast toast("Words", Forever, m_screen.get());
        toast.setIgnoreKey(c.ignoreKey);
        QSignalSpy ended(&toast, &Toast::toastTimeout), clicked(m_screen->bar(), &Tail::clicked);
        const bool stayed = run(toast, [&] {
            for (const QChar key : qAsConst(c.keys))
                key == '+' ? press(Qt::Key_Context1) : release(Qt::Key_Context1);
        });
        QCOMPARE(stayed, c.stays);
        QCOMPARE(ended.size(), c.stays ? 0 : 1);
        QVERIFY2(clicked.isEmpty(), "the screen heard the key");
        click(Qt::Key_Context1);
        QVERIFY2(!clicked.isEmpty(), "the screen has no keys");
    }

    void endsByItsTime()
    {
        Toast toast("Words", 10, m_screen.get());
        QSignalSpy ended(&toast, &Toast::toastTimeout);
        QCOMPARE(toast.exec(), 0);
        QVERIFY(!toast.isVisible() && ended.size() == 1);
    }

    void timesBeginAnew_data()
    {
        addCases<TimeCase>({{"from construction", {9000, {}, 9000}},
                            {"without a time", {0, {Words}, -1}},
                            {"stopped", {9000, {0}, -1}},
                            {"a message starts a stopped one", {9000, {0, Words}, 9000}},
                            {"another time", {9000, {5000}, 5000}},
                            {"the other time is the message's too", {9000, {5000, -1, Words}, 5000}},
                            {"a first time later", {0, {5000}, 5000}},
                            {"which is not the message's", {-1, {5000, -1, Words}, -1}}});
    }

    void timesBeginAnew()
    {
        QFETCH(TimeCase, c);
        Toast toast("Words", c.first, m_screen.get());
        for (const int time : qAsConst(c.later))
            time == Words ? toast.setMessage("Other words") : toast.setTimeout(time);
        const auto *timer = toast.findChild<QTimer *>();
        QCOMPARE(timer && timer->isActive() ? timer->interval() : -1, c.runs);
    }

    void letsKeysThrough()
    {
        ToastWithOutKeyEvent plain("Words", Forever, m_screen.get());
        ToastWaitWithOutKeyEvent wait("Words", Forever, m_screen.get());
        QSignalSpy clicked(m_screen->bar(), &Tail::clicked);
        for (Toast *toast : {static_cast<Toast *>(&plain), static_cast<Toast *>(&wait)}) {
            clicked.clear();
            QVERIFY(run(*toast, [] { click(Qt::Key_Context2); }));
            QCOMPARE(clicked.size(), 1);
        }
        // Escape is the wait's own.
        QSignalSpy escaped(&wait, &ToastWaitWithOutKeyEvent::escaped);
        const bool stayed = run(wait, [&] {
            click(Qt::Key_Return);
            QVERIFY(escaped.isEmpty());
            click(Qt::Key_Escape);
        });
        QVERIFY(stayed);
        QCOMPARE(escaped.size(), 1);
        QVERIFY2(m_screen->isVisible(), "the key closed the screen");
    }

    void goneFromOutside_data()
    {
        const auto deletedByItsSignal = [](Toast *toast, KeyScreen &) {
            connect(toast, &Toast::toastTimeout, toast, [toast] { delete toast; });
            click(Qt::Key_Return);
        };
        addCases<Act>({{"hidden", [](Toast *toast, KeyScreen &) { toast->hide(); }},
                       {"closed", [](Toast *toast, KeyScreen &) { toast->close(); }},
                       {"its screen closed", [](Toast *, KeyScreen &screen) { screen.close(); }},
                       {"deleted", [](Toast *toast, KeyScreen &) { delete toast; }},
                       {"deleted by its signal", deletedByItsSignal}});
    }

    void goneFromOutside()
    {
        QFETCH(Act, c);
        const QPointer<Toast> toast = new Toast("Words", Forever, m_screen.get());
        QTimer::singleShot(0, m_screen.get(), [&] { c(toast, *m_screen); });
        QCOMPARE(toast->exec(), 0);
        QVERIFY(!toast || !toast->isVisible());
        delete toast;
    }

    void aKeySeenOnceCountsForEver()
    {
        Toast toast("Words", Forever, m_screen.get());
        toast.setPreviousActiveWidget(m_screen->list);
        QVERIFY(!toast.previousActiveWidget()); // nor does it ever take a widget
        QVERIFY(!run(toast, [] { click(Qt::Key_Return); }));
        QVERIFY(!run(toast, [] { release(Qt::Key_Return); }));
    }

    void theWaitTurns()
    {
        ToastWait toast("Words", Forever, m_screen.get());
        const auto look = [&] { return toast.grab().toImage().copy(170, 10, 44, 50); };
        QList<QImage> seen;
        for (int i = 0; i < 8; ++i) {
            QVERIFY2(!seen.contains(look()), "a picture came twice in a turn");
            seen.append(look());
            toast.pixmapTimeout();
        }
        QCOMPARE(look(), seen.first());
        // It turns by itself.
        toast.show();
        QTRY_VERIFY(look() != seen.first());
    }

private:
    /// Runs the toast with `acts` inside its loop, and tells whether it stayed; then it is hidden.
    template <class Acts> bool run(Toast &toast, Acts acts)
    {
        bool stayed = false;
        QTimer::singleShot(0, &toast, [&] {
            acts();
            stayed = toast.isVisible();
            toast.hide();
        });
        toast.exec();
        return stayed;
    }
};

PHONE_TEST_MAIN(ToastTest)
#include "tst_toast.moc"
