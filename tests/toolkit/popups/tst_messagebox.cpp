#include "inputpopup.h"
#include "messagebox.h"
#include "screentest.h"
#include "slidemessagebox.h"

#include <QLabel>

using namespace PhoneKeys;

class Box : public MessageBox
{
public:
    explicit Box(QWidget *parent) : MessageBox(parent)
    {
        setTitle("Delete Contact");
        setMessage("Delete Anna?");
        additionalButton()->setText("More");
        displayAdditionalButton(true);
        displayAdditionalButton(false); // which does not take it away again
        okButton()->setText("Delete");
        cancelButton()->setText("No");
        setExtraResult(Untouched);
    }
    static constexpr int Untouched = 7;
};

/// A popup as the group assignment opens it.
class NamePopup : public InputPopup
{
public:
    explicit NamePopup(QWidget *parent) : InputPopup(parent)
    {
        setTitle("Create Group");
        setMaxLength(30);
        setIMEType(IMESmall);
        additionalButton()->setText("Erase");
        displayAdditionalButton(true);
        setSoft3ButtonToErase(true);
        okButton()->setText("OK");
        cancelButton()->setText("Cancel");
        setEditText("Family");
    }
};

/// Boxes of words, and those with a line edit.
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
        // Each key, the looks of the additional button, OK and cancel, the result and the extra one.
        const QList<std::tuple<Qt::Key, QString, int, int>> endings
            = {{Qt::Key_Context2, "0+0-", 1, 1},
               {Qt::Key_Context3, "1+1-", 1, 2},
               {Qt::Key_Enter, "1+1-", 1, 2},
               {Qt::Key_Return, "1+1-", 1, 2},
               {Qt::Key_Context4, "2+2-", 0, 0},
               {Qt::Key_Escape, "2+2-", 0, 0},
               {Qt::Key_Context1, "", StillOpen, Box::Untouched},
               {Qt::Key_Tab, "", StillOpen, Box::Untouched}};
        for (const auto &[key, expectedLooks, expectedResult, extraResult] : endings) {
            Box box(m_screen.get());
            QString looks;
            keepLooks({box.additionalButton(), box.okButton(), box.cancelButton()}, &looks);
            const int result = runBox(box, [&, key = key] {
                press(key);
                QVERIFY(box.isVisible() && box.hasFocus());
                release(key);
            });
            QCOMPARE(result, expectedResult);
            QCOMPARE(box.extraResult(), extraResult);
            QCOMPARE(looks, expectedLooks);
            QVERIFY(screenHasKeys());
        }
    }

    void theSlidingBoxComesAndGoesAtOnce()
    {
        for (const int key : {int(Qt::Key_Return), int(Qt::Key_Escape), 0}) {
            SlideMessageBox box(m_screen.get());
            const int result = runBox(box, [&] {
                QCOMPARE(box.geometry(), QRect(0, 0, 384, 160));
                key ? click(Qt::Key(key)) : void(box.close());
                QVERIFY(!box.isVisible());
            });
            QCOMPARE(result, key == Qt::Key_Return ? 1 : 0);
        }
    }

    void hiddenButtonsTakeNoKeys()
    {
        Box box(m_screen.get());
        for (ImageButton *button : {box.additionalButton(), box.okButton(), box.cancelButton()})
            button->hide();
        const QList<int> keys{Qt::Key_Context2, Qt::Key_Context3, Qt::Key_Return, Qt::Key_Context4, Qt::Key_Escape};
        QCOMPARE(runBox(box, [&] { clickAll(keys); }), StillOpen);
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

    void deletedInASlot()
    {
        static const Qt::Key keys[] = {Qt::Key_Return, Qt::Key_Return, Qt::Key_Return, Qt::Key_5, Qt::Key_Escape};
        for (int signal = 0; signal < 5; ++signal) {
            QPointer<Box> box = new Box(m_screen.get());
            const auto remove = [&] { delete box; };
            // As the button lights up, and as it goes out.
            const auto removeAtHover = [&](bool on) {
                if (on == (signal == 0))
                    delete box;
            };
            switch (signal) {
            case 0:
            case 1: connect(box->okButton(), &ImageButton::isHover, this, removeAtHover); break;
            case 2: connect(box, &MessageBoxBase::changeMessage, this, remove); break;
            case 3: connect(box, &MessageBoxBase::alarmTimeout, this, remove); break;
            default: connect(box, &QDialog::finished, this, remove); break;
            }
            box->setSkipAccept(signal == 2);
            QVERIFY(showAndActivate(box));
            box->startQuitTimer(signal == 3 ? 1 : 60000);
            m_phone->core.setAlarm(true);
            press(keys[signal]);
            if (box)
                release(keys[signal]);
            QTRY_VERIFY(!box);
            QVERIFY2(signal != 1 || m_phone->core.alarm(), "the box went on after its end");
        }
    }

    void pictures()
    {
        // Each name, the message and what is below it, the additional button, whether it is an alarm, the held key.
        const QList<std::tuple<QString, QString, QString, QString, bool, int>> looks
            = {{"box-pressed", "김철수를 삭제할까요?", "", "More", false, Qt::Key_Return},
               {"box-cancel-pressed", "Delete Anna?", "", "Create Group", false, Qt::Key_Escape},
               {"box-two-lines", "Delete the group?", "Group members will move to Unassigned group", "", false, 0},
               {"box-long-text", "Do you want to delete the Bernd Maier-Leibnitz <work> in this group?", "", "",
                false, 0},
               {"box-alarm", "Wake up", "", "", true, 0},
               {"box-long-alarm", "Good morning, this is your alarm of half past six", "", "More", true, 0}};
        for (const auto &[name, message, subMessage, additional, isAlarm, held] : looks) {
            Box box(m_screen.get());
            box.setMessage(message);
            if (!subMessage.isEmpty())
                box.setSubMessage(subMessage);
            box.additionalButton()->setText(additional);
            box.additionalButton()->setVisible(!additional.isEmpty());
            if (isAlarm)
                box.showAlarmMessage();
            // An alarm is cut to one line.
            const QString shownMessage = box.findChildren<QLabel *>().at(2)->text();
            QCOMPARE(shownMessage.endsWith(QChar(0x2026)), name == "box-long-alarm");
            QVERIFY(showAndActivate(&box));
            if (held)
                press(Qt::Key(held));
            TestScreen::shot(name);
            // A corner of the OK key's body.
            const QColor body = TestScreen::picture().pixelColor(192, 138);
            QCOMPARE(body, QColor(held == Qt::Key_Return ? Qt::black : Qt::white));
        }
    }

    void heldOkOfAnInputLosesItsLightAndStillAccepts()
    {
        NamePopup popup(m_screen.get());
        QString looks;
        keepLooks({popup.additionalButton(), popup.okButton(), popup.cancelButton()}, &looks);
        const int result = runBox(popup, [&] {
            press(Qt::Key_Context3);
            QCOMPARE(looks, QString("1+"));
            QTRY_COMPARE(looks, QString("1+0-1-2-")); // all three buttons go out
            release(Qt::Key_Context3);
        });
        QCOMPARE(result, int(QDialog::Accepted));
        QCOMPARE(popup.editText(), QString("Family"));
    }

    void aHoldKeepsToTheInput()
    {
        NamePopup popup(m_screen.get());
        press(Qt::Key_Return);
        QCOMPARE(runBox(popup, [] { release(Qt::Key_Return); }), StillOpen);
        runBox(popup, [&] {
            press(Qt::Key_Context2);
            popup.close();
        });
        QTest::qWait(600); // longer than a hold takes
        QCOMPARE(popup.editText(), QString("Family"));
    }

    void thePlatformHearsOfAnInput()
    {
        NamePopup popup(m_screen.get());
        Core &core = m_phone->core;
        core.setAlarm(true);
        runBox(popup, [&] {
            QVERIFY(core.isVisibleMenu() && !core.useF13ToDel());
            QCOMPARE(int(core.getIMEStatus()), int(IMESmall));
            popup.close();
            QVERIFY(!core.isVisibleMenu() && core.useF13ToDel());
        });
        // Unlike other boxes it leaves a ringing alarm alone, unless a key ended it.
        QVERIFY(core.alarm());
    }

    void picturesOfAnInput()
    {
        NamePopup popup(m_screen.get());
        runBox(popup, [&] {
            for (const QString text : {"", "Family (gypsy) ÄÖÜ", "가족과 친구"}) {
                popup.setEditText(text);
                TestScreen::shot("input-" + QString::number(text.size()));
            }
            press(Qt::Key_Context2);
            TestScreen::shot("input-erase-pressed");
            popup.setEditText("secret");
            popup.setEchoPassword(true);
            TestScreen::shot("input-password");
            // The left end of the box and its ground, under the transparent field.
            QCOMPARE(TestScreen::picture().pixelColor(10, 90), QColor(0xbb, 0xbb, 0xbb));
            QCOMPARE(TestScreen::picture().pixelColor(200, 80), QColor(Qt::white));
        });
    }
};

PHONE_TEST_MAIN(MessageBoxTest)
#include "tst_messagebox.moc"
