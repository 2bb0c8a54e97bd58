#include "imetest.h"

#include <QRandomGenerator>

/// What the twelve keys write, by mode and language.
class TestKeypad : public ImeTest
{
    Q_OBJECT

private slots:
    void offersLetters()
    {
        const struct
        {
            const char *language;
            int mode;
            QString keys; // each key, then what it offers
        } offers[] = {
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
        for (const auto &offer : offers) {
            setLanguage(offer.language);
            setMode(offer.mode);
            for (const QString &entry : offer.keys.split('|')) {
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
        const struct
        {
            const char *name, *language;
            int mode;
            QString keys, text;
        } writings[] = {
            {"two letters of one key", "en_US", IMESmall, "22>2>", "ba"},
            {"erases the pending letter", "en_US", IMESmall, "2333<", "a"},
            {"erases what is written", "en_US", IMESmall, "23>4<<", "a"},
            {"three syllables", "ko_KR", IMEFirst, "4100992155832>", "김철수"},
            {"an arrow ends the tapping", "ko_KR", IMEFirst, "88124>4223>", "학교"},
            {"half of two consonants moves on", "ko_KR", IMEFirst, "61255412>", "달가"},
            {"a cluster, then another tap", "ko_KR", IMEFirst, "41278832>", "갑후"},
            {"a cluster", "ko_KR", IMEFirst, "41278888>", "값"},
            {"compound vowels", "ko_KR", IMEFirst, "42312>0321>8831>423121>", "과위희괘"},
            {"vowels of many strokes", "ko_KR", IMEFirst, "0121>01221>0211>02211>0231>03221>032211>0322>",
             "애얘에예외워웨유"},
            {"erases to the syllable before", "ko_KR", IMEFirst, "4124<<12>", "가"},
            {"Korean between the others", "ko_KR", IMEFirst, "412#2#2#2#412>*>4>", "가aA2가 ㄱ"},
            {"a dot alone stays", "ko_KR", IMEFirst, "412425>", "각ㆍㄴ"},
        };
        for (const auto &writing : writings) {
            setLanguage(writing.language);
            edit().setFocus();
            setMode(writing.mode);
            edit().clear();
            type(writing.keys);
            // What is pending goes with the focus.
            m_phone->other.setFocus();
            QVERIFY2(edit().text() == writing.text, writing.name);
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
        for (const int maximum : {1, 2, 40}) {
            edit().setMaxLength(maximum);
            for (int i = 0; i < 300; ++i) {
                type(QString("0123456789012345678901234567890123456789<s>").at(random.bounded(43)));
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
};

PHONE_TEST_MAIN(TestKeypad)
#include "tst_keypad.moc"
