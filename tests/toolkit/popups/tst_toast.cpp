#include "boxrun.h"
#include "idletoast.h"
#include "testcase.h"
#include "testmain.h"
#include "testphone.h"
#include "toastwaitwithoutkeyevent.h"
#include "toastwithoutkeyevent.h"

#include <QPointer>
#include <QSignalSpy>

#include <memory>

using namespace PhoneKeys;

using Change = void (*)(Toast &);
using Act = void (*)(Toast *, AskingScreen &);
Q_DECLARE_METATYPE(Change)
Q_DECLARE_METATYPE(Act)

constexpr int Forever = 0;

class ToastTest : public OverScreenTest
{
    Q_OBJECT

private slots:
    void isBuilt();
    void keysEndIt_data();
    void keysEndIt();
    void aKeyHeldBeforeDoesNotEndIt();
    void endsByItsTime();
    void timesBeginAnew_data();
    void timesBeginAnew();
    void letsKeysThrough();
    void escapeIsTheWaitsOwn();
    void goneFromOutside_data();
    void goneFromOutside();
    void aKeySeenOnceCountsForEver();
    void neverTakesAWidget();
    void severalLinesAreSmaller();
    void theWaitTurns();

private:
    /// Runs the toast with `acts` inside its loop; a toast that is still up then is hidden.
    template <class Acts> int run(Toast &toast, Acts acts)
    {
        QTimer::singleShot(0, &toast, [&] {
            acts();
            m_stayed = toast.isVisible();
            toast.hide();
        });
        return toast.exec();
    }

    bool m_stayed = false;
};

void ToastTest::isBuilt()
{
    m_screen->setObjectName("Screen");
    IdleToast toast("Words", Forever, m_screen.get());
    QCOMPARE(toast.objectName(), QString("Toast:Screen"));
    QCOMPARE(toast.geometry(), QRect(0, 0, 384, 160));
    QVERIFY(!toast.isWindow() && !toast.resized() && toast.useFullScreen() && toast.useRollbackFocus());
    QCOMPARE(toast.fontSize(), 22);
    QWidget narrow;
    narrow.resize(383, 134);
    QVERIFY(Toast("Words", Forever, &narrow).resized());
    QVERIFY(!ToastWait("Words", Forever, &narrow).useRollbackFocus());
    QCOMPARE(Toast("Words", Forever, nullptr).objectName(), QString("Toast"));
}

void ToastTest::keysEndIt_data()
{
    QTest::addColumn<bool>("ignoreKey");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<bool>("stays");
    QTest::newRow("a key") << false << "+-" << false;
    QTest::newRow("a press alone") << false << "+" << true;
    QTest::newRow("a release alone") << false << "-" << true;
    QTest::newRow("a key after a stray release") << false << "-+-" << false;
    QTest::newRow("keys that are ignored") << true << "+-+-" << true;
}

void ToastTest::keysEndIt()
{
    QFETCH(bool, ignoreKey);
    QFETCH(QString, keys);
    QFETCH(bool, stays);
    Toast toast("Words", Forever, m_screen.get());
    toast.setIgnoreKey(ignoreKey);
    QSignalSpy ended(&toast, &Toast::toastTimeout);
    QSignalSpy clicked(m_screen->findChild<Tail *>(), &Tail::clicked);
    const int code = run(toast, [&] {
        for (const QChar key : keys)
            key == '+' ? press(Qt::Key_Context1) : release(Qt::Key_Context1);
    });
    QCOMPARE(code, 0);
    QCOMPARE(m_stayed, stays);
    QCOMPARE(ended.size(), stays ? 0 : 1);
    QVERIFY2(clicked.isEmpty(), "the screen heard the key");
    click(Qt::Key_Context1);
    QVERIFY2(!clicked.isEmpty(), "the screen has no keys");
}

void ToastTest::aKeyHeldBeforeDoesNotEndIt()
{
    Toast toast("Words", Forever, m_screen.get());
    press(Qt::Key_Return);
    run(toast, [] { release(Qt::Key_Return); });
    QVERIFY(m_stayed);
}

void ToastTest::endsByItsTime()
{
    Toast toast("Words", 10, m_screen.get());
    QSignalSpy ended(&toast, &Toast::toastTimeout);
    QCOMPARE(toast.exec(), 0);
    QVERIFY(!toast.isVisible());
    QCOMPARE(ended.size(), 1);
}

void ToastTest::timesBeginAnew_data()
{
    QTest::addColumn<int>("first");
    QTest::addColumn<Change>("change");
    QTest::addColumn<int>("runs"); // ms, -1 for a time that does not run
    const auto nothing = [](Toast &) {};
    const auto message = [](Toast &toast) { toast.setMessage("Other words"); };
    const auto stop = [](Toast &toast) { toast.setTimeout(0); };
    const auto stopAndMessage = [](Toast &toast) {
        toast.setTimeout(0);
        toast.setMessage("Other words");
    };
    const auto other = [](Toast &toast) { toast.setTimeout(5000); };
    const auto otherStopAndMessage = [](Toast &toast) {
        toast.setTimeout(5000);
        toast.setTimeout(-1);
        toast.setMessage("Other words");
    };
    QTest::newRow("from construction") << 9000 << Change(nothing) << 9000;
    QTest::newRow("without a time") << 0 << Change(message) << -1;
    QTest::newRow("stopped") << 9000 << Change(stop) << -1;
    QTest::newRow("a message starts a stopped one") << 9000 << Change(stopAndMessage) << 9000;
    QTest::newRow("another time") << 9000 << Change(other) << 5000;
    QTest::newRow("the other time is the message's too") << 9000 << Change(otherStopAndMessage) << 5000;
    QTest::newRow("a first time later") << 0 << Change(other) << 5000;
    QTest::newRow("which is not the message's") << -1 << Change(otherStopAndMessage) << -1;
}

void ToastTest::timesBeginAnew()
{
    QFETCH(int, first);
    QFETCH(Change, change);
    QFETCH(int, runs);
    Toast toast("Words", first, m_screen.get());
    change(toast);
    const auto *timer = toast.findChild<QTimer *>();
    QCOMPARE(timer && timer->isActive() ? timer->interval() : -1, runs);
    QVERIFY(!timer || timer->isSingleShot());
}

void ToastTest::letsKeysThrough()
{
    ToastWithOutKeyEvent plain("Words", Forever, m_screen.get());
    ToastWaitWithOutKeyEvent wait("Words", Forever, m_screen.get());
    QSignalSpy clicked(m_screen->findChild<Tail *>(), &Tail::clicked);
    for (Toast *toast : {static_cast<Toast *>(&plain), static_cast<Toast *>(&wait)}) {
        run(*toast, [] { click(Qt::Key_Context2); });
        QVERIFY(m_stayed);
        QCOMPARE(clicked.size(), 1);
        clicked.clear();
    }
}

void ToastTest::escapeIsTheWaitsOwn()
{
    ToastWaitWithOutKeyEvent toast("Words", Forever, m_screen.get());
    QSignalSpy escaped(&toast, &ToastWaitWithOutKeyEvent::escaped);
    run(toast, [&] {
        click(Qt::Key_Return);
        QVERIFY(escaped.isEmpty());
        press(Qt::Key_Escape);
        QCOMPARE(escaped.size(), 1);
        release(Qt::Key_Escape);
    });
    QVERIFY(m_stayed);
    QCOMPARE(escaped.size(), 1);
    QVERIFY2(m_screen->isVisible(), "the key closed the screen");
}

void ToastTest::goneFromOutside_data()
{
    QTest::addColumn<Act>("act");
    const auto deletedByItsSignal = [](Toast *toast, AskingScreen &) {
        connect(toast, &Toast::toastTimeout, toast, [toast] { delete toast; });
        click(Qt::Key_Return);
    };
    QTest::newRow("hidden") << Act([](Toast *toast, AskingScreen &) { toast->hide(); });
    QTest::newRow("closed") << Act([](Toast *toast, AskingScreen &) { toast->close(); });
    QTest::newRow("its screen closed") << Act([](Toast *, AskingScreen &screen) { screen.close(); });
    QTest::newRow("deleted") << Act([](Toast *toast, AskingScreen &) { delete toast; });
    QTest::newRow("deleted by its signal") << Act(deletedByItsSignal);
}

void ToastTest::goneFromOutside()
{
    QFETCH(Act, act);
    const QPointer<Toast> toast = new Toast("Words", Forever, m_screen.get());
    QTimer::singleShot(0, m_screen.get(), [&] { act(toast, *m_screen); });
    QCOMPARE(toast->exec(), 0);
    QVERIFY(!toast || !toast->isVisible());
    delete toast;
}

void ToastTest::aKeySeenOnceCountsForEver()
{
    Toast toast("Words", Forever, m_screen.get());
    run(toast, [] { click(Qt::Key_Return); });
    QVERIFY(!m_stayed);
    run(toast, [] { release(Qt::Key_Return); });
    QVERIFY(!m_stayed);
}

void ToastTest::neverTakesAWidget()
{
    Toast toast("Words", Forever, m_screen.get());
    toast.setPreviousActiveWidget(m_screen->list);
    QVERIFY(!toast.previousActiveWidget());
    run(toast, [&] { QVERIFY(!toast.previousActiveWidget()); });
    toast.setFocusToPreviousWidget();
}

void ToastTest::severalLinesAreSmaller()
{
    Toast toast("Words", Forever, m_screen.get());
    toast.setFontSize(25);
    toast.show();
    toast.grab();
    QCOMPARE(toast.fontSize(), 25);
    toast.setMessage("Two\nlines");
    toast.grab();
    toast.setMessage("One line");
    toast.grab();
    QCOMPARE(toast.fontSize(), 19);
}

void ToastTest::theWaitTurns()
{
    constexpr int Frames = 8;
    ToastWait toast("Words", Forever, m_screen.get());
    const auto look = [&] { return toast.grab().toImage().copy(170, 10, 44, 50); };
    const QImage first = look();
    QList<QImage> seen;
    for (int i = 0; i < Frames; ++i) {
        QVERIFY2(!seen.contains(look()), "a picture came twice in a turn");
        seen.append(look());
        toast.pixmapTimeout();
    }
    QCOMPARE(look(), first);
    // It turns by itself.
    toast.show();
    QTRY_VERIFY(look() != first);
}

PHONE_TEST_MAIN(ToastTest)
#include "tst_toast.moc"
