#include "ime.h"

#include "keyinjection.h"
#include "phonekey.h"
#include "phonekeys.h"
#include "testcase.h"
#include "testmain.h"
#include "testphone.h"

#include <QInputMethodEvent>
#include <QIntValidator>
#include <QLineEdit>
#include <QRandomGenerator>
#include <QRegExpValidator>
#include <QSettings>
#include <QSignalSpy>

/// A line edit that keeps what it was shown as pending.
class Field : public QLineEdit
{
public:
    using QLineEdit::QLineEdit;

    QString pending;

protected:
    void inputMethodEvent(QInputMethodEvent *event) override
    {
        pending = event->preeditString();
        QLineEdit::inputMethodEvent(event);
    }
};

/// A phone with a window of two line edits and something else that takes the focus.
struct ImePhone
{
    TestPhone phone;
    QWidget window;
    Field first{&window}, second{&window};
    KeyCounter other{&window};
};

/// What the twelve keys write, by mode and language, and what becomes of what is pending: with time, the focus,
/// other keys, limits of the field, and screens that act while they hear of a text. Each test begins in the first
/// field with small letters. A tapped letter waits for the next key for as long as a test may take.
class ImeTest : public TestCase
{
    Q_OBJECT

    void setUp() override
    {
        m_phone.reset(new ImePhone);
        setTapTime(600000);
        m_phone->window.setGeometry(0, 26, 384, 134);
        m_phone->second.move(0, 40);
        m_phone->other.setFocusPolicy(Qt::StrongFocus);
        QVERIFY(PhoneKeys::showAndActivate(&m_phone->window));
        edit().setFocus();
        setMode(IMESmall);
    }
    void tearDown() override { m_phone.reset(); }

private slots:
    void offersLetters()
    {
        // A language, a mode, and each key with what it offers.
        const QList<std::tuple<const char *, IMEStatus, QString>> offers = {
            {"en_US", IMESmall,
             "1.,-'&()?!\"1|2abc2|3def3|4ghi4|5jkl5|6mno6|7pqrs7|8tuv8|9wxyz9|0 0+|*.@-_/:*#+,;=%"},
            {"de_DE", IMECapital, "2ABCÄ2|7PQRS7|8TUVÜ8"},
            {"es_ES", IMESmall, "1.,-'&()?!\"1¿¡|2abcá2|3defé3|4ghií4|6mnoñó6|8tuvúü8"},
            {"it_IT", IMECapital, "2ABCÀ2|3DEFÈÉ3|4GHIÌ4|6MNOÒ6|8TUVÙ8"},
            {"ru_RU", IMEFirst, "2абвгabc2|3деёжзdef3|4ийклghi4|7фхцчpqrs7|9ьэюяwxyz9|0 0+"},
            {"ru_RU", IMECapital, "3ДЕЁЖЗDEF3|5МНОПJKL5|6РСТУMNO6|8ШЩЪЫTUV8"},
            {"tr_TR", IMESmall, "2abcç2|4ghiğı4|6mnoö6|7pqrsş7|8tuvü8"},
            {"ko_KR", IMEFirst, "4ㄱㅋㄲ|5ㄴㄹ|6ㄷㅌㄸ|7ㅂㅍㅃ|8ㅅㅎㅆ|9ㅈㅊㅉ|0ㅇㅁ|* .@-_/:*#+,;=%"},
            {"ko_KR", IMEDigit, "11|22|00|*.*+,-/:"},
            {"de_DE", IMENumeric, "11|99|00|**|##"},
        };
        for (const auto &[language, mode, keys] : offers) {
            setLanguage(language);
            setMode(mode);
            for (const QString &entry : keys.split('|')) {
                const QString offered = entry.mid(1);
                edit().clear();
                for (int taps = 1; taps <= offered.size(); ++taps)
                    type(QString(taps, entry.at(0)) + '>');
                // A key that offers one character writes it at each press; others begin anew behind their last.
                QCOMPARE(edit().text(), offered);
                edit().clear();
                type(QString(offered.size() + 1, entry.at(0)) + '>');
                QCOMPARE(edit().text(), offered.left(1).repeated(offered.size() == 1 ? 2 : 1));
            }
        }
    }

    void writes()
    {
        // In small letters, or in Korean, and what they show.
        const QList<std::tuple<QString, QString, const char *>> writings
            = {{"22>2>", "ba", "two letters of one key"},
               {"2333<", "a", "erases the pending letter"},
               {"23>4<<", "a", "erases what is written"},
               {"k4100992155832>", "김철수", "three syllables"},
               {"k88124>4223>", "학교", "an arrow ends the tapping"},
               {"k61255412>", "달가", "half of two consonants moves on"},
               {"k41278832>", "갑후", "a cluster, then another tap"},
               {"k41278888>", "값", "a cluster"},
               {"k42312>0321>8831>423121>", "과위희괘", "compound vowels"},
               {"k0121>01221>0211>02211>0231>03221>032211>0322>", "애얘에예외워웨유", "vowels of many strokes"},
               {"k4124<<12>", "가", "erases to the syllable before"},
               {"k412#2#2#2#412>*>4>", "가aA2가 ㄱ", "Korean between the others"},
               {"k412425>", "각ㆍㄴ", "a dot alone stays"}};
        for (const auto &[keys, text, what] : writings) {
            type(begin(keys));
            // What is pending goes with the focus.
            m_phone->other.setFocus();
            QVERIFY2(edit().text() == text, what);
            QCOMPARE(edit().pending, QString());
        }
    }

    void holdingZeroWritesPlus()
    {
        setMode(IMENumeric);
        type("#"); // which changes no mode here
        PhoneKeys::press(Qt::Key_0);
        QTRY_COMPARE(edit().text(), QString("#+"));
        PhoneKeys::release(Qt::Key_0);
        PhoneKeys::press(Qt::Key_0);
        type("1");
        PhoneKeys::release(Qt::Key_0);
        QCOMPARE(edit().text(), QString("#+01"));
    }

    /// Random strokes and consonants: only Korean comes of them, never more than fits, and Backspace takes all
    /// away.
    void staysKorean()
    {
        writeKorean();
        QRandomGenerator random(7);
        const QString keys = QString("0123456789").repeated(2) + "<s>";
        for (const int maximum : {1, 2, 40}) {
            edit().setMaxLength(maximum);
            for (int i = 0; i < 300; ++i) {
                type(keys.at(random.bounded(keys.size())));
                for (const QChar c : shown())
                    QVERIFY2(c.script() == QChar::Script_Hangul, qPrintable(shown()));
                // A vowel's dots are on their way into the syllable.
                QVERIFY2(shown().count(u'ㆍ') > 0 || shown().size() <= maximum, qPrintable(shown()));
            }
            type(">");
            QVERIFY(edit().text().size() <= maximum);
            type(QString(maximum, '<'));
            QCOMPARE(edit().text(), QString());
        }
    }

    void theStatusFollowsTheFocus()
    {
        Field &second = m_phone->second;
        QSignalSpy changes(core().ime(), &IME::changedIMEStatus);
        const auto last = [&] { return changes.isEmpty() ? -1 : changes.takeLast().first().toInt(); };
        m_phone->other.setFocus();
        QCOMPARE(last(), int(IMEOff));
        second.setFocus();
        QCOMPARE(last(), int(IMESmall));
        second.setReadOnly(true);
        QCOMPARE(last(), int(IMEOff));
        type("22");
        QCOMPARE(second.text(), QString());
        second.setReadOnly(false);
        QCOMPARE(last(), int(IMESmall));
        core().setIMEStatus(IMESmall, false);
        QCOMPARE(last(), -1);
        core().setIMEStatus(IMESmall, true);
        QCOMPARE(last(), int(IMESmall));
    }

    void fieldsKeepTheModeUntilAScreenSetsOne()
    {
        type("#");
        m_phone->second.setFocus();
        type("2>");
        m_phone->other.setFocus();
        core().setIMEStatus(IMEDigit, false);
        core().setIMEStatus(IMEOff, true);
        m_phone->second.setFocus();
        type("2");
        QCOMPARE(m_phone->second.text(), QString("A2"));
    }

    void aSyllableGoesOnAfterAPause()
    {
        writeKorean();
        setTapTime(20);
        const auto typed = [this](const char *keys) {
            type(keys);
            return QTest::qWaitFor([this] { return edit().pending.isEmpty(); }) ? edit().text() + ' ' : QString();
        };
        // The same consonant after a pause is another one.
        QString written;
        for (const char *keys : {"4", "1", "00", "4", "4", "<"})
            written += typed(keys);
        QCOMPARE(written, QString("ㄱ 기 김 김ㄱ 김ㄱㄱ 김ㄱ "));
        // Where the cursor was moved or a screen wrote, nothing goes on.
        edit().setText("김");
        QCOMPARE(typed("4"), QString("김ㄱ "));
        edit().setCursorPosition(0);
        QCOMPARE(typed("12"), QString("ㅏ김ㄱ "));
    }

    void theEraseKeyTakesOneLetter()
    {
        const auto erase = [this] {
            // As the bar of soft keys does it.
            type("s");
            injectKeyStroke(Qt::Key_Backspace);
            return shown();
        };
        type("2>2");
        QCOMPARE(erase(), QString("a"));
        writeKorean();
        type("4100");
        QCOMPARE(erase(), QString("a기"));
        type("00>");
        QCOMPARE(edit().text(), QString("a김"));
        QCOMPARE(erase(), QString("a"));
    }

    void otherKeysCommit()
    {
        for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Return, Qt::Key_Context4, Qt::Key_F7}) {
            edit().clear();
            type("23");
            // A keyboard that reaches the keypad by Alt does not end a tapping with it.
            PhoneKeys::click(Qt::Key_Alt);
            type("3");
            QCOMPARE(edit().text(), QString("a"));
            PhoneKeys::press(key);
            QCOMPARE(edit().text(), QString("ae"));
            PhoneKeys::release(key);
        }
    }

    void aKeyboardTypesAsItIs()
    {
        setLanguage("ko_KR");
        for (const IMEStatus mode : {IMEFirst, IMESmall, IMECapital, IMEDigit, IMENumeric}) {
            setMode(mode);
            edit().clear();
            type("4");
            const QString byKeypad = shown();
            PhoneKey::postText("2*a#ßㅎ");
            QTRY_COMPARE(edit().text(), byKeypad + "2*a#ßㅎ");
        }
    }

    void leavingCommits()
    {
        m_phone->second.setFocus();
        type("4");
        QWidget popup;
        QVERIFY(PhoneKeys::showAndActivate(&popup));
        QCOMPARE(m_phone->second.text(), QString("g"));
        QCOMPARE(core().ime()->imeStatus(), int(IMEOff));
        popup.hide();
        // The edit hears of it before it says that the editing is over.
        QVERIFY(PhoneKeys::showAndActivate(&m_phone->window));
        edit().setFocus();
        QString finished;
        connect(&edit(), &QLineEdit::editingFinished, &popup, [&] { finished += edit().text(); });
        type("99");
        m_phone->second.setFocus();
        QCOMPARE(finished, QString("x"));
    }

    void modesAndLanguagesCommit()
    {
        type("2");
        setMode(IMESmall); // which it has already
        type("2");
        QCOMPARE(edit().pending, QString("b"));
        type("#2#");
        QCOMPARE(edit().text(), QString("bA"));
        writeKorean();
        type("41");
        setLanguage("ru_RU");
        type("22");
        QCOMPARE(edit().text() + '|' + edit().pending, QString("bA기|б"));
    }

    void respectsTheLength()
    {
        edit().setMaxLength(2);
        // There is room again after an erasure; a vowel may need another syllable.
        for (const auto &[keys, text] : {std::pair(QString("2333456"), "af"),
                                         {"234<5", "aj"},
                                         {"k41249921", "각처"},
                                         {"k412>4100", "가김"},
                                         {"k412>410012", "가김"},
                                         {"k412>412788", "가값"}}) {
            for (const QChar key : begin(keys)) {
                type(key);
                QVERIFY(edit().text().size() <= 2);
            }
            m_phone->other.setFocus();
            QCOMPARE(edit().text(), QString(text));
        }
        // What is selected makes room.
        edit().setFocus();
        edit().selectAll();
        setMode(IMESmall);
        type("23>");
        QCOMPARE(edit().text(), QString("ad"));
    }

    void validatorsHold()
    {
        edit().setValidator(new QRegExpValidator(QRegExp("(\\d{1,3}\\.){3}\\d{1,3}"), &edit()));
        setMode(IMEDigit);
        type("192*168*0*7**");
        setMode(IMESmall);
        type("2>");
        QCOMPARE(shown(), QString("192.168.0.7"));
        // A syllable that was refused is not taken up again.
        writeKorean();
        type("41s00>");
        QCOMPARE(edit().text(), QString("192.168.0.7"));
        m_phone->second.setValidator(new QIntValidator(10000, 65535, &m_phone->second));
        m_phone->second.setFocus();
        setMode(IMENumeric);
        type("#506*0+1234");
        QCOMPARE(m_phone->second.text(), QString("50601"));
    }

    void aScreensOwnTextWins()
    {
        edit().setText("hello");
        type("2");
        edit().setText("x");
        // The pending letter goes with the text that it was written into.
        QTRY_COMPARE(edit().pending, QString());
        type("3>");
        QCOMPARE(edit().text(), QString("xd"));
    }

    /// A list takes the focus from a text that has grown too long, and cuts it.
    void aScreenCutsTheText()
    {
        connect(&edit(), &QLineEdit::textChanged, this, [this](const QString &text) {
            if (text.size() <= 2)
                return;
            const IMEStatus status = core().getIMEStatus();
            m_phone->other.setFocus();
            core().setIMEStatus(status, true);
            edit().setText(text.left(2));
            edit().setFocus();
        });
        writeKorean();
        type("4100123415>");
        QCOMPARE(edit().text().size(), 2);
        QVERIFY(edit().hasFocus());
    }

    /// A screen goes while its edit is written into: by a key that commits, by time, by leaving; or it is deleted.
    void aScreenGoes()
    {
        setTapTime(20);
        for (const char *keys : {"2>", "23", "2#", "2", ""}) {
            const QPointer<QLineEdit> doomed(new QLineEdit(&m_phone->window));
            doomed->show();
            doomed->setFocus();
            connect(doomed, &QLineEdit::textChanged, this, [doomed] {
                doomed->hide();
                doomed->deleteLater();
            });
            type(*keys ? keys : "2");
            if (!*keys)
                delete doomed;
            QTRY_VERIFY(!doomed);
        }
        edit().setFocus();
        setMode(IMEDigit);
        type("3");
        QCOMPARE(edit().text(), QString("3"));
    }

    void aReleaseStaysWithItsPress()
    {
        KeyCounter popup;
        setMode(IMEDigit);
        connect(&edit(), &QLineEdit::textChanged, this, [&] { QVERIFY(PhoneKeys::showAndActivate(&popup)); });
        PhoneKeys::press(Qt::Key_5);
        QCOMPARE(edit().text(), QString("5"));
        PhoneKeys::release(Qt::Key_5);
        QVERIFY(popup.releases.isEmpty());
        PhoneKeys::click(Qt::Key_5);
        QCOMPARE(popup.presses.size() + popup.releases.size(), 2);
    }

    void pictures()
    {
        QFont font = edit().font();
        font.setPointSize(20);
        for (Field *field : {&m_phone->first, &m_phone->second})
            field->setFont(font);
        type("#55##4446");
        m_phone->second.setFocus();
        writeKorean();
        const QImage before = TestScreen::picture();
        type("410099215582");
        TestScreen::shot("input-korean");
        QVERIFY(TestScreen::picture() != before);
    }

private:
    Field &edit() { return m_phone->first; }
    QString shown() { return edit().text() + edit().pending; }
    Core &core() { return m_phone->phone.core; }
    void setMode(int mode) { core().setIMEStatus(static_cast<IMEStatus>(mode), true); }
    void setLanguage(const QString &name) { core().setLanguageName(name); }
    /// Prepares an empty field for keys, in Korean those behind a "k", and returns them.
    QString begin(const QString &keys)
    {
        const bool korean = keys.startsWith('k');
        setLanguage(korean ? "ko_KR" : "en_US");
        edit().setFocus();
        setMode(korean ? IMEFirst : IMESmall);
        edit().clear();
        return keys.mid(korean);
    }
    void writeKorean()
    {
        setLanguage("ko_KR");
        setMode(IMEFirst);
    }
    void setTapTime(int ms)
    {
        QSettings(core().configFileName(SystemConfig), QSettings::IniFormat).setValue("Input/MultiTapTime", ms);
    }
    /// Keys of the keypad: digits, '*', '#', '<' for Backspace, '>' and 'v' for arrows, 's' for the third soft key.
    static void type(const QString &keys)
    {
        static const QHash<QChar, int> others{{'#', PhoneKey::Hash},
                                              {'<', Qt::Key_Backspace},
                                              {'>', Qt::Key_Right},
                                              {'v', Qt::Key_Down},
                                              {'s', Qt::Key_Context3}};
        for (const QChar c : keys)
            PhoneKeys::click(Qt::Key(others.value(c, c.unicode())));
    }

    std::unique_ptr<ImePhone> m_phone;
};

PHONE_TEST_MAIN(ImeTest)
#include "tst_ime.moc"
