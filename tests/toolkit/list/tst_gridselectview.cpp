#include "listwindow.h"
#include "testcase.h"
#include "testmain.h"

#include "gridlistviewitem.h"
#include "twocolumncontactlistview.h"

#include <QSignalSpy>

namespace {

constexpr auto Up = Qt::Key_Up, Down = Qt::Key_Down, Left = Qt::Key_Left, Right = Qt::Key_Right;
constexpr auto ByColumn = GridSelectView::ScrollByColumn, ByRow = GridSelectView::ScrollByRow;
constexpr Qt::Key Hash = Qt::Key(223);

}

/// Movement in grids, page by page.
class TestGridSelectView : public TestCase
{
    Q_OBJECT

private slots:
    void moves_data();
    void moves();
    void movesOnReleaseOnly();
    void emptyGrid();
    void pages();
    void hotKeys_data();
    void hotKeys();
    void digitMap();
    void rejects_data();
    void rejects();
    void rebuildsInsideItsSignals();
    void cellsWithoutRoom();
    void twoColumns();

private:
    using Window = ListWindow<GridSelectView>;
};

void TestGridSelectView::moves_data()
{
    QTest::addColumn<int>("scrollType");
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("to");
    QTest::addColumn<int>("page");
    QTest::addColumn<bool>("moved"); // pageMoved was emitted

    const auto row = [](const char *name, int type, int size, int from, int key, int to, int page, bool moved) {
        QTest::newRow(name) << type << size << from << key << to << page << moved;
    };
    // Three rows of two columns; six cells make a page.
    row("column: up", ByColumn, 6, 4, Up, 3, 1, false);
    row("column: up from the first", ByColumn, 14, 0, Up, 13, 3, true);
    row("column: up to the page before", ByColumn, 14, 6, Up, 5, 1, true);
    row("column: down", ByColumn, 6, 2, Down, 3, 1, false);
    row("column: down to the next page", ByColumn, 14, 5, Down, 6, 2, true);
    row("column: down from the last", ByColumn, 14, 13, Down, 0, 1, true);
    row("column: down from the last of one page", ByColumn, 6, 5, Down, 0, 1, true);
    row("column: left", ByColumn, 6, 4, Left, 1, 1, false);
    row("column: left to the page before", ByColumn, 14, 7, Left, 4, 1, true);
    row("column: left from the first column", ByColumn, 14, 1, Left, 13, 3, true);
    row("column: left, no such line at the end", ByColumn, 14, 2, Left, 13, 3, true);
    row("column: left, one page, first cell", ByColumn, 6, 0, Left, 5, 1, true);
    row("column: left, one page, a line up", ByColumn, 6, 2, Left, 4, 1, true);
    row("column: left, short page", ByColumn, 4, 2, Left, 3, 1, true);
    row("column: right, one page", ByColumn, 6, 1, Right, 4, 1, false);
    row("column: right, one page, last column", ByColumn, 6, 3, Right, 1, 1, false);
    row("column: right, one page, last cell", ByColumn, 6, 5, Right, 0, 1, false);
    row("column: right, one page, no neighbour", ByColumn, 4, 1, Right, 1, 1, false);
    row("column: right", ByColumn, 14, 1, Right, 4, 1, false);
    row("column: right to the next page", ByColumn, 14, 4, Right, 7, 2, true);
    row("column: right to a shorter page", ByColumn, 14, 11, Right, 13, 3, true);
    row("column: right from the last column", ByColumn, 12, 10, Right, 1, 2, false);
    row("column: right past a short last page", ByColumn, 14, 13, Right, 1, 1, true);

    row("row: left", ByRow, 6, 3, Left, 2, 1, false);
    row("row: left from the first", ByRow, 14, 0, Left, 13, 3, true);
    row("row: left to the page before", ByRow, 14, 6, Left, 5, 1, true);
    row("row: right", ByRow, 6, 2, Right, 3, 1, false);
    row("row: right from the last", ByRow, 14, 13, Right, 0, 1, true);
    row("row: right to the next page", ByRow, 14, 5, Right, 6, 2, true);
    row("row: up", ByRow, 6, 5, Up, 3, 1, false);
    row("row: up from the first line", ByRow, 13, 1, Up, 11, 3, true);
    row("row: up to the page before", ByRow, 14, 7, Up, 5, 1, true);
    row("row: down", ByRow, 6, 1, Down, 3, 1, false);
    row("row: down to the next page", ByRow, 14, 4, Down, 6, 2, true);
    row("row: down from the last line", ByRow, 14, 13, Down, 1, 1, true);
    row("no selection", ByColumn, 6, -1, Left, 0, 1, false);
}

void TestGridSelectView::moves()
{
    QFETCH(int, scrollType);
    QFETCH(int, size);
    QFETCH(int, from);
    QFETCH(int, key);
    Window window;
    window.list->setGridSize(3, 2);
    window.list->setScrollType(GridSelectView::eScrollType(scrollType));
    window.add(size);
    window.list->setCurrentIndex(from);
    QVERIFY(window.showNow());
    QSignalSpy pages(window.list, &GridSelectView::pageMoved);
    PhoneKeys::click(Qt::Key(key));
    QFETCH(int, page);
    QFETCH(bool, moved);
    QTEST(window.list->selectedIdx(), "to");
    QCOMPARE(window.list->currentPage(), page);
    QCOMPARE(pages.count(), moved ? 1 : 0);
    if (moved)
        QCOMPARE(pages.first().first().toInt(), page);
}

void TestGridSelectView::movesOnReleaseOnly()
{
    Window window;
    window.add(6);
    QVERIFY(window.showNow());
    PhoneKeys::press(Down);
    PhoneKeys::repeat(Down);
    QCOMPARE(window.list->selectedIdx(), 0);
    PhoneKeys::release(Down);
    QCOMPARE(window.list->selectedIdx(), 1);
    PhoneKeys::release(Down);
    QCOMPARE(window.list->selectedIdx(), 1);
    QSignalSpy clicks(window.list, &ListView::clicked);
    PhoneKeys::click(Qt::Key_Return);
    QCOMPARE(clicks.count(), 1);
}

void TestGridSelectView::emptyGrid()
{
    Window window;
    window.list->setShowEmptyString(true);
    QVERIFY(window.showNow());
    QCOMPARE(window.list->totalPage(), 0);
    window.list->moveToPrevPage();
    window.list->moveToNextPage();
    for (Qt::Key key : {Up, Down, Left, Right, Down})
        PhoneKeys::click(key);
    QCOMPARE(window.list->currentPage(), 1);
}

void TestGridSelectView::pages()
{
    Window window;
    window.list->setGridSize(3, 2);
    window.add(14);
    QCOMPARE(window.list->pageCount(), 3);
    QCOMPARE(window.list->itemCountPerPage(), 6);
    QCOMPARE(window.list->totalPage(), 3);
    window.list->moveToPrevPage();
    QCOMPARE(window.list->currentPage(), 3);
    window.list->setSelectedIdx(4);
    window.list->repositionSelectedItem();
    QCOMPARE(window.list->selectedIdx(), 13);
    window.list->moveToNextPage();
    window.list->repositionSelectedItem();
    QCOMPARE(window.list->selectedIdx(), 1);
    window.list->setCurrentIndex(6);
    QCOMPARE(window.list->currentPage(), 2);
}

void TestGridSelectView::hotKeys_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("columns");
    QTest::addColumn<QList<Qt::Key>>("keys");
    QTest::addColumn<QList<int>>("cells");
    using Keys = QList<Qt::Key>;
    const Keys digits{Qt::Key_1, Qt::Key_4, Qt::Key_7, Qt::Key_2, Qt::Key_5,
                      Qt::Key_8, Qt::Key_3, Qt::Key_6, Qt::Key_9};
    // The second page of each, beginning with its first cell; a key without a cell changes nothing.
    QTest::newRow("3x3") << 3 << 3 << digits << QList<int>{9, 10, 11, 12, 13, 14, 15, 16, 17};
    QTest::newRow("3x2") << 3 << 2 << digits << QList<int>{6, 7, 8, 8, 8, 8, 9, 10, 11};
    QTest::newRow("2x3") << 2 << 3 << digits << QList<int>{6, 7, 7, 8, 8, 10, 10, 11, 11};
    QTest::newRow("pages") << 3 << 2 << Keys{Qt::Key_3, Qt::Key_Asterisk, Hash, Hash, Qt::Key_0}
                           << QList<int>{9, 3, 9, 15, 0};
}

void TestGridSelectView::hotKeys()
{
    QFETCH(int, rows);
    QFETCH(int, columns);
    QFETCH(QList<Qt::Key>, keys);
    Window window;
    window.list->setGridSize(rows, columns);
    window.list->setUseHotKeyMove(true);
    window.add(18);
    window.list->setCurrentIndex(rows * columns);
    QVERIFY(window.showNow());
    QList<int> reached;
    for (Qt::Key key : qAsConst(keys)) {
        PhoneKeys::click(key);
        reached.append(window.list->selectedIdx());
    }
    QTEST(reached, "cells");
}

void TestGridSelectView::digitMap()
{
    Window window;
    window.list->setGridSize(2, 2);
    window.list->setUseDigitMap(true);
    const QList<int> digits{Qt::Key_1, Qt::Key_2, Hash, Qt::Key_Asterisk, Qt::Key_5};
    for (int digit : digits) {
        auto *cell = new GridListViewMenuItem(digit == Qt::Key_2 ? " " : "Cell", QPixmap(), QPixmap());
        cell->setDigitKey(digit);
        window.list->addItem(cell);
    }
    QVERIFY(window.showNow());
    QSignalSpy clicks(window.list, &ListView::clicked);
    QSignalSpy keys(window.list, &ListView::keyPressed);
    for (Qt::Key key : {Hash, Qt::Key_2, Qt::Key_Asterisk, Qt::Key_1})
        PhoneKeys::click(key);
    QCOMPARE(clicks.count(), 3); // not for a cell without text
    QCOMPARE(clicks.last().first().toInt(), 0);
    QVERIFY(keys.isEmpty());
    // Only the first page is searched; what was selected is clicked.
    window.list->setCurrentIndex(4);
    PhoneKeys::click(Qt::Key_1);
    QCOMPARE(clicks.last().first().toInt(), 4);
}

void TestGridSelectView::rejects_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("rejected");
    QTest::newRow("left of the first column") << 14 << 2 << int(Left) << true;
    QTest::newRow("left of the second") << 14 << 3 << int(Left) << false;
    QTest::newRow("left on the second page") << 14 << 6 << int(Left) << false;
    QTest::newRow("right of the last") << 12 << 9 << int(Right) << true;
    QTest::newRow("right before the last page") << 14 << 11 << int(Right) << false;
}

void TestGridSelectView::rejects()
{
    QFETCH(int, size);
    QFETCH(int, from);
    QFETCH(int, key);
    QFETCH(bool, rejected);
    Window window;
    window.list->setGridSize(3, 2);
    window.list->setUseNaviKeyReject(true);
    window.add(size);
    window.list->setCurrentIndex(from);
    QVERIFY(window.showNow());
    QSignalSpy rejects(window.list, &GridSelectView::reject);
    PhoneKeys::click(Qt::Key(key));
    QCOMPARE(rejects.count(), rejected ? 1 : 0);
    QCOMPARE(window.list->selectedIdx() == from, rejected);
}

void TestGridSelectView::rebuildsInsideItsSignals()
{
    Window window;
    window.list->setGridSize(3, 2);
    window.list->setUseHotKeyMove(true);
    window.add(14);
    QVERIFY(window.showNow());
    const auto rebuild = [&] {
        window.list->itemClear();
        window.add(7);
    };
    connect(window.list, &ListView::focusChanged, this, rebuild);
    connect(window.list, &GridSelectView::pageMoved, this, rebuild);
    for (Qt::Key key : {Up, Up, Left, Right, Hash, Qt::Key_4, Down, Qt::Key_Return})
        PhoneKeys::click(key);
    QCOMPARE(window.list->itemSize(), 7);
}

void TestGridSelectView::cellsWithoutRoom()
{
    Window window;
    window.list->setRow(0);
    window.list->setCol(-1);
    window.add(3);
    window.list->setSelectedIdx(2);
    QVERIFY(window.showNow());
    QTRY_COMPARE(window.list->itemCountPerPage(), 1);
    QCOMPARE(window.list->totalPage(), 3);
}

void TestGridSelectView::twoColumns()
{
    ListWindow<TwoColumnContactListView> window;
    window.add(7);
    window.list->setStartIdx(3);
    QCOMPARE(window.list->itemCountPerPage(), 6);
    QCOMPARE(window.list->keyToItemIdx(Qt::Key_F1), 0);
    QCOMPARE(window.list->keyToItemIdx(Qt::Key_F10), 9);
    QCOMPARE(window.list->keyToItemIdx(Qt::Key_F11), -1);
    QVERIFY(window.showNow());
    QTRY_COMPARE(window.list->item(4)->geometry(), QRect(187, 34, 187, 34));
    window.list->end();
    QVERIFY(window.list->isHidden());
}

PHONE_TEST_MAIN(TestGridSelectView)

#include "tst_gridselectview.moc"
