#include "listviewcallitem.h"
#include "listviewcheckitem.h"
#include "listviewchecklineedititem.h"
#include "listviewcontactitem.h"
#include "listviewdayitems.h"
#include "listviewdirectoryitem.h"
#include "listviewgrouplistitem.h"
#include "listviewinfoitem.h"
#include "listviewlineedititem.h"
#include "listviewnetworkitem.h"
#include "listviewprogressitem.h"
#include "listviewradioitem.h"
#include "listviewsearchitem.h"
#include "listviewselectitem.h"
#include "listviewsubtitleitem.h"
#include "listviewtimeedititem.h"
#include "testcase.h"
#include "testmain.h"

static const QString Hangul = QStringLiteral("\uAE40");

class RowValuesTest : public TestCase
{
    Q_OBJECT

private slots:
    void typeCodes();
    void editTextLimits_data();
    void editTextLimits();
    void limitsActOnEachOther_data();
    void limitsActOnEachOther();
    void checkRowsCutToTheirLength();
    void progressValues();
    void progressRefusesMoreCellsThanFit();
    void pictures();
    void days();
    void subTitles();
    void callTimer_data();
    void callTimer();
};

void RowValuesTest::typeCodes()
{
    const QString t = QStringLiteral("Title");
    ListViewContactItem marked(t, t);
    marked.setItemType(ListViewContactItem::ItemTypeMarked);
    ListViewCheckLineEditItem withField(t, false, t);
    ListViewCheckLineEditItem withoutField(t, false, true, t);
    withoutField.setUseEditText(false);

    QCOMPARE(ListViewGroupListItem(t, t, 1).type(), 0);
    QCOMPARE(ListViewDirectoryItem(t, t, t).type(), 0);
    QCOMPARE(ListViewSearchItem(t, 1, 0, 0, t, 0).type(), 0);
    QCOMPARE(ListViewProgressItem(t, 5).type(), 1);
    QCOMPARE(ListViewSelectItem(t, t).type(), 2);
    QCOMPARE(ListViewCheckItem(t, true).type(), 3);
    QCOMPARE(ListViewCheckGroupItem(t, true, 1).type(), 3);
    QCOMPARE(withoutField.type(), 3);
    QCOMPARE(ListViewRadioItem(t, true).type(), 4);
    QCOMPARE(ListViewLineEditItem(t, t).type(), 5);
    QCOMPARE(ListViewInfoItem(t, t).type(), 6);
    QCOMPARE(ListViewContactItem(t, t).type(), 6);
    QCOMPARE(ListViewContactListItem(t, 1, 0).type(), 6);
    QCOMPARE(ListViewContactGridItem(t, 1, 0).type(), 6);
    QCOMPARE(ListViewNetworkItem(t, 1, false).type(), 7);
    QCOMPARE(marked.type(), 8);
    QCOMPARE(ListViewSubTitleItem(t).type(), 9);
    QCOMPARE(ListViewAlarmItem(t, t, true).type(), 10);
    QCOMPARE(ListViewTimeEditItem(t, t, t).type(), 11);
    QCOMPARE(ListViewDateSelectItem(t).type(), 12);
    QCOMPARE(ListViewCallItem(t, ListViewCallItem::CallActive).type(), 13);
    QCOMPARE(withField.type(), 15);
    QCOMPARE(ListViewLineEditCheckItem(t, true, true, t).type(), 16);
}

void RowValuesTest::editTextLimits_data()
{
    QTest::addColumn<int>("maxLength");
    QTest::addColumn<int>("maxBytes");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("kept");

    const QString letters29(29, QLatin1Char('a'));
    QTest::newRow("no limit") << 0 << 0 << "abcdef"
                              << "abcdef";
    QTest::newRow("characters, wide or not") << 5 << 0 << Hangul.repeated(6) << Hangul.repeated(5);
    QTest::newRow("Latin letters") << 0 << 5 << "abcdef"
                                   << "abcde";
    QTest::newRow("Latin-1 counts one")
        << 0 << 3 << QStringLiteral("\u00e4\u00ffab") << QStringLiteral("\u00e4\u00ffa");
    QTest::newRow("wide characters") << 0 << 30 << Hangul.repeated(30) << Hangul.repeated(15);
    QTest::newRow("one wide character over the limit") << 0 << 30 << letters29 + Hangul + 'b' << letters29 + Hangul;
    QTest::newRow("exactly full") << 0 << 4 << Hangul.repeated(2) << Hangul.repeated(2);
}

void RowValuesTest::editTextLimits()
{
    QFETCH(int, maxLength);
    QFETCH(int, maxBytes);
    QFETCH(QString, text);
    QFETCH(QString, kept);

    ListViewLineEditItem row(QStringLiteral("Name"), QString());
    row.setMaxLength(maxLength);
    row.setMaxBytes(maxBytes);
    row.setEditText(text);
    QCOMPARE(row.editText(), kept);
}

void RowValuesTest::limitsActOnEachOther_data()
{
    // The calls in their order: L sets the length, B the bytes.
    QTest::addColumn<QString>("calls");
    QTest::addColumn<int>("maxLength");
    QTest::addColumn<int>("maxBytes");
    QTest::addColumn<QString>("text");

    QTest::newRow("fewer bytes") << "L30 B10" << 30 << 10 << "abcdefghij";
    QTest::newRow("more bytes than characters") << "L30 B40" << 30 << 30 << "abcdefghijkl";
    QTest::newRow("bytes alone") << "B4" << 4 << 4 << "abcd";
    QTest::newRow("length below the bytes") << "B10 L6" << 6 << 6 << "abcdef";
    QTest::newRow("length above the bytes") << "B6 L11" << 11 << 6 << "abcdef";
    QTest::newRow("length given up") << "L8 L0" << 0 << 0 << "abcdefgh";
    QTest::newRow("length given up with a byte limit empties") << "B6 L0" << 0 << 0 << "";
    QTest::newRow("bytes given up") << "L8 B4 B0" << 8 << 0 << "abcd";
    QTest::newRow("negative changes nothing") << "L8 B4 L-1 B-1" << 8 << 4 << "abcd";
}

void RowValuesTest::limitsActOnEachOther()
{
    QFETCH(QString, calls);

    ListViewLineEditItem row(QStringLiteral("Name"), QStringLiteral("abcdefghijkl"));
    const QStringList steps = calls.split(QLatin1Char(' '));
    for (const QString &step : steps) {
        if (step.startsWith(QLatin1Char('L')))
            row.setMaxLength(step.mid(1).toInt());
        else
            row.setMaxBytes(step.mid(1).toInt());
    }
    QTEST(row.getMaxLength(), "maxLength");
    QTEST(row.getMaxBytes(), "maxBytes");
    QTEST(row.editText(), "text");
}

void RowValuesTest::checkRowsCutToTheirLength()
{
    ListViewCheckLineEditItem row(QStringLiteral("Forward"), true, QStringLiteral("1234567"));
    row.setMaxLength(4);
    QCOMPARE(row.editText(), QStringLiteral("1234"));
    row.setEditText(Hangul.repeated(5));
    QCOMPARE(row.editText(), Hangul.repeated(4));
    row.setMaxLength(0);
    row.setEditText(QStringLiteral("1234567"));
    QCOMPARE(row.editText(), QStringLiteral("1234567"));
    QVERIFY(row.useEditText() && !row.useTitleText());
}

void RowValuesTest::progressValues()
{
    ListViewProgressItem row(QStringLiteral("Volume"), 10);
    row.setValue(11);
    QCOMPARE(row.value(), 10);
    row.setMinValue(3);
    row.setValue(-1);
    QCOMPARE(row.value(), 3);
    row.setMinValue(12);
    QCOMPARE(row.minValue(), 10);

    row.setMaxValue(5);
    row.setMinValue(0);
    QCOMPARE(row.value(), 3);
    row.setMaxValue(2);
    QCOMPARE(row.value(), 3); // until the next value comes
    row.setValue(3);
    QCOMPARE(row.value(), 2);
}

void RowValuesTest::progressRefusesMoreCellsThanFit()
{
    ListViewProgressItem row(QStringLiteral("Volume"), 20);
    QCOMPARE(row.maxValue(), 20);
    row.setMaxValue(15);
    QCOMPARE(row.maxValue(), 15);
    row.setMaxValue(16);
    QCOMPARE(row.maxValue(), 15);
}

void RowValuesTest::pictures()
{
    QPixmap first(4, 4);
    QPixmap second(6, 6);
    ListViewSearchItem hit(QStringLiteral("Kim"), 1, 0, 0, QStringLiteral("100"), 0);
    QVERIFY(hit.normalImage().isNull() && hit.selectedImage().isNull());
    hit.setPixmap(first, second);
    QCOMPARE(hit.selectedImage().size(), second.size());
    hit.setPixmap(first, QPixmap());
    QCOMPARE(hit.selectedImage().size(), first.size());

    ListViewContactItem contact(QStringLiteral("Kim"), QString());
    QCOMPARE(contact.normalImage().size(), QSize(32, 32));
    QVERIFY(contact.selectedImage().isNull());
    QVERIFY(!contact.pixmap(0));
    contact.setPixmap(second, QPixmap());
    QCOMPARE(contact.selectedImage().size(), second.size());
    contact.setPixmap(QPixmap(), QPixmap());
    QVERIFY(contact.normalImage().isNull() && contact.selectedImage().isNull());
}

void RowValuesTest::days()
{
    ListViewDateSelectItem row(QStringLiteral("Repeat"));
    QVERIFY(!row.isDataSelected(0));
    row.setDateSelection(3, true);
    QVERIFY(row.isDataSelected(3));
    QVERIFY(!row.isDataSelected(4));
    row.setDateSelection(3, false);
    QVERIFY(!row.isDataSelected(3));

    QCOMPARE(row.weekList().first(), QStringLiteral("Monday"));
    QCOMPARE(row.weekList().size(), 7);
    row.setWeekList({QStringLiteral("Montag")});
    QCOMPARE(row.weekList(), QStringList{QStringLiteral("Montag")});
}

void RowValuesTest::subTitles()
{
    ListViewSubTitleItem row(QStringLiteral("Title"));
    row.addSubTitle(QStringLiteral("Part"), 200, 100, Qt::black, Qt::white);
    QVERIFY(!row.subTitle(-1));
    QVERIFY(!row.subTitle(1));
    textClass *piece = row.subTitle(0);
    QCOMPARE(piece->text(), QStringLiteral("Part"));
    QCOMPARE(piece->textX(), 200);
    QCOMPARE(piece->textWidth(), 100);
    QCOMPARE(piece->textColor(), QColor(Qt::black));
    QCOMPARE(piece->textSelectColor(), QColor(Qt::white));
    QCOMPARE(piece->textPt(), 19);
    QCOMPARE(piece->alignment(), 129);
}

void RowValuesTest::callTimer_data()
{
    QTest::addColumn<int>("seconds");
    QTest::addColumn<QString>("text");
    QTest::newRow("start") << 0 << "00:00";
    QTest::newRow("minutes") << 309 << "05:09";
    QTest::newRow("last below the hour") << 3599 << "59:59";
    QTest::newRow("hours") << 3909 << "1:05:09";
    QTest::newRow("a clock that was set back") << -5 << "00:00";
}

void RowValuesTest::callTimer()
{
    QFETCH(int, seconds);
    ListViewCallItem row(QStringLiteral("Kim"), ListViewCallItem::CallHold);
    row.setSeconds(seconds);
    QTEST(row.timerText(), "text");
}

PHONE_TEST_MAIN(RowValuesTest)
#include "rowvaluestest.moc"
