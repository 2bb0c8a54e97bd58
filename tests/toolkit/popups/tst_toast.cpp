#include "screentest.h"
#include "toastwait.h"

using namespace PhoneKeys;

constexpr int Forever = 0;

class ToastTest : public ScreenTest
{
    Q_OBJECT

private slots:
    void keysEndIt()
    {
        // Whether it ignores keys, presses and releases, whether it stays; a first release is of a key held before.
        const QList<std::tuple<bool, QString, bool>> cases = {{false, "+-", false},
                                                              {false, "+", true},
                                                              {false, "-", true},
                                                              {false, "-+-", false},
                                                              {true, "+-+-", true}};
        for (const auto &[ignoreKey, keys, stays] : cases) {
            Toast toast("Words", Forever, m_screen.get());
            toast.setIgnoreKey(ignoreKey);
            QSignalSpy ended(&toast, &Toast::toastTimeout), clicked(screen()->bar(), &Tail::clicked);
            const bool stayed = run(toast, [keys = keys] {
                for (const QChar key : keys)
                    key == '+' ? press(Qt::Key_Context1) : release(Qt::Key_Context1);
            });
            QCOMPARE(stayed, stays);
            QCOMPARE(ended.size(), stays ? 0 : 1);
            QVERIFY2(clicked.isEmpty(), "the screen heard the key");
            click(Qt::Key_Context1);
            QVERIFY2(!clicked.isEmpty(), "the screen has no keys");
        }
    }

    void timesBeginAnew()
    {
        Toast toast("Words", 9000, m_screen.get());
        const auto *timer = toast.findChild<QTimer *>();
        for (const int time : {0, 5000}) {
            toast.setTimeout(time);
            QCOMPARE(timer->isActive(), time > 0);
            toast.setMessage("Other words"); // which also starts one that was stopped
            QVERIFY(timer->isActive());
            QCOMPARE(timer->interval(), time ? time : 9000);
        }
    }

    void goneFromOutside()
    {
        const auto deleteAtItsEnd = [](Toast *toast) {
            connect(toast, &Toast::toastTimeout, toast, [toast] { delete toast; });
            click(Qt::Key_Return);
        };
        const std::function<void(Toast *)> ends[]
            = {[](Toast *toast) { toast->hide(); }, [](Toast *toast) { toast->close(); },
               [](Toast *toast) { delete toast; }, deleteAtItsEnd, [this](Toast *) { m_screen->close(); }};
        for (const auto &end : ends) {
            const QPointer<Toast> toast = new Toast("Words", Forever, m_screen.get());
            QTimer::singleShot(0, m_screen.get(), [&] { end(toast); });
            QCOMPARE(toast->exec(), 0);
            QVERIFY(!toast || !toast->isVisible());
            delete toast;
        }
    }

    void theWaitTurns()
    {
        ToastWait toast("Connecting...", Forever, m_screen.get());
        const auto look = [&] { return toast.grab().toImage().copy(170, 10, 44, 50); };
        const QImage first = look();
        toast.show();
        TestScreen::shot("wait-panel");
        QTRY_VERIFY(look() != first);
        toast.setUseFullScreen(false);
        TestScreen::shot("wait-box");
    }

    void pictures()
    {
        const QString longText("A notice that is by far too long for the one line that the panel has for it");
        // Each name, the text, the icon, whether it is a box and whether it is narrow, and a column of its frame.
        const QList<std::tuple<QString, QString, QString, bool, bool, int>> looks
            = {{"plain", "The keyword is too short", "", false, false, 5},
               {"lines", "Number is full\nDelete other Number First", "error_emoti", false, false, 5},
               {"long", longText, "confirm", false, false, 5},
               {"narrow", "Deleted", "delete", false, true, 3},
               {"box", "Saved", "", true, false, 105},
               {"box-icon", longText.left(60), "delete", true, false, 29}};
        for (const auto &[name, text, icon, isBox, isNarrow, frame] : looks) {
            Toast toast(text, Forever, m_screen.get());
            toast.setUseFullScreen(!isBox);
            toast.setResized(isNarrow);
            if (!icon.isEmpty())
                toast.setIcon(QPixmap(QString(":ui/images/widget/%1.png").arg(icon)));
            toast.show();
            QCoreApplication::processEvents();
            TestScreen::shot("toast-" + name);
            QCOMPARE(TestScreen::picture().pixelColor(frame, 80), QColor(Qt::black));
        }
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
