#include "boxrun.h"
#include "imagebutton.h"
#include "inputpopup.h"
#include "inputpopuplineedit.h"
#include "testcase.h"
#include "testmain.h"
#include "testphone.h"

#include <memory>

using namespace PhoneKeys;

/// A popup as the group assignment opens it, whose field can be seen.
class TestPopup : public InputPopup
{
public:
    explicit TestPopup(QWidget *parent) : InputPopup(parent)
    {
        setTitle("Create Group");
        setMaxLength(30);
        setIMEType(IMESmall);
        additionalButton()->setText("Erase");
        displayAdditionalButton(true);
        setSoft3ButtonToErase(true);
        okButton()->setText("OK");
        cancelButton()->setText("Cancel");
        for (ImageButton *button : {additionalButton(), okButton(), cancelButton()})
            connect(button, &ImageButton::isHover, this, [this](bool hover) { looks.append(hover); });
    }

    QLineEdit *field() const { return findChild<InputPopupLineEdit *>(); }

    QList<bool> looks;
};

class InputPopupTest : public TestCase
{
    Q_OBJECT

    void setUp() override
    {
        m_phone.reset(new TestPhone);
        m_screen.reset(new AskingScreen);
        m_popup.reset(new TestPopup(m_screen.get()));
        QVERIFY(showAndActivate(m_screen.get()));
    }

    void tearDown() override
    {
        m_popup.reset();
        m_screen.reset();
        m_phone.reset();
    }

private slots:
    void textIsTypedAndAccepted();
    void opensWithoutASelection();
    void theLeftKeyErasesACharacter();
    void heldTheLeftKeyEmptiesTheField();
    void heldOkLosesItsLightAndStillAccepts();
    void anEarlierPressDoesNotCount();
    void theHoldEndsWithThePopup();
    void thePlatformHearsOfIt();
    void passwordsAreStars();
    void pictures();

private:
    std::unique_ptr<TestPhone> m_phone;
    std::unique_ptr<AskingScreen> m_screen;
    std::unique_ptr<TestPopup> m_popup;
};

void InputPopupTest::textIsTypedAndAccepted()
{
    m_popup->setMaxLength(4);
    QCOMPARE(m_popup->field()->geometry(), QRect(QPoint(10, 75), QPoint(373, 106)));
    const int result = runBox(*m_popup, [&] {
        QVERIFY(m_popup->field()->hasFocus());
        QTest::keyClicks(m_popup->field(), "Family");
        click(Qt::Key_Return);
    });
    QCOMPARE(result, int(QDialog::Accepted));
    QCOMPARE(m_popup->extraResult(), 2);
    QCOMPARE(m_popup->editText(), QString("Fami"));
}

void InputPopupTest::opensWithoutASelection()
{
    m_popup->setEditText("Family");
    runBox(*m_popup, [&] { QTRY_VERIFY(!m_popup->field()->hasSelectedText()); });
    m_popup->field()->setCursorPosition(0);
    m_popup->setCursorToTextEnd();
    QCOMPARE(m_popup->field()->cursorPosition(), 6);
}

void InputPopupTest::theLeftKeyErasesACharacter()
{
    m_popup->setEditText("Family");
    runBox(*m_popup, [&] {
        QTRY_VERIFY(!m_popup->field()->hasSelectedText());
        click(Qt::Key_Context2);
        QCOMPARE(m_popup->editText(), QString("Famil"));
        m_popup->field()->setCursorPosition(0);
        click(Qt::Key_Context2);
        QCOMPARE(m_popup->editText(), QString("Famil"));
        QVERIFY(m_popup->isVisible());
    });
}

void InputPopupTest::heldTheLeftKeyEmptiesTheField()
{
    m_popup->setEditText("Family");
    runBox(*m_popup, [&] {
        press(Qt::Key_Context2);
        QTRY_COMPARE(m_popup->editText(), QString());
        release(Qt::Key_Context2);
        QVERIFY(m_popup->isVisible());
        QCOMPARE(m_popup->editText(), QString());
    });
}

void InputPopupTest::heldOkLosesItsLightAndStillAccepts()
{
    m_popup->setEditText("Family");
    const int result = runBox(*m_popup, [&] {
        press(Qt::Key_Context3);
        QCOMPARE(m_popup->looks, QList<bool>{true});
        // All three buttons go out.
        QTRY_COMPARE(m_popup->looks, (QList<bool>{true, false, false, false}));
        QCOMPARE(m_popup->editText(), QString("Family"));
        release(Qt::Key_Context3);
    });
    QCOMPARE(result, int(QDialog::Accepted));
}

void InputPopupTest::anEarlierPressDoesNotCount()
{
    press(Qt::Key_Return);
    QCOMPARE(runBox(*m_popup, [&] { release(Qt::Key_Return); }), StillOpen);
}

void InputPopupTest::theHoldEndsWithThePopup()
{
    m_popup->setEditText("Family");
    runBox(*m_popup, [&] {
        press(Qt::Key_Context2);
        m_popup->close();
    });
    // Longer than a hold takes.
    QTest::qWait(600);
    QCOMPARE(m_popup->editText(), QString("Family"));
}

void InputPopupTest::thePlatformHearsOfIt()
{
    Core &core = m_phone->core;
    core.setAlarm(true);
    runBox(*m_popup, [&] {
        QVERIFY(core.isVisibleMenu());
        QVERIFY(!core.useF13ToDel());
        QCOMPARE(int(core.getIMEStatus()), int(IMESmall));
        m_popup->close();
        QVERIFY(!core.isVisibleMenu());
        QVERIFY(core.useF13ToDel());
    });
    // Unlike other boxes it leaves a ringing alarm alone, unless a key ended it.
    QVERIFY(core.alarm());
}

void InputPopupTest::passwordsAreStars()
{
    m_popup->setEditText("ab");
    m_popup->setEchoPassword(true);
    m_popup->ensurePolished();
    QCOMPARE(m_popup->field()->displayText(), QString("**"));
    m_popup->setEchoPassword(false);
    QCOMPARE(m_popup->field()->displayText(), QString("ab"));
}

void InputPopupTest::pictures()
{
    runBox(*m_popup, [&] {
        TestScreen::shot("input-empty");
        m_popup->setEditText("Family (gypsy) ÄÖÜ");
        TestScreen::shot("input-text");
        m_popup->setEditText(QString::fromUtf8("가족과 친구"));
        press(Qt::Key_Context2);
        TestScreen::shot("input-erase-pressed");
        m_popup->setEditText("secret");
        m_popup->setEchoPassword(true);
        TestScreen::shot("input-password");
        // The left end of the box and its ground, under the transparent field.
        QCOMPARE(TestScreen::picture().pixelColor(10, 90), QColor(0xbb, 0xbb, 0xbb));
        QCOMPARE(TestScreen::picture().pixelColor(200, 80), QColor(Qt::white));
    });
}

PHONE_TEST_MAIN(InputPopupTest)
#include "tst_inputpopup.moc"
