#include "imagebutton.h"
#include "inputpopup.h"
#include "inputpopuplineedit.h"
#include "screentest.h"

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
        setEditText("Family");
        for (ImageButton *button : {additionalButton(), okButton(), cancelButton()})
            connect(button, &ImageButton::isHover, this, [this](bool hover) { looks.append(hover); });
    }
    QLineEdit *field() const { return findChild<InputPopupLineEdit *>(); }

    QList<bool> looks;
};

class InputPopupTest : public ScreenTest
{
    Q_OBJECT

    void setUp() override
    {
        ScreenTest::setUp();
        m_popup.reset(new TestPopup(m_screen.get()));
    }
    void tearDown() override
    {
        m_popup.reset();
        ScreenTest::tearDown();
    }

private slots:
    void textIsTypedAndAccepted()
    {
        m_popup->setMaxLength(8);
        const int result = runBox(*m_popup, [&] {
            QVERIFY(m_popup->field()->hasFocus());
            QTRY_VERIFY(!m_popup->field()->hasSelectedText());
            QTest::keyClicks(m_popup->field(), " Smith");
            click(Qt::Key_Return);
        });
        QCOMPARE(result, int(QDialog::Accepted));
        QCOMPARE(m_popup->extraResult(), 2);
        QCOMPARE(m_popup->editText(), QString("Family S"));
    }

    void theLeftKeyErases()
    {
        runBox(*m_popup, [&] {
            QTRY_VERIFY(!m_popup->field()->hasSelectedText());
            click(Qt::Key_Context2);
            QCOMPARE(m_popup->editText(), QString("Famil"));
            m_popup->field()->setCursorPosition(0);
            click(Qt::Key_Context2);
            QCOMPARE(m_popup->editText(), QString("Famil"));
            // Held it empties the field.
            press(Qt::Key_Context2);
            QTRY_COMPARE(m_popup->editText(), QString());
            release(Qt::Key_Context2);
            QVERIFY(m_popup->isVisible());
        });
    }

    void heldOkLosesItsLightAndStillAccepts()
    {
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

    void aHoldKeepsToThePopup()
    {
        press(Qt::Key_Return);
        QCOMPARE(runBox(*m_popup, [&] { release(Qt::Key_Return); }), StillOpen);
        runBox(*m_popup, [&] {
            press(Qt::Key_Context2);
            m_popup->close();
        });
        QTest::qWait(600); // longer than a hold takes
        QCOMPARE(m_popup->editText(), QString("Family"));
    }

    void thePlatformHearsOfIt()
    {
        Core &core = m_phone->core;
        core.setAlarm(true);
        runBox(*m_popup, [&] {
            QVERIFY(core.isVisibleMenu() && !core.useF13ToDel());
            QCOMPARE(int(core.getIMEStatus()), int(IMESmall));
            m_popup->close();
            QVERIFY(!core.isVisibleMenu() && core.useF13ToDel());
        });
        // Unlike other boxes it leaves a ringing alarm alone, unless a key ended it.
        QVERIFY(core.alarm());
    }

    void pictures()
    {
        runBox(*m_popup, [&] {
            m_popup->setEditText("");
            TestScreen::shot("input-empty");
            m_popup->setEditText("Family (gypsy) ÄÖÜ");
            TestScreen::shot("input-text");
            m_popup->setEditText("가족과 친구");
            press(Qt::Key_Context2);
            TestScreen::shot("input-erase-pressed");
            m_popup->setEditText("secret");
            m_popup->setEchoPassword(true);
            QCOMPARE(m_popup->field()->displayText(), QString("******"));
            TestScreen::shot("input-password");
            // The left end of the box and its ground, under the transparent field.
            QCOMPARE(TestScreen::picture().pixelColor(10, 90), QColor(0xbb, 0xbb, 0xbb));
            QCOMPARE(TestScreen::picture().pixelColor(200, 80), QColor(Qt::white));
        });
    }

private:
    std::unique_ptr<TestPopup> m_popup;
};

PHONE_TEST_MAIN(InputPopupTest)
#include "tst_inputpopup.moc"
