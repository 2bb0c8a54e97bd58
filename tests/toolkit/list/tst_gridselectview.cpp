#include "listwindow.h"

#include "gridlistviewitem.h"
#include "gridselectview.h"

constexpr auto ByColumn = GridSelectView::ScrollByColumn, ByRow = GridSelectView::ScrollByRow;
constexpr Qt::Key Hash = Qt::Key(223);

struct GridMove
{
    GridSelectView::eScrollType scrollType;
    int size, from;
    Qt::Key key;
    int to, page;
    bool moved; ///< pageMoved was emitted
};
Q_DECLARE_METATYPE(GridMove)

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

/// Movement in grids, page by page.
class TestGridSelectView : public TestCase
{
    Q_OBJECT

private slots:
    void moves_data()
    {
        addCases<GridMove>({
            {"column: up from the first", {ByColumn, 14, 0, Up, 13, 3, true}},
            {"column: down to the next page", {ByColumn, 14, 5, Down, 6, 2, true}},
            {"column: down from the last", {ByColumn, 14, 13, Down, 0, 1, true}},
            {"column: left to the page before", {ByColumn, 14, 7, Left, 4, 1, true}},
            {"column: left from the first column", {ByColumn, 14, 1, Left, 13, 3, true}},
            {"column: left, one page, first cell", {ByColumn, 6, 0, Left, 5, 1, true}},
            {"column: left, one page, a line up", {ByColumn, 6, 2, Left, 4, 1, true}},
            {"column: right, one page, last column", {ByColumn, 6, 3, Right, 1, 1, false}},
            {"column: right, one page, last cell", {ByColumn, 6, 5, Right, 0, 1, false}},
            {"column: right to the next page", {ByColumn, 14, 4, Right, 7, 2, true}},
            {"column: right to a shorter page", {ByColumn, 14, 11, Right, 13, 3, true}},
            {"column: right from the last column", {ByColumn, 12, 10, Right, 1, 2, false}},
            {"column: right past a short last page", {ByColumn, 14, 13, Right, 1, 1, true}},
            {"row: up from the first line", {ByRow, 13, 1, Up, 11, 3, true}},
            {"row: up to the page before", {ByRow, 14, 7, Up, 5, 1, true}},
            {"row: down to the next page", {ByRow, 14, 4, Down, 6, 2, true}},
            {"row: down from the last line", {ByRow, 14, 13, Down, 1, 1, true}},
            {"no selection", {ByColumn, 6, -1, Left, 0, 1, false}},
        });
    }

    void moves()
    {
        QFETCH(GridMove, c);
        GridWindow window(c.size, c.from);
        window.list->setScrollType(c.scrollType);
        QVERIFY(window.showNow());
        QSignalSpy pages(window.list, &GridSelectView::pageMoved);
        PhoneKeys::press(c.key);
        PhoneKeys::repeat(c.key);
        QCOMPARE(window.list->selectedIdx(), c.from);
        PhoneKeys::release(c.key);
        QCOMPARE(window.list->selectedIdx(), c.to);
        QCOMPARE(window.list->currentPage(), c.page);
        QCOMPARE(values(pages), c.moved ? QList<int>{c.page} : QList<int>());
        PhoneKeys::release(c.key); // whose press was elsewhere
        QCOMPARE(window.list->selectedIdx(), c.to);
    }

    void pages()
    {
        GridWindow window(14), empty(0);
        QVERIFY(empty.showNow());
        PhoneKeys::clickAll({Up, Down, Left, Right, Down});
        QCOMPARE(empty.list->currentPage(), 1);
        window.list->moveToPrevPage();
        QCOMPARE(window.list->currentPage(), 3);
        window.list->setSelectedIdx(4);
        window.list->repositionSelectedItem();
        QCOMPARE(window.list->selectedIdx(), 13);
        window.list->moveToNextPage();
        window.list->repositionSelectedItem();
        QCOMPARE(window.list->selectedIdx(), 1);
    }

    void hotKeys()
    {
        const auto reached = [](int rows, int columns, const QList<int> &keys) {
            ListWindow<GridSelectView> window(18);
            window.list->setGridSize(rows, columns);
            window.list->setUseHotKeyMove(true);
            window.list->setCurrentIndex(rows * columns);
            window.showNow();
            QList<int> cells;
            for (int key : keys) {
                PhoneKeys::click(Qt::Key(key));
                cells.append(window.list->selectedIdx());
            }
            return cells;
        };
        const QList<int> digits{Qt::Key_1, Qt::Key_4, Qt::Key_7, Qt::Key_2, Qt::Key_5,
                                Qt::Key_8, Qt::Key_3, Qt::Key_6, Qt::Key_9};
        // The second page of each, beginning with its first cell; a key without a cell changes nothing.
        QCOMPARE(reached(3, 2, digits), (QList<int>{6, 7, 8, 8, 8, 8, 9, 10, 11}));
        QCOMPARE(reached(2, 3, digits), (QList<int>{6, 7, 7, 8, 8, 10, 10, 11, 11}));
        QCOMPARE(reached(3, 2, {Qt::Key_3, Qt::Key_Asterisk, Hash, Hash, Qt::Key_0}), (QList<int>{9, 3, 9, 15, 0}));
    }

    void digitMap()
    {
        ListWindow<GridSelectView> window;
        window.list->setGridSize(2, 2);
        window.list->setUseDigitMap(true);
        for (int digit : {Qt::Key_1, Qt::Key_2, Hash, Qt::Key_Asterisk, Qt::Key_5}) {
            auto *cell = new GridListViewMenuItem(digit == Qt::Key_2 ? " " : "Cell", QPixmap(), QPixmap());
            cell->setDigitKey(digit);
            window.list->addItem(cell);
        }
        QVERIFY(window.showNow());
        QSignalSpy clicks(window.list, &ListView::clicked), keys(window.list, &ListView::keyPressed);
        PhoneKeys::clickAll({Hash, Qt::Key_2 /* a cell without text */, Qt::Key_Asterisk, Qt::Key_1});
        // Only the first page is searched; what was selected is clicked.
        window.list->setCurrentIndex(4);
        PhoneKeys::click(Qt::Key_1);
        QCOMPARE(values(clicks), (QList<int>{2, 3, 0, 4}));
        QVERIFY(keys.isEmpty());
    }

    void rejects()
    {
        const auto leaves = [](int size, int from, Qt::Key key) {
            GridWindow window(size, from);
            window.list->setUseNaviKeyReject(true);
            window.showNow();
            QSignalSpy rejects(window.list, &GridSelectView::reject);
            PhoneKeys::click(key);
            return rejects.count() == 1 && window.list->selectedIdx() == from;
        };
        QVERIFY(leaves(14, 2, Left) && !leaves(14, 3, Left) && !leaves(14, 6, Left));
        QVERIFY(leaves(12, 9, Right) && !leaves(14, 11, Right));
    }

    void rebuildsInsideItsSignals()
    {
        GridWindow window(14);
        window.list->setUseHotKeyMove(true);
        QVERIFY(window.showNow());
        const auto rebuild = [&] {
            window.list->itemClear();
            window.add(7);
        };
        connect(window.list, &ListView::focusChanged, this, rebuild);
        connect(window.list, &GridSelectView::pageMoved, this, rebuild);
        PhoneKeys::clickAll({Up, Up, Left, Right, Hash, Qt::Key_4, Down, Enter});
        QCOMPARE(window.list->itemSize(), 7);
    }
};

PHONE_TEST_MAIN(TestGridSelectView)
#include "tst_gridselectview.moc"
