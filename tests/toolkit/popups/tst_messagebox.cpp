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

struct Removal
{
    void (*removeOn)(Box &, const std::function<void()> &);
    Qt::Key key;
};
Q_DECLARE_METATYPE(Removal)

struct Look
{
    void (*prepare)(MessageBoxBase &);
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
            press(Qt::Key_5); // after a first press any release counts
            release(Qt::Key_Return);
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

    void clicksEndIt()
    {
        Box box(m_screen.get());
        for (ImageButton *button : box.buttons()) {
            const int result = runBox(box, [&] { QTest::mouseClick(button, Qt::LeftButton); });
            QCOMPARE(result, button == box.cancelButton() ? 0 : 1);
            QCOMPARE(box.extraResult(), Box::Untouched + 0);
        }
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
        const QString text("Good morning, this is your alarm of half past six in the morning");
        for (const int pointSize : {0, 10}) {
            MessageBox box(m_screen.get());
            QFont font = box.font();
            if (pointSize)
                font.setPointSize(pointSize); // the box's own font measures
            box.setFont(font);
            box.setMessage(text);
            box.showAlarmMessage();
            const QLabel *message = label(box, Message);
            QVERIFY(!label(box, AlarmIcon)->isHidden());
            QCOMPARE(message->text() == text, pointSize > 0);
            QCOMPARE(message->width(), pointSize ? QFontMetrics(font).horizontalAdvance(text) + 10 : 345);
            QCOMPARE(label(box, AlarmIcon)->x(), message->x() - 30);
        }
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

    void deletedInASlot_data()
    {
        using Remove = const std::function<void()> &;
        const auto byLight
            = [](Box &box, Remove remove) { connect(box.okButton(), &ImageButton::isHover, box.parent(), remove); };
        const auto byPage = [](Box &box, Remove remove) {
            box.setSkipAccept(true);
            connect(&box, &MessageBoxBase::changeMessage, box.parent(), remove);
        };
        const auto byEnd = [](Box &box, Remove remove) { connect(&box, &QDialog::finished, box.parent(), remove); };
        const auto byAlarm = [](Box &box, Remove remove) {
            connect(&box, &MessageBoxBase::alarmTimeout, box.parent(), remove);
            box.startQuitTimer(1);
        };
        addCases<Removal>({{"as a key lights up", {byLight, Qt::Key_Return}},
                           {"as a page turns", {byPage, Qt::Key_Return}},
                           {"as the additional key ends it", {byEnd, Qt::Key_Context2}},
                           {"as Escape ends it", {byEnd, Qt::Key_Escape}},
                           {"as the alarm ends", {byAlarm, Qt::Key_5}}});
    }

    void deletedInASlot()
    {
        QFETCH(Removal, c);
        QPointer<Box> box = new Box(m_screen.get());
        c.removeOn(*box, [&] { delete box; });
        QVERIFY(showAndActivate(box));
        press(c.key);
        if (box)
            release(c.key);
        QTRY_VERIFY(!box);
    }

    void theSlidingBoxComesAndGoesAtOnce()
    {
        const std::function<void(SlideMessageBox &)> ends[]
            = {[](SlideMessageBox &) { click(Qt::Key_Return); }, [](SlideMessageBox &) { click(Qt::Key_Context2); },
               [](SlideMessageBox &) { click(Qt::Key_Escape); }, [](SlideMessageBox &box) { box.close(); },
               [](SlideMessageBox &box) { box.hide(); }};
        for (int i = 0; i < 5; ++i) {
            Filled<SlideMessageBox> box(m_screen.get());
            box.setUseAnimation(true);
            const int result = runBox(box, [&] {
                QVERIFY(box.isVisible());
                QCOMPARE(box.geometry(), QRect(0, 0, 384, 160));
                box.setBackgroundColor(Qt::red);
                ends[i](box);
                QVERIFY(!box.isVisible());
            });
            QCOMPARE(result, i < 2 ? 1 : 0);
            QCOMPARE(box.property("backgroundColor").value<QColor>(), QColor(0, 0, 0, 0));
            QCOMPARE(static_cast<MessageBoxBase &>(box).backgroundColor(), QColor(Qt::black));
        }
    }

    void pictures_data()
    {
        const auto asItIs = [](MessageBoxBase &) {};
        const auto oneLine = [](MessageBoxBase &box) { box.additionalButton()->hide(); };
        const auto twoLines = [](MessageBoxBase &box) {
            box.additionalButton()->hide();
            box.setMessage("Delete the group?");
            box.setSubMessage("Group members will move to Unassigned group");
        };
        const auto longText = [](MessageBoxBase &box) {
            box.additionalButton()->hide();
            box.setMessage("Do you want to delete the Bernd Maier-Leibnitz <work> in this group?");
        };
        const auto korean = [](MessageBoxBase &box) {
            box.setTitle("연락처 삭제");
            box.setMessage("김철수를 삭제할까요?");
            box.okButton()->setText("삭제");
            box.cancelButton()->setText("아니오");
        };
        const auto longKeys = [](MessageBoxBase &box) {
            box.additionalButton()->setText("Create Group");
            box.okButton()->setText("Add Contact");
            box.cancelButton()->setText("Bestehender Kontakt");
        };
        const auto alarm = [](MessageBoxBase &box) {
            box.setTitle("Alarm");
            box.setMessage("Wake up");
            box.additionalButton()->hide();
            box.showAlarmMessage();
        };
        const auto longAlarm = [](MessageBoxBase &box) {
            box.setMessage("Good morning, this is your alarm of half past six");
            box.showAlarmMessage();
        };
        addCases<Look>({{"box-one-line", {oneLine}},
                        {"box-pressed", {asItIs, Qt::Key_Return}},
                        {"box-cancel-pressed", {asItIs, Qt::Key_Escape}},
                        {"box-two-lines", {twoLines}},
                        {"box-long-text", {longText}},
                        {"box-korean", {korean}},
                        {"box-long-keys", {longKeys}},
                        {"box-alarm", {alarm}},
                        {"box-long-alarm", {longAlarm}}});
    }

    void pictures()
    {
        QFETCH(Look, c);
        Box box(m_screen.get());
        c.prepare(box);
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
