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

struct Pixel
{
    int x, y; ///< in the list
    QRgb color;
};
using Pixels = QVector<Pixel>;

const QRgb Grey = qRgb(187, 187, 187), Dark = qRgb(85, 85, 85), White = qRgb(255, 255, 255), Black = qRgb(0, 0, 0);

}

Q_DECLARE_METATYPE(Pixels)
Q_DECLARE_METATYPE(eListViewItemFocusType)

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
    QTest::addColumn<eListViewItemFocusType>("focusType");
    QTest::addColumn<int>("scrollBar");
    QTest::addColumn<bool>("pressed");
    QTest::addColumn<Pixels>("pixels");

    const auto row = [](const char *name, int rows, int selected, eListViewItemFocusType focusType, int scrollBar,
                        bool pressed, const Pixels &pixels) {
        QTest::newRow(name) << rows << selected << focusType << scrollBar << pressed << pixels;
    };
    // Rows are 34 pixels high. The bar takes the last 8 of 374 columns; row 0 has a solid separator, row 1 a
    // dotted.
    const auto floating = ListViewFocusFloating;
    row("list-thin", 8, 0, floating, 0, false,
        {{369, 60, White},
         {370, 60, Grey},
         {373, 60, Grey},
         {370, 5, Dark},
         {373, 5, Dark},
         {6, 0, Black},
         {6, 32, Black},
         {200, 0, White},
         {200, 33, White}, // the frame, over the separator
         {0, 67, Grey},
         {1, 67, Grey},
         {2, 67, White},
         {366, 67, Grey},
         {367, 67, White},
         {3, 101, White}});
    row("list-clear", 8, 4, floating, 1, false,
        {{368, 50, White}, {369, 50, Dark}, {372, 50, Dark}, {373, 50, White}, {370, 10, White}});
    row("list-boxed", 8, 7, floating, 2, false,
        {{368, 10, Dark},
         {369, 10, White},
         {372, 10, White},
         {373, 10, Dark},
         {369, 90, White},
         {370, 90, Dark},
         {372, 90, Dark}});
    row("list-pressed", 8, 1, floating, 0, true,
        {{200, 33, Black}, {200, 70, Black}, {200, 71, White}, {366, 50, Black}, {367, 50, White}});
    row("list-last", 3, 2, floating, 0, false, {{6, 67, Black}, {6, 101, Black}, {373, 95, Black}, {2, 33, Grey}});
    row("list-pressed-last", 3, 2, floating, 0, true, {{200, 103, Black}, {200, 66, White}});
    row("list-two", 2, 1, floating, 0, false, {{6, 66, Black}, {0, 71, White}});
    row("list-bar", 8, 1, ListViewFocusBar, 0, false,
        {{0, 34, Black}, {366, 50, Black}, {200, 32, White}, {0, 67, Grey}, {2, 67, White}});
    row("list-flat", 3, 1, ListViewFocusFlat, 0, false, {{0, 34, White}, {200, 50, White}, {0, 67, Grey}});
    row("list-empty", 0, 0, floating, 0, false, {{0, 33, White}});
}

void TestListPictures::lists()
{
    QFETCH(int, rows);
    QFETCH(int, selected);
    QFETCH(eListViewItemFocusType, focusType);
    ListWindow window;
    window.add(rows);
    window.list->setFocusType(focusType);
    for (int i = 0; i < rows; ++i)
        window.list->item(i)->setFocusType(focusType);
    if (rows > 0)
        window.list->item(0)->setUnderLineType(ListViewItem::UnderLineSolid);
    window.list->setShowEmptyString(true);
    window.list->setSelectedIdx(selected);
    QFETCH(int, scrollBar);
    window.list->setScrollbarBorderType(ListView::eListViewScrollBarType(scrollBar));
    QVERIFY(window.showNow());
    window.list->setStartIdx(selected > 2 ? selected / 3 * 3 : 0);
    QFETCH(bool, pressed);
    if (pressed)
        PhoneKeys::press(Qt::Key_Return);

    const QImage image = picture(window, QTest::currentDataTag());
    QFETCH(Pixels, pixels);
    for (const Pixel &pixel : qAsConst(pixels)) {
        const QPoint at = window.list->pos() + QPoint(pixel.x, pixel.y);
        QVERIFY2(image.pixel(at) == pixel.color,
                 qPrintable(QString("%1, %2: %3").arg(pixel.x).arg(pixel.y).arg(image.pixel(at), 0, 16)));
    }
}

void TestListPictures::grid()
{
    ListWindow<TwoColumnListView> window;
    for (const char *name : {"Anna Schmidt", "Bernd Maier-Leibnitz", "Carla", "Dora", "Emil von Hohenstaufen"})
        window.list->addItem(new ListViewContactGridItem(name, 1, 1));
    QVERIFY(window.showNow());
    const QImage first = picture(window, "grid-first").copy(window.list->geometry());
    // Dotted lines between the cells; the frame keeps to the part of the cell that the contact takes.
    QCOMPARE(first.pixel(190, 33), Grey);
    QCOMPARE(first.pixel(186, 90), Grey);
    QCOMPARE(first.pixel(90, 33), White);
    QCOMPARE(first.pixel(183, 5), Black);
    QCOMPARE(first.pixel(184, 5), White);
    QCOMPARE(first.pixel(0, 102), White);
    PhoneKeys::click(Qt::Key_Right);
    PhoneKeys::click(Qt::Key_Down);
    PhoneKeys::press(Qt::Key_Return);
    const QImage pressed = picture(window, "grid-pressed").copy(window.list->geometry());
    QCOMPARE(pressed.pixel(373, 50), Black);
    QCOMPARE(pressed.pixel(190, 50), Black);
    QCOMPARE(pressed.pixel(189, 50), White);
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
