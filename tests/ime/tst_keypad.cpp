#include "imephone.h"
#include "testcase.h"
#include "testmain.h"

#include "phonekey.h"
#include "phonekeys.h"

#include <QRandomGenerator>

#include <memory>

/// What the twelve keys write, by mode and language.
class TestKeypad : public TestCase
{
    Q_OBJECT

    void setUp() override
    {
        m_phone.reset(new ImePhone);
        QVERIFY(m_phone->show());
    }
    void tearDown() override { m_phone.reset(); }

private slots:
    void offersLetters_data();
    void offersLetters();
    void writes_data();
    void writes();
    void hashGoesThroughTheModes_data();
    void hashGoesThroughTheModes();
    void holdingZeroWritesPlus();
    void losesNothing_data();
    void losesNothing();
    void staysKorean();

private:
    QLineEdit &edit() { return m_phone->first; }
    void setMode(int mode) { m_phone->phone.core.setIMEStatus(static_cast<IMEStatus>(mode), true); }

    std::unique_ptr<ImePhone> m_phone;
};

void TestKeypad::offersLetters_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("mode");
    QTest::addColumn<QStringList>("keys"); // each key, then what it offers
    QTest::newRow("English") << "en_US" << int(IMESmall)
                             << QStringList({"1.,-'&()?!\"1", "2abc2", "3def3", "4ghi4", "5jkl5", "6mno6", "7pqrs7",
                                             "8tuv8", "9wxyz9", "0 0+", "*.@-_/:*#+,;=%"});
    QTest::newRow("first is small") << "en_US" << int(IMEFirst) << QStringList({"2abc2", "7pqrs7"});
    QTest::newRow("small beside Korean") << "ko_KR" << int(IMESmall) << QStringList({"2abc2", "0 0+"});
    QTest::newRow("capitals") << "en_US" << int(IMECapital) << QStringList({"2ABC2", "9WXYZ9", "1.,-'&()?!\"1"});
    QTest::newRow("German") << "de_DE" << int(IMESmall) << QStringList({"2abcä2", "6mnoö6", "7pqrsß7", "8tuvü8"});
    QTest::newRow("German capitals") << "de_DE" << int(IMECapital) << QStringList({"2ABCÄ2", "7PQRS7", "8TUVÜ8"});
    QTest::newRow("Spanish") << "es_ES" << int(IMESmall)
                             << QStringList(
                                    {"1.,-'&()?!\"1¿¡", "2abcá2", "3defé3", "4ghií4", "6mnoñó6", "8tuvúü8"});
    QTest::newRow("Italian") << "it_IT" << int(IMECapital)
                             << QStringList({"2ABCÀ2", "3DEFÈÉ3", "4GHIÌ4", "6MNOÒ6", "8TUVÙ8"});
    QTest::newRow("Russian") << "ru_RU" << int(IMESmall)
                             << QStringList({"2абвгabc2", "3деёжзdef3", "4ийклghi4", "5мнопjkl5", "6рстуmno6",
                                             "7фхцчpqrs7", "8шщъыtuv8", "9ьэюяwxyz9", "0 0+"});
    QTest::newRow("Russian capitals") << "ru_RU" << int(IMECapital) << QStringList({"3ДЕЁЖЗDEF3", "9ЬЭЮЯWXYZ9"});
    QTest::newRow("Turkish") << "tr_TR" << int(IMESmall)
                             << QStringList({"2abcç2", "4ghiğı4", "6mnoö6", "7pqrsş7", "8tuvü8"});
    QTest::newRow("Turkish capitals") << "tr_TR" << int(IMECapital) << QStringList({"4GHİĞI4", "7PQRSŞ7"});
    QTest::newRow("Korean") << "ko_KR" << int(IMEFirst)
                            << QStringList({"4ㄱㅋㄲ", "5ㄴㄹ", "6ㄷㅌㄸ", "7ㅂㅍㅃ", "8ㅅㅎㅆ", "9ㅈㅊㅉ", "0ㅇㅁ",
                                            "* .@-_/:*#+,;=%"});
    QTest::newRow("digits") << "ko_KR" << int(IMEDigit) << QStringList({"11", "22", "00", "*.*+,-/:"});
    QTest::newRow("numbers") << "de_DE" << int(IMENumeric) << QStringList({"11", "99", "00", "**", "##"});
}

void TestKeypad::offersLetters()
{
    QFETCH(QString, language);
    QFETCH(int, mode);
    QFETCH(QStringList, keys);
    m_phone->setLanguage(language);
    setMode(mode);
    for (const QString &entry : qAsConst(keys)) {
        const QString offered = entry.mid(1);
        edit().clear();
        for (int taps = 1; taps <= offered.size(); ++taps)
            ImePhone::type(QString(taps, entry.at(0)) + '>');
        // A key that offers one character writes it at each press.
        QCOMPARE(edit().text(), offered);
        if (offered.size() > 1) {
            edit().clear();
            ImePhone::type(QString(offered.size() + 1, entry.at(0)) + '>');
            QCOMPARE(edit().text(), offered.left(1));
        }
    }
}

void TestKeypad::writes_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("text");
    QTest::newRow("a name") << "en_US" << int(IMESmall) << "#55##4446>"
                            << "Kim";
    QTest::newRow("a number") << "en_US" << int(IMEDigit) << "0101234"
                              << "0101234";
    QTest::newRow("a service") << "en_US" << int(IMENumeric) << "*21*0101234#"
                               << "*21*0101234#";
    QTest::newRow("two letters of one key") << "en_US" << int(IMESmall) << "22>2>"
                                            << "ba";
    QTest::newRow("erases the pending letter") << "en_US" << int(IMESmall) << "2333<"
                                               << "a";
    QTest::newRow("erases what is written") << "en_US" << int(IMESmall) << "23>4<<"
                                            << "a";
    QTest::newRow("taps anew after erasing") << "en_US" << int(IMESmall) << "22<2>"
                                             << "a";
    QTest::newRow("erases digits") << "en_US" << int(IMEDigit) << "123<4<<"
                                   << "1";
    // ㄱ ㅣ ㅁ, ㅊ ㆍㅣ ㄹ, ㅅ ㅡㆍ
    QTest::newRow("김철수") << "ko_KR" << int(IMEFirst)
                            << "4100"
                               "992155"
                               "832>"
                            << "김철수";
    // ㅎ ㅣㆍ ㄱ, then the arrow that ends the tapping, ㄱ ㆍㆍㅡ
    QTest::newRow("학교") << "ko_KR" << int(IMEFirst) << "88124>4223>"
                          << "학교";
    QTest::newRow("a consonant moves on") << "ko_KR" << int(IMEFirst)
                                          << "4124"
                                             "12>"
                                          << "가가";
    QTest::newRow("half of two consonants moves on") << "ko_KR" << int(IMEFirst)
                                                     << "6125541"
                                                        "2>"
                                                     << "달가";
    QTest::newRow("a cluster, then another tap") << "ko_KR" << int(IMEFirst)
                                                 << "412788"
                                                    "32>"
                                                 << "갑후";
    QTest::newRow("값") << "ko_KR" << int(IMEFirst)
                        << "4127888"
                           "8>"
                        << "값";
    QTest::newRow("compound vowels") << "ko_KR" << int(IMEFirst)
                                     << "42312>"
                                        "0321>"
                                        "8831>"
                                        "423121>"
                                     << "과위희괘";
    QTest::newRow("vowels of many strokes")
        << "ko_KR" << int(IMEFirst) << "0121>01221>0211>02211>0231>03221>032211>0322>"
        << "애얘에예외워웨유";
    QTest::newRow("double consonants") << "ko_KR" << int(IMEFirst) << "44412>66612>"
                                       << "까따";
    QTest::newRow("erases letter by letter") << "ko_KR" << int(IMEFirst) << "4100<"
                                             << "기";
    QTest::newRow("erases to the syllable before") << "ko_KR" << int(IMEFirst)
                                                   << "412"
                                                      "4"
                                                      "<<12>"
                                                   << "가";
    QTest::newRow("Korean between the others") << "ko_KR" << int(IMEFirst) << "412#2#2#2#412>*>4>"
                                               << "가aA2가 ㄱ";
    QTest::newRow("a dot alone stays") << "ko_KR" << int(IMEFirst)
                                       << "4124"
                                          "2"
                                          "5>"
                                       << "각ㆍㄴ";
}

void TestKeypad::writes()
{
    QFETCH(QString, language);
    QFETCH(int, mode);
    QFETCH(QString, keys);
    m_phone->setLanguage(language);
    setMode(mode);
    ImePhone::type(keys);
    // What is pending goes with the focus.
    m_phone->other.setFocus();
    QTEST(edit().text(), "text");
    QCOMPARE(m_phone->first.pending, QString());
}

void TestKeypad::hashGoesThroughTheModes_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QList<int>>("modes");
    QTest::newRow("English") << "en_US" << QList<int>{IMESmall, IMECapital, IMEDigit, IMESmall};
    QTest::newRow("English, first") << "en_US" << QList<int>{IMEFirst, IMECapital, IMEDigit, IMESmall};
    QTest::newRow("Korean") << "ko_KR" << QList<int>{IMEFirst, IMESmall, IMECapital, IMEDigit, IMEFirst};
    QTest::newRow("numbers") << "ko_KR" << QList<int>{IMENumeric, IMENumeric};
}

void TestKeypad::hashGoesThroughTheModes()
{
    QFETCH(QString, language);
    QFETCH(QList<int>, modes);
    m_phone->setLanguage(language);
    setMode(modes.takeFirst());
    for (const int mode : qAsConst(modes)) {
        ImePhone::type("#");
        QCOMPARE(m_phone->phone.core.ime()->imeStatus(), mode);
    }
}

void TestKeypad::holdingZeroWritesPlus()
{
    setMode(IMENumeric);
    PhoneKeys::press(Qt::Key_0);
    QTRY_COMPARE(edit().text(), QString("+"));
    PhoneKeys::release(Qt::Key_0);
    PhoneKeys::press(Qt::Key_0);
    ImePhone::type("1");
    PhoneKeys::release(Qt::Key_0);
    QCOMPARE(edit().text(), QString("+01"));
}

void TestKeypad::losesNothing_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 5; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

/// Random keys in two fields, beside what runs of taps must give.
void TestKeypad::losesNothing()
{
    static const char *letters[]
        = {" 0+", nullptr, "abc2", "def3", "ghi4", "jkl5", "mno6", "pqrs7", "tuv8", "wxyz9"};
    static const QString keys = "0234567899<>vv";
    QFETCH(quint32, seed);
    QRandomGenerator random(seed);
    QString expected[2];
    Field *fields[] = {&m_phone->first, &m_phone->second};
    int field = 0, taps = 0;
    QChar tapped;
    const auto endTap = [&] {
        if (taps > 0) {
            const QByteArray choice = letters[tapped.digitValue()];
            expected[field] += choice.at((taps - 1) % choice.size());
        }
        taps = 0;
    };
    setMode(IMESmall);
    for (int i = 0; i < 400; ++i) {
        const QChar key = keys.at(random.bounded(keys.size()));
        if (key == '<' && taps > 0) {
            taps = 0;
        } else if (key == '<') {
            expected[field].chop(1);
        } else if (!key.isDigit()) {
            endTap();
        } else {
            if (key != tapped)
                endTap();
            tapped = key;
            ++taps;
        }
        if (key == 'v') {
            field = 1 - field;
            fields[field]->setFocus();
        } else {
            ImePhone::type(key);
        }
    }
    endTap();
    m_phone->other.setFocus();
    QCOMPARE(m_phone->first.text(), expected[0]);
    QCOMPARE(m_phone->second.text(), expected[1]);
}

/// Random strokes and consonants: only Korean comes of them, never more than fits, and Backspace takes all away.
void TestKeypad::staysKorean()
{
    m_phone->setLanguage("ko_KR");
    setMode(IMEFirst);
    QRandomGenerator random(7);
    for (const int maximum : {1, 2, 5, 40}) {
        edit().setMaxLength(maximum);
        for (int i = 0; i < 300; ++i) {
            ImePhone::type(random.bounded(8) == 0 ? QString("<s>").at(random.bounded(3))
                                                  : QString::number(random.bounded(10)));
            const QString shown = edit().text() + m_phone->first.pending;
            for (const QChar c : shown)
                QVERIFY2(c.script() == QChar::Script_Hangul, qPrintable(shown));
            // A vowel's dots are on their way into the syllable.
            QVERIFY2(shown.count(u'ㆍ') > 0 || shown.size() <= maximum, qPrintable(shown));
        }
        ImePhone::type(">");
        QVERIFY(edit().text().size() <= maximum);
        ImePhone::type(QString(maximum, '<'));
        QCOMPARE(edit().text(), QString());
    }
}

PHONE_TEST_MAIN(TestKeypad)
#include "tst_keypad.moc"
