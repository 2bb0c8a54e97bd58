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
#include "screentest.h"

#include <QBitmap>
#include <QLineEdit>
#include <QPainter>

enum Look { Normal, FloatingSelected, Pressed, BarSelected, Disabled };
constexpr Look Looks[] = {Normal, FloatingSelected, Pressed, BarSelected, Disabled};

/// A row as the phone's screens have it.
constexpr QRect Row(0, 0, 374, 34);

static const QString Long(80, 'M'), Short("M");

static void applyLook(ListViewItem &row, Look look)
{
    const bool pressed = look == Pressed, framed = pressed || look == FloatingSelected;
    row.setFocusType(look == BarSelected ? ListViewFocusBar : ListViewFocusFloating);
    row.setItemSelectEnable(look != Disabled);
    row.setSelected(look == BarSelected);
    row.setIsPressed(pressed);
    row.setTextColor(pressed ? QColor(Qt::white) : row.baseTextColor());
    row.setTextSelectColor(look == FloatingSelected ? Qt::black : Qt::white);
    row.setTextDisableColor(QColor(85, 85, 85));
    row.setBackGroundColor(framed ? Qt::transparent : Qt::white);
    row.setBackGroundSelectColor(framed ? Qt::transparent : Qt::black);
}

/// Paints the row into the rectangle on a white picture of the list's width, in a look that a list gives it.
static QImage paint(ListViewItem &row, QRect rect = Row, Look look = Normal)
{
    QImage picture(qMax(Row.width(), rect.right() + 1), rect.bottom() + 1, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setFont(QGuiApplication::font());
    if (look == Pressed)
        painter.fillRect(rect, Qt::black);
    applyLook(row, look);
    row.paint(&painter, rect);
    return picture;
}

/// The smallest rectangle that holds all pixels of that colour; of all pixels that are not white by default.
static QRect inkOf(const QImage &picture, const QColor &color = Qt::white)
{
    // The ones of a mask come out white, and a region is what is black.
    const auto mode = color == Qt::white ? Qt::MaskInColor : Qt::MaskOutColor;
    return QRegion(QBitmap::fromImage(picture.createMaskFromColor(color.rgb(), mode))).boundingRect();
}

template <class Item, class Change> static Item *changed(Item *row, Change change)
{
    change(*row);
    return row;
}

/// What rows keep, and how they look.
class RowsTest : public TestCase
{
    Q_OBJECT

private slots:
    void editTextLimits()
    {
        ListViewLineEditItem row("Name", QString());
        row.setMaxLength(2);
        row.setEditText("김김a"); // characters, wide or not
        QCOMPARE(row.editText(), QString("김김"));
        row.setMaxLength(30);
        row.setMaxBytes(5);
        for (const QString text : {"äÿab", "abcd김"}) { // Latin-1 counts one byte; one that is wide goes over
            row.setEditText(text + "김김");
            QCOMPARE(row.editText(), text + (text.size() < 5 ? "김" : ""));
        }
        row.setMaxLength(0); // a length given up with a byte limit empties
        QCOMPARE(row.editText(), QString());
    }

    void callTimer()
    {
        ListViewCallItem row("Kim", ListViewCallItem::CallHold);
        QString texts;
        for (int seconds : {0, 3599, 3909, -5 /* a clock that was set back */}) {
            row.setSeconds(seconds);
            texts += row.timerText() + ' ';
        }
        QCOMPARE(texts, QString("00:00 59:59 1:05:09 00:00 "));
    }

    void rowsShowTheMobileDevice()
    {
        const QRect icon(373 - 52, 5, 24, 24);
        ListViewContactListItem mobile(Long, 1, 1), local(Long, 1, 0);
        QCOMPARE(inkOf(paint(mobile), Qt::red), icon);
        QCOMPARE(inkOf(paint(mobile, Row, Pressed), Qt::green), icon);
        QVERIFY(inkOf(paint(mobile)).right() <= 373 - 20);
        QVERIFY(inkOf(paint(local)).right() > inkOf(paint(mobile)).right());
        // In a grid the text always ends before the icon's place.
        ListViewContactGridItem mobileCell(Long, 1, 2), localCell(Long, 1, 3);
        QCOMPARE(inkOf(paint(mobileCell, {0, 0, 187, 33}), Qt::red), QRect(160, 4, 24, 24));
        QVERIFY(inkOf(paint(localCell, {0, 0, 187, 33})).right() < 160);
    }

    void contactLabelsKeepTheirWidth()
    {
        ListViewContactItem row(Short, Long), label(QString(), Long);
        QVERIFY(inkOf(paint(row), Qt::black).left() >= 192); // the value behind the grey label
        QVERIFY(inkOf(paint(label)).left() >= 10 && inkOf(paint(label)).right() <= 183);
    }

    void groupCountIsCutToThreeDigits()
    {
        ListViewGroupListItem thousand(Short, "1000", 1), cut(Short, "000", 1);
        QCOMPARE(paint(thousand), paint(cut));
    }

    void titlesEndBeforeTheValue()
    {
        const auto check = [](auto makeRow, int left) {
            auto longRow = makeRow(Long), shortRow = makeRow(Short);
            const QRect value(left, 0, Row.width() - left, Row.height());
            for (Look look : Looks) {
                const QImage longOne = paint(longRow, Row, look), shortOne = paint(shortRow, Row, look);
                QVERIFY(longOne != shortOne);
                QCOMPARE(longOne.copy(value), shortOne.copy(value));
            }
        };
        check([](QString title) { return ListViewCheckItem(title, true); }, 373 - 20 - 6);
        check([](QString title) { return ListViewInfoItem(title, Short); }, 167);
        check([](QString title) { return ListViewLineEditItem(title, Short); }, 191);
        check([](QString title) { return ListViewSelectItem(title, Short); }, 202);
        check([](QString title) { return ListViewCheckLineEditItem(title, true, true, Short); }, 192);
        check([](QString title) { return ListViewTimeEditItem(title, Short, Short); }, 191);
    }

    void fieldTextStandsWhereTheLineEditShowsIt()
    {
        for (const QString text : {"Agjpy (070) 12", "김철수 Kim", ""}) {
            ListViewLineEditItem row("Name", text);
            const QRect field = EditFieldGeometry::lineEdit(Row, 0);
            QLineEdit edit(text);
            QFont font = edit.font();
            font.setPointSize(20);
            edit.setFont(font);
            edit.setStyleSheet("QLineEdit {background-color: white; color: black; border: none; }");
            edit.resize(field.size());
            QImage shown(field.size(), QImage::Format_RGB32);
            edit.render(&shown);
            QCOMPARE(paint(row).copy(field), shown);
            QCOMPARE(paint(row, Row, BarSelected).copy(field), shown);
        }
        ListViewLineEditItem password("PIN", "12M4"), stars("PIN", "****");
        password.setEchoPasswordMode(true);
        QCOMPARE(paint(password), paint(stars));
    }

    void subTitlePieceGivesWayToTheScrollBar()
    {
        ListViewSubTitleItem row{QString()};
        row.addSubTitle(Long, 200, 174, Qt::black, Qt::white);
        row.setScrollBarAreaWidth(8);
        QVERIFY(inkOf(paint(row)).right() > 362);
        row.setHasScrollBar(true);
        QVERIFY(inkOf(paint(row)).right() <= 373 - 11);
    }

    /// Every row in every look.
    void pictures()
    {
        const QString longText("A title that is longer than the row that has to show it");
        const QPixmap icon(":/ui/images/title/status_mobile.png"), mobile(":/contact/images/menu_icon_mobile.png");
        const auto everyDay = [](auto &row) {
            for (int day = 0; day < 7; ++day)
                row.setDateSelection(day, true);
        };
        const auto addPieces = [](auto &row) {
            row.addSubTitle("070-1234", 200, 90, QColor(85, 85, 85), Qt::white);
            row.addSubTitle("12:30", 300, 70, Qt::black, Qt::white);
        };
        const auto makeGroup = [](auto &row) {
            row.setGroupNameItem(true);
            row.setUseTextShadow(1);
        };
        const QMap<QString, QList<ListViewItem *>> sheets{
            {"contacts",
             {new ListViewItem("g", icon, {}), new ListViewContactItem("070-1234-5678", "Mobile Number"),
              new ListViewContactItem(longText, ""), new ListViewContactListItem("김철수 Jäger", 1, 0),
              new ListViewContactListItem(longText, 1, 1), new ListViewDirectoryItem("Young, Judy", "Sales", ""),
              changed(new ListViewSearchItem("Young, Judy", 1, 0, 1, "070-1234-5678", 0),
                      [&](auto &row) { row.setPixmap(mobile, QPixmap()); })}},
            {"groups",
             {new ListViewCheckGroupItem("Family", false, 1), new ListViewCheckGroupItem(longText, true, 2),
              new ListViewGroupListItem("Family", "7", 1), new ListViewGroupListItem(longText, "1000", 2),
              changed(new ListViewSubTitleItem("Young, Judy"), addPieces),
              changed(new ListViewSubTitleItem("Family"), makeGroup)}},
            {"choices",
             {new ListViewCheckItem("Use password", false), new ListViewCheckItem(longText, true),
              new ListViewRadioItem("Automatic", false), new ListViewRadioItem("Manual", true),
              changed(new ListViewRadioItem("No picture", true), [](auto &row) { row.setUseImage(false); }),
              new ListViewSelectItem("Group Bell", "Bell 1"), new ListViewSelectItem(longText, longText),
              changed(new ListViewSelectItem("Search by", "Name"), [&](auto &row) { row.setPixmap(icon, {}); })}},
            {"fields",
             {new ListViewLineEditItem("Name", "Agjpy 김철수"), new ListViewLineEditItem(longText, longText),
              new ListViewCheckLineEditItem("Forward all", true, true, "5001"),
              changed(new ListViewCheckLineEditItem("Forward", false, "5001"),
                      [](auto &row) { row.setEditTextLeftMargin(-150); }),
              changed(new ListViewCheckLineEditItem("Do not disturb", true, ""),
                      [](auto &row) { row.setUseEditText(false); }),
              new ListViewLineEditCheckItem("Line 1", true, true, "Agjpy"),
              new ListViewTimeEditItem("Time", "07:30", "AM"),
              changed(new ListViewTimeEditItem("Time", "19:30", ""),
                      [](auto &row) { row.setUse_ampmSelection(false); })}},
            {"states",
             {new ListViewInfoItem("Firmware", "1.0.0"), new ListViewInfoItem(longText, longText),
              changed(new ListViewProgressItem("Volume", 10), [](auto &row) { row.setValue(6); }),
              changed(new ListViewDateSelectItem("Repeat"), [](auto &row) { row.setDateSelection(2, true); }),
              changed(new ListViewAlarmItem("07:30 AM", "Wake up", true), everyDay),
              new ListViewAlarmItem("07:30 AM", "Meeting", false), new ListViewNetworkItem("Office", 4, true),
              new ListViewNetworkItem(longText, 1, false),
              changed(new ListViewCallItem("Young, Judy", ListViewCallItem::CallActive),
                      [](auto &row) { row.setSeconds(309); }),
              changed(new ListViewCallItem(longText, ListViewCallItem::CallHold),
                      [](auto &row) { row.setSeconds(3909); }),
              new ListViewCallItem("070-1234-5678", ListViewCallItem::CallMute)}}};
        for (auto rows = sheets.begin(); rows != sheets.end(); ++rows) {
            QImage sheet(Row.width(), Row.height() * int(std::size(Looks)) * rows->size(), QImage::Format_RGB32);
            QPainter painter(&sheet);
            int top = 0;
            for (ListViewItem *row : *rows) {
                for (Look look : Looks) {
                    const QImage picture = paint(*row, Row, look);
                    const bool dark = look == Pressed || look == BarSelected;
                    QCOMPARE(picture.pixelColor(1, 2), QColor(dark ? Qt::black : Qt::white));
                    painter.drawImage(0, top, picture);
                    top += Row.height();
                }
            }
            painter.end();
            TestScreen::save(sheet, "row-" + rows.key());
            qDeleteAll(*rows);
        }
    }
};

PHONE_TEST_MAIN(RowsTest)
#include "tst_rows.moc"
