#include "screentest.h"
#include "tailbutton.h"
#include "textbutton.h"

#include <QSettings>

using namespace PhoneKeys;

/// Screens, their bar of soft keys, and buttons that look like them.
class BaseWidgetTest : public ScreenTest
{
    Q_OBJECT

    void setUp() override
    {
        ScreenTest::setUp();
        m_bar = screen()->bar();
        m_heard.clear();
        const auto hear = [this](const char *what) {
            return [this, what](int idx) { m_heard += what + QString::number(idx) + ' '; };
        };
        connect(m_bar, &Tail::longPress, this, hear("long"));
        connect(m_bar, &Tail::clicked, this, hear("click"));
        connect(m_bar, &Tail::pressed, this, [hear](int idx, bool down) { hear(down ? "down" : "up")(idx); });
    }

private slots:
    void fillsTheDisplayBelowTheStatusBar()
    {
        m_screen->setBgColor(Qt::yellow);
        const QImage picture = TestScreen::picture();
        for (const QPoint &place : {QPoint(0, 26), QPoint(383, 159), QPoint(383, 25)})
            QCOMPARE(picture.pixelColor(place) == QColor(Qt::yellow), place.y() > 25);
    }

    void escapeClosesAtTheReleaseAndTheTitleComesBack()
    {
        KeyScreen above("Above");
        QVERIFY(showAndActivate(&above));
        QCOMPARE(title(), QString("Above"));
        press(Qt::Key_Escape);
        QVERIFY(above.isVisible());
        release(Qt::Key_Escape);
        QVERIFY(!above.isVisible());
        QTRY_COMPARE(title(), QString("Screen"));
        QVERIFY(m_screen->isVisible() && screenHasKeys());
    }

    void aRetiredScreenOutlivesLoopsOfItsHandlers()
    {
        const QPointer<KeyScreen> screen = new KeyScreen("Retired");
        QVERIFY(showAndActivate(screen));
        QEventLoop handler;
        QTimer::singleShot(0, screen, [screen] { screen->retire(); });
        QTimer::singleShot(100, &handler, &QEventLoop::quit);
        handler.exec();
        QVERIFY(screen && !screen->isVisible());
        QTRY_VERIFY(!screen);
    }

    void locksShowAsTheSettingsSay()
    {
        // System type 1 knows a call lock, type 2 does not.
        QSignalSpy changes(&m_phone->status, &Status::statusInfoChanged);
        int expected = 0;
        for (const auto &[key, value] : {std::pair("System/Type", 1),
                                         {"Menu_Password/enable", 1},
                                         {"Security/CallLock", 2},
                                         {"System/Type", 2}}) {
            QSettings(m_phone->core.configFileName(SystemConfig), QSettings::IniFormat).setValue(key, value);
            m_screen->updateStatus();
            QCOMPARE(changes.size(), expected++);
        }
    }

    void softKeysClickWhicheverWidgetHasTheFocus()
    {
        for (const bool inChild : {true, false}) {
            screen()->list->setVisible(inChild);
            for (int i = 0; i < Tail::ButtonCount; ++i) {
                m_heard.clear();
                press(Qt::Key(Qt::Key_Context1 + i));
                QVERIFY(m_bar->button(i)->isDown());
                release(Qt::Key(Qt::Key_Context1 + i));
                QVERIFY(!m_bar->button(i)->isDown());
                QCOMPARE(m_heard, QString("down%1 up%1 click%1 ").arg(i));
            }
        }
        // Nothing happens without a text or without a press.
        m_heard.clear();
        m_bar->setFuncButtonText(1, QString());
        click(Qt::Key_Context2);
        release(Qt::Key_Context1);
        QCOMPARE(m_heard, QString());
    }

    void aHoldIsALongPressAndThenAClick()
    {
        press(Qt::Key_Context4);
        QTRY_COMPARE(m_heard, QString("down3 long3 "));
        QVERIFY(!m_bar->button(3)->isDown());
        release(Qt::Key_Context4);
        // The bar counts one more release after a long press, and then none.
        release(Qt::Key_Context1);
        release(Qt::Key_Context1);
        QCOMPARE(m_heard, QString("down3 long3 up3 click3 up3 click0 "));
    }

    /// Soft keys, buttons with texts, icons and a ground of their own, and a plain one; up, and below it down.
    void pictures()
    {
        const QPixmap icon(":ui/images/widget/softkey_ok.png"), downIcon(":ui/images/widget/softkey_ok_sel.png");
        for (const QString design : {"0", "1"}) {
            QSettings(m_phone->core.configFileName(SettingsConfig), QSettings::IniFormat)
                .setValue("Settings/Design", design);
            QImage all(384, 10 * 27, QImage::Format_RGB32);
            all.fill(Qt::white);
            for (const bool down : {false, true}) {
                int place = down * 20;
                const auto draw = [&](QWidget &button) {
                    button.resize(92, 27);
                    button.render(&all, QPoint(place % 4 * 96, place / 4 * 27));
                    ++place;
                };
                for (const QString text : {"Edit", "Create Group", "", "∨", "ERASE", "X", ">>", ">", "MSG_Erase"}) {
                    m_bar->button(0)->setText(text);
                    m_bar->button(0)->setDown(down && !text.isEmpty());
                    draw(*m_bar->button(0));
                }
                for (const QString text : {"Delete", "Create Group", "", "OK"}) {
                    ImageButton button(nullptr);
                    button.setText(text);
                    button.setIcon(text.size() < 3 ? icon : QPixmap());
                    button.setPressIcon(text.size() < 3 ? downIcon : QPixmap());
                    if (text == "Delete")
                        button.setBgColor(QColor(0xdd, 0xee, 0xff));
                    button.setHover(down);
                    draw(button);
                }
                TextButton plain(nullptr);
                plain.setText("Text");
                plain.setDown(down);
                draw(plain);
            }
            QVERIFY(all.pixelColor(6, 10) != all.pixelColor(6, 145));
            TestScreen::save(all, "softkeys-" + design);
        }
    }

private:
    Tail *m_bar = nullptr;
    QString m_heard; ///< of the bar
};

PHONE_TEST_MAIN(BaseWidgetTest)
#include "tst_basewidget.moc"
