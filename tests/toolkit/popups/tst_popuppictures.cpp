#include "boxrun.h"
#include "gridselectpopup.h"
#include "imagebutton.h"
#include "listviewcheckitem.h"
#include "listviewradioitem.h"
#include "selectpopup.h"
#include "testcase.h"
#include "testmain.h"
#include "testphone.h"
#include "toastwait.h"

#include <memory>

using namespace PhoneKeys;

using Prepare = void (*)(Toast &);
using Fill = void (*)(SelectPopup &);
Q_DECLARE_METATYPE(Prepare)
Q_DECLARE_METATYPE(Fill)

/// What toasts and popups look like over a screen. With PHONE_PICTURES set, each look is also written there.
class PopupPicturesTest : public OverScreenTest
{
    Q_OBJECT

private slots:
    void toasts_data();
    void toasts();
    void waits_data();
    void waits();
    void popups_data();
    void popups();
    void gridPopup();

private:
    static void addRows(SelectPopup &popup, int count)
    {
        for (int i = 1; i <= count; ++i)
            popup.addListViewItem(QString("Choice %1").arg(i));
    }
    void shoot(const char *prefix);

};

static QPixmap icon(const char *name)
{
    return QPixmap(QString(":ui/images/widget/%1.png").arg(name));
}

void PopupPicturesTest::shoot(const char *prefix)
{
    QCoreApplication::processEvents();
    TestScreen::shot(QString("%1-%2").arg(prefix, QTest::currentDataTag()));
}

void PopupPicturesTest::toasts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<Prepare>("prepare");
    const auto plain = [](Toast &) {};
    const auto confirm = [](Toast &toast) { toast.setIcon(icon("confirm")); };
    const auto error = [](Toast &toast) { toast.setIcon(icon("error_emoti")); };
    const auto box = [](Toast &toast) { toast.setUseFullScreen(false); };
    const auto boxWithIcon = [](Toast &toast) {
        toast.setUseFullScreen(false);
        toast.setIcon(icon("delete"));
    };
    const auto narrow = [](Toast &toast) {
        toast.setResized(true);
        toast.setIcon(icon("delete"));
    };
    QTest::newRow("plain") << "The keyword is too short" << Prepare(plain);
    QTest::newRow("icon") << "Saved" << Prepare(confirm);
    QTest::newRow("lines") << "Number is full\nDelete other Number First" << Prepare(error);
    QTest::newRow("long") << "A notice that is by far too long for the one line that the panel has for it"
                          << Prepare(confirm);
    QTest::newRow("narrow") << "Deleted" << Prepare(narrow);
    QTest::newRow("box") << "Saved" << Prepare(box);
    QTest::newRow("box-icon") << "Deleted" << Prepare(boxWithIcon);
    QTest::newRow("box-long") << "A notice that needs more than one line of the box around it" << Prepare(box);
    QTest::newRow("box-long-icon") << "A notice that needs more than one line of the box around it"
                                   << Prepare(boxWithIcon);
}

void PopupPicturesTest::toasts()
{
    QFETCH(QString, text);
    QFETCH(Prepare, prepare);
    Toast toast(text, 0, m_screen.get());
    prepare(toast);
    toast.show();
    shoot("toast");
}

void PopupPicturesTest::waits_data()
{
    QTest::addColumn<bool>("panel");
    QTest::addColumn<int>("frame");
    QTest::newRow("panel-1") << true << 0;
    QTest::newRow("panel-4") << true << 3;
    QTest::newRow("box-8") << false << 7;
}

void PopupPicturesTest::waits()
{
    QFETCH(bool, panel);
    QFETCH(int, frame);
    ToastWait toast("Connecting...", 0, m_screen.get());
    toast.setUseFullScreen(panel);
    toast.show();
    for (int i = 0; i < frame; ++i)
        toast.pixmapTimeout();
    shoot("wait");
}

void PopupPicturesTest::popups_data()
{
    QTest::addColumn<Fill>("fill");
    QTest::addColumn<bool>("pressed");
    const auto few = [](SelectPopup &popup) { addRows(popup, 3); };
    const auto last = [](SelectPopup &popup) {
        addRows(popup, 4);
        popup.listView()->setSelectedIdx(3);
    };
    const auto many = [](SelectPopup &popup) {
        addRows(popup, 9);
        popup.listView()->setSelectedIdx(5);
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
    const auto empty = [](SelectPopup &popup) { popup.listView()->setShowEmptyString(true); };
    const auto titled = [](SelectPopup &popup) {
        addRows(popup, 4);
        popup.setContentsTitle("Bell");
        popup.setContentsTitlePos(18, -8);
        popup.listView()->setGeometry(5, 38, 183, 92);
        popup.listView()->setPageCount(3);
    };
    for (const bool pressed : {false, true}) {
        const QByteArray look = pressed ? "-pressed" : "";
        QTest::newRow("few" + look) << Fill(few) << pressed;
        QTest::newRow("last" + look) << Fill(last) << pressed;
        QTest::newRow("many" + look) << Fill(many) << pressed;
        QTest::newRow("radio" + look) << Fill(radio) << pressed;
        QTest::newRow("check" + look) << Fill(check) << pressed;
    }
    QTest::newRow("empty") << Fill(empty) << false;
    QTest::newRow("titled") << Fill(titled) << false;
}

void PopupPicturesTest::popups()
{
    QFETCH(Fill, fill);
    QFETCH(bool, pressed);
    SelectPopup popup(m_screen.get(), 0);
    fill(popup);
    popup.show();
    QVERIFY(waitUntilActive(&popup));
    if (pressed)
        press(Qt::Key_Return);
    shoot("popup");
    popup.hide();
}

void PopupPicturesTest::gridPopup()
{
    GridSelectPopup popup(m_screen.get(), 0);
    for (const QString sign : {".", ",", "?", "!", "@", "#", "&", "%", "*", "(", ")", "/", ":", ";"})
        popup.addGridViewItem(sign);
    popup.show();
    QVERIFY(waitUntilActive(&popup));
    shoot("grid");
    press(Qt::Key_Return);
    shoot("grid-pressed");
    popup.hide();
}

PHONE_TEST_MAIN(PopupPicturesTest)
#include "tst_popuppictures.moc"
