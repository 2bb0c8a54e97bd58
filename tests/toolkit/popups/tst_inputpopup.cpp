#include "inputpopup.h"
#include "screentest.h"

using namespace PhoneKeys;

/// A popup as the group assignment opens it.
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
    }
};

class InputPopupTest : public ScreenTest
{
    Q_OBJECT

    void setUp() override
    {
        ScreenTest::setUp();
        m_popup = new TestPopup(m_screen.get());
    }

private slots:
    void heldOkLosesItsLightAndStillAccepts()
    {
        QString looks;
        keepLooks({m_popup->additionalButton(), m_popup->okButton(), m_popup->cancelButton()}, &looks);
        const int result = runBox(*m_popup, [&] {
            press(Qt::Key_Context3);
            QCOMPARE(looks, QString("1+"));
            QTRY_COMPARE(looks, QString("1+0-1-2-")); // all three buttons go out
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
            for (const QString text : {"", "Family (gypsy) ÄÖÜ", "가족과 친구"}) {
                m_popup->setEditText(text);
                TestScreen::shot("input-" + QString::number(text.size()));
            }
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

private:
    TestPopup *m_popup = nullptr; ///< of the screen
};

PHONE_TEST_MAIN(InputPopupTest)
#include "tst_inputpopup.moc"
