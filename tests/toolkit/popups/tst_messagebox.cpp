#include "imagebutton.h"
#include "messagebox.h"
#include "screentest.h"
#include "slidemessagebox.h"

#include <QLabel>
#include <QLineEdit>

using namespace PhoneKeys;

/// The box's labels in the order in which it makes them.
enum Label { TitleIcon, Title, Message, SubMessage, AlarmIcon };

static QLabel *label(const MessageBoxBase &box, Label which)
{
    return box.findChildren<QLabel *>().at(which);
}

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

struct Places
{
    QString calls; ///< "m" sets the message, "s" the sub message, a capital empties it
    QRect message, sub;
    int subAlignment;
};
Q_DECLARE_METATYPE(Places)

struct Ending
{
    Qt::Key key;
    int button; ///< that lights up, of additional, OK and cancel; -1 for none
    int result, extraResult;
};
Q_DECLARE_METATYPE(Ending)

struct Look
{
    QString title, message, subMessage;
    QStringList keys;
    bool alarm = false;
    int held = 0;
};
Q_DECLARE_METATYPE(Look)

class MessageBoxTest : public ScreenTest
{
    Q_OBJECT

private slots:
    void textsFindTheirPlaces_data()
    {
        const QRect lone(10, 32, 360, 74), upper(10, 37, 360, 37), lower(10, 59, 360, 37);
        const int middle = Qt::AlignHCenter | Qt::AlignVCenter, bottom = Qt::AlignHCenter | Qt::AlignBottom;
        addCases<Places>({{"a message", {"m", lone, lower, bottom}},
                          {"a sub message", {"s", upper, lone, middle}},
                          {"message, then sub message", {"ms", upper, lower, bottom}},
                          {"sub message, then message", {"sm", upper, lone, middle}},
                          {"again the message", {"msm", upper, lower, bottom}},
                          {"the sub message goes", {"msSm", lone, lower, bottom}},
                          {"an empty sub message", {"mS", upper, lower, bottom}}});
    }

    void textsFindTheirPlaces()
    {
        QFETCH(Places, c);
        MessageBox box(m_screen.get());
        for (const QChar call : qAsConst(c.calls)) {
            const QString text = call.isUpper() ? "" : "Text";
            call.toLower() == 'm' ? box.setMessage(text) : box.setSubMessage(text);
        }
        QCOMPARE(label(box, Message)->geometry(), c.message);
        QCOMPARE(int(label(box, Message)->alignment()), int(Qt::AlignHCenter | Qt::AlignVCenter));
        QCOMPARE(label(box, SubMessage)->geometry(), c.sub);
        QCOMPARE(int(label(box, SubMessage)->alignment()), c.subAlignment);
    }

    void wideTextsStepDownOrWrap()
    {
        const QString wide("Group members will move to Unassigned group");
        MessageBox box(m_screen.get());
        box.setMessage(wide);
        QVERIFY(label(box, Message)->wordWrap());
        QCOMPARE(label(box, Message)->font().pointSize(), 20);
        box.setSubMessage(wide);
        for (const Label which : {Message, SubMessage}) {
            QVERIFY(!label(box, which)->wordWrap());
            QCOMPARE(label(box, which)->font().pointSize(), 18);
        }
        box.setMessage("Delete the group?");
        QCOMPARE(label(box, Message)->font().pointSize(), 20);
    }

    void keysEndIt_data()
    {
        addCases<Ending>({{"left soft key", {Qt::Key_Context2, 0, 1, 1}},
                          {"middle soft key", {Qt::Key_Context3, 1, 1, 2}},
                          {"Enter", {Qt::Key_Enter, 1, 1, 2}},
                          {"Return", {Qt::Key_Return, 1, 1, 2}},
                          {"right soft key", {Qt::Key_Context4, 2, 0, 0}},
                          {"Escape", {Qt::Key_Escape, 2, 0, 0}},
                          {"first soft key", {Qt::Key_Context1, -1, StillOpen, Box::Untouched}},
                          {"Tab", {Qt::Key_Tab, -1, StillOpen, Box::Untouched}}});
    }

    void keysEndIt()
    {
        QFETCH(Ending, c);
        Box box(m_screen.get());
        QStringList looks;
        for (int i = 0; i < 3; ++i) {
            connect(box.buttons().at(i), &ImageButton::isHover, &box,
                    [&looks, i](bool hover) { looks.append(QString("%1 %2").arg(i).arg(hover)); });
        }
        const int result = runBox(box, [&] {
            press(c.key);
            QVERIFY(box.isVisible() && box.hasFocus());
            release(c.key);
        });
        QCOMPARE(result, c.result);
        QCOMPARE(box.extraResult(), c.extraResult);
        const QStringList onAndOff{QString("%1 1").arg(c.button), QString("%1 0").arg(c.button)};
        QCOMPARE(looks, c.button < 0 ? QStringList() : onAndOff);
        // The screen gets its keys back.
        m_screen->list->setFocus(Qt::OtherFocusReason);
        QTRY_VERIFY(m_screen->list->hasFocus());
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

    void anEarlierPressDoesNotCount()
    {
        press(Qt::Key_Return);
        MessageBox box(m_screen.get());
        const int result = runBox(box, [&] {
            release(Qt::Key_Return);
            QVERIFY(box.isVisible());
            click(Qt::Key_Return);
        });
        QCOMPARE(result, int(QDialog::Accepted));
    }

    void theAdditionalKeyErases()
    {
        Box box(m_screen.get());
        box.setSoft3ButtonToErase(true);
        QLineEdit edit("abc", &box);
        edit.setFocus();
        const int result = runBox(box, [&] {
            edit.deselect();
            click(Qt::Key_Context2);
            QCOMPARE(edit.text(), QString("ab"));
        });
        QCOMPARE(result, StillOpen);
        QCOMPARE(box.extraResult(), Box::Untouched + 0);
    }

    void theOkKeyTurnsPages()
    {
        Box box(m_screen.get());
        box.setSkipAccept(true);
        QSignalSpy pages(&box, &MessageBoxBase::changeMessage);
        const int result = runBox(box, [&] {
            clickAll({Qt::Key_Context3, Qt::Key_Return});
            QCOMPARE(pages.size(), 2);
            QVERIFY(box.isVisible());
            box.setSkipAccept(false);
            click(Qt::Key_Return);
        });
        QCOMPARE(result, int(QDialog::Accepted));
        QCOMPARE(pages.size(), 2);
    }

    void thePlatformHearsOfIt()
    {
        MessageBox box(m_screen.get());
        m_phone->core.setAlarm(true);
        runBox(box, [&] {
            QVERIFY(!m_phone->core.useF13ToDel() && m_phone->core.alarm());
            box.hide();
            QVERIFY(m_phone->core.useF13ToDel() && !m_phone->core.alarm());
        });
    }

    void theQuitTimerRunsOnceAndEndsWithTheBox()
    {
        Box box(m_screen.get());
        QSignalSpy timeouts(&box, &MessageBoxBase::alarmTimeout);
        connect(&box, &MessageBoxBase::alarmTimeout, &box, &QDialog::reject);
        box.startQuitTimer(60000);
        box.startQuitTimer(1);
        QCOMPARE(box.findChildren<QTimer *>().size(), 1);
        QCOMPARE(box.exec(), int(QDialog::Rejected));
        QCOMPARE(timeouts.size(), 1);

        static constexpr int FromOutside = 0;
        for (const int key : {int(Qt::Key_Return), int(Qt::Key_Context2), int(Qt::Key_Escape), FromOutside}) {
            box.startQuitTimer(60000);
            runBox(box, [&] { key ? click(Qt::Key(key)) : void(box.close()); });
            QVERIFY(box.findChildren<QTimer *>().isEmpty());
        }
    }

    void alarmsAreCutToOneLine()
    {
        MessageBox box(m_screen.get());
        box.setMessage("Good morning, this is your alarm of half past six in the morning");
        box.showAlarmMessage();
        const QLabel *message = label(box, Message);
        QVERIFY(!label(box, AlarmIcon)->isHidden());
        QVERIFY(message->text().endsWith(QChar(0x2026)));
        QCOMPARE(message->x(), label(box, AlarmIcon)->x() + 30);
        QCOMPARE(message->width(), 345);
    }

    void closedFromOutsideWhileAKeyIsHeld()
    {
        Box box(m_screen.get());
        const int result = runBox(box, [&] {
            press(Qt::Key_Return);
            box.close();
            QVERIFY(!box.isVisible());
        });
        QCOMPARE(result, int(QDialog::Rejected));
        release(Qt::Key_Return);
        QVERIFY(m_screen->isVisible());
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
        for (const int key : {int(Qt::Key_Return), int(Qt::Key_Context2), int(Qt::Key_Escape), 0}) {
            Filled<SlideMessageBox> box(m_screen.get());
            box.setUseAnimation(true);
            const int result = runBox(box, [&] {
                QCOMPARE(box.geometry(), QRect(0, 0, 384, 160));
                key ? click(Qt::Key(key)) : void(box.close());
                QVERIFY(!box.isVisible());
            });
            QCOMPARE(result, key == Qt::Key_Return || key == Qt::Key_Context2 ? 1 : 0);
        }
    }

    void pictures_data()
    {
        const QString title("Delete Contact"), question("Delete Anna?");
        const QStringList keys{"More", "Delete", "No"}, two{"", "Delete", "No"};
        addCases<Look>(
            {{"box-one-line", {title, question, "", two}},
             {"box-pressed", {title, question, "", keys, false, Qt::Key_Return}},
             {"box-cancel-pressed", {title, question, "", keys, false, Qt::Key_Escape}},
             {"box-two-lines", {title, "Delete the group?", "Group members will move to Unassigned group", two}},
             {"box-long-text",
              {title, "Do you want to delete the Bernd Maier-Leibnitz <work> in this group?", "", two}},
             {"box-korean", {"연락처 삭제", "김철수를 삭제할까요?", "", {"More", "삭제", "아니오"}}},
             {"box-long-keys", {title, question, "", {"Create Group", "Add Contact", "Bestehender Kontakt"}}},
             {"box-alarm", {"Alarm", "Wake up", "", two, true}},
             {"box-long-alarm", {title, "Good morning, this is your alarm of half past six", "", keys, true}}});
    }

    void pictures()
    {
        QFETCH(Look, c);
        Box box(m_screen.get());
        box.setTitle(c.title);
        box.setMessage(c.message);
        if (!c.subMessage.isEmpty())
            box.setSubMessage(c.subMessage);
        for (int i = 0; i < 3; ++i)
            box.buttons().at(i)->setText(c.keys.at(i));
        box.additionalButton()->setVisible(!c.keys.first().isEmpty());
        if (c.alarm)
            box.showAlarmMessage();
        QVERIFY(showAndActivate(&box));
        if (c.held)
            press(Qt::Key(c.held));
        TestScreen::shot(QTest::currentDataTag());
        const QImage shown = TestScreen::picture();
        QCOMPARE(shown.pixelColor(20, 100), QColor(Qt::white));
        // A corner of the OK key's body.
        QCOMPARE(shown.pixelColor(192, 138), QColor(c.held == Qt::Key_Return ? Qt::black : Qt::white));
    }
};

PHONE_TEST_MAIN(MessageBoxTest)
#include "tst_messagebox.moc"
