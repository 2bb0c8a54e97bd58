#include "gridselectpopup.h"
#include "imagebutton.h"
#include "listviewcheckitem.h"
#include "listviewradioitem.h"
#include "screentest.h"
#include "selectpopup.h"
#include "toastwait.h"

using namespace PhoneKeys;

struct Notice
{
    QString text;
    const char *icon;
    bool box = false;
    bool narrow = false;
};
Q_DECLARE_METATYPE(Notice)

using Fill = void (*)(SelectPopup &);
Q_DECLARE_METATYPE(Fill)

/// What toasts and popups look like over a screen. With PHONE_PICTURES set, each look is also written there.
class PopupPicturesTest : public ScreenTest
{
    Q_OBJECT

private slots:
    void toast_data()
    {
        const QString boxText("A notice that needs more than one line of the box around it"),
            panelText("A notice that is by far too long for the one line that the panel has for it");
        addCases<Notice>({{"plain", {"The keyword is too short", ""}},
                          {"icon", {"Saved", "confirm"}},
                          {"lines", {"Number is full\nDelete other Number First", "error_emoti"}},
                          {"long", {panelText, "confirm"}},
                          {"narrow", {"Deleted", "delete", false, true}},
                          {"box", {"Saved", "", true}},
                          {"box-icon", {"Deleted", "delete", true}},
                          {"box-long", {boxText, "", true}},
                          {"box-long-icon", {boxText, "delete", true}}});
    }

    void toast()
    {
        QFETCH(Notice, c);
        Toast toast(c.text, 0, m_screen.get());
        toast.setUseFullScreen(!c.box);
        toast.setResized(c.narrow);
        if (*c.icon)
            toast.setIcon(QPixmap(QString(":ui/images/widget/%1.png").arg(c.icon)));
        toast.show();
        shoot();
    }

    void wait_data() { addCases<int>({{"panel-1", 0}, {"panel-4", 3}, {"box-8", 7}}); }

    void wait()
    {
        QFETCH(int, c);
        ToastWait toast("Connecting...", 0, m_screen.get());
        toast.setUseFullScreen(c < 7);
        toast.show();
        for (int i = 0; i < c; ++i)
            toast.pixmapTimeout();
        shoot();
    }

    void popup_data()
    {
        const auto many = [](SelectPopup &popup) {
            addRows(popup, 9);
            popup.listView()->setSelectedIdx(5);
        };
        const auto last = [](SelectPopup &popup) {
            addRows(popup, 4);
            popup.listView()->setSelectedIdx(3);
        };
        const auto radio = [](SelectPopup &popup) {
            for (const QString text : {"Number", "Name", "A rather long ring tone name", "Four"})
                popup.listView()->addItem(new ListViewRadioItem(text, false));
            popup.listView()->item(1)->setItemSelectEnable(false);
        };
        const auto check = [](SelectPopup &popup) {
            popup.setMultipleCheck(true);
            popup.nextButton()->setText("Done");
            for (int i = 0; i < 5; ++i)
                popup.listView()->addItem(new ListViewCheckItem(QString("Group %1").arg(i), i % 2));
        };
        const auto titled = [](SelectPopup &popup) {
            addRows(popup, 4);
            popup.setContentsTitle("Bell");
            popup.setContentsTitlePos(18, -8);
            popup.listView()->setGeometry(5, 38, 183, 92);
            popup.listView()->setPageCount(3);
        };
        addCases<Fill>({{"few", [](SelectPopup &popup) { addRows(popup, 3); }},
                        {"last", last},
                        {"many", many},
                        {"radio", radio},
                        {"check", check},
                        {"empty", [](SelectPopup &popup) { popup.listView()->setShowEmptyString(true); }},
                        {"titled", titled}});
    }

    void popup()
    {
        QFETCH(Fill, c);
        SelectPopup popup(m_screen.get(), 0);
        c(popup);
        shootPressed(popup);
    }

    void gridpopup()
    {
        GridSelectPopup popup(m_screen.get(), 0);
        for (const QChar sign : QString(".,?!@#&%*()/:;"))
            popup.addGridViewItem(sign);
        shootPressed(popup);
    }

private:
    static void addRows(SelectPopup &popup, int count)
    {
        for (int i = 1; i <= count; ++i)
            popup.addListViewItem(QString("Choice %1").arg(i));
    }
    static void shoot(const QString &look = QString())
    {
        QCoreApplication::processEvents();
        QStringList name{QTest::currentTestFunction(), QTest::currentDataTag(), look};
        name.removeAll(QString());
        TestScreen::shot(name.join('-'));
    }
    /// The popup as it comes, and with Enter held.
    static void shootPressed(SelectPopupBase &popup)
    {
        popup.show();
        QVERIFY(waitUntilActive(&popup));
        shoot();
        press(Qt::Key_Return);
        shoot("pressed");
        popup.hide();
    }
};

PHONE_TEST_MAIN(PopupPicturesTest)
#include "tst_popuppictures.moc"
