#include "listwindow.h"
#include "testcase.h"
#include "testmain.h"

#include "gridlistviewitem.h"
#include "listviewcontactitem.h"
#include "listviewlineedititem.h"
#include "twocolumnlistview.h"

#include <QDir>
#include <QImage>

namespace {

const QRgb Grey = qRgb(187, 187, 187), Dark = qRgb(85, 85, 85), White = qRgb(255, 255, 255), Black = qRgb(0, 0, 0);

}

/// What lists and grids look like. With PHONE_PICTURES set, each look is also written there, to be seen.
class TestListPictures : public TestCase
{
    Q_OBJECT

private slots:
    void lists_data();
    void lists();
    void grid();

private:
    static QImage picture(QWidget &window, const char *name);
};

QImage TestListPictures::picture(QWidget &window, const char *name)
{
    QTest::qWait(20);
    const QImage image = window.grab().toImage().convertToFormat(QImage::Format_RGB32);
    const QString folder = qEnvironmentVariable("PHONE_PICTURES");
    if (!folder.isEmpty() && QDir().mkpath(folder))
        image.scaled(image.size() * 2).save(folder + "/" + name + ".png");
    return image;
}

void TestListPictures::lists_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("selected");
    QTest::addColumn<int>("focusType");
    QTest::addColumn<int>("scrollBar");
    QTest::addColumn<bool>("pressed");
    QTest::newRow("list-thin") << 8 << 0 << 1 << 0 << false;
    QTest::newRow("list-clear") << 8 << 4 << 1 << 1 << false;
    QTest::newRow("list-boxed") << 8 << 7 << 1 << 2 << false;
    QTest::newRow("list-pressed") << 8 << 1 << 1 << 0 << true;
    QTest::newRow("list-pressed-last") << 3 << 2 << 1 << 0 << true;
    QTest::newRow("list-two") << 2 << 1 << 1 << 0 << false;
    QTest::newRow("list-last") << 3 << 2 << 1 << 0 << false;
    QTest::newRow("list-bar") << 8 << 1 << 0 << 0 << false;
    QTest::newRow("list-flat") << 3 << 1 << 2 << 0 << false;
    QTest::newRow("list-empty") << 0 << 0 << 1 << 0 << false;
}

void TestListPictures::lists()
{
    QFETCH(int, rows);
    QFETCH(int, selected);
    QFETCH(int, focusType);
    ListWindow window;
    window.add(rows);
    window.list->setFocusType(eListViewItemFocusType(focusType));
    for (int i = 0; i < rows; ++i)
        window.list->item(i)->setFocusType(eListViewItemFocusType(focusType));
    if (rows > 2)
        window.list->item(0)->setUnderLineType(ListViewItem::UnderLineSolid);
    window.list->setShowEmptyString(true);
    window.list->setSelectedIdx(selected);
    QFETCH(int, scrollBar);
    window.list->setScrollbarBorderType(ListView::eListViewScrollBarType(scrollBar));
    QVERIFY(window.showNow());
    QFETCH(bool, pressed);
    if (pressed)
        PhoneKeys::press(Qt::Key_Return);
    picture(window, QTest::currentDataTag());
}

void TestListPictures::grid()
{
    ListWindow<TwoColumnListView> window;
    for (const char *name : {"Anna Schmidt", "Bernd Maier-Leibnitz", "Carla", "Dora", "Emil von Hohenstaufen"})
        window.list->addItem(new ListViewContactGridItem(name, 1, 1));
    QVERIFY(window.showNow());
    picture(window, "grid-first");
    PhoneKeys::click(Qt::Key_Right);
    PhoneKeys::click(Qt::Key_Down);
    PhoneKeys::press(Qt::Key_Return);
    picture(window, "grid-pressed");
    PhoneKeys::release(Qt::Key_Return);
    window.list->setSelectedIdx(2);
    picture(window, "grid-last-line");

    window.list->setUseDotLines(false);
    window.list->setUseDivideLines(true);
    window.list->setUseTopLine(true);
    window.list->setUseBottomLine(true);
    window.list->setUseSideLine(true);
    window.list->setShowIndex(true);
    window.list->setGridSize(2, 3);
    window.list->setRowGap(4);
    window.list->setColGap(4);
    window.list->itemClear();
    const QPixmap icon(":/ui/images/widget/confirm.png");
    window.list->addItem(new GridListViewItem("Settings", icon, QPixmap()));
    window.list->addItem(new GridListViewMenuItem("Menu", icon.scaled(24, 24), QPixmap()));
    window.list->addItem(new GridListViewFunctionItem("Add", icon.scaled(24, 24), QPixmap()));
    window.list->addItem(new GridListViewItem("A long caption", QPixmap(), QPixmap()));
    window.list->setSelectedIdx(2);
    window.list->update();
    picture(window, "grid-menu");
}

PHONE_TEST_MAIN(TestListPictures)

#include "tst_listpictures.moc"
