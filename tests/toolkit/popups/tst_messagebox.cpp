#include "imagebutton.h"
#include "messagebox.h"
#include "screentest.h"
#include "slidemessagebox.h"

#include <QLabel>

using namespace PhoneKeys;

template <class Box> class Filled : public Box
{
public:
    explicit Filled(QWidget *parent) : Box(parent)
    {
        this->setTitle("Delete Contact");
        this->setMessage("Delete Anna?");
        this->additionalButton()->setText("More");
        this->displayAdditionalButton(true);
        this->displayAdditionalButton(false); // which does not take it away again
        this->okButton()->setText("Delete");
        this->cancelButton()->setText("No");
        this->setExtraResult(Untouched);
    }
    QList<ImageButton *> buttons() { return {this->additionalButton(), this->okButton(), this->cancelButton()}; }

    static constexpr int Untouched = 7;
};
using Box = Filled<MessageBox>;

class MessageBoxTest : public ScreenTest
{
    Q_OBJECT

private slots:
    void wideTextsStepDownOrWrap()
    {
        const QString wide("Group members will move to Unassigned group");
        Box box(m_screen.get());
        const QLabel *message = box.findChildren<QLabel *>().at(2);
        box.setMessage(wide);
        QVERIFY(message->wordWrap() && message->font().pointSize() == 20);
        box.setSubMessage(wide);
        QVERIFY(!message->wordWrap() && message->font().pointSize() == 18);
        box.setMessage("Delete the group?");
        QCOMPARE(message->font().pointSize(), 20);
    }

    void keysEndIt()
    {
        const struct
        {
            Qt::Key key;
            QString looks; // of the additional button, OK and cancel, as they light up and go out
            int result, extraResult;
        } endings[] = {{Qt::Key_Context2, "0+0-", 1, 1},
                       {Qt::Key_Context3, "1+1-", 1, 2},
                       {Qt::Key_Enter, "1+1-", 1, 2},
                       {Qt::Key_Return, "1+1-", 1, 2},
                       {Qt::Key_Context4, "2+2-", 0, 0},
                       {Qt::Key_Escape, "2+2-", 0, 0},
                       {Qt::Key_Context1, "", StillOpen, Box::Untouched},
                       {Qt::Key_Tab, "", StillOpen, Box::Untouched}};
        for (const auto &ending : endings) {
            Box box(m_screen.get());
            QString looks;
            for (int i = 0; i < 3; ++i) {
                connect(box.buttons().at(i), &ImageButton::isHover, &box,
                        [&looks, i](bool on) { looks += QString::number(i) + (on ? '+' : '-'); });
            }
            const int result = runBox(box, [&] {
                press(ending.key);
                QVERIFY(box.isVisible() && box.hasFocus());
                release(ending.key);
            });
            QCOMPARE(result, ending.result);
            QCOMPARE(box.extraResult(), ending.extraResult);
            QCOMPARE(looks, ending.looks);
            QVERIFY(screenHasKeys());
        }
    }

    void hiddenButtonsTakeNoKeys()
    {
        MessageBox box(m_screen.get());
        box.okButton()->hide();
        box.cancelButton()->hide();
        const auto keys = [] {
            clickAll({Qt::Key_Context2, Qt::Key_Context3, Qt::Key_Return, Qt::Key_Context4, Qt::Key_Escape});
        };
        QCOMPARE(runBox(box, keys), StillOpen);
    }

    void aKeyThatIsHeldAsItComesOrGoes()
    {
        press(Qt::Key_Return);
        Box box(m_screen.get());
        m_phone->core.setAlarm(true);
        const auto holdWhileItGoes = [&] {
            release(Qt::Key_Return);
            QVERIFY(box.isVisible() && !m_phone->core.useF13ToDel() && m_phone->core.alarm());
            press(Qt::Key_Return);
            box.close();
            QVERIFY(!box.isVisible() && m_phone->core.useF13ToDel() && !m_phone->core.alarm());
        };
        QCOMPARE(runBox(box, holdWhileItGoes), int(QDialog::Rejected));
        release(Qt::Key_Return);
        QVERIFY(m_screen->isVisible());
    }

    void theOkKeyTurnsPages()
    {
        Box box(m_screen.get());
        box.setSkipAccept(true);
        QSignalSpy pages(&box, &MessageBoxBase::changeMessage);
        const int result = runBox(box, [&] {
            clickAll({Qt::Key_Context3, Qt::Key_Return});
            QCOMPARE(pages.size(), 2);
            box.setSkipAccept(false);
            click(Qt::Key_Return);
        });
        QCOMPARE(result, int(QDialog::Accepted));
        QCOMPARE(pages.size(), 2);
    }

    void theQuitTimerRunsOnceAndEndsWithTheBox()
    {
        Box box(m_screen.get());
        QSignalSpy timeouts(&box, &MessageBoxBase::alarmTimeout);
        connect(&box, &MessageBoxBase::alarmTimeout, &box, &QDialog::reject);
        box.startQuitTimer(60000);
        box.startQuitTimer(1);
        QCOMPARE(box.exec(), int(QDialog::Rejected));
        QCOMPARE(timeouts.size(), 1);

        static constexpr int FromOutside = 0;
        for (const int key : {int(Qt::Key_Return), int(Qt::Key_Context2), int(Qt::Key_Escape), FromOutside}) {
            box.startQuitTimer(60000);
            runBox(box, [&] { key ? click(Qt::Key(key)) : void(box.close()); });
            QVERIFY(box.findChildren<QTimer *>().isEmpty());
        }
    }

    void deletedInASlot()
    {
        static const Qt::Key keys[]
            = {Qt::Key_Return, Qt::Key_Return, Qt::Key_5, Qt::Key_Context2, Qt::Key_Escape, Qt::Key_Return};
        for (int signal = 0; signal < 6; ++signal) {
            QPointer<Box> box = new Box(m_screen.get());
            const auto remove = [&] { delete box; };
            box->setSkipAccept(signal == 1);
            switch (signal) {
            case 0:
            case 5:
                connect(box->okButton(), &ImageButton::isHover, this, [&](bool on) {
                    if (on == (signal == 0))
                        delete box;
                });
                break;
            case 1: connect(box, &MessageBoxBase::changeMessage, this, remove); break;
            case 2: connect(box, &MessageBoxBase::alarmTimeout, this, remove); break;
            default: connect(box, &QDialog::finished, this, remove); break;
            }
            QVERIFY(showAndActivate(box));
            box->startQuitTimer(signal == 2 ? 1 : 60000);
            m_phone->core.setAlarm(true);
            press(keys[signal]);
            if (box)
                release(keys[signal]);
            QTRY_VERIFY(!box);
            QVERIFY2(signal != 5 || m_phone->core.alarm(), "the box went on after its end");
        }
    }

    void theSlidingBoxComesAndGoesAtOnce()
    {
        for (const int key : {int(Qt::Key_Return), int(Qt::Key_Escape), 0}) {
            Filled<SlideMessageBox> box(m_screen.get());
            box.setUseAnimation(true);
            const int result = runBox(box, [&] {
                QCOMPARE(box.geometry(), QRect(0, 0, 384, 160));
                key ? click(Qt::Key(key)) : void(box.close());
                QVERIFY(!box.isVisible());
            });
            QCOMPARE(result, key == Qt::Key_Return ? 1 : 0);
        }
    }

    void pictures()
    {
        const struct
        {
            QString name, message, subMessage, additional;
            bool alarm;
            int held;
        } looks[]
            = {{"box-pressed", "김철수를 삭제할까요?", "", "More", false, Qt::Key_Return},
               {"box-cancel-pressed", "Delete Anna?", "", "Create Group", false, Qt::Key_Escape},
               {"box-two-lines", "Delete the group?", "Group members will move to Unassigned group", "", false, 0},
               {"box-long-text", "Do you want to delete the Bernd Maier-Leibnitz <work> in this group?", "", "",
                false, 0},
               {"box-alarm", "Wake up", "", "", true, 0},
               {"box-long-alarm", "Good morning, this is your alarm of half past six", "", "More", true, 0}};
        for (const auto &look : looks) {
            Box box(m_screen.get());
            box.setMessage(look.message);
            if (!look.subMessage.isEmpty())
                box.setSubMessage(look.subMessage);
            box.additionalButton()->setText(look.additional);
            box.additionalButton()->setVisible(!look.additional.isEmpty());
            if (look.alarm)
                box.showAlarmMessage();
            // An alarm is cut to one line.
            const QString shownMessage = box.findChildren<QLabel *>().at(2)->text();
            QCOMPARE(shownMessage.endsWith(QChar(0x2026)), look.name == "box-long-alarm");
            QVERIFY(showAndActivate(&box));
            if (look.held)
                press(Qt::Key(look.held));
            TestScreen::shot(look.name);
            const QImage shown = TestScreen::picture();
            QCOMPARE(shown.pixelColor(20, 100), QColor(Qt::white));
            // A corner of the OK key's body.
            QCOMPARE(shown.pixelColor(192, 138), QColor(look.held == Qt::Key_Return ? Qt::black : Qt::white));
        }
    }
};

PHONE_TEST_MAIN(MessageBoxTest)
#include "tst_messagebox.moc"
