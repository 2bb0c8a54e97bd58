#include "keymap.h"
#include "phonekey.h"
#include "phonekeys.h"
#include "testcase.h"
#include "testmain.h"

#include <QFile>
#include <QKeyEvent>
#include <QTemporaryDir>

/// Keeps the keys that reach it.
class KeyCatcher : public QWidget
{
public:
    QStringList keys;

protected:
    void keyPressEvent(QKeyEvent *event) override { keep("+", event); }
    void keyReleaseEvent(QKeyEvent *event) override { keep("-", event); }

private:
    void keep(const QString &sign, QKeyEvent *event)
    {
        const QString name = PhoneKey::name(event->key());
        keys.append(sign + (name.isEmpty() || !event->text().isEmpty() ? event->text() : name));
    }
};

class KeyMapTest : public TestCase
{
    Q_OBJECT

    void setUp() override { m_folder.reset(new QTemporaryDir); }

private slots:
    void mapsPcKeys_data();
    void mapsPcKeys();
    void aReleaseBelongsToItsPress();
    void onlyKeypadRepeatsPass();
    void unknownLinesAreLeftOut();
    void phoneKeysAreNeverMapped();
    void namesAndCodesAgree();

private:
    QString path() const { return m_folder->filePath("keymap.ini"); }

    QScopedPointer<QTemporaryDir> m_folder;
};

static void typePc(Qt::Key key, Qt::KeyboardModifiers modifiers, const QString &text = QString())
{
    QWindow *window = QGuiApplication::focusWindow();
    QTest::simulateEvent(window, true, key, modifiers, text, false);
    QTest::simulateEvent(window, false, key, modifiers, text, false);
    QCoreApplication::processEvents();
}

void KeyMapTest::mapsPcKeys_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("phoneKey");
    const int none = Qt::NoModifier, shift = Qt::ShiftModifier, alt = Qt::AltModifier;
    QTest::newRow("F1") << int(Qt::Key_F1) << none << ""
                        << "Soft1";
    QTest::newRow("Shift+F1") << int(Qt::Key_F1) << shift << ""
                              << "F1";
    QTest::newRow("Shift+F10") << int(Qt::Key_F10) << shift << ""
                               << "F10";
    QTest::newRow("Alt+5") << int(Qt::Key_5) << alt << "5"
                           << "5";
    QTest::newRow("Alt+*, which needs Shift") << int(Qt::Key_Asterisk) << (alt | shift) << "*"
                                              << "Star";
    QTest::newRow("Alt+#") << int(Qt::Key_NumberSign) << alt << "#"
                           << "Hash";
    QTest::newRow("Enter of the number block") << int(Qt::Key_Enter) << int(Qt::KeypadModifier) << "\r"
                                               << "Ok";
    QTest::newRow("Escape") << int(Qt::Key_Escape) << none << "\x1b"
                            << "Esc";
    QTest::newRow("a letter is typed") << int(Qt::Key_A) << none << "a"
                                       << "a";
    QTest::newRow("a digit is typed") << int(Qt::Key_5) << none << "5"
                                      << "5";
}

void KeyMapTest::mapsPcKeys()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(QString, text);
    QFETCH(QString, phoneKey);
    KeyMap map(path());
    KeyCatcher window;
    QVERIFY(PhoneKeys::showAndActivate(&window));
    typePc(static_cast<Qt::Key>(key), Qt::KeyboardModifiers(modifiers), text);
    QCOMPARE(window.keys, QStringList({"+" + phoneKey, "-" + phoneKey}));
}

void KeyMapTest::aReleaseBelongsToItsPress()
{
    KeyMap map(path());
    KeyCatcher window;
    QVERIFY(PhoneKeys::showAndActivate(&window));
    QWindow *focus = QGuiApplication::focusWindow();
    QTest::simulateEvent(focus, true, Qt::Key_F2, Qt::ShiftModifier, QString(), false);
    QTest::simulateEvent(focus, false, Qt::Key_F2, Qt::NoModifier, QString(), false);
    QCoreApplication::processEvents();
    QCOMPARE(window.keys, QStringList({"+F2", "-F2"}));
}

void KeyMapTest::onlyKeypadRepeatsPass()
{
    KeyMap map(path());
    KeyCatcher window;
    QVERIFY(PhoneKeys::showAndActivate(&window));
    for (const Qt::Key key : {Qt::Key_F1, Qt::Key_Down}) {
        QTest::simulateEvent(QGuiApplication::focusWindow(), true, key, Qt::NoModifier, QString(), false);
        QTest::simulateEvent(QGuiApplication::focusWindow(), true, key, Qt::NoModifier, QString(), true);
    }
    QCoreApplication::processEvents();
    QCOMPARE(window.keys, QStringList({"+Soft1", "+Down", "+Down"}));
}

void KeyMapTest::unknownLinesAreLeftOut()
{
    QFile file(path());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[Keys]\nA=Ok\nB=NoSuchKey\nNoSuchKey=Ok\n");
    file.close();
    expectWarning("B=NoSuchKey");
    expectWarning("NoSuchKey=Ok");
    const KeyMap map(path());
    QCOMPARE(map.names(), (QMap<QString, QString>{{"A", "Ok"}}));
}

void KeyMapTest::phoneKeysAreNeverMapped()
{
    KeyMap map(path());
    KeyCatcher window;
    QVERIFY(PhoneKeys::showAndActivate(&window));
    PhoneKey::post(Qt::Key_F1, true);
    PhoneKey::postText("x");
    QCoreApplication::processEvents();
    QTRY_COMPARE(window.keys, QStringList({"+F1", "+x", "-x"}));
}

void KeyMapTest::namesAndCodesAgree()
{
    const KeyMap map(path());
    const auto names = map.names();
    QCOMPARE(names.size(), 37);
    for (const QString &name : names)
        QCOMPARE(PhoneKey::name(PhoneKey::code(name)), name);
    QCOMPARE(PhoneKey::code("Hash"), 223);
    QCOMPARE(PhoneKey::code("hash"), 0);
    QCOMPARE(PhoneKey::name(Qt::Key_A), QString());
}

PHONE_TEST_MAIN(KeyMapTest)
#include "tst_keymap.moc"
