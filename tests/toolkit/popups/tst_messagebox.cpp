#include "boxrun.h"
#include "imagebutton.h"
#include "messagebox.h"
#include "slidemessagebox.h"
#include "testcase.h"
#include "testmain.h"
#include "testphone.h"

#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QSignalSpy>

#include <memory>

using namespace PhoneKeys;

static QRect corners(int left, int top, int right, int bottom)
{
    return QRect(QPoint(left, top), QPoint(right, bottom));
}

/// The box's labels in the order in which it makes them.
enum Label { TitleIcon, Title, Message, SubMessage, AlarmIcon };

static QLabel *label(const MessageBoxBase &box, Label which)
{
    return box.findChildren<QLabel *>().at(which);
}

using Prepare = void (*)(MessageBoxBase &);
using SlideAct = void (*)(SlideMessageBox &);
Q_DECLARE_METATYPE(Prepare)
Q_DECLARE_METATYPE(SlideAct)

class MessageBoxTest : public OverScreenTest
{
    Q_OBJECT

private slots:
    void isBuilt();
    void textsFindTheirPlaces_data();
    void textsFindTheirPlaces();
    void wideTextsStepDownOrWrap();
    void keysEndIt_data();
    void keysEndIt();
    void hiddenButtonsTakeNoKeys();
    void anEarlierPressDoesNotCount();
    void afterTheFirstPressAnyReleaseCounts();
    void theAdditionalKeyErases();
    void theOkKeyTurnsPages();
    void clicksEndIt();
    void thePlatformHearsOfIt();
    void theQuitTimerRunsOnce();
    void theQuitTimerEndsWithTheBox();
    void alarmsAreCutToOneLine();
    void closedFromOutsideWhileItsOwnerWaits();
    void deletedInASlot_data();
    void deletedInASlot();
    void theScreenGetsItsKeysBack();
    void theSlidingBoxComesAndGoesAtOnce_data();
    void theSlidingBoxComesAndGoesAtOnce();
    void pictures_data();
    void pictures();

private:
    static void fill(MessageBoxBase &box);

};

void MessageBoxTest::fill(MessageBoxBase &box)
{
    box.setTitle("Delete Contact");
    box.setMessage("Delete Anna?");
    box.additionalButton()->setText("More");
    box.displayAdditionalButton(true);
    box.okButton()->setText("Delete");
    box.cancelButton()->setText("No");
}

void MessageBoxTest::isBuilt()
{
    MessageBox box(m_screen.get());
    QCOMPARE(box.geometry(), corners(0, 0, 383, 159));
    QCOMPARE(box.okButton()->parentWidget()->geometry(), corners(2, 27, 381, 159));
    QCOMPARE(box.additionalButton()->geometry(), corners(90, 106, 184, 132));
    QCOMPARE(box.okButton()->geometry(), corners(185, 106, 279, 132));
    QCOMPARE(box.cancelButton()->geometry(), corners(280, 106, 374, 132));
    box.setTitle("Title");
    QCOMPARE(label(box, Title)->geometry(), corners(41, 0, 394, 31));
    QCOMPARE(box.getTitle(), QString("Title"));
    box.setMessage("Text");
    box.setMessageMove();
    QCOMPARE(label(box, Message)->geometry(), corners(15, 40, 383, 99));

    QVERIFY(box.additionalButton()->isHidden());
    box.displayAdditionalButton(true);
    box.displayAdditionalButton(false);
    QVERIFY(!box.additionalButton()->isHidden());
}

void MessageBoxTest::textsFindTheirPlaces_data()
{
    const QRect lone = corners(10, 32, 369, 105), upper = corners(10, 37, 369, 73),
                lower = corners(10, 59, 369, 95);
    const int middle = Qt::AlignHCenter | Qt::AlignVCenter, bottom = Qt::AlignHCenter | Qt::AlignBottom;
    // "m" sets the message, "s" the sub message, a capital empties it.
    QTest::addColumn<QString>("calls");
    QTest::addColumn<QRect>("message");
    QTest::addColumn<QRect>("sub");
    QTest::addColumn<int>("subAlignment");
    QTest::newRow("a message") << "m" << lone << lower << bottom;
    QTest::newRow("a sub message") << "s" << upper << lone << middle;
    QTest::newRow("message, then sub message") << "ms" << upper << lower << bottom;
    QTest::newRow("sub message, then message") << "sm" << upper << lone << middle;
    QTest::newRow("again the message") << "msm" << upper << lower << bottom;
    QTest::newRow("the sub message goes") << "msSm" << lone << lower << bottom;
    QTest::newRow("an empty sub message") << "mS" << upper << lower << bottom;
}

void MessageBoxTest::textsFindTheirPlaces()
{
    QFETCH(QString, calls);
    MessageBox box(m_screen.get());
    QLabel *message = label(box, Message), *sub = label(box, SubMessage);
    for (const QChar call : calls) {
        const QString text = call.isUpper() ? QString() : QString("Text");
        if (call.toLower() == 'm')
            box.setMessage(text);
        else
            box.setSubMessage(text);
    }
    QTEST(message->geometry(), "message");
    QCOMPARE(int(message->alignment()), int(Qt::AlignHCenter | Qt::AlignVCenter));
    QTEST(sub->geometry(), "sub");
    QTEST(int(sub->alignment()), "subAlignment");
}

void MessageBoxTest::wideTextsStepDownOrWrap()
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

void MessageBoxTest::keysEndIt_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("button"); // of additional, OK and cancel; -1 for none
    QTest::addColumn<int>("result");
    QTest::addColumn<int>("extraResult");
    const int Untouched = 7;
    QTest::newRow("left soft key") << int(Qt::Key_Context2) << 0 << 1 << 1;
    QTest::newRow("middle soft key") << int(Qt::Key_Context3) << 1 << 1 << 2;
    QTest::newRow("Enter") << int(Qt::Key_Enter) << 1 << 1 << 2;
    QTest::newRow("Return") << int(Qt::Key_Return) << 1 << 1 << 2;
    QTest::newRow("right soft key") << int(Qt::Key_Context4) << 2 << 0 << 0;
    QTest::newRow("Escape") << int(Qt::Key_Escape) << 2 << 0 << 0;
    QTest::newRow("first soft key") << int(Qt::Key_Context1) << -1 << StillOpen << Untouched;
    QTest::newRow("a digit") << int(Qt::Key_5) << -1 << StillOpen << Untouched;
    QTest::newRow("an arrow") << int(Qt::Key_Down) << -1 << StillOpen << Untouched;
}

void MessageBoxTest::keysEndIt()
{
    QFETCH(int, key);
    QFETCH(int, button);
    MessageBox box(m_screen.get());
    fill(box);
    box.setExtraResult(7);
    QList<QList<bool>> looks{{}, {}, {}};
    ImageButton *buttons[] = {box.additionalButton(), box.okButton(), box.cancelButton()};
    for (int i = 0; i < 3; ++i)
        connect(buttons[i], &ImageButton::isHover, &box, [&looks, i](bool hover) { looks[i].append(hover); });
    const int result = runBox(box, [&] {
        press(Qt::Key(key));
        QVERIFY(box.isVisible());
        release(Qt::Key(key));
    });
    QTEST(result, "result");
    QTEST(box.extraResult(), "extraResult");
    for (int i = 0; i < 3; ++i)
        QCOMPARE(looks.at(i), i == button ? (QList<bool>{true, false}) : QList<bool>());
}

void MessageBoxTest::hiddenButtonsTakeNoKeys()
{
    MessageBox box(m_screen.get());
    box.okButton()->hide();
    box.cancelButton()->hide();
    const int result = runBox(box, [&] {
        for (const Qt::Key key :
             {Qt::Key_Context2, Qt::Key_Context3, Qt::Key_Return, Qt::Key_Context4, Qt::Key_Escape})
            click(key);
    });
    QCOMPARE(result, StillOpen);
}

void MessageBoxTest::anEarlierPressDoesNotCount()
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

void MessageBoxTest::afterTheFirstPressAnyReleaseCounts()
{
    MessageBox box(m_screen.get());
    const int result = runBox(box, [&] {
        press(Qt::Key_5);
        release(Qt::Key_Return);
    });
    QCOMPARE(result, int(QDialog::Accepted));
}

void MessageBoxTest::theAdditionalKeyErases()
{
    MessageBox box(m_screen.get());
    fill(box);
    box.setSoft3ButtonToErase(true);
    box.setExtraResult(7);
    QLineEdit edit("abc", &box);
    edit.setFocus();
    const int result = runBox(box, [&] {
        edit.deselect();
        click(Qt::Key_Context2);
        QCOMPARE(edit.text(), QString("ab"));
    });
    QCOMPARE(result, StillOpen);
    QCOMPARE(box.extraResult(), 7);
}

void MessageBoxTest::theOkKeyTurnsPages()
{
    MessageBox box(m_screen.get());
    fill(box);
    box.setSkipAccept(true);
    QSignalSpy pages(&box, &MessageBoxBase::changeMessage);
    const int result = runBox(box, [&] {
        click(Qt::Key_Context3);
        click(Qt::Key_Return);
        QCOMPARE(pages.size(), 2);
        QVERIFY(box.isVisible());
        box.setSkipAccept(false);
        click(Qt::Key_Return);
    });
    QCOMPARE(result, int(QDialog::Accepted));
    QCOMPARE(pages.size(), 2);
}

void MessageBoxTest::clicksEndIt()
{
    MessageBox box(m_screen.get());
    fill(box);
    box.setExtraResult(7);
    for (ImageButton *button : {box.additionalButton(), box.okButton(), box.cancelButton()}) {
        const int result = runBox(box, [&] { QTest::mouseClick(button, Qt::LeftButton); });
        QCOMPARE(result, button == box.cancelButton() ? 0 : 1);
        QCOMPARE(box.extraResult(), 7);
    }
}

void MessageBoxTest::thePlatformHearsOfIt()
{
    MessageBox box(m_screen.get());
    m_phone->core.setAlarm(true);
    runBox(box, [&] {
        QVERIFY(!m_phone->core.useF13ToDel());
        QVERIFY(m_phone->core.alarm());
        box.hide();
        QVERIFY(m_phone->core.useF13ToDel());
        QVERIFY(!m_phone->core.alarm());
    });
}

void MessageBoxTest::theQuitTimerRunsOnce()
{
    MessageBox box(m_screen.get());
    QSignalSpy timeouts(&box, &MessageBoxBase::alarmTimeout);
    connect(&box, &MessageBoxBase::alarmTimeout, &box, &QDialog::reject);
    box.startQuitTimer(60000);
    box.startQuitTimer(1);
    QCOMPARE(box.findChildren<QTimer *>().size(), 1);
    QCOMPARE(box.exec(), int(QDialog::Rejected));
    QCOMPARE(timeouts.size(), 1);
    box.cancelTimer();
}

void MessageBoxTest::theQuitTimerEndsWithTheBox()
{
    MessageBox box(m_screen.get());
    fill(box);
    static constexpr int FromOutside = 0;
    for (const int key : {int(Qt::Key_Return), int(Qt::Key_Context2), int(Qt::Key_Escape), FromOutside}) {
        box.startQuitTimer(60000);
        runBox(box, [&] {
            if (key)
                click(Qt::Key(key));
            else
                box.close();
        });
        QVERIFY(box.findChildren<QTimer *>().isEmpty());
    }
}

void MessageBoxTest::alarmsAreCutToOneLine()
{
    MessageBox box(m_screen.get());
    const QString text("Good morning, this is your alarm of half past six in the morning");
    box.setMessage(text);
    QLabel *message = label(box, Message);
    box.showAlarmMessage();
    QCOMPARE(message->geometry(), corners(54, 40, 54 + 344, 99));
    QVERIFY(message->text().endsWith(QChar(0x2026)));
    QCOMPARE(label(box, AlarmIcon)->pos(), QPoint(24, 58));
    QVERIFY(!label(box, AlarmIcon)->isHidden());

    // The box's own font measures.
    MessageBox small(m_screen.get());
    QFont font = small.font();
    font.setPointSize(10);
    small.setFont(font);
    small.setMessage(text);
    message = label(small, Message);
    small.showAlarmMessage();
    QCOMPARE(message->text(), text);
    QCOMPARE(message->width(), QFontMetrics(font).horizontalAdvance(text) + 10);
}

void MessageBoxTest::closedFromOutsideWhileItsOwnerWaits()
{
    MessageBox box(m_screen.get());
    fill(box);
    QCOMPARE(runBox(box,
                    [&] {
                        press(Qt::Key_Return);
                        box.close();
                        QVERIFY(!box.isVisible());
                    }),
             int(QDialog::Rejected));
    // The release comes to the screen, and a box that is shown again hears nothing of it.
    release(Qt::Key_Return);
    QVERIFY(m_screen->isVisible());
}

void MessageBoxTest::deletedInASlot_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("as a key lights up") << int(Qt::Key_Return);
    QTest::newRow("as a page turns") << int(Qt::Key_Return);
    QTest::newRow("as the additional key ends it") << int(Qt::Key_Context2);
    QTest::newRow("as Escape ends it") << int(Qt::Key_Escape);
    QTest::newRow("as the alarm ends") << 0;
}

void MessageBoxTest::deletedInASlot()
{
    QFETCH(int, key);
    QPointer<MessageBox> box = new MessageBox(m_screen.get());
    fill(*box);
    const auto remove = [&] { delete box; };
    const QString when = QTest::currentDataTag();
    if (when.contains("lights up")) {
        connect(box->okButton(), &ImageButton::isHover, this, remove);
    } else if (when.contains("page")) {
        box->setSkipAccept(true);
        connect(box, &MessageBoxBase::changeMessage, this, remove);
    } else if (when.contains("alarm")) {
        connect(box, &MessageBoxBase::alarmTimeout, this, remove);
    } else {
        connect(box, &QDialog::finished, this, remove);
    }
    QVERIFY(showAndActivate(box));
    if (!key)
        box->startQuitTimer(1);
    else
        press(Qt::Key(key));
    if (key && box)
        release(Qt::Key(key));
    QTRY_VERIFY(!box);
}

void MessageBoxTest::theScreenGetsItsKeysBack()
{
    MessageBox box(m_screen.get());
    fill(box);
    QVERIFY(m_screen->list->hasFocus());
    runBox(box, [&] {
        QVERIFY(box.hasFocus());
        click(Qt::Key_Tab);
        QVERIFY(box.hasFocus());
        click(Qt::Key_Escape);
    });
    m_screen->list->setFocus(Qt::OtherFocusReason);
    QTRY_VERIFY(m_screen->list->hasFocus());
    click(Qt::Key_Escape);
    QVERIFY(!m_screen->isVisible());
}

void MessageBoxTest::theSlidingBoxComesAndGoesAtOnce_data()
{
    QTest::addColumn<SlideAct>("act");
    QTest::addColumn<int>("result");
    QTest::newRow("by OK") << SlideAct([](SlideMessageBox &) { click(Qt::Key_Return); }) << 1;
    QTest::newRow("by the additional key") << SlideAct([](SlideMessageBox &) { click(Qt::Key_Context2); }) << 1;
    QTest::newRow("by Escape") << SlideAct([](SlideMessageBox &) { click(Qt::Key_Escape); }) << 0;
    QTest::newRow("closed") << SlideAct([](SlideMessageBox &box) { box.close(); }) << 0;
    QTest::newRow("hidden") << SlideAct([](SlideMessageBox &box) { box.hide(); }) << 0;
}

void MessageBoxTest::theSlidingBoxComesAndGoesAtOnce()
{
    QFETCH(SlideAct, act);
    SlideMessageBox box(m_screen.get());
    fill(box);
    box.setUseAnimation(true);
    QTEST(runBox(box,
                 [&] {
                     QVERIFY(box.isVisible());
                     QCOMPARE(box.geometry(), corners(0, 0, 383, 159));
                     box.setBackgroundColor(Qt::red);
                     act(box);
                     QVERIFY(!box.isVisible());
                 }),
          "result");
    QCOMPARE(box.property("backgroundColor").value<QColor>(), QColor(0, 0, 0, 0));
    QCOMPARE(static_cast<MessageBoxBase &>(box).backgroundColor(), QColor(Qt::black));
}

void MessageBoxTest::pictures_data()
{
    QTest::addColumn<Prepare>("prepare");
    QTest::addColumn<int>("held");
    const auto row
        = [](const char *name, Prepare prepare, int held = 0) { QTest::newRow(name) << prepare << held; };
    row("box-one-line", [](MessageBoxBase &box) { box.additionalButton()->hide(); });
    row(
        "box-pressed", [](MessageBoxBase &) {}, Qt::Key_Return);
    row(
        "box-cancel-pressed", [](MessageBoxBase &) {}, Qt::Key_Escape);
    row("box-two-lines", [](MessageBoxBase &box) {
        box.additionalButton()->hide();
        box.setMessage("Delete the group?");
        box.setSubMessage("Group members will move to Unassigned group");
    });
    row("box-long-text", [](MessageBoxBase &box) {
        box.additionalButton()->hide();
        box.setMessage("Do you want to delete the Bernd Maier-Leibnitz <work> in this group?");
    });
    row("box-korean", [](MessageBoxBase &box) {
        box.setTitle(QString::fromUtf8("연락처 삭제"));
        box.setMessage(QString::fromUtf8("김철수를 삭제할까요?"));
        box.okButton()->setText(QString::fromUtf8("삭제"));
        box.cancelButton()->setText(QString::fromUtf8("아니오"));
    });
    row("box-long-keys", [](MessageBoxBase &box) {
        box.additionalButton()->setText("Create Group");
        box.okButton()->setText("Add Contact");
        box.cancelButton()->setText("Bestehender Kontakt");
    });
    row("box-alarm", [](MessageBoxBase &box) {
        box.setTitle("Alarm");
        box.setMessage("Wake up");
        box.additionalButton()->hide();
        box.showAlarmMessage();
    });
    row("box-long-alarm", [](MessageBoxBase &box) {
        box.setMessage("Good morning, this is your alarm of half past six");
        box.showAlarmMessage();
    });
}

void MessageBoxTest::pictures()
{
    QFETCH(Prepare, prepare);
    QFETCH(int, held);
    MessageBox box(m_screen.get());
    fill(box);
    prepare(box);
    QVERIFY(showAndActivate(&box));
    if (held)
        press(Qt::Key(held));
    TestScreen::shot(QTest::currentDataTag());
    const QImage shown = TestScreen::picture();
    QCOMPARE(shown.pixelColor(20, 100), QColor(Qt::white));
    // A corner of the OK key's body.
    QCOMPARE(shown.pixelColor(192, 138), QColor(held == Qt::Key_Return ? Qt::black : Qt::white));
}

PHONE_TEST_MAIN(MessageBoxTest)
#include "tst_messagebox.moc"
