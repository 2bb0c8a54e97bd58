#include "editfieldgeometry.h"
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
#include "rowcanvas.h"
#include "screentest.h"

#include <QLineEdit>
#include <QSharedPointer>

using RowCanvas::inkOf;
using RowCanvas::Row;
using RowPtr = QSharedPointer<ListViewItem>;
using Rows = QVector<RowPtr>;
Q_DECLARE_METATYPE(RowPtr)

static const QString Long(80, 'M'), Short("M");

struct Cell
{
    QRect place;
    int contactType;
    int left, textLeft, iconLeft;
};
Q_DECLARE_METATYPE(Cell)

struct Cells
{
    int maxValue, laterMaxValue, value, filled;
};
Q_DECLARE_METATYPE(Cells)

struct FieldText
{
    QString text;
    RowCanvas::Look look;
};
Q_DECLARE_METATYPE(FieldText)

template <class Item, class Change> static Item *changed(Item *row, Change change)
{
    change(*row);
    return row;
}

class RowPaintTest : public TestCase
{
    Q_OBJECT

private slots:
    void gridCell_data()
    {
        const QRect left(0, 0, 187, 33), right(187, 0, 187, 33);
        addCases<Cell>({{"left, local", {left, 0, 0, 11, 160}},
                        {"left, mobile", {left, 1, 0, 11, 160}},
                        {"right, local", {right, 0, 190, 198, 347}},
                        {"right, mobile card", {right, 2, 190, 198, 347}},
                        {"right, unknown", {right, 3, 190, 198, 347}}});
    }

    void gridCell()
    {
        QFETCH(Cell, c);
        ListViewContactGridItem row(Long, 1, c.contactType);
        const QImage picture = RowCanvas::paint(row, c.place);
        QCOMPARE(row.itemRect(), QRect(c.left, 0, 184, 33));
        const bool hasIcon = c.contactType == 1 || c.contactType == 2;
        QCOMPARE(inkOf(picture, Qt::red), hasIcon ? QRect(c.iconLeft, 4, 24, 24) : QRect());
        QCOMPARE(inkOf(picture).right() >= c.iconLeft, hasIcon);
        isNear(inkOf(picture).left(), c.textLeft);
    }

    void listRowShowsTheMobileDevice()
    {
        const QRect icon(373 - 52, 5, 24, 24);
        ListViewContactListItem mobile(Short, 1, 2), longMobile(Long, 1, 1), local(Long, 1, 0);
        QCOMPARE(inkOf(RowCanvas::paint(mobile), Qt::red), icon);
        QCOMPARE(inkOf(RowCanvas::paint(mobile, Row, RowCanvas::Pressed), Qt::green), icon);
        const int mobileEnd = inkOf(RowCanvas::paint(longMobile)).right();
        QVERIFY(mobileEnd <= 373 - 20);
        QVERIFY(inkOf(RowCanvas::paint(local)).right() > mobileEnd);
    }

    void contactValueBeginsAtTheListsEdge()
    {
        ListViewContactItem plain(Short, QString()), labelled(Short, Long);
        QCOMPARE(inkOf(RowCanvas::paint(plain, Row.translated(20, 0))).left(),
                 inkOf(RowCanvas::paint(plain)).left());
        // The label keeps its grey and its 174 pixels, the value stands behind them.
        QVERIFY(inkOf(RowCanvas::paint(labelled), Qt::black).left() >= 192);
        labelled.setText(QString());
        const QImage label = RowCanvas::paint(labelled);
        QVERIFY(inkOf(label).left() >= 10 && inkOf(label).right() <= 183);
        QVERIFY(inkOf(label, Qt::black).isNull() && !inkOf(label, QColor(85, 85, 85)).isNull());
    }

    void groupCountIsCutToThreeDigits()
    {
        const auto picture = [](const char *count) {
            ListViewGroupListItem row(Short, count, 1);
            return RowCanvas::paint(row);
        };
        QCOMPARE(picture("1000"), picture("000"));
        QCOMPARE(inkOf(picture("7")).right(), inkOf(picture("77")).right());
        QVERIFY(picture("7") != picture("77"));
    }

    void directoryColumns()
    {
        const auto ink = [](const QString &name, const QString &middle, const QString &end) {
            ListViewDirectoryItem row(name, middle, end);
            return inkOf(RowCanvas::paint(row));
        };
        const QRect name = ink(Long, "", ""), middle = ink("", Long, ""), end = ink("", "", Short);
        QVERIFY(name.left() >= 10 && name.right() <= 196 && name.right() > 180);
        QVERIFY(middle.left() >= 187 && middle.right() <= 187 + 186 && middle.right() > 360);
        QVERIFY(end.right() <= 187 + 373 - 197 && end.right() > 355);
    }

    void searchRow()
    {
        QPixmap kind(24, 24);
        kind.fill(Qt::red);
        ListViewSearchItem row(Long, 1, 0, 1, "M00", 0);
        row.setPixmap(kind, QPixmap());
        const QImage picture = RowCanvas::paint(row);
        QCOMPARE(inkOf(picture, Qt::red), QRect(187, 5, 24, 24));
        isNear(212 + inkOf(picture.copy(212, 0, 162, 34)).left(), 196 + 24 + 11);
    }

    void titlesEndBeforeTheValue_data()
    {
        QTest::addColumn<Rows>("rows"); // with a long title and with a short one
        QTest::addColumn<int>("titleEnd");
        const auto add = [](const char *name, const std::function<ListViewItem *(const QString &)> &make, int end) {
            QTest::newRow(name) << Rows{RowPtr(make(Long)), RowPtr(make(Short))} << end;
        };
        using Title = const QString &;
        add(
            "check", [](Title title) { return new ListViewCheckItem(title, true); }, 373 - 20 - 6);
        add(
            "info", [](Title title) { return new ListViewInfoItem(title, Short); }, 167);
        add(
            "line edit", [](Title title) { return new ListViewLineEditItem(title, Short); }, 191);
        add(
            "select", [](Title title) { return new ListViewSelectItem(title, Short); }, 202);
        add(
            "check, line", [](Title title) { return new ListViewCheckLineEditItem(title, true, true, Short); },
            192);
        add(
            "line, check", [](Title title) { return new ListViewLineEditCheckItem(title, true, true, Short); },
            191);
        add(
            "time", [](Title title) { return new ListViewTimeEditItem(title, Short, Short); }, 191);
    }

    void titlesEndBeforeTheValue()
    {
        QFETCH(Rows, rows);
        QFETCH(int, titleEnd);
        const QRect value(titleEnd, 0, Row.width() - titleEnd, Row.height());
        for (RowCanvas::Look look : RowCanvas::Looks) {
            const QImage longOne = RowCanvas::paint(*rows.at(0), Row, look);
            const QImage shortOne = RowCanvas::paint(*rows.at(1), Row, look);
            QVERIFY(longOne != shortOne);
            QCOMPARE(longOne.copy(value), shortOne.copy(value));
        }
    }

    void progressCells_data()
    {
        addCases<Cells>({{"empty", {10, 10, 0, 0}},
                         {"grows from the left", {10, 10, 3, 3}},
                         {"many cells, full", {20, 20, 20, 20}},
                         {"maximum lowered under the value", {10, 4, 5, 4}}});
    }

    void progressCells()
    {
        QFETCH(Cells, c);
        ListViewProgressItem row(QString(), c.maxValue);
        row.setValue(c.value);
        if (c.laterMaxValue != c.maxValue)
            row.setMaxValue(c.laterMaxValue);
        const QImage picture = RowCanvas::paint(row);
        const int first = 373 - 14 - 13 * (c.laterMaxValue - 1);
        const QColor full(0x22, 0x22, 0x22);
        for (int cell = 0; cell < c.laterMaxValue; ++cell)
            QCOMPARE(picture.pixelColor(first + 13 * cell + 4, 15) == full, cell < c.filled);
        // The cell of a value above the maximum begins behind the last and is cut by the row's end.
        QCOMPARE(picture.pixelColor(373, 15) == full, c.value > c.laterMaxValue);
        QCOMPARE(inkOf(picture).topLeft(), QPoint(first, 5));
        QCOMPARE(inkOf(picture).bottom(), 25);
        row.setUseSlider(true);
        QVERIFY(inkOf(RowCanvas::paint(row)).isNull());
    }

    void fieldTextStandsWhereTheLineEditShowsIt_data()
    {
        addCases<FieldText>({{"Latin", {"Agjpy (070) 12", RowCanvas::Normal}},
                             {"Hangul", {"김철수 Kim", RowCanvas::Normal}},
                             {"selected without focus", {"Agjpy", RowCanvas::BarSelected}},
                             {"empty", {"", RowCanvas::Normal}}});
    }

    void fieldTextStandsWhereTheLineEditShowsIt()
    {
        QFETCH(FieldText, c);
        ListViewLineEditItem row("Name", c.text);
        const QRect field = EditFieldGeometry::lineEdit(Row, 0);
        QLineEdit edit(c.text);
        QFont font = edit.font();
        font.setPointSize(20);
        edit.setFont(font);
        edit.setStyleSheet("QLineEdit {background-color: white; color: black; border: none; }");
        edit.resize(field.size());
        QImage shown(field.size(), QImage::Format_RGB32);
        edit.render(&shown);
        QCOMPARE(RowCanvas::paint(row, Row, c.look).copy(field), shown);
    }

    void passwordIsShownAsStars()
    {
        ListViewLineEditItem password("PIN", "12M4"), stars("PIN", "****");
        password.setEchoPasswordMode(true);
        QCOMPARE(RowCanvas::paint(password), RowCanvas::paint(stars));
    }

    void subTitlePieceGivesWayToTheScrollBar()
    {
        ListViewSubTitleItem row{QString()};
        row.addSubTitle(Long, 200, 174, Qt::black, Qt::white);
        row.setScrollBarAreaWidth(8);
        QVERIFY(inkOf(RowCanvas::paint(row)).right() > 362);
        row.setHasScrollBar(true);
        QVERIFY(inkOf(RowCanvas::paint(row)).right() <= 373 - 11);
        row.subTitle(0)->setText(Short);
        row.setSubtitleAlignment(Qt::AlignVCenter | Qt::AlignRight);
        QVERIFY(inkOf(RowCanvas::paint(row)).left() > 330);
        QVERIFY(!row.subTitle(-1) && !row.subTitle(1));
    }

    void pictures_data();
    void pictures();
    void picturesExist();

private:
    /// A letter begins up to two pixels behind its place.
    static void isNear(int ink, int place)
    {
        QVERIFY2(ink >= place && ink <= place + 2, qPrintable(QString::number(ink)));
    }
};

void RowPaintTest::pictures_data()
{
    QTest::addColumn<Rows>("rows");
    const auto add = [](const char *name, std::initializer_list<ListViewItem *> rows) {
        Rows list;
        for (ListViewItem *row : rows)
            list.append(RowPtr(row));
        QTest::newRow(name) << list;
    };
    const QString longText("A title that is longer than the row that has to show it");
    const QPixmap icon(":/ui/images/title/status_mobile.png"), mobile(":/contact/images/menu_icon_mobile.png");

    add("plain", {new ListViewItem("Ring tone", {}, {}), new ListViewItem("g", icon, {})});
    add("contact",
        {new ListViewContactItem("070-1234-5678", "Mobile Number"),
         new ListViewContactItem("A value without label", ""), new ListViewContactItem(longText, longText)});
    add("contactlist",
        {new ListViewContactListItem("김철수 Jäger", 1, 0), new ListViewContactListItem("Young, Judy", 1, 2),
         new ListViewContactListItem(longText, 1, 1)});
    add("check", {new ListViewCheckItem("Use password", false), new ListViewCheckItem(longText, true)});
    add("checkgroup",
        {new ListViewCheckGroupItem("Family", false, 1), new ListViewCheckGroupItem(longText, true, 2)});
    add("grouplist", {new ListViewGroupListItem("Family", "7", 1), new ListViewGroupListItem(longText, "1000", 2)});
    add("directory",
        {new ListViewDirectoryItem("Young, Judy", "Sales", ""),
         new ListViewDirectoryItem("Kim", "", "02-555-0100")});
    add("search", {changed(new ListViewSearchItem("Young, Judy", 1, 0, 1, "070-1234-5678", 0), [&](auto &row) {
            row.setPixmap(mobile, QPixmap());
        })});
    add("progress", {changed(new ListViewProgressItem("Volume", 10), [](auto &row) { row.setValue(6); })});
    add("select",
        {new ListViewSelectItem("Group Bell", "Bell 1"), new ListViewSelectItem(longText, longText),
         changed(new ListViewSelectItem("Search by", "Name"), [&](auto &row) { row.setPixmap(icon, {}); })});
    add("radio",
        {new ListViewRadioItem("Automatic", false), new ListViewRadioItem("Manual", true),
         changed(new ListViewRadioItem("Manual, no picture", true), [](auto &row) { row.setUseImage(false); })});
    add("lineedit",
        {new ListViewLineEditItem("Name", "Agjpy 김철수"), new ListViewLineEditItem(longText, longText),
         new ListViewLineEditItem("Email", ""),
         changed(new ListViewLineEditItem("PIN", "1234"), [](auto &row) { row.setEchoPasswordMode(true); })});
    add("info", {new ListViewInfoItem("Firmware", "1.0.0"), new ListViewInfoItem(longText, longText)});
    add("checklineedit",
        {new ListViewCheckLineEditItem("Forward all", true, true, "5001"),
         changed(new ListViewCheckLineEditItem("Forward", false, "5001"),
                 [](auto &row) { row.setEditTextLeftMargin(-150); }),
         changed(new ListViewCheckLineEditItem("Do not disturb", true, ""),
                 [](auto &row) { row.setUseEditText(false); })});
    add("lineeditcheck",
        {new ListViewLineEditCheckItem("Line 1", true, true, "Agjpy"),
         new ListViewLineEditCheckItem("Line 2", false, true, longText),
         new ListViewLineEditCheckItem("Line 3", true, false, "")});
    add("timeedit",
        {new ListViewTimeEditItem("Time", "07:30", "AM"),
         changed(new ListViewTimeEditItem("Time", "19:30", ""),
                 [](auto &row) { row.setUse_ampmSelection(false); })});
    const auto everyDay = [](auto &row) {
        for (int day = 0; day < 7; ++day)
            row.setDateSelection(day, true);
    };
    add("days",
        {changed(new ListViewDateSelectItem("Repeat"), everyDay),
         changed(new ListViewDateSelectItem("Repeat"), [](auto &row) { row.setDateSelection(2, true); }),
         changed(new ListViewAlarmItem("07:30 AM", "Wake up", true), everyDay),
         new ListViewAlarmItem("07:30 AM", "Meeting", false)});
    const auto addPieces = [](auto &row) {
        row.addSubTitle("070-1234", 200, 90, QColor(85, 85, 85), Qt::white);
        row.addSubTitle("12:30", 300, 70, Qt::black, Qt::white);
    };
    const auto makeGroup = [](auto &row) {
        row.setGroupNameItem(true);
        row.setUseTextShadow(1);
    };
    add("subtitle",
        {changed(new ListViewSubTitleItem("Young, Judy"), addPieces),
         changed(new ListViewSubTitleItem("Family"), makeGroup)});
    add("network", {new ListViewNetworkItem("Office", 4, true), new ListViewNetworkItem(longText, 1, false)});
    add("call",
        {changed(new ListViewCallItem("Young, Judy", ListViewCallItem::CallActive),
                 [](auto &row) { row.setSeconds(309); }),
         changed(new ListViewCallItem(longText, ListViewCallItem::CallHold),
                 [](auto &row) { row.setSeconds(3909); }),
         new ListViewCallItem("070-1234-5678", ListViewCallItem::CallMute)});
}

/// Every row in every look, for the eye.
void RowPaintTest::pictures()
{
    QFETCH(Rows, rows);
    QImage sheet(Row.width(), Row.height() * int(std::size(RowCanvas::Looks)) * rows.size(), QImage::Format_RGB32);
    QPainter painter(&sheet);
    int top = 0;
    for (const RowPtr &row : qAsConst(rows)) {
        for (RowCanvas::Look look : RowCanvas::Looks) {
            painter.drawImage(0, top, RowCanvas::paint(*row, Row, look));
            top += Row.height();
        }
    }
    painter.end();
    TestScreen::save(sheet, QString("row-") + QTest::currentDataTag());
}

/// Every picture that the toolkit loads by name.
void RowPaintTest::picturesExist()
{
    const QPair<QString, QString> folders[] = {
        {"title/status_",
         "lock call call_lock call_forward call_hold auto_answer dnd mute upgrade mobile aom nvc wifi_-1 wifi_0 "
         "wifi_1 wifi_2 wifi_3 wifi_4 headset headset_ehs headset_bt headset_bt_off bluetooth bluetooth_off "
         "bluetooth_acc bluetooth_acc_off type_korean type_smallletter type_capital type_num"},
        {"title/", "breadcrumb num_bg_left num_bg_right"},
        {"widget/softkey_", "ok ok_sel delete delete_sel cancel cancel_sel nextpage nextpage_sel"},
        {"widget/focus_02_", "lefttop lefbottom righttop rightbottom"},
        {"widget/focus_02_", "lefttop_sel lefbottom_sel righttop_sel rightbottom_sel"},
        {"widget/inputbox_", "left left_sel mid mid_sel right right_sel"},
        {"widget/", "checkbox checkbox_check checkbox_check_sel radio radio_sel list_focus list_focus_sel no_data"},
        {"widget/popup_", "i 01_left 01_mid 01_right 02_left 02_mid 02_right 03"},
        {"widget/", "confirm delete error_emoti"},
        {"widget/loading_", "01 02 03 04 05 06 07 08"},
        {"contact/contacts_", "group group_sel"},
        {"", "checkbox_bg_left checkbox_bg_right call_hold_bg_right alarm_icon_02"},
    };
    for (const auto &folder : folders) {
        const QStringList names = folder.second.split(' ');
        for (const QString &name : names)
            QVERIFY2(QImage(":/ui/images/" + folder.first + name + ".png").width() > 1, qPrintable(name));
    }
}

PHONE_TEST_MAIN(RowPaintTest)
#include "tst_rowpaint.moc"
