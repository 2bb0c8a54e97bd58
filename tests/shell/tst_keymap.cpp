#include "keymap.h"
#include "phonekey.h"
#include "phonekeys.h"
#include "testcase.h"
#include "testmain.h"

#include <QFile>
#include <QTemporaryDir>

/// Keeps the keys that reach it, by their names on the phone or as the text that they type.
class KeyCatcher : public QWidget
{
public:
    QString take()
    {
        QCoreApplication::processEvents();
        return std::exchange(m_keys, {}).join(' ');
    }

protected:
    void keyPressEvent(QKeyEvent *event) override { keep("+", event); }
    void keyReleaseEvent(QKeyEvent *event) override { keep("-", event); }

private:
    void keep(const QString &sign, QKeyEvent *event)
    {
        const QString name = PhoneKey::name(event->key());
        m_keys.append(sign + (name.isEmpty() || !event->text().isEmpty() ? event->text() : name));
    }

    QStringList m_keys;
};

class KeyMapTest : public TestCase
{
    Q_OBJECT

private slots:
    void mapsPcKeys()
    {
        const struct
        {
            Qt::Key key;
            Qt::KeyboardModifiers modifiers;
            QString text, phoneKey;
        } keys[] = {
            {Qt::Key_F1, Qt::NoModifier, "", "Soft1"},
            {Qt::Key_F1, Qt::ShiftModifier, "", "F1"},
            {Qt::Key_5, Qt::AltModifier, "5", "5"},
            {Qt::Key_Asterisk, Qt::AltModifier | Qt::ShiftModifier, "*", "Star"},
            {Qt::Key_NumberSign, Qt::AltModifier, "#", "Hash"},
            {Qt::Key_Enter, Qt::KeypadModifier, "\r", "Ok"},
            {Qt::Key_Escape, Qt::NoModifier, "\x1b", "Esc"},
            {Qt::Key_A, Qt::NoModifier, "a", "a"}, // letters and digits are typed
            {Qt::Key_5, Qt::NoModifier, "5", "5"},
        };
        const KeyMap map(path());
        KeyCatcher window;
        QVERIFY(PhoneKeys::showAndActivate(&window));
        for (const auto &key : keys) {
            pc(true, key.key, key.modifiers, key.text);
            pc(false, key.key, key.modifiers, key.text);
            QCOMPARE(window.take(), '+' + key.phoneKey + " -" + key.phoneKey);
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
        // Keys of the phone are never mapped.
        PhoneKey::post(Qt::Key_F1, true);
        PhoneKey::postText("x");
        QVERIFY(QTest::qWaitFor([] { return !PhoneKey::pending(); }));
        QCOMPARE(window.take(), QString("+F1 +x -x"));
    }

    void namesAndUnknownLines()
    {
        const auto names = KeyMap(path()).names();
        for (const QString &name : names)
            QCOMPARE(PhoneKey::name(PhoneKey::code(name)), name);
        QFile file(path());
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("[Keys]\nA=Ok\nB=NoSuchKey\nNoSuchKey=Ok\n");
        file.close();
        expectWarning("B=NoSuchKey");
        expectWarning("NoSuchKey=Ok");
        QCOMPARE(KeyMap(path()).names(), (QMap<QString, QString>{{"A", "Ok"}}));
        QVERIFY(file.remove());
    }

private:
    static void pc(bool down, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
                   const QString &text = QString(), bool repeated = false)
    {
        QTest::simulateEvent(QGuiApplication::focusWindow(), down, key, modifiers, text, repeated);
    }
    QString path() const { return m_folder.filePath("keymap.ini"); }

    QTemporaryDir m_folder;
};

PHONE_TEST_MAIN(KeyMapTest)
#include "tst_keymap.moc"
