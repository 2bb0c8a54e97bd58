#include "listviewcallitem.h"
#include "listviewchecklineedititem.h"
#include "listviewlineedititem.h"
#include "listviewprogressitem.h"
#include "screentest.h"

static const QString Hangul = "김";

struct Limits
{
    QString calls; ///< in their order: L sets the length, B the bytes, T the text
    QString text;
    int maxLength, maxBytes;
};
Q_DECLARE_METATYPE(Limits)

class RowValuesTest : public TestCase
{
    Q_OBJECT

private slots:
    void editTextLimits_data()
    {
        const QString wide2 = Hangul.repeated(2), letters29(29, 'a');
        addCases<Limits>({{"no limit", {"Tabcdef", "abcdef", 0, 0}},
                          {"characters, wide or not", {"L2 T" + wide2 + "a", wide2, 2, 0}},
                          {"Latin-1 counts one", {"B3 Täÿab", "äÿa", 3, 3}},
                          {"exactly full of wide ones", {"B4 T" + wide2 + Hangul, wide2, 4, 4}},
                          {"one wide over the limit", {"B30 T" + letters29 + wide2, letters29 + Hangul, 30, 30}},
                          {"fewer bytes", {"Tabcdefghijkl L30 B10", "abcdefghij", 30, 10}},
                          {"more bytes than characters", {"Tabcdef L30 B40", "abcdef", 30, 30}},
                          {"length below the bytes", {"Tabcdefgh B10 L6", "abcdef", 6, 6}},
                          {"length above the bytes", {"Tabcdefgh B6 L11", "abcdef", 11, 6}},
                          {"length given up", {"Tabcdefghijkl L8 L0", "abcdefgh", 0, 0}},
                          {"length given up with a byte limit empties", {"Tabcdef B6 L0", "", 0, 0}},
                          {"bytes given up", {"Tabcdef L8 B4 B0", "abcd", 8, 0}},
                          {"negative changes nothing", {"Tabcdef L8 B4 L-1 B-1", "abcd", 8, 4}}});
    }

    void editTextLimits()
    {
        QFETCH(Limits, c);
        ListViewLineEditItem row("Name", QString());
        const QStringList steps = c.calls.split(' ');
        for (const QString &step : steps) {
            switch (step.at(0).unicode()) {
            case 'L': row.setMaxLength(step.mid(1).toInt()); break;
            case 'B': row.setMaxBytes(step.mid(1).toInt()); break;
            default: row.setEditText(step.mid(1)); break;
            }
        }
        QCOMPARE(row.editText(), c.text);
        QCOMPARE(row.getMaxLength(), c.maxLength);
        QCOMPARE(row.getMaxBytes(), c.maxBytes);
    }

    void checkRowsCutToTheirLength()
    {
        ListViewCheckLineEditItem row("Forward", true, "1234567");
        row.setMaxLength(4);
        QCOMPARE(row.editText(), QString("1234"));
        row.setEditText(Hangul.repeated(5));
        QCOMPARE(row.editText(), Hangul.repeated(4));
        row.setMaxLength(0);
        row.setEditText("1234567");
        QCOMPARE(row.editText(), QString("1234567"));
    }

    void progressValues()
    {
        ListViewProgressItem row("Volume", 20);
        row.setMaxValue(15);
        row.setMaxValue(16); // more cells than fit
        QCOMPARE(row.maxValue(), 15);
        row.setMaxValue(10);
        row.setValue(11);
        QCOMPARE(row.value(), 10);
        row.setMinValue(3);
        row.setValue(-1);
        QCOMPARE(row.value(), 3);
        row.setMinValue(12);
        QCOMPARE(row.minValue(), 10);

        row.setMaxValue(5);
        row.setMinValue(0);
        row.setMaxValue(2);
        QCOMPARE(row.value(), 3); // until the next value comes
        row.setValue(3);
        QCOMPARE(row.value(), 2);
    }

    void callTimer()
    {
        ListViewCallItem row("Kim", ListViewCallItem::CallHold);
        QStringList texts;
        for (int seconds : {0, 309, 3599, 3909, -5 /* a clock that was set back */}) {
            row.setSeconds(seconds);
            texts.append(row.timerText());
        }
        QCOMPARE(texts, QStringList({"00:00", "05:09", "59:59", "1:05:09", "00:00"}));
    }
};

PHONE_TEST_MAIN(RowValuesTest)
#include "tst_rowvalues.moc"
