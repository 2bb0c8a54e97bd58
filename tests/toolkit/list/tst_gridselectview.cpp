#include "listwindow.h"

#include "gridlistviewitem.h"
#include "gridselectview.h"
#include "listviewcontactitem.h"
#include "twocolumnlistview.h"

constexpr auto ByColumn = GridSelectView::ScrollByColumn, ByRow = GridSelectView::ScrollByRow;

/// A grid of three rows and two columns: six cells make a page.
class GridWindow : public ListWindow<GridSelectView>
{
public:
    explicit GridWindow(int cells, int selected = 0)
    {
        list->setGridSize(3, 2);
        add(cells);
        list->setCurrentIndex(selected);
    }
};

/// Movement in grids, page by page, and what they look like.
class TestGridSelectView : public TestCase
{
    Q_OBJECT

private slots:
    void moves()
    {
        // Each name, how it scrolls, how many cells, from which, the key, to which, the page, and if that is told.
        const QList<std::tuple<const char *, GridSelectView::eScrollType, int, int, Qt::Key, int, int, bool>> moves
            = {
                {"column: up from the first", ByColumn, 14, 0, Up, 13, 3, true},
                {"column: down to the next page", ByColumn, 14, 5, Down, 6, 2, true},
                {"column: down from the last", ByColumn, 14, 13, Down, 0, 1, true},
                {"column: left to the page before", ByColumn, 14, 7, Left, 4, 1, true},
                {"column: left from the first column", ByColumn, 14, 1, Left, 13, 3, true},
                {"column: left, one page, first cell", ByColumn, 6, 0, Left, 5, 1, true},
                {"column: left, one page, a line up", ByColumn, 6, 2, Left, 4, 1, true},
                {"column: right, one page, last column", ByColumn, 6, 3, Right, 1, 1, false},
                {"column: right, one page, last cell", ByColumn, 6, 5, Right, 0, 1, false},
                {"column: right to a shorter page", ByColumn, 14, 11, Right, 13, 3, true},
                {"column: right from the last column", ByColumn, 12, 10, Right, 1, 2, false},
                {"column: right past a short last page", ByColumn, 14, 13, Right, 1, 1, true},
                {"row: up from the first line", ByRow, 13, 1, Up, 11, 3, true},
                {"row: up to the page before", ByRow, 14, 7, Up, 5, 1, true},
                {"row: down to the next page", ByRow, 14, 4, Down, 6, 2, true},
                {"row: down from the last line", ByRow, 14, 13, Down, 1, 1, true},
                {"no selection", ByColumn, 6, -1, Left, 0, 1, false},
            };
        for (const auto &[name, scrollType, cells, from, key, to, page, isTold] : moves) {
            GridWindow window(cells, from);
            window.list->setScrollType(scrollType);
            QVERIFY(window.showNow());
            QSignalSpy pages(window.list, &GridSelectView::pageMoved);
            PhoneKeys::press(key);
            PhoneKeys::repeat(key);
            QCOMPARE(window.list->selectedIdx(), from);
            PhoneKeys::release(key);
            PhoneKeys::release(key); // whose press was elsewhere
            QVERIFY2(window.list->selectedIdx() == to, name);
            QVERIFY2(window.list->currentPage() == page, name);
            QCOMPARE(values(pages), isTold ? QList<int>{page} : QList<int>());
        }
    }

    void anEmptyGridHasOnePage()
    {
        GridWindow empty(0);
        QVERIFY(empty.showNow());
        PhoneKeys::clickAll({Up, Down, Left, Right, Down});
        QCOMPARE(empty.list->currentPage(), 1);
    }

    void rebuildsInsideItsSignals()
    {
        GridWindow window(14);
        QVERIFY(window.showNow());
        const auto rebuild = [&] {
            window.list->itemClear();
            window.add(7);
        };
        connect(window.list, &ListView::focusChanged, this, rebuild);
        connect(window.list, &GridSelectView::pageMoved, this, rebuild);
        PhoneKeys::clickAll({Up, Up, Left, Right, Down, Enter});
        QCOMPARE(window.list->itemSize(), 7);
    }

    void pictures()
    {
        ListWindow<TwoColumnListView> window;
        for (const char *name : {"Anna Schmidt", "Bernd Maier-Leibnitz", "Carla", "Dora", "Emil von Hohenstaufen"})
            window.list->addItem(new ListViewContactGridItem(name, 1, 1));
        QVERIFY(window.showNow());
        // Dotted lines between the cells; the frame keeps to the part of the cell that the contact takes.
        window.checkPicture("grid-first", "#bbb 190,33 186,90 white 90,33 184,5 0,102 black 183,5");
        PhoneKeys::clickAll({Right, Down});
        PhoneKeys::press(Enter);
        window.checkPicture("grid-pressed", "black 373,50 190,50 white 189,50");
        PhoneKeys::release(Enter);
        window.list->setUseDotLines(false);
        window.list->setUseDivideLines(true);
        window.list->setShowIndex(true);
        window.list->setGridSize(2, 3);
        window.list->itemClear();
        const QPixmap icon(":/ui/images/widget/confirm.png"), small = icon.scaled(24, 24);
        window.add({new GridListViewItem("Settings", icon, {}), new GridListViewMenuItem("Menu", small, {}),
                    new GridListViewFunctionItem("Add", small, {}),
                    new GridListViewItem("A long caption", {}, {})});
        window.list->setSelectedIdx(2);
        window.list->update();
        window.checkPicture("grid-menu", "white 0,103");
    }
};

PHONE_TEST_MAIN(TestGridSelectView)
#include "tst_gridselectview.moc"
