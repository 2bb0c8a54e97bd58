#include "imagebutton.h"
#include "screentest.h"
#include "textbutton.h"

#include <QSettings>

using namespace PhoneKeys;

class ImageButtonTest : public PhoneTest
{
    Q_OBJECT

private slots:
    void keysAndTheLeftMouseButtonClick()
    {
        KeyCounter window;
        ImageButton button(&window);
        button.resize(95, 27);
        button.setText("Delete");
        QVERIFY(showAndActivate(&window));
        button.setFocus();
        const auto looksPressed = [&] { return button.grab().toImage().pixelColor(6, 10) == Qt::black; };
        QSignalSpy clicked(&button, &ImageButton::clicked), hover(&button, &ImageButton::isHover);
        for (const Qt::Key key : {Qt::Key_Enter, Qt::Key_Return}) {
            clicked.clear();
            press(key);
            QVERIFY(looksPressed() && clicked.isEmpty());
            release(key);
            QVERIFY(!looksPressed());
            QCOMPARE(clicked.size(), 1);
            release(key); // it keeps no press of its own
            QCOMPARE(clicked.size(), 2);
        }
        click(Qt::Key_Context4);
        QCOMPARE(window.presses, QList<int>{Qt::Key_Context4});
        QCOMPARE(window.releases, QList<int>{Qt::Key_Context4});

        QTest::mouseClick(&button, Qt::RightButton);
        QCOMPARE(clicked.size(), 2);
        QTest::mouseClick(&button, Qt::LeftButton);
        QCOMPARE(clicked.size(), 3);
        QVERIFY(hover.isEmpty());
        for (const bool on : {true, false}) {
            button.setHover(on);
            QCOMPARE(looksPressed(), on);
        }
        QCOMPARE(hover.size(), 2);
    }

    void pictures_data() { addCases<int>({{"buttons-light", 0}, {"buttons-dark", 1}}); }

    /// The rows of buttons, up and down: texts, icons with and without a text, a ground and gaps of its own; at the
    /// end text buttons.
    void pictures()
    {
        QFETCH(int, c);
        QSettings(m_phone->core.configFileName(SettingsConfig), QSettings::IniFormat)
            .setValue("Settings/Design", c);
        QImage all(384, 4 * 30, QImage::Format_RGB32);
        all.fill(Qt::white);
        const QPixmap up(":ui/images/widget/softkey_ok.png"), down(":ui/images/widget/softkey_ok_sel.png");
        const auto draw = [&](QWidget &button, int column, int row) {
            button.resize(95, 27);
            button.render(&all, QPoint(column * 96, row * 30));
        };
        for (const bool hover : {false, true}) {
            const QStringList texts{"Delete", "Create Group", "∨", "", "OK", "", "Erase"};
            for (int i = 0; i < texts.size(); ++i) {
                ImageButton button(nullptr);
                button.setText(texts.at(i));
                if (i == 4 || i == 5) {
                    button.setIcon(up);
                    button.setPressIcon(down);
                }
                if (i == 6)
                    button.setBgColor(QColor(0xdd, 0xee, 0xff));
                button.setHover(hover);
                draw(button, i % 4, i / 4 + 2 * hover);
            }
            TextButton textButton(nullptr);
            textButton.setText("Text");
            textButton.setDown(hover);
            draw(textButton, 3, 1 + 2 * hover);
        }
        TestScreen::save(all, QTest::currentDataTag());
    }
};

PHONE_TEST_MAIN(ImageButtonTest)
#include "tst_imagebutton.moc"
