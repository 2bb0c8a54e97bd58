#include "basewidget.h"
#include "phonekeys.h"
#include "tail.h"
#include "tailbutton.h"
#include "testcase.h"
#include "testmain.h"
#include "testphone.h"

#include <QLineEdit>
#include <QSettings>
#include <QSignalSpy>

#include <memory>

using namespace PhoneKeys;

static const Qt::Key softKeys[] = {Qt::Key_Context1, Qt::Key_Context2, Qt::Key_Context3, Qt::Key_Context4};

class Screen : public BaseWidget
{
public:
    Screen() : BaseWidget(nullptr) { setFocusPolicy(Qt::StrongFocus); }
    Tail *bar() const { return tail; }
};

class TailTest : public TestCase
{
    Q_OBJECT

    void setUp() override
    {
        m_phone.reset(new TestPhone);
        m_screen.reset(new Screen);
        for (int i = 0; i < Tail::ButtonCount; ++i)
            m_screen->bar()->setFuncButtonText(i, QString("Key %1").arg(i));
        QVERIFY(showAndActivate(m_screen.get()));
    }

    void tearDown() override
    {
        m_screen.reset();
        m_phone.reset();
    }

private slots:
    void softKeysClickWhicheverChildHasTheFocus();
    void anEmptyKeyDoesNothing();
    void aHoldIsALongPressAndThenAClick();
    void aReleaseWithoutItsPressDoesNothing();
    void theThirdKeyErasesWhileTextIsTyped();
    void theThirdKeysTextComesBack();
    void aBlockedBarKeepsItsText();
    void badIndexesAreRefused();
    void findsButtons_data();
    void findsButtons();
    void pictures();

private:
    std::unique_ptr<TestPhone> m_phone;
    std::unique_ptr<Screen> m_screen;
};

void TailTest::softKeysClickWhicheverChildHasTheFocus()
{
    QSignalSpy clicked(m_screen->bar(), &Tail::clicked);
    QSignalSpy pressed(m_screen->bar(), &Tail::pressed);
    for (const bool inChild : {false, true}) {
        QWidget child(m_screen.get());
        child.setFocusPolicy(Qt::StrongFocus);
        child.show();
        if (inChild)
            child.setFocus();
        for (int i = 0; i < Tail::ButtonCount; ++i) {
            press(softKeys[i]);
            QVERIFY(m_screen->bar()->button(i)->isDown());
            release(softKeys[i]);
            QVERIFY(!m_screen->bar()->button(i)->isDown());
            QCOMPARE(clicked.takeLast().first().toInt(), i);
            QCOMPARE(pressed.takeFirst(), (QVariantList{i, true}));
            QCOMPARE(pressed.takeFirst(), (QVariantList{i, false}));
        }
    }
}

void TailTest::anEmptyKeyDoesNothing()
{
    m_screen->bar()->setFuncButtonText(1, QString());
    QSignalSpy clicked(m_screen->bar(), &Tail::clicked);
    QSignalSpy pressed(m_screen->bar(), &Tail::pressed);
    click(Qt::Key_Context2);
    QCOMPARE(clicked.size() + pressed.size(), 0);
}

void TailTest::aHoldIsALongPressAndThenAClick()
{
    Tail *bar = m_screen->bar();
    QStringList heard;
    connect(bar, &Tail::longPress, this, [&](int idx) { heard.append(QString("long %1").arg(idx)); });
    connect(bar, &Tail::clicked, this, [&](int idx) { heard.append(QString("click %1").arg(idx)); });
    connect(bar, &Tail::pressed, this,
            [&](int idx, bool down) { heard.append(QString("%1 %2").arg(down ? "down" : "up").arg(idx)); });
    press(Qt::Key_Context4);
    QTRY_COMPARE(heard, QStringList({"down 3", "long 3"}));
    QVERIFY(!bar->button(3)->isDown());
    release(Qt::Key_Context4);
    QCOMPARE(heard, QStringList({"down 3", "long 3", "up 3", "click 3"}));

    // The bar counts one more release after a long press, and then none.
    heard.clear();
    release(Qt::Key_Context1);
    QCOMPARE(heard, QStringList({"up 3", "click 0"}));
    release(Qt::Key_Context1);
    QCOMPARE(heard.size(), 2);
}

void TailTest::aReleaseWithoutItsPressDoesNothing()
{
    QSignalSpy clicked(m_screen->bar(), &Tail::clicked);
    release(Qt::Key_Context1);
    QVERIFY(clicked.isEmpty());
}

void TailTest::theThirdKeyErasesWhileTextIsTyped()
{
    QLineEdit edit("abc", m_screen.get());
    edit.show();
    edit.setFocus();
    QCOMPARE(m_screen->bar()->funcButtonText(2), QString("Erase"));
    QSignalSpy clicked(m_screen->bar(), &Tail::clicked);
    click(Qt::Key_Context3);
    QCOMPARE(edit.text(), QString("ab"));
    QVERIFY(clicked.isEmpty());
}

void TailTest::theThirdKeysTextComesBack()
{
    Tail *bar = m_screen->bar();
    bar->changedIMEStatus(IMESmall);
    QCOMPARE(bar->funcButtonText(2), QString("Erase"));
    bar->setFuncButtonText(2, "Save");
    QCOMPARE(bar->funcButtonText(2), QString("Save"));
    bar->setUseEraseStr(true);
    bar->setEraseStr("Rub out");
    bar->changedIMEStatus(IMECapital);
    QCOMPARE(bar->funcButtonText(2), QString("Rub out"));
    bar->changedIMEStatus(IMEOff);
    QCOMPARE(bar->funcButtonText(2), QString("Save"));
}

void TailTest::aBlockedBarKeepsItsText()
{
    QDialog popup(m_screen.get());
    popup.setModal(true);
    popup.show();
    m_screen->bar()->changedIMEStatus(IMESmall);
    QCOMPARE(m_screen->bar()->funcButtonText(2), QString("Key 2"));
    popup.hide();
    m_screen->bar()->changedIMEStatus(IMESmall);
    QCOMPARE(m_screen->bar()->funcButtonText(2), QString("Erase"));
}

void TailTest::badIndexesAreRefused()
{
    Tail *bar = m_screen->bar();
    for (const int idx : {-1, 4}) {
        bar->setFuncButtonText(idx, "lost");
        QCOMPARE(bar->funcButtonText(idx), QString());
        QVERIFY(!bar->button(idx));
        QCOMPARE(bar->buttonGeometry(idx), QRect());
        QCOMPARE(bar->buttonWidth(idx), bar->width() / 4);
    }
    QCOMPARE(bar->buttonGeometry(3), QRect(276, 0, 92, 27));
}

void TailTest::findsButtons_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<int>("found");
    QTest::newRow("a part of it") << "y 2" << 0 << 3 << 2;
    QTest::newRow("the first of several") << "Key" << 1 << 3 << 1;
    QTest::newRow("from the smaller bound") << "Key" << 3 << 2 << 2;
    QTest::newRow("behind it") << "Key 0" << 1 << 3 << -1;
    QTest::newRow("a bad start begins at 0") << "Key 0" << 4 << 3 << 0;
    QTest::newRow("case counts") << "key" << 0 << 3 << -1;
}

void TailTest::findsButtons()
{
    QFETCH(QString, text);
    QFETCH(int, from);
    QFETCH(int, to);
    QTEST(m_screen->bar()->findButtonIndex(text, from, to), "found");
}

void TailTest::pictures()
{
    const QStringList texts{"Edit", "Create Group", "Add Contact", QString(),  QString::fromUtf8("∨"), "ERASE",
                            "X",    ">>",           ">",           "MSG_Erase"};
    for (const int design : {0, 1}) {
        QSettings(m_phone->core.configFileName(SettingsConfig), QSettings::IniFormat)
            .setValue("Settings/Design", design);
        for (const bool down : {false, true}) {
            QImage all(384, 3 * 27, QImage::Format_RGB32);
            all.fill(Qt::white);
            for (int i = 0; i < texts.size(); ++i) {
                TailButton *button = m_screen->bar()->button(0);
                button->setText(texts.at(i));
                button->setDown(down && !texts.at(i).isEmpty());
                button->render(&all, QPoint(i % 4 * 92, i / 4 * 27));
            }
            TestScreen::save(all, QString("softkeys-%1-%2").arg(design ? "dark" : "light", down ? "down" : "up"));
        }
    }
}

PHONE_TEST_MAIN(TailTest)
#include "tst_tail.moc"
