#include "imephone.h"
#include "testcase.h"
#include "testmain.h"

#include "keyinjection.h"
#include "phonekey.h"
#include "phonekeys.h"

#include <QIntValidator>
#include <QRegExpValidator>
#include <QSignalSpy>

#include <memory>

/// What is pending and what becomes of it: with time, the focus, other keys, limits of the field, and screens that
/// act while they hear of a text.
class TestImeFocus : public TestCase
{
    Q_OBJECT

    void setUp() override
    {
        m_phone.reset(new ImePhone);
        QVERIFY(m_phone->show());
        setMode(IMESmall);
    }
    void tearDown() override { m_phone.reset(); }

private slots:
    void theStatusFollowsTheFocus();
    void fieldsKeepTheModeUntilAScreenSetsOne();
    void pendingLettersShow();
    void timeCommits();
    void aSyllableGoesOnAfterAPause();
    void theEraseKeyTakesOneLetter();
    void otherKeysCommit_data();
    void otherKeysCommit();
    void aKeyboardTypesAsItIs();
    void leavingCommits();
    void aModeCommits();
    void anotherLanguageCommits();
    void respectsTheLength_data();
    void respectsTheLength();
    void replacesASelection();
    void validatorsHold();
    void overwritesAMaskedField();
    void aScreensOwnTextWins();
    void surviveWhatScreensDo();
    void aReleaseStaysWithItsPress();
    void leavesOtherWidgetsAlone();
    void pictures();

private:
    Field &edit() { return m_phone->first; }
    IME *ime() { return m_phone->phone.core.ime(); }
    void setMode(IMEStatus mode) { m_phone->phone.core.setIMEStatus(mode, true); }
    void writeKorean()
    {
        m_phone->setLanguage("ko_KR");
        setMode(IMEFirst);
    }

    std::unique_ptr<ImePhone> m_phone;
};

void TestImeFocus::theStatusFollowsTheFocus()
{
    QSignalSpy changes(ime(), &IME::changedIMEStatus);
    const auto last = [&] { return changes.isEmpty() ? -1 : changes.takeLast().first().toInt(); };
    m_phone->other.setFocus();
    QCOMPARE(last(), int(IMEOff));
    QCOMPARE(m_phone->phone.core.getIMEStatus(), IMEOff);
    m_phone->second.setFocus();
    QCOMPARE(last(), int(IMESmall));
    m_phone->second.setReadOnly(true);
    QCOMPARE(last(), int(IMEOff));
    ImePhone::type("22");
    QCOMPARE(m_phone->second.text(), QString());
    m_phone->second.setReadOnly(false);
    QCOMPARE(last(), int(IMESmall));
    m_phone->phone.core.setIMEStatus(IMESmall, false);
    QCOMPARE(last(), -1);
    m_phone->phone.core.setIMEStatus(IMESmall, true);
    QCOMPARE(last(), int(IMESmall));
}

void TestImeFocus::fieldsKeepTheModeUntilAScreenSetsOne()
{
    ImePhone::type("#");
    m_phone->second.setFocus();
    ImePhone::type("2>");
    QCOMPARE(m_phone->second.text(), QString("A"));
    m_phone->other.setFocus();
    m_phone->phone.core.setIMEStatus(IMEDigit, false);
    m_phone->phone.core.setIMEStatus(IMEOff, true);
    m_phone->second.setFocus();
    ImePhone::type("2");
    QCOMPARE(m_phone->second.text(), QString("A2"));
}

void TestImeFocus::pendingLettersShow()
{
    ImePhone::type("2");
    QCOMPARE(edit().text(), QString());
    QCOMPARE(edit().pending, QString("a"));
    QVERIFY(edit().underlined);
    ImePhone::type("2");
    QCOMPARE(edit().pending, QString("b"));
    ImePhone::type("3");
    QCOMPARE(edit().text(), QString("b"));
    QCOMPARE(edit().pending, QString("d"));
}

void TestImeFocus::timeCommits()
{
    m_phone->setTapTime(20);
    ImePhone::type("222");
    QTRY_COMPARE(edit().text(), QString("c"));
    QCOMPARE(edit().pending, QString());
    ImePhone::type("2");
    QTRY_COMPARE(edit().text(), QString("ca"));
}

void TestImeFocus::aSyllableGoesOnAfterAPause()
{
    writeKorean();
    m_phone->setTapTime(20);
    QString written;
    for (const char *keys : {"4", "1", "00", "4", "4", "<"}) {
        ImePhone::type(keys);
        QTRY_COMPARE(edit().pending, QString());
        written += edit().text() + ' ';
    }
    // The same consonant after a pause is another one.
    QCOMPARE(written, QString("ㄱ 기 김 김ㄱ 김ㄱㄱ 김ㄱ "));
    // Where the cursor was moved or a screen wrote, nothing goes on.
    edit().setText("김");
    ImePhone::type("4");
    QTRY_COMPARE(edit().text(), QString("김ㄱ"));
    edit().setCursorPosition(0);
    ImePhone::type("12");
    QTRY_COMPARE(edit().text(), QString("ㅏ김ㄱ"));
}

void TestImeFocus::theEraseKeyTakesOneLetter()
{
    const auto eraseKey = [] {
        // As the bar of soft keys does it.
        ImePhone::type("s");
        injectKeyStroke(Qt::Key_Backspace);
        return true;
    };
    ImePhone::type("2>2");
    QVERIFY(eraseKey());
    QCOMPARE(edit().text() + edit().pending, QString("a"));
    QVERIFY(eraseKey());
    QCOMPARE(edit().text() + edit().pending, QString());
    writeKorean();
    ImePhone::type("4100");
    QVERIFY(eraseKey());
    QCOMPARE(edit().pending, QString("기"));
    ImePhone::type("00>");
    QCOMPARE(edit().text(), QString("김"));
    QVERIFY(eraseKey());
    QCOMPARE(edit().text(), QString());
}

void TestImeFocus::otherKeysCommit_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("arrow") << int(Qt::Key_Down);
    QTest::newRow("enter") << int(Qt::Key_Return);
    QTest::newRow("soft key") << int(Qt::Key_Context4);
    QTest::newRow("function key") << int(Qt::Key_F7);
}

void TestImeFocus::otherKeysCommit()
{
    QFETCH(int, key);
    ImePhone::type("23");
    // A keyboard that reaches the keypad by Alt does not end a tapping with it.
    PhoneKeys::click(Qt::Key_Alt);
    ImePhone::type("3");
    QCOMPARE(edit().text(), QString("a"));
    PhoneKeys::press(Qt::Key(key));
    QCOMPARE(edit().text(), QString("ae"));
    PhoneKeys::release(Qt::Key(key));
}

void TestImeFocus::aKeyboardTypesAsItIs()
{
    for (const IMEStatus mode : {IMEFirst, IMESmall, IMECapital, IMEDigit, IMENumeric}) {
        m_phone->setLanguage("ko_KR");
        setMode(mode);
        edit().clear();
        ImePhone::type("4");
        const QString byKeypad = edit().text() + edit().pending;
        PhoneKey::postText("2*a#ßㅎ");
        QTRY_COMPARE(edit().text(), byKeypad + "2*a#ßㅎ");
    }
}

void TestImeFocus::leavingCommits()
{
    ImePhone::type("2");
    m_phone->other.setFocus(Qt::NoFocusReason);
    QCOMPARE(edit().text(), QString("a"));
    edit().setFocus();
    ImePhone::type("33");
    m_phone->second.setFocus();
    QCOMPARE(edit().text(), QString("ae"));
    ImePhone::type("4");
    QWidget popup;
    QVERIFY(PhoneKeys::showAndActivate(&popup));
    QCOMPARE(m_phone->second.text(), QString("g"));
    QCOMPARE(ime()->imeStatus(), int(IMEOff));
    popup.hide();
    // The edit hears of it before it says that the editing is over.
    QVERIFY(m_phone->show());
    connect(&edit(), &QLineEdit::editingFinished, this, [this] { QCOMPARE(edit().text(), QString("aex")); });
    ImePhone::type("99");
    QSignalSpy finished(&edit(), &QLineEdit::editingFinished);
    m_phone->second.setFocus();
    QCOMPARE(finished.size(), 1);
}

void TestImeFocus::aModeCommits()
{
    ImePhone::type("2");
    setMode(IMESmall);
    ImePhone::type("2");
    QCOMPARE(edit().pending, QString("b"));
    setMode(IMECapital);
    QCOMPARE(edit().text(), QString("b"));
    ImePhone::type("2#");
    QCOMPARE(edit().text(), QString("bA"));
}

void TestImeFocus::anotherLanguageCommits()
{
    writeKorean();
    ImePhone::type("41");
    m_phone->setLanguage("ru_RU");
    ImePhone::type("22");
    QCOMPARE(edit().text(), QString("기"));
    QCOMPARE(edit().pending, QString("б"));
}

void TestImeFocus::respectsTheLength_data()
{
    QTest::addColumn<bool>("korean");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("text");
    QTest::newRow("letters") << false << "23456"
                             << "ad";
    QTest::newRow("taps of the last letter") << false << "2333"
                                             << "af";
    QTest::newRow("room again") << false << "234<5"
                                << "aj";
    QTest::newRow("syllables") << true << "41249921"
                               << "각처";
    QTest::newRow("the last syllable grows") << true << "412>4100"
                                             << "가김";
    QTest::newRow("a vowel that needs another syllable") << true << "412>410012"
                                                         << "가김";
    QTest::newRow("consonants that need another syllable are left out") << true
                                                                        << "412>4127"
                                                                           "88"
                                                                        << "가값";
}

void TestImeFocus::respectsTheLength()
{
    QFETCH(bool, korean);
    QFETCH(QString, keys);
    if (korean)
        writeKorean();
    edit().setMaxLength(2);
    for (const QChar key : qAsConst(keys)) {
        ImePhone::type(key);
        QVERIFY(edit().text().size() <= 2);
    }
    m_phone->other.setFocus();
    QTEST(edit().text(), "text");
}

void TestImeFocus::replacesASelection()
{
    edit().setMaxLength(3);
    edit().setText("xyz");
    edit().selectAll();
    ImePhone::type("2");
    QCOMPARE(edit().text() + edit().pending, QString("a"));
    ImePhone::type("3>");
    QCOMPARE(edit().text(), QString("ad"));
}

void TestImeFocus::validatorsHold()
{
    edit().setValidator(new QRegExpValidator(QRegExp("(\\d{1,3}\\.){3}\\d{1,3}"), &edit()));
    setMode(IMEDigit);
    ImePhone::type("192*168*0*7");
    QCOMPARE(edit().text(), QString("192.168.0.7"));
    ImePhone::type("**");
    setMode(IMESmall);
    ImePhone::type("2>");
    QCOMPARE(edit().text(), QString("192.168.0.7"));
    QCOMPARE(edit().pending, QString());
    // A syllable that was refused is not taken up again.
    writeKorean();
    ImePhone::type("41s00>");
    QCOMPARE(edit().text(), QString("192.168.0.7"));
    m_phone->second.setValidator(new QIntValidator(10000, 65535, &m_phone->second));
    m_phone->second.setFocus();
    setMode(IMENumeric);
    ImePhone::type("#506*0+1234");
    QCOMPARE(m_phone->second.text(), QString("50601"));
}

void TestImeFocus::overwritesAMaskedField()
{
    edit().setInputMask("99:99");
    edit().setText("12:34");
    edit().setCursorPosition(0);
    writeKorean();
    ImePhone::type("0945");
    QCOMPARE(edit().text(), QString("09:45"));
}

void TestImeFocus::aScreensOwnTextWins()
{
    edit().setText("hello");
    ImePhone::type("2");
    edit().setText("x");
    // The pending letter goes with the text that it was written into.
    QTRY_COMPARE(edit().pending, QString());
    ImePhone::type("3>");
    QCOMPARE(edit().text(), QString("xd"));
}

void TestImeFocus::surviveWhatScreensDo()
{
    // A list takes the focus from a text that has grown too long, and cuts it.
    connect(&edit(), &QLineEdit::textChanged, this, [this](const QString &text) {
        if (text.size() <= 2)
            return;
        const IMEStatus status = m_phone->phone.core.getIMEStatus();
        m_phone->other.setFocus();
        m_phone->phone.core.setIMEStatus(status, true);
        edit().setText(text.left(2));
        edit().setFocus();
    });
    writeKorean();
    ImePhone::type("410012"
                   "3415>");
    QCOMPARE(edit().text().size(), 2);
    QVERIFY(edit().hasFocus());
    edit().disconnect(this);

    // A screen goes while its edit is written into: by a key that commits, by time, by leaving.
    m_phone->setTapTime(20);
    setMode(IMESmall);
    for (const char *keys : {"2>", "23", "2#", "2"}) {
        auto *doomed = new QLineEdit(&m_phone->window);
        doomed->show();
        doomed->setFocus();
        const QPointer<QLineEdit> alive(doomed);
        connect(doomed, &QLineEdit::textChanged, this, [doomed] {
            doomed->hide();
            doomed->deleteLater();
        });
        ImePhone::type(keys);
        QTRY_VERIFY(!alive);
    }
    auto *gone = new QLineEdit(&m_phone->window);
    gone->show();
    gone->setFocus();
    ImePhone::type("2");
    delete gone;
    edit().clear();
    edit().setFocus();
    setMode(IMEDigit);
    ImePhone::type("3");
    QCOMPARE(edit().text(), QString("3"));
}

/// A widget that counts the keys that reach it.
class KeyCounter : public QWidget
{
public:
    int presses = 0, releases = 0;

protected:
    void keyPressEvent(QKeyEvent *) override { ++presses; }
    void keyReleaseEvent(QKeyEvent *) override { ++releases; }
};

void TestImeFocus::aReleaseStaysWithItsPress()
{
    KeyCounter popup;
    setMode(IMEDigit);
    connect(&edit(), &QLineEdit::textChanged, this, [&] { QVERIFY(PhoneKeys::showAndActivate(&popup)); });
    PhoneKeys::press(Qt::Key_5);
    QCOMPARE(edit().text(), QString("5"));
    PhoneKeys::release(Qt::Key_5);
    QCOMPARE(popup.releases, 0);
    PhoneKeys::click(Qt::Key_5);
    QCOMPARE(popup.presses, 1);
    QCOMPARE(popup.releases, 1);
}

void TestImeFocus::leavesOtherWidgetsAlone()
{
    KeyCounter counter;
    counter.setParent(&m_phone->window);
    counter.setFocusPolicy(Qt::StrongFocus);
    counter.show();
    counter.setFocus();
    ImePhone::type("25#*<");
    QCOMPARE(counter.presses, 5);
    QCOMPARE(counter.releases, 5);
    edit().setFocus();
    counter.presses = 0;
    ImePhone::type("2<<");
    QCOMPARE(counter.presses, 0);
}

void TestImeFocus::pictures()
{
    QFont font = edit().font();
    font.setPointSize(20);
    for (Field *field : {&m_phone->first, &m_phone->second})
        field->setFont(font);
    ImePhone::type("#55##4446");
    m_phone->second.setFocus();
    writeKorean();
    ImePhone::type("410099215582");
    TestScreen::shot("input-korean");
    m_phone->first.setFocus();
    m_phone->setLanguage("ru_RU");
    ImePhone::type("#222225>44");
    TestScreen::shot("input-letters");
}

PHONE_TEST_MAIN(TestImeFocus)
#include "tst_imefocus.moc"
