#include "screentest.h"
#include "tailbutton.h"

#include <QLineEdit>
#include <QSettings>

using namespace PhoneKeys;

class TailTest : public ScreenTest
{
    Q_OBJECT

    void setUp() override
    {
        ScreenTest::setUp();
        m_bar = m_screen->bar();
    }

private slots:
    void softKeysClickWhicheverWidgetHasTheFocus()
    {
        QSignalSpy clicked(m_bar, &Tail::clicked), pressed(m_bar, &Tail::pressed);
        for (const bool inChild : {true, false}) {
            m_screen->list->setVisible(inChild);
            for (int i = 0; i < Tail::ButtonCount; ++i) {
                press(Qt::Key(Qt::Key_Context1 + i));
                QVERIFY(m_bar->button(i)->isDown());
                release(Qt::Key(Qt::Key_Context1 + i));
                QVERIFY(!m_bar->button(i)->isDown());
                QCOMPARE(clicked.takeLast(), QVariantList{i});
                QCOMPARE(pressed.takeFirst(), (QVariantList{i, true}));
                QCOMPARE(pressed.takeFirst(), (QVariantList{i, false}));
            }
        }
    }

    void nothingHappensWithoutTextOrPress()
    {
        m_bar->setFuncButtonText(1, QString());
        QSignalSpy clicked(m_bar, &Tail::clicked), pressed(m_bar, &Tail::pressed);
        click(Qt::Key_Context2);
        release(Qt::Key_Context1);
        QCOMPARE(clicked.size() + pressed.size(), 0);
    }

    void aHoldIsALongPressAndThenAClick()
    {
        QStringList heard;
        connect(m_bar, &Tail::longPress, this, [&](int idx) { heard.append(QString("long %1").arg(idx)); });
        connect(m_bar, &Tail::clicked, this, [&](int idx) { heard.append(QString("click %1").arg(idx)); });
        connect(m_bar, &Tail::pressed, this,
                [&](int idx, bool down) { heard.append(QString("%1 %2").arg(down ? "down" : "up").arg(idx)); });
        press(Qt::Key_Context4);
        QTRY_COMPARE(heard, QStringList({"down 3", "long 3"}));
        QVERIFY(!m_bar->button(3)->isDown());
        release(Qt::Key_Context4);
        QCOMPARE(heard, QStringList({"down 3", "long 3", "up 3", "click 3"}));

        // The bar counts one more release after a long press, and then none.
        heard.clear();
        release(Qt::Key_Context1);
        release(Qt::Key_Context1);
        QCOMPARE(heard, QStringList({"up 3", "click 0"}));
    }

    void theThirdKeyErasesWhileTextIsTyped()
    {
        QLineEdit edit("abc", m_screen.get());
        edit.show();
        edit.setFocus();
        QCOMPARE(m_bar->funcButtonText(2), QString("Erase"));
        QSignalSpy clicked(m_bar, &Tail::clicked);
        click(Qt::Key_Context3);
        QCOMPARE(edit.text(), QString("ab"));
        QVERIFY(clicked.isEmpty());

        m_bar->setFuncButtonText(2, "Save");
        QCOMPARE(m_bar->funcButtonText(2), QString("Save"));
        m_bar->setUseEraseStr(true);
        m_bar->setEraseStr("Rub out");
        m_bar->changedIMEStatus(IMECapital);
        QCOMPARE(m_bar->funcButtonText(2), QString("Rub out"));
        m_screen->list->setFocus();
        QCOMPARE(m_bar->funcButtonText(2), QString("Save"));
    }

    void aBlockedBarKeepsItsText()
    {
        QDialog popup(m_screen.get());
        popup.setModal(true);
        popup.show();
        m_bar->changedIMEStatus(IMESmall);
        QCOMPARE(m_bar->funcButtonText(2), QString("Key 3"));
        popup.hide();
        m_bar->changedIMEStatus(IMESmall);
        QCOMPARE(m_bar->funcButtonText(2), QString("Erase"));
    }

    void badIndexesAreRefused()
    {
        for (const int idx : {-1, 4}) {
            m_bar->setFuncButtonText(idx, "lost");
            QVERIFY(!m_bar->button(idx) && m_bar->funcButtonText(idx).isEmpty());
            QVERIFY(m_bar->buttonGeometry(idx).isNull() && m_bar->buttonWidth(idx) == m_bar->width() / 4);
        }
    }

    void findsButtons()
    {
        QCOMPARE(m_bar->findButtonIndex("y 3", 0, 3), 2);
        QCOMPARE(m_bar->findButtonIndex("Key", 3, 2), 2); // from the smaller bound
        QCOMPARE(m_bar->findButtonIndex("Key 1", 1, 3), -1);
        QCOMPARE(m_bar->findButtonIndex("Key 1", 4, 3), 0); // a bad start begins at 0
        QCOMPARE(m_bar->findButtonIndex("key", 0, 3), -1);
    }

    void pictures()
    {
        const QStringList texts{"Edit", "Create Group", "Add Contact", "",         "∨", "ERASE",
                                "X",    ">>",           ">",           "MSG_Erase"};
        for (const int design : {0, 1}) {
            QSettings(m_phone->core.configFileName(SettingsConfig), QSettings::IniFormat)
                .setValue("Settings/Design", design);
            for (const bool down : {false, true}) {
                QImage all(384, 3 * 27, QImage::Format_RGB32);
                all.fill(Qt::white);
                for (int i = 0; i < texts.size(); ++i) {
                    TailButton *button = m_bar->button(0);
                    button->setText(texts.at(i));
                    button->setDown(down && !texts.at(i).isEmpty());
                    button->render(&all, QPoint(i % 4 * 92, i / 4 * 27));
                }
                TestScreen::save(all,
                                 QString("softkeys-%1-%2").arg(design ? "dark" : "light", down ? "down" : "up"));
            }
        }
    }

private:
    Tail *m_bar = nullptr;
};

PHONE_TEST_MAIN(TailTest)
#include "tst_tail.moc"
