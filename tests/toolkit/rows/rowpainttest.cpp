#include "editfieldgeometry.h"
#include "listviewcheckitem.h"
#include "listviewchecklineedititem.h"
#include "listviewcontactitem.h"
#include "listviewdirectoryitem.h"
#include "listviewgrouplistitem.h"
#include "listviewinfoitem.h"
#include "listviewlineedititem.h"
#include "listviewprogressitem.h"
#include "listviewsearchitem.h"
#include "listviewselectitem.h"
#include "listviewsubtitleitem.h"
#include "listviewtimeedititem.h"
#include "rowcanvas.h"
#include "testcase.h"
#include "testmain.h"

#include <QLineEdit>

using RowCanvas::Row;

static const QString Long = QString(80, QLatin1Char('M'));
static const QString Short = QStringLiteral("M");

class RowPaintTest : public TestCase
{
    Q_OBJECT

private slots:
    void gridCell_data();
    void gridCell();
    void listRowShowsTheMobileDevice();
    void contactValueBeginsAtTheListsEdge();
    void groupCountIsCutToThreeDigits();
    void directoryColumns();
    void searchRow();
    void titlesEndBeforeTheValue_data();
    void titlesEndBeforeTheValue();
    void progressCells_data();
    void progressCells();
    void editFields_data();
    void editFields();
    void fieldTextStandsWhereTheLineEditShowsIt_data();
    void fieldTextStandsWhereTheLineEditShowsIt();
    void passwordIsShownAsStars();
    void subTitlePieceGivesWayToTheScrollBar();
};

void RowPaintTest::gridCell_data()
{
    QTest::addColumn<QRect>("cell");
    QTest::addColumn<int>("contactType");
    QTest::addColumn<QRect>("itemRect");
    QTest::addColumn<int>("textLeft");
    QTest::addColumn<int>("iconLeft");
    QTest::addColumn<bool>("hasIcon");

    const QRect left(0, 0, 187, 33);
    const QRect right(187, 0, 187, 33);
    const QRect leftItem(0, 0, 184, 33);
    const QRect rightItem(190, 0, 184, 33);
    QTest::newRow("left, local") << left << 0 << leftItem << 11 << 160 << false;
    QTest::newRow("left, mobile") << left << 1 << leftItem << 11 << 160 << true;
    QTest::newRow("right, local") << right << 0 << rightItem << 198 << 347 << false;
    QTest::newRow("right, mobile card") << right << 2 << rightItem << 198 << 347 << true;
    QTest::newRow("right, unknown") << right << 3 << rightItem << 198 << 347 << false;
}

void RowPaintTest::gridCell()
{
    QFETCH(QRect, cell);
    QFETCH(int, contactType);
    QFETCH(int, textLeft);
    QFETCH(int, iconLeft);
    QFETCH(bool, hasIcon);

    ListViewContactGridItem row(Long, 1, contactType);
    QImage picture = RowCanvas::paint(row, cell);
    QTEST(row.itemRect(), "itemRect");
    QCOMPARE(RowCanvas::pixelsOf(picture, Qt::red), hasIcon ? QRect(iconLeft, 4, 24, 24) : QRect());

    const QRect text = RowCanvas::inkOf(picture.copy(0, 0, iconLeft, picture.height()));
    QVERIFY2(text.left() >= textLeft && text.left() <= textLeft + 2, qPrintable(QString::number(text.left())));
    if (!hasIcon)
        QVERIFY(RowCanvas::inkOf(picture).right() < iconLeft);
}

void RowPaintTest::listRowShowsTheMobileDevice()
{
    const QRect icon(373 - 52, 5, 24, 24);
    ListViewContactListItem mobile(Short, 1, 2);
    QCOMPARE(RowCanvas::pixelsOf(RowCanvas::paint(mobile), Qt::red), icon);
    QCOMPARE(RowCanvas::pixelsOf(RowCanvas::paint(mobile, Row, RowCanvas::Pressed), Qt::green), icon);

    ListViewContactListItem longMobile(Long, 1, 1);
    ListViewContactListItem local(Long, 1, 0);
    const int mobileEnd = RowCanvas::inkOf(RowCanvas::paint(longMobile)).right();
    QVERIFY(mobileEnd <= 373 - 20);
    QVERIFY(RowCanvas::inkOf(RowCanvas::paint(local)).right() > mobileEnd);
}

void RowPaintTest::contactValueBeginsAtTheListsEdge()
{
    const QRect shifted = Row.translated(20, 0);
    ListViewContactItem plain(Short, QString());
    ListViewContactItem labelled(Short, Long);
    QCOMPARE(RowCanvas::inkOf(RowCanvas::paint(plain, shifted)).left(),
             RowCanvas::inkOf(RowCanvas::paint(plain)).left());

    // The label keeps its grey and its 174 pixels, the value stands behind them.
    QVERIFY(RowCanvas::pixelsOf(RowCanvas::paint(labelled), Qt::black).left() >= 192);
    labelled.setText(QString());
    const QImage label = RowCanvas::paint(labelled);
    QVERIFY(RowCanvas::inkOf(label).left() >= 10 && RowCanvas::inkOf(label).right() <= 183);
    QVERIFY(RowCanvas::pixelsOf(label, Qt::black).isNull());
    QVERIFY(!RowCanvas::pixelsOf(label, QColor(85, 85, 85)).isNull());
}

void RowPaintTest::groupCountIsCutToThreeDigits()
{
    const auto picture = [](const char *count) {
        ListViewGroupListItem row(Short, QString::fromLatin1(count), 1);
        return RowCanvas::paint(row);
    };
    QCOMPARE(picture("1000"), picture("000"));
    QCOMPARE(RowCanvas::inkOf(picture("7")).right(), RowCanvas::inkOf(picture("77")).right());
    QVERIFY(picture("7") != picture("77"));
}

void RowPaintTest::directoryColumns()
{
    const auto ink = [](const QString &name, const QString &middle, const QString &end) {
        ListViewDirectoryItem row(name, middle, end);
        return RowCanvas::inkOf(RowCanvas::paint(row));
    };
    const QRect name = ink(Long, QString(), QString());
    QVERIFY(name.left() >= 10 && name.right() <= 196 && name.right() > 180);
    const QRect middle = ink(QString(), Long, QString());
    QVERIFY(middle.left() >= 187 && middle.right() <= 187 + 186 && middle.right() > 360);
    const QRect end = ink(QString(), QString(), Short);
    QVERIFY(end.right() <= 187 + 373 - 197 && end.right() > 355);
}

void RowPaintTest::searchRow()
{
    QPixmap kind(24, 24);
    kind.fill(Qt::red);
    ListViewSearchItem row(Long, 1, 0, 1, QStringLiteral("M00"), 0);
    row.setPixmap(kind, QPixmap());
    const QImage picture = RowCanvas::paint(row);
    QCOMPARE(RowCanvas::pixelsOf(picture, Qt::red), QRect(187, 5, 24, 24));
    const QRect number = RowCanvas::inkOf(picture.copy(212, 0, 162, 34)).translated(212, 0);
    QVERIFY(number.left() >= 196 + 24 + 11 && number.left() <= 196 + 24 + 11 + 2);
}

void RowPaintTest::titlesEndBeforeTheValue_data()
{
    QTest::addColumn<RowPtr>("longTitle");
    QTest::addColumn<RowPtr>("shortTitle");
    QTest::addColumn<int>("titleEnd");

    const auto row = [](const char *name, ListViewItem *longTitle, ListViewItem *shortTitle, int end) {
        QTest::newRow(name) << RowPtr(longTitle) << RowPtr(shortTitle) << end;
    };
    row("check", new ListViewCheckItem(Long, true), new ListViewCheckItem(Short, true), 373 - 20 - 6);
    row("info", new ListViewInfoItem(Long, Short), new ListViewInfoItem(Short, Short), 167);
    row("line edit", new ListViewLineEditItem(Long, Short), new ListViewLineEditItem(Short, Short), 191);
    row("select", new ListViewSelectItem(Long, Short), new ListViewSelectItem(Short, Short), 202);
    row("check and line edit", new ListViewCheckLineEditItem(Long, true, true, Short),
        new ListViewCheckLineEditItem(Short, true, true, Short), 192);
    row("line edit and check", new ListViewLineEditCheckItem(Long, true, true, Short),
        new ListViewLineEditCheckItem(Short, true, true, Short), 191);
    row("time", new ListViewTimeEditItem(Long, Short, Short), new ListViewTimeEditItem(Short, Short, Short), 191);
}

void RowPaintTest::titlesEndBeforeTheValue()
{
    QFETCH(RowPtr, longTitle);
    QFETCH(RowPtr, shortTitle);
    QFETCH(int, titleEnd);

    for (RowCanvas::Look look : RowCanvas::Looks) {
        const QImage longOne = RowCanvas::paint(*longTitle, Row, look);
        const QImage shortOne = RowCanvas::paint(*shortTitle, Row, look);
        QVERIFY(longOne != shortOne);
        const QRect value(titleEnd, 0, Row.width() - titleEnd, Row.height());
        QCOMPARE(longOne.copy(value), shortOne.copy(value));
    }
}

void RowPaintTest::progressCells_data()
{
    QTest::addColumn<int>("maxValue");
    QTest::addColumn<int>("laterMaxValue");
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("firstFilled"); // the left edge of the leftmost filled cell
    QTest::addColumn<int>("filled");

    const int last = 373 - 14;
    QTest::newRow("empty") << 10 << 10 << 0 << -1 << 0;
    QTest::newRow("grows from the left") << 10 << 10 << 3 << last - 13 * 9 << 3;
    QTest::newRow("full") << 10 << 10 << 10 << last - 13 * 9 << 10;
    QTest::newRow("many cells") << 20 << 20 << 20 << last - 13 * 19 << 20;
    QTest::newRow("maximum lowered under the value") << 10 << 4 << 5 << last - 13 * 3 << 4;
}

void RowPaintTest::progressCells()
{
    QFETCH(int, maxValue);
    QFETCH(int, laterMaxValue);
    QFETCH(int, value);

    ListViewProgressItem row(QString(), maxValue);
    row.setValue(value);
    if (laterMaxValue != maxValue)
        row.setMaxValue(laterMaxValue);
    const QImage picture = RowCanvas::paint(row);

    const auto isFilled = [&](int left) {
        return left + 4 < picture.width() && picture.pixelColor(left + 4, 15) == QColor(0x22, 0x22, 0x22);
    };
    int first = -1;
    int filled = 0;
    for (int left = 373 - 14 - 13 * 19; left + 4 < picture.width(); left += 13) {
        if (isFilled(left)) {
            first = first < 0 ? left : first;
            ++filled;
        }
    }
    QTEST(first, "firstFilled");
    QTEST(filled, "filled");
    // The cell of a value above the maximum begins behind the last and is cut by the row's end.
    QCOMPARE(picture.pixelColor(373, 15) == QColor(0x22, 0x22, 0x22), value > laterMaxValue);

    const QRect cells = RowCanvas::inkOf(picture);
    QCOMPARE(cells.left(), 373 - 14 - 13 * (laterMaxValue - 1));
    QCOMPARE(cells.top(), 5);
    QCOMPARE(cells.bottom(), 25);

    row.setUseSlider(true);
    QVERIFY(RowCanvas::inkOf(RowCanvas::paint(row)).isNull());
}

void RowPaintTest::editFields_data()
{
    QTest::addColumn<QRect>("field");
    QTest::addColumn<int>("left");
    QTest::addColumn<int>("right");

    const QRect row(2, 66, 370, 33); // x from 2 to 371
    using namespace EditFieldGeometry;
    QTest::newRow("text") << lineEdit(row, 0) << 195 << 365;
    QTest::newRow("text, margin") << lineEdit(row, -40) << 155 << 365;
    QTest::newRow("number") << numberEdit(row, 10) << 210 << 366;
    QTest::newRow("check, title and margin") << checkLineEdit(row, 20, true) << 216 << 356;
    QTest::newRow("check, margin without title") << checkLineEdit(row, 20, false) << 196 << 356;
    QTest::newRow("check, wide without title") << checkLineEdit(row, -150, false) << 46 << 356;
    QTest::newRow("time") << timeEdit(row, false) << 291 << 367;
    QTest::newRow("time, half of day") << timeEdit(row, true) << 195 << 277;
}

void RowPaintTest::editFields()
{
    QFETCH(QRect, field);
    QTEST(field.left(), "left");
    QTEST(field.right(), "right");
    QCOMPARE(field.top(), 72);
    QCOMPARE(field.bottom(), 93);
}

void RowPaintTest::fieldTextStandsWhereTheLineEditShowsIt_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("selected");
    QTest::newRow("Latin") << QStringLiteral("Agjpy (070) 12") << false;
    QTest::newRow("Hangul") << QStringLiteral("\uAE40\uCCA0\uC218 Kim") << false;
    QTest::newRow("selected without focus") << QStringLiteral("Agjpy") << true;
    QTest::newRow("empty") << QString() << false;
}

void RowPaintTest::fieldTextStandsWhereTheLineEditShowsIt()
{
    QFETCH(QString, text);
    QFETCH(bool, selected);

    ListViewLineEditItem row(QStringLiteral("Name"), text);
    const QImage painted = RowCanvas::paint(row, Row, selected ? RowCanvas::BarSelected : RowCanvas::Normal);
    const QRect field = EditFieldGeometry::lineEdit(Row, 0);

    QLineEdit edit;
    QFont font = edit.font();
    font.setPointSize(20);
    edit.setFont(font);
    edit.setStyleSheet(QStringLiteral("QLineEdit {background-color: white; color: black; border: none; }"));
    edit.setText(text);
    edit.resize(field.size());
    QImage shown(field.size(), QImage::Format_RGB32);
    edit.render(&shown);
    QCOMPARE(painted.copy(field), shown);
}

void RowPaintTest::passwordIsShownAsStars()
{
    ListViewLineEditItem password(QStringLiteral("PIN"), QStringLiteral("12M4"));
    password.setEchoPasswordMode(true);
    ListViewLineEditItem stars(QStringLiteral("PIN"), QStringLiteral("****"));
    QCOMPARE(RowCanvas::paint(password), RowCanvas::paint(stars));
}

void RowPaintTest::subTitlePieceGivesWayToTheScrollBar()
{
    ListViewSubTitleItem row{QString()};
    row.addSubTitle(Long, 200, 174, Qt::black, Qt::white);
    row.setScrollBarAreaWidth(8);
    QVERIFY(RowCanvas::inkOf(RowCanvas::paint(row)).right() > 362);
    row.setHasScrollBar(true);
    QVERIFY(RowCanvas::inkOf(RowCanvas::paint(row)).right() <= 373 - 11);

    row.subTitle(0)->setText(Short);
    row.setSubtitleAlignment(Qt::AlignVCenter | Qt::AlignRight);
    QVERIFY(RowCanvas::inkOf(RowCanvas::paint(row)).left() > 330);
}

PHONE_TEST_MAIN(RowPaintTest)
#include "rowpainttest.moc"
