#include "keymap.h"
#include "phonekey.h"
#include "phonekeys.h"
#include "testcase.h"
#include "testmain.h"

/// Keeps the keys that reach it, by their names on the phone or as the text that they type.
class KeyCatcher : public QWidget
{
public:
    QString take()
    {
        QCoreApplication::processEvents();
        return std::exchange(m_keys, {}).trimmed();
    }

protected:
    void keyPressEvent(QKeyEvent *event) override { keep(" +", event); }
    void keyReleaseEvent(QKeyEvent *event) override { keep(" -", event); }

private:
    void keep(const char *sign, QKeyEvent *event)
    {
        m_keys += sign + (event->text().isEmpty() ? PhoneKey::name(event->key()) : event->text());
    }

    QString m_keys;
};

class KeyMapTest : public TestCase
{
    Q_OBJECT

private slots:
    void mapsPcKeys()
    {
        // A key, its modifiers and text, and the key of the phone; letters and digits are typed.
        constexpr auto None = Qt::NoModifier, Shift = Qt::ShiftModifier, Alt = Qt::AltModifier;
        const QList<std::tuple<Qt::Key, Qt::KeyboardModifiers, QString, QString>> keys
            = {{Qt::Key_F1, None, "", "Soft1"},
               {Qt::Key_F1, Shift, "", "F1"},
               {Qt::Key_5, Alt, "5", "5"},
               {Qt::Key_Asterisk, Alt | Shift, "*", "Star"},
               {Qt::Key_NumberSign, Alt, "#", "Hash"},
               {Qt::Key_Enter, Qt::KeypadModifier, "\r", "Ok"},
               {Qt::Key_Escape, None, "\x1b", "Esc"},
               {Qt::Key_A, None, "a", "a"},
               {Qt::Key_5, None, "5", "5"}};
        const KeyMap map(m_dir->filePath("keymap.ini"));
        KeyCatcher window;
        QVERIFY(PhoneKeys::showAndActivate(&window));
        for (const auto &[key, modifiers, text, phoneKey] : keys) {
            pc(true, key, modifiers, text);
            pc(false, key, modifiers, text);
            QCOMPARE(window.take(), '+' + phoneKey + " -" + phoneKey);
        }
        // A release belongs to its press, whatever is held by then.
        pc(true, Qt::Key_F2, Qt::ShiftModifier);
        pc(false, Qt::Key_F2);
        QCOMPARE(window.take(), QString("+F2 -F2"));
        // Of the keys that the PC repeats only those of the keypad pass.
        for (const Qt::Key key : {Qt::Key_F1, Qt::Key_Down}) {
            pc(true, key);
            pc(true, key, Qt::NoModifier, QString(), true);
        }
        QCOMPARE(window.take(), QString("+Soft1 +Down +Down"));
    }

private:
    static void pc(bool down, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
                   const QString &text = QString(), bool repeated = false)
    {
        QTest::simulateEvent(QGuiApplication::focusWindow(), down, key, modifiers, text, repeated);
    }
};

PHONE_TEST_MAIN(KeyMapTest)
#include "tst_keymap.moc"
