#include "imagebutton.h"
#include "phonekeys.h"
#include "testcase.h"
#include "testmain.h"
#include "testphone.h"
#include "textbutton.h"

#include <QKeyEvent>
#include <QSettings>
#include <QSignalSpy>

#include <memory>

using namespace PhoneKeys;

/// The buttons' window, which counts the keys that they leave to it.
class ButtonWindow : public QWidget
{
public:
    QList<int> presses, releases;

protected:
    void keyPressEvent(QKeyEvent *event) override { presses.append(event->key()); }
    void keyReleaseEvent(QKeyEvent *event) override { releases.append(event->key()); }
};

class ImageButtonTest : public TestCase
{
    Q_OBJECT

    void setUp() override
    {
        m_phone.reset(new TestPhone);
        m_window.reset(new ButtonWindow);
        m_button = new ImageButton(m_window.get());
        m_button->resize(95, 27);
        m_button->setText("Delete");
        QVERIFY(showAndActivate(m_window.get()));
        m_button->setFocus();
    }

    void tearDown() override
    {
        m_window.reset();
        m_phone.reset();
    }

private slots:
    void enterClicks_data();
    void enterClicks();
    void theLeftMouseButtonClicks();
    void hoverIsTold();
    void pictures_data();
    void pictures();

private:
    bool looksPressed() const { return m_button->grab().toImage().pixelColor(6, 10) == Qt::black; }

    std::unique_ptr<TestPhone> m_phone;
    std::unique_ptr<ButtonWindow> m_window;
    ImageButton *m_button = nullptr;
};

void ImageButtonTest::enterClicks_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Enter") << int(Qt::Key_Enter);
    QTest::newRow("Return") << int(Qt::Key_Return);
}

void ImageButtonTest::enterClicks()
{
    QFETCH(int, key);
    QSignalSpy clicked(m_button, &ImageButton::clicked), hover(m_button, &ImageButton::isHover);
    press(Qt::Key(key));
    QVERIFY(looksPressed());
    QVERIFY(clicked.isEmpty());
    release(Qt::Key(key));
    QVERIFY(!looksPressed());
    QCOMPARE(clicked.size(), 1);
    // It keeps no press of its own.
    release(Qt::Key(key));
    QCOMPARE(clicked.size(), 2);
    QVERIFY(hover.isEmpty());

    click(Qt::Key_Context4);
    QCOMPARE(m_window->presses, QList<int>{Qt::Key_Context4});
    QCOMPARE(m_window->releases, QList<int>{Qt::Key_Context4});
}

void ImageButtonTest::theLeftMouseButtonClicks()
{
    QSignalSpy clicked(m_button, &ImageButton::clicked);
    QTest::mouseClick(m_button, Qt::RightButton);
    QVERIFY(clicked.isEmpty());
    QTest::mouseClick(m_button, Qt::LeftButton);
    QCOMPARE(clicked.size(), 1);
}

void ImageButtonTest::hoverIsTold()
{
    QSignalSpy hover(m_button, &ImageButton::isHover);
    m_button->setHover(true);
    QVERIFY(looksPressed());
    m_button->setHover(false);
    QVERIFY(!looksPressed());
    QCOMPARE(hover.size(), 2);
}

void ImageButtonTest::pictures_data()
{
    QTest::addColumn<int>("design");
    QTest::newRow("buttons-light") << 0;
    QTest::newRow("buttons-dark") << 1;
}

/// The rows of buttons, up and down: texts, icons with and without a text, a ground and gaps of its own; at the end
/// text buttons.
void ImageButtonTest::pictures()
{
    QFETCH(int, design);
    QSettings(m_phone->core.configFileName(SettingsConfig), QSettings::IniFormat)
        .setValue("Settings/Design", design);
    QImage all(384, 4 * 30, QImage::Format_RGB32);
    all.fill(Qt::white);
    const QPixmap up(":ui/images/widget/softkey_ok.png"), down(":ui/images/widget/softkey_ok_sel.png");
    const auto draw = [&](QWidget &button, int column, int row) {
        button.resize(95, 27);
        button.render(&all, QPoint(column * 96, row * 30));
    };
    for (const bool hover : {false, true}) {
        const QStringList texts{"Delete",  "Create Group", QString::fromUtf8("∨"), QString(), "OK",
                                QString(), "Erase"};
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

PHONE_TEST_MAIN(ImageButtonTest)
#include "tst_imagebutton.moc"
