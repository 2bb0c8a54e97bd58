#include "listviewcallitem.h"
#include "listviewchecklineedititem.h"
#include "listviewcontactitem.h"
#include "listviewlineedititem.h"
#include "listviewprogressitem.h"
#include "listviewsearchitem.h"
#include "screentest.h"

static const QString Hangul = "김";

struct Limits
{
    QString calls; ///< in their order: L sets the length, B the bytes
    int maxLength, maxBytes;
    QString text;
};
Q_DECLARE_METATYPE(Limits)

struct Cut
{
    int maxLength, maxBytes;
    QString text, kept;
};
Q_DECLARE_METATYPE(Cut)

class RowValuesTest : public TestCase
{
    Q_OBJECT

private slots:
    void editTextLimits_data()
    {
        const QString letters29(29, 'a');
        addCases<Cut>({{"no limit", {0, 0, "abcdef", "abcdef"}},
                       {"characters, wide or not", {5, 0, Hangul.repeated(6), Hangul.repeated(5)}},
                       {"Latin letters", {0, 5, "abcdef", "abcde"}},
                       {"Latin-1 counts one", {0, 3, "äÿab", "äÿa"}},
                       {"wide characters", {0, 30, Hangul.repeated(30), Hangul.repeated(15)}},
                       {"one wide over the limit", {0, 30, letters29 + Hangul + 'b', letters29 + Hangul}},
                       {"exactly full", {0, 4, Hangul.repeated(2), Hangul.repeated(2)}}});
    }

    void editTextLimits()
    {
        QFETCH(Cut, c);
        ListViewLineEditItem row("Name", QString());
        row.setMaxLength(c.maxLength);
        row.setMaxBytes(c.maxBytes);
        row.setEditText(c.text);
        QCOMPARE(row.editText(), c.kept);
    }

    void limitsActOnEachOther_data()
    {
        addCases<Limits>({{"fewer bytes", {"L30 B10", 30, 10, "abcdefghij"}},
                          {"more bytes than characters", {"L30 B40", 30, 30, "abcdefghijkl"}},
                          {"bytes alone", {"B4", 4, 4, "abcd"}},
                          {"length below the bytes", {"B10 L6", 6, 6, "abcdef"}},
                          {"length above the bytes", {"B6 L11", 11, 6, "abcdef"}},
                          {"length given up", {"L8 L0", 0, 0, "abcdefgh"}},
                          {"length given up with a byte limit empties", {"B6 L0", 0, 0, ""}},
                          {"bytes given up", {"L8 B4 B0", 8, 0, "abcd"}},
                          {"negative changes nothing", {"L8 B4 L-1 B-1", 8, 4, "abcd"}}});
    }

    void limitsActOnEachOther()
    {
        QFETCH(Limits, c);
        ListViewLineEditItem row("Name", "abcdefghijkl");
        const QStringList steps = c.calls.split(' ');
        for (const QString &step : steps)
            step.at(0) == 'L' ? row.setMaxLength(step.mid(1).toInt()) : row.setMaxBytes(step.mid(1).toInt());
        QCOMPARE(row.getMaxLength(), c.maxLength);
        QCOMPARE(row.getMaxBytes(), c.maxBytes);
        QCOMPARE(row.editText(), c.text);
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

    void aMissingSelectedPictureIsTheNormalOne()
    {
        const QPixmap first(4, 4), second(6, 6);
        ListViewSearchItem hit("Kim", 1, 0, 0, "100", 0);
        ListViewContactItem contact("Kim", QString());
        QVERIFY(hit.normalImage().isNull() && hit.selectedImage().isNull() && contact.selectedImage().isNull());
        hit.setPixmap(first, second);
        QCOMPARE(hit.selectedImage().size(), second.size());
        hit.setPixmap(first, QPixmap());
        QCOMPARE(hit.selectedImage().size(), first.size());
        contact.setPixmap(second, QPixmap());
        QCOMPARE(contact.selectedImage().size(), second.size());
        contact.setPixmap(QPixmap(), QPixmap());
        QVERIFY(contact.normalImage().isNull() && contact.selectedImage().isNull());
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
