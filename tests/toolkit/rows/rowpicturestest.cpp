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
#include "testcase.h"
#include "testmain.h"

#include <QDir>
#include <QPainter>

/// Every row in every look, for the eye, and every picture that the toolkit loads by name.
class RowPicturesTest : public TestCase
{
    Q_OBJECT

private slots:
    void rows_data();
    void rows();
    void picturesExist_data();
    void picturesExist();
};

template <class Item> static Item *changed(Item *row, void (*change)(Item *))
{
    change(row);
    return row;
}

void RowPicturesTest::rows_data()
{
    QTest::addColumn<QVector<RowPtr>>("rows");
    const auto add = [](const char *name, std::initializer_list<ListViewItem *> rows) {
        QVector<RowPtr> list;
        for (ListViewItem *row : rows)
            list.append(RowPtr(row));
        QTest::newRow(name) << list;
    };
    const auto text = [](const char *utf8) { return QString::fromUtf8(utf8); };
    const QString longText = text("A title that is longer than the row that has to show it");
    const QPixmap icon(QStringLiteral(":/ui/images/title/status_mobile.png"));

    add("plain", {new ListViewItem(text("Ring tone"), {}, {}), new ListViewItem(text("g"), icon, {})});
    add("contact",
        {new ListViewContactItem(text("070-1234-5678"), text("Mobile Number")),
         new ListViewContactItem(text("A value without label"), QString()),
         new ListViewContactItem(longText, longText)});
    add("contactlist",
        {new ListViewContactListItem(text("김철수 Jäger"), 1, 0),
         new ListViewContactListItem(text("Young, Judy"), 1, 2), new ListViewContactListItem(longText, 1, 1)});
    add("check", {new ListViewCheckItem(text("Use password"), false), new ListViewCheckItem(longText, true)});
    add("checkgroup",
        {new ListViewCheckGroupItem(text("Family"), false, 1), new ListViewCheckGroupItem(longText, true, 2)});
    add("grouplist",
        {new ListViewGroupListItem(text("Family"), text("7"), 1),
         new ListViewGroupListItem(longText, text("1000"), 2)});
    add("directory",
        {new ListViewDirectoryItem(text("Young, Judy"), text("Sales"), QString()),
         new ListViewDirectoryItem(text("Kim"), QString(), text("02-555-0100"))});
    add("search",
        {changed(
            new ListViewSearchItem(text("Young, Judy"), 1, 0, 1, text("070-1234-5678"), 0),
            +[](ListViewSearchItem *row) {
                row->setPixmap(QPixmap(QStringLiteral(":/contact/images/menu_icon_mobile.png")), QPixmap());
            })});
    add("progress",
        {changed(
            new ListViewProgressItem(text("Volume"), 10), +[](ListViewProgressItem *row) { row->setValue(6); })});
    add("select",
        {new ListViewSelectItem(text("Group Bell"), text("Bell 1")), new ListViewSelectItem(longText, longText),
         changed(
             new ListViewSelectItem(text("Search by"), text("Name")), +[](ListViewSelectItem *row) {
                 row->setPixmap(QPixmap(QStringLiteral(":/ui/images/title/status_mobile.png")), {});
             })});
    add("radio",
        {new ListViewRadioItem(text("Automatic"), false), new ListViewRadioItem(text("Manual"), true),
         changed(
             new ListViewRadioItem(text("Manual, no picture"), true),
             +[](ListViewRadioItem *row) { row->setUseImage(false); })});
    add("lineedit",
        {new ListViewLineEditItem(text("Name"), text("Agjpy 김철수")), new ListViewLineEditItem(longText, longText),
         new ListViewLineEditItem(text("Email"), QString()),
         changed(
             new ListViewLineEditItem(text("PIN"), text("1234")),
             +[](ListViewLineEditItem *row) { row->setEchoPasswordMode(true); })});
    add("info", {new ListViewInfoItem(text("Firmware"), text("1.0.0")), new ListViewInfoItem(longText, longText)});
    add("checklineedit",
        {new ListViewCheckLineEditItem(text("Forward all"), true, true, text("5001")),
         changed(
             new ListViewCheckLineEditItem(text("Forward"), false, text("5001")),
             +[](ListViewCheckLineEditItem *row) { row->setEditTextLeftMargin(-150); }),
         changed(
             new ListViewCheckLineEditItem(text("Do not disturb"), true, QString()),
             +[](ListViewCheckLineEditItem *row) { row->setUseEditText(false); })});
    add("lineeditcheck",
        {new ListViewLineEditCheckItem(text("Line 1"), true, true, text("Agjpy")),
         new ListViewLineEditCheckItem(text("Line 2"), false, true, longText),
         new ListViewLineEditCheckItem(text("Line 3"), true, false, QString())});
    add("timeedit",
        {new ListViewTimeEditItem(text("Time"), text("07:30"), text("AM")),
         changed(
             new ListViewTimeEditItem(text("Time"), text("19:30"), QString()),
             +[](ListViewTimeEditItem *row) { row->setUse_ampmSelection(false); })});
    const auto choose = +[](DayChoice *row) {
        for (int day = 0; day < 7; ++day)
            row->setDateSelection(day, true);
    };
    auto *everyDay = new ListViewDateSelectItem(text("Repeat"));
    auto *oneDay = new ListViewDateSelectItem(text("Repeat"));
    auto *alarm = new ListViewAlarmItem(text("07:30 AM"), text("Wake up"), true);
    choose(everyDay);
    choose(alarm);
    oneDay->setDateSelection(2, true);
    add("days", {everyDay, oneDay, alarm, new ListViewAlarmItem(text("07:30 AM"), text("Meeting"), false)});
    const auto addPieces = +[](ListViewSubTitleItem *row) {
        row->addSubTitle(QStringLiteral("070-1234"), 200, 90, QColor(85, 85, 85), Qt::white);
        row->addSubTitle(QStringLiteral("12:30"), 300, 70, Qt::black, Qt::white);
    };
    add("subtitle",
        {changed(new ListViewSubTitleItem(text("Young, Judy")), addPieces),
         changed(
             new ListViewSubTitleItem(text("Family")), +[](ListViewSubTitleItem *row) {
                 row->setGroupNameItem(true);
                 row->setUseTextShadow(1);
             })});
    add("network", {new ListViewNetworkItem(text("Office"), 4, true), new ListViewNetworkItem(longText, 1, false)});
    add("call",
        {changed(
             new ListViewCallItem(text("Young, Judy"), ListViewCallItem::CallActive),
             +[](ListViewCallItem *row) { row->setSeconds(309); }),
         changed(
             new ListViewCallItem(longText, ListViewCallItem::CallHold),
             +[](ListViewCallItem *row) { row->setSeconds(3909); }),
         new ListViewCallItem(text("070-1234-5678"), ListViewCallItem::CallMute)});
}

void RowPicturesTest::rows()
{
    const QString folder = qEnvironmentVariable("PHONE_PICTURES");
    if (folder.isEmpty())
        QSKIP("no folder for pictures");
    QFETCH(QVector<RowPtr>, rows);

    const QRect place = RowCanvas::Row;
    const int looks = int(std::size(RowCanvas::Looks));
    QImage sheet(place.width(), place.height() * looks * rows.size(), QImage::Format_RGB32);
    QPainter painter(&sheet);
    int top = 0;
    for (const RowPtr &row : qAsConst(rows)) {
        for (RowCanvas::Look look : RowCanvas::Looks) {
            painter.drawImage(0, top, RowCanvas::paint(*row, place, look));
            top += place.height();
        }
    }
    painter.end();
    QVERIFY(QDir().mkpath(folder));
    QVERIFY(sheet.save(QStringLiteral("%1/row-%2.png").arg(folder, QString::fromLatin1(QTest::currentDataTag()))));
}

void RowPicturesTest::picturesExist_data()
{
    QTest::addColumn<QSize>("size");
    const auto add = [](const QSize &size, const char *folder, std::initializer_list<const char *> names) {
        for (const char *name : names)
            QTest::addRow(":/ui/images/%s%s.png", folder, name) << size;
    };
    add(QSize(20, 20), "title/",
        {"status_lock",         "status_call",          "status_call_lock",     "status_call_forward",
         "status_call_hold",    "status_auto_answer",   "status_dnd",           "status_mute",
         "status_upgrade",      "status_mobile",        "status_aom",           "status_nvc",
         "status_headset",      "status_headset_ehs",   "status_headset_bt",    "status_headset_bt_off",
         "status_bluetooth",    "status_bluetooth_off", "status_bluetooth_acc", "status_bluetooth_acc_off",
         "status_wifi_-1",      "status_wifi_0",        "status_wifi_1",        "status_wifi_2",
         "status_wifi_3",       "status_wifi_4",        "status_type_korean",   "status_type_smallletter",
         "status_type_capital", "status_type_num"});
    add(QSize(12, 20), "title/", {"breadcrumb"});
    add(QSize(6, 20), "title/", {"num_bg_left", "num_bg_right"});
    add(QSize(24, 20), "widget/",
        {"softkey_ok", "softkey_ok_sel", "softkey_delete", "softkey_delete_sel", "softkey_cancel",
         "softkey_cancel_sel", "softkey_nextpage", "softkey_nextpage_sel"});
    // The frame asks its corners for their size.
    add(QSize(), "widget/",
        {"focus_02_lefttop", "focus_02_lefttop_sel", "focus_02_lefbottom", "focus_02_lefbottom_sel",
         "focus_02_righttop", "focus_02_righttop_sel", "focus_02_rightbottom", "focus_02_rightbottom_sel"});
    add(QSize(6, 30), "widget/", {"inputbox_left", "inputbox_left_sel", "inputbox_right", "inputbox_right_sel"});
    add(QSize(4, 30), "widget/", {"inputbox_mid", "inputbox_mid_sel"});
    add(QSize(20, 20), "widget/", {"checkbox", "checkbox_check", "checkbox_check_sel", "radio", "radio_sel"});
    add(QSize(40, 30), "widget/", {"list_focus", "list_focus_sel"});
    add(QSize(6, 30), "", {"checkbox_bg_left", "checkbox_bg_right"});
    add(QSize(36, 30), "", {"call_hold_bg_right"});
    add(QSize(24, 24), "contact/", {"contacts_group", "contacts_group_sel"});
    add(QSize(6, 158), "widget/", {"popup_01_left", "popup_01_right"});
    add(QSize(4, 158), "widget/", {"popup_01_mid"});
    add(QSize(12, 104), "widget/", {"popup_02_left", "popup_02_right"});
    add(QSize(4, 104), "widget/", {"popup_02_mid"});
    add(QSize(380, 133), "widget/", {"popup_03"});
    add(QSize(20, 20), "widget/", {"popup_i"});
    add(QSize(40, 36), "widget/", {"no_data"});
    add(QSize(20, 24), "", {"alarm_icon_02"});
    add(QSize(32, 32), "widget/",
        {"confirm", "delete", "error_emoti", "loading_01", "loading_02", "loading_03", "loading_04", "loading_05",
         "loading_06", "loading_07", "loading_08"});
}

void RowPicturesTest::picturesExist()
{
    QFETCH(QSize, size);
    const QImage picture(QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY(!picture.isNull());
    if (size.isValid())
        QCOMPARE(picture.size(), size);
}

PHONE_TEST_MAIN(RowPicturesTest)
#include "rowpicturestest.moc"
