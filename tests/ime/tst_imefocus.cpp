#include "imetest.h"

#include "keyinjection.h"

#include <QIntValidator>
#include <QPointer>
#include <QRegExpValidator>
#include <QSignalSpy>

/// What is pending and what becomes of it: with time, the focus, other keys, limits of the field, and screens that
/// act while they hear of a text.
class TestImeFocus : public ImeTest
{
    Q_OBJECT

private slots:
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

    void timeCommitsWhatIsPending()
    {
        type("23");
        QCOMPARE(edit().text() + '|' + edit().pending, QString("a|d"));
        setTapTime(20);
        m_phone->second.setFocus();
        QCOMPARE(edit().text(), QString("ad")); // which leaving does, too
        type("2");
        QTRY_COMPARE(m_phone->second.text(), QString("a"));
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
        // Four are Korean. There is room again after an erasure; a vowel may need another syllable.
        for (const auto &[keys, text] : {std::pair(QString("2333456"), "af"),
                                         {"234<5", "aj"},
                                         {"k41249921", "각처"},
                                         {"k412>4100", "가김"},
                                         {"k412>410012", "가김"},
                                         {"k412>412788", "가값"}}) {
            const bool korean = keys.startsWith('k');
            setLanguage(korean ? "ko_KR" : "en_US");
            setMode(korean ? IMEFirst : IMESmall);
            edit().setFocus();
            edit().clear();
            edit().setMaxLength(2);
            for (const QChar key : keys.mid(korean)) {
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

    void leavesOtherWidgetsAlone()
    {
        KeyCounter &other = m_phone->other;
        other.setFocus();
        type("25#*<");
        QCOMPARE(other.presses.size(), 5);
        QCOMPARE(other.releases, other.presses);
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
};

PHONE_TEST_MAIN(TestImeFocus)
#include "tst_imefocus.moc"
