#include "listwindow.h"
#include "testcase.h"
#include "testmain.h"

#include "callmanager.h"
#include "core.h"
#include "listgeometry.h"
#include "listviewcheckitem.h"
#include "listviewchecklineedititem.h"
#include "listviewprogressitem.h"
#include "listviewselectitem.h"

#include <QSignalSpy>
#include <QTemporaryDir>

Q_DECLARE_METATYPE(QList<int>)

namespace {

/// A list whose function keys are on, from F2 to F5 as the widest range without a second column.
class FuncKeyList : public ListView
{
public:
    explicit FuncKeyList(QWidget *parent) : ListView(parent)
    {
        m_isEnableFuncKey = true;
        setStartFuncKey(Qt::Key_F2);
        setEndFuncKey(Qt::Key_F5);
    }
    /// What setEnableFuncKey() cannot do.
    void switchOn() { m_isEnableFuncKey = true; }
};

QList<int> values(const QSignalSpy &spy)
{
    QList<int> list;
    for (const QList<QVariant> &arguments : spy)
        list.append(arguments.first().toInt());
    return list;
}

constexpr auto Up = Qt::Key_Up, Down = Qt::Key_Down, Left = Qt::Key_Left, Right = Qt::Key_Right,
               Enter = Qt::Key_Return;

}

/// Rows, selection, paging and keys.
class TestListView : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase() { m_core.reset(); }
    void moves_data();
    void moves();
    void leavesAtEitherEnd();
    void movesOnReleaseAndDropsStrayReleases();
    void leavesOutDisabledRowsInSearches();
    void refusesBadSelections();
    void pages_data();
    void pages();
    void removesRows();
    void findsRowsByText();
    void changesValues();
    void togglesAndClicks();
    void ignoresEnter();
    void rebuildsInsideItsSignals();
    void mapsFuncKeys_data();
    void mapsFuncKeys();
    void clicksByFuncKey();
    void staysQuietBehindACall();
    void longPress();
    void swallowsOneRelease();
    void realignsWhenShown();
    void scrollBar_data();
    void scrollBar();
    void frames();

private:
    QTemporaryDir m_home;
    QScopedPointer<Core> m_core;
};

void TestListView::initTestCase()
{
    const PhoneHome home(m_home.path());
    QVERIFY(home.create());
    m_core.reset(new Core(home));
}

void TestListView::moves_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<QList<int>>("disabled");
    QTest::addColumn<bool>("wraps");
    QTest::addColumn<int>("selected");
    QTest::addColumn<int>("start");
    QTest::addColumn<QList<int>>("keys");
    QTest::addColumn<int>("newSelected");
    QTest::addColumn<int>("newStart");
    QTest::addColumn<QList<int>>("focusChanged");

    using List = QList<int>;
    const auto row = [](const char *name, int rows, const List &disabled, int selected, int start, const List &keys,
                        int newSelected, int newStart, const List &changes, bool wraps = true) {
        QTest::newRow(name) << rows << disabled << wraps << selected << start << keys << newSelected << newStart
                            << changes;
    };
    row("down within the page", 5, {}, 0, 0, {Down, Down}, 2, 0, {1, 2});
    row("down moves the window", 5, {}, 2, 0, {Down}, 3, 1, {3});
    row("down past the last wraps", 5, {}, 4, 2, {Down}, 0, 0, {0});
    row("down wraps to the first enabled", 5, {0, 1}, 4, 2, {Down}, 2, 0, {2});
    row("down past disabled rows at the end wraps", 5, {3, 4}, 2, 0, {Down}, 0, 0, {0});
    row("down leaps over disabled rows", 8, {1, 2, 3}, 0, 0, {Down}, 4, 2, {4});
    row("down without wrapping stays", 3, {}, 2, 0, {Down}, 2, 0, {}, false);
    row("up on the first wraps", 5, {}, 0, 0, {Up}, 4, 2, {4});
    row("up wraps to the last enabled", 5, {4}, 0, 0, {Up}, 3, 1, {3});
    row("up wraps in a short list", 2, {}, 0, 0, {Up}, 1, 0, {1});
    row("up without wrapping stays", 3, {}, 0, 0, {Up}, 0, 0, {}, false);
    row("up moves the window", 6, {}, 3, 3, {Up}, 2, 2, {2});
    row("up leaps out of the window", 8, {2, 3, 4}, 5, 4, {Up, Up}, 0, 2, {1, 0});
    row("up below disabled rows stays", 4, {0, 1}, 2, 0, {Up}, 2, 0, {});
    row("from no selection, either key", 4, {0}, -1, 0, {Up}, 1, 0, {1});
    row("all rows disabled", 3, {0, 1, 2}, -1, 0, {Down}, -1, 0, {});
    row("empty, down", 0, {}, 0, 0, {Down}, -1, 0, {-1});
    row("empty, up", 0, {}, 0, 0, {Up}, 0, 0, {});
}

void TestListView::moves()
{
    QFETCH(int, rows);
    QFETCH(QList<int>, disabled);
    QFETCH(int, selected);
    QFETCH(int, start);
    QFETCH(bool, wraps);
    ListWindow window;
    window.add(rows);
    window.list->setSelectedIdx(selected);
    for (int idx : qAsConst(disabled))
        window.list->item(idx)->setItemSelectEnable(false);
    window.list->wrapAround = wraps;
    QVERIFY(window.showNow());
    window.list->setStartIdx(start);

    QSignalSpy changes(window.list, &ListView::focusChanged);
    QSignalSpy keyPresses(window.list, &ListView::keyPressed);
    QFETCH(QList<int>, keys);
    for (int key : qAsConst(keys))
        PhoneKeys::click(Qt::Key(key));

    QFETCH(int, newSelected);
    QFETCH(int, newStart);
    QFETCH(QList<int>, focusChanged);
    QCOMPARE(window.list->selectedIdx(), newSelected);
    QCOMPARE(window.list->startIdx(), newStart);
    QCOMPARE(values(changes), focusChanged);
    QCOMPARE(values(keyPresses), keys);
    QCOMPARE(window.presses, keys); // arrows are left to the screen, too
    QCOMPARE(window.releases, QList<int>()); // and their releases are spent
}

void TestListView::leavesAtEitherEnd()
{
    ListWindow window;
    window.add(4);
    window.list->setActiveLeaveFocusSignal(true);
    window.list->setActiveEndLeaveFocusSignal(true);
    QVERIFY(window.showNow());
    QSignalSpy atTop(window.list, &ListView::leaveFocus);
    QSignalSpy atEnd(window.list, &ListView::endLeaveFocus);

    PhoneKeys::click(Up);
    QCOMPARE(atTop.count(), 1);
    QCOMPARE(window.list->selectedIdx(), 0);
    window.list->setSelectedIdx(3);
    PhoneKeys::click(Down);
    QCOMPARE(values(atEnd), QList<int>{Down});
    QCOMPARE(window.list->selectedIdx(), 3);
    QCOMPARE(window.list->startIdx(), 1);

    // A screen answers by clearing the selection, which must not take the focus back from its search line.
    QWidget searchLine(&window);
    searchLine.setFocusPolicy(Qt::StrongFocus);
    searchLine.show();
    connect(window.list, &ListView::leaveFocus, &searchLine, [&] {
        searchLine.setFocus();
        window.list->setSelectedIdx(-1);
    });
    window.list->setSelectedIdx(0);
    QSignalSpy changes(window.list, &ListView::focusChanged);
    PhoneKeys::click(Up);
    QTest::qWait(10);
    QVERIFY(searchLine.hasFocus());
    QCOMPARE(values(changes), (QList<int>{-1, -1})); // as it is cleared, and as the move ends
}

void TestListView::movesOnReleaseAndDropsStrayReleases()
{
    ListWindow window;
    window.add(6);
    QVERIFY(window.showNow());
    QSignalSpy keys(window.list, &ListView::keyPressed);

    PhoneKeys::press(Down);
    PhoneKeys::repeat(Down);
    PhoneKeys::repeat(Down);
    PhoneKeys::release(Down);
    QCOMPARE(window.list->selectedIdx(), 3);
    QCOMPARE(keys.count(), 3);

    window.list->setUseDirectMovement(false);
    PhoneKeys::press(Enter);
    QVERIFY(window.list->selectAndPressed());
    PhoneKeys::press(Down);
    QVERIFY(!window.list->selectAndPressed());
    QCOMPARE(window.list->selectedIdx(), 3);
    PhoneKeys::release(Down);
    QCOMPARE(window.list->selectedIdx(), 4);
    PhoneKeys::release(Down);
    QCOMPARE(window.list->selectedIdx(), 4);

    window.list->setIsEnabledArrowKeyMove(false);
    PhoneKeys::click(Down);
    QCOMPARE(window.list->selectedIdx(), 4);

    QSignalSpy clicks(window.list, &ListView::clicked);
    PhoneKeys::press(Enter);
    window.list->itemClear();
    window.add(6);
    PhoneKeys::release(Enter);
    PhoneKeys::press(Enter);
    window.list->hide();
    window.list->show();
    PhoneKeys::release(Enter);
    QVERIFY(clicks.isEmpty());
    QCOMPARE(window.list->selectedIdx(), 4);
}

void TestListView::leavesOutDisabledRowsInSearches()
{
    ListWindow window;
    QCOMPARE(window.list->searchNextItemIndex(0, false), -1);
    window.add(5);
    window.disable({0, 1, 4});
    QCOMPARE(window.list->searchNextItemIndex(0, false), 2);
    QCOMPARE(window.list->searchNextItemIndex(3, false), 3);
    QCOMPARE(window.list->searchNextItemIndex(4, false), -1);
    QCOMPARE(window.list->searchNextItemIndex(4, true), 3);
    QCOMPARE(window.list->searchNextItemIndex(1, true), 1); // a fruitless search back answers its start
    QCOMPARE(window.list->searchNextItemIndex(-1, true), 0);
    QCOMPARE(window.list->searchNextItemIndex(5, true), 4);
}

void TestListView::refusesBadSelections()
{
    ListWindow window;
    window.add(3);
    window.disable({1});
    QSignalSpy changes(window.list, &ListView::focusChanged);
    for (int idx : {0, 1, 3, 2, 2, -1, -7})
        window.list->setSelectedIdx(idx);
    QCOMPARE(values(changes), (QList<int>{2, -1, -7}));

    QSignalSpy clicks(window.list, &ListView::clickedFuncKey);
    window.list->setSelectedIdx(-1);
    window.list->doClick();
    window.list->setSelectedIdx(2);
    window.list->doClick();
    QCOMPARE(values(clicks), QList<int>{2});
}

void TestListView::pages_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<QString>("steps"); // n for nextPage, p for prevPage
    QTest::addColumn<int>("page");
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("selected");
    QTest::addColumn<int>("maxPage");
    QTest::newRow("on") << 7 << "n" << 1 << 3 << 3 << 1;
    QTest::newRow("onto the short page") << 7 << "nn" << 2 << 6 << 6 << 1;
    QTest::newRow("around") << 7 << "nnn" << 0 << 0 << 0 << 1;
    QTest::newRow("back around to the short page") << 7 << "p" << 2 << 6 << 6 << 1;
    QTest::newRow("back around to a full page") << 6 << "p" << 1 << 3 << 3 << 1;
    QTest::newRow("there and back") << 7 << "nnp" << 1 << 3 << 3 << 1;
    QTest::newRow("empty back") << 0 << "p" << 0 << 0 << 0 << -1;
    QTest::newRow("empty on") << 0 << "n" << 0 << 0 << 0 << -1;
}

void TestListView::pages()
{
    QFETCH(int, rows);
    QFETCH(QString, steps);
    ListWindow window;
    window.add(rows);
    for (QChar step : qAsConst(steps))
        step == 'n' ? window.list->nextPage() : window.list->prevPage();
    QTEST(window.list->page(), "page");
    QTEST(window.list->startIdx(), "start");
    QTEST(window.list->selectedIdx(), "selected");
    QTEST(window.list->maxPage(), "maxPage");

    window.list->setPage(rows / 3 + 1);
    window.list->setPage(-1);
    window.list->setPageCount(-1);
    QTEST(window.list->page(), "page");
    QCOMPARE(window.list->pageCount(), 3);
}

void TestListView::removesRows()
{
    ListWindow window;
    window.add(4);
    window.list->setSelectedIdx(3);
    window.list->removeItem(4);
    window.list->removeItem(-1);
    QCOMPARE(window.list->itemSize(), 4);
    QSignalSpy changes(window.list, &ListView::focusChanged);
    window.list->removeItem(0);
    QCOMPARE(values(changes), QList<int>{2});
    QCOMPARE(window.list->item(2)->text(), QString("Row 3"));
    window.list->moveItem(2, 0);
    QCOMPARE(window.list->item(0)->text(), QString("Row 3"));
    window.list->itemClear();
    QCOMPARE(window.list->selectedIdx(), 2);
}

void TestListView::findsRowsByText()
{
    ListWindow window;
    QVERIFY(!window.list->item("Row 1"));
    window.add(3);
    QCOMPARE(window.list->item("Row 1"), window.list->item(1));
    QCOMPARE(window.list->item("none"), window.list->item(2));
    QVERIFY(!window.list->item(3));
    QVERIFY(!window.list->item(-1));
}

void TestListView::changesValues()
{
    ListWindow window;
    auto *bar = new ListViewProgressItem("Volume", 9);
    bar->setStep(2);
    bar->setMinValue(1);
    bar->setValue(7);
    window.list->addItem(bar);
    QVERIFY(window.showNow());
    QSignalSpy changes(window.list, &ListView::changeValue);
    for (Qt::Key key : {Right, Qt::Key_VolumeUp, Left, Qt::Key_VolumeDown, Qt::Key_VolumeMute, Left})
        PhoneKeys::click(key);
    QList<int> told;
    for (const auto &arguments : qAsConst(changes))
        told.append(arguments.at(1).toInt());
    QCOMPARE(told, (QList<int>{9, 9, 7, 5, 5, 1})); // a mute tells the value from before it
    QCOMPARE(bar->value(), 1);

    window.list->setIsEnabledArrowKeyMove(false);
    PhoneKeys::click(Right);
    QCOMPARE(bar->value(), 1);
    PhoneKeys::click(Qt::Key_VolumeUp);
    QCOMPARE(bar->value(), 3);

    window.list->setIsEnabledArrowKeyMove(true);
    window.list->addItem(new ListViewSelectItem("Tone", "One"));
    window.list->setSelectedIdx(1);
    QSignalSpy clicks(window.list, &ListView::clicked);
    PhoneKeys::click(Left);
    PhoneKeys::click(Right);
    PhoneKeys::click(Qt::Key_VolumeUp);
    QCOMPARE(values(clicks), (QList<int>{1, 1}));
}

void TestListView::togglesAndClicks()
{
    ListWindow window;
    auto *check = new ListViewCheckItem("Plain", false);
    auto *fixed = new ListViewCheckItem("The screen decides", false);
    auto *bare = new ListViewCheckLineEditItem("Without its field", false, true, QString());
    fixed->setIsNoValueChange(true);
    bare->setUseEditText(false);
    window.list->addItem(check);
    window.list->addItem(fixed);
    window.list->addItem(bare);
    window.add(1);
    QVERIFY(window.showNow());
    QSignalSpy clicks(window.list, &ListView::clicked);
    for (int i = 0; i < 4; ++i) {
        PhoneKeys::click(i % 2 ? Qt::Key_Enter : Qt::Key_Return);
        PhoneKeys::click(Down);
    }
    QCOMPARE(values(clicks), (QList<int>{0, 1, 2, 3}));
    QVERIFY(check->isChecked());
    QVERIFY(!fixed->isChecked());
    QVERIFY(bare->isChecked());
}

void TestListView::ignoresEnter()
{
    ListWindow window;
    window.add(1);
    QVERIFY(window.showNow());
    QSignalSpy clicks(window.list, &ListView::clicked);
    window.list->ignoreEnterKey = true;
    PhoneKeys::click(Enter);
    window.list->ignoreEnterKey = false;
    window.list->setSelectedIdx(-1);
    PhoneKeys::click(Enter);
    QVERIFY(clicks.isEmpty());
    window.list->setSelectedIdx(0);
    window.list->itemClear();
    PhoneKeys::click(Enter);
    QCOMPARE(values(clicks), QList<int>{0}); // a selection without its row is clicked all the same
}

void TestListView::rebuildsInsideItsSignals()
{
    ListWindow<FuncKeyList> window;
    const auto rebuild = [&] {
        window.list->itemClear();
        window.list->addItem(new ListViewCheckItem("New", false));
    };
    window.add(4);
    QVERIFY(window.showNow());
    connect(window.list, &ListView::clicked, this, rebuild);
    connect(window.list, &ListView::keyPressed, this, rebuild);
    connect(window.list, &ListView::focusChanged, this, rebuild);
    connect(window.list, &ListView::endLeaveFocus, this, rebuild);
    window.list->setActiveEndLeaveFocusSignal(true);
    for (Qt::Key key : {Enter, Qt::Key_F3, Down, Qt::Key_F2, Up, Left, Qt::Key_VolumeMute, Enter})
        PhoneKeys::click(key);
    QTest::qWait(10);
    QCOMPARE(window.list->itemSize(), 1);
}

void TestListView::mapsFuncKeys_data()
{
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("last");
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("idx");
    QTest::newRow("narrow") << int(Qt::Key_F2) << int(Qt::Key_F5) << int(Qt::Key_F5) << 13;
    QTest::newRow("below") << int(Qt::Key_F2) << int(Qt::Key_F5) << int(Qt::Key_F1) << -1;
    QTest::newRow("above") << int(Qt::Key_F2) << int(Qt::Key_F5) << int(Qt::Key_F6) << -1;
    QTest::newRow("wide, first column") << int(Qt::Key_F1) << int(Qt::Key_F10) << int(Qt::Key_F3) << 12;
    QTest::newRow("wide, second column") << int(Qt::Key_F1) << int(Qt::Key_F10) << int(Qt::Key_F4) << 10;
    QTest::newRow("wide, its end") << int(Qt::Key_F1) << int(Qt::Key_F10) << int(Qt::Key_F10) << 16;
}

void TestListView::mapsFuncKeys()
{
    QFETCH(int, first);
    QFETCH(int, last);
    QFETCH(int, key);
    ListWindow<FuncKeyList> window;
    window.list->setStartFuncKey(first);
    window.list->setEndFuncKey(last);
    window.list->setStartIdx(10);
    QTEST(window.list->keyToItemIdx(key), "idx");
    window.list->setEnableFuncKey(true);
    QVERIFY(!window.list->isEnableFuncKey());
    QCOMPARE(window.list->keyToItemIdx(key), -1);
}

void TestListView::clicksByFuncKey()
{
    ListWindow<FuncKeyList> window;
    auto *check = new ListViewCheckItem("Check", false);
    window.list->addItem(check);
    window.add(2);
    window.disable({1});
    QVERIFY(window.showNow());
    QSignalSpy clicks(window.list, &ListView::clicked);
    QSignalSpy keyClicks(window.list, &ListView::clickedFuncKey);

    PhoneKeys::press(Qt::Key_F4);
    QCOMPARE(window.list->selectedIdx(), 2);
    PhoneKeys::release(Qt::Key_F4);
    PhoneKeys::click(Qt::Key_F3); // disabled
    PhoneKeys::click(Qt::Key_F2);
    QVERIFY(check->isChecked());
    QCOMPARE(window.presses, QList<int>());
    PhoneKeys::click(Qt::Key_F5); // a key of the range, but no row
    PhoneKeys::click(Qt::Key_F7);
    QCOMPARE(values(clicks), (QList<int>{2, 0}));
    QCOMPARE(values(keyClicks), (QList<int>{2, 0}));
    QCOMPARE(window.presses, QList<int>{Qt::Key_F7});
    QCOMPARE(window.releases, (QList<int>{Qt::Key_F5, Qt::Key_F7}));

    window.list->setIsVisibleSelectBackGround(false);
    PhoneKeys::click(Qt::Key_F4);
    QCOMPARE(window.list->selectedIdx(), -1);
    QCOMPARE(clicks.count(), 3);
}

void TestListView::staysQuietBehindACall()
{
    ListWindow<FuncKeyList> window;
    window.add(3);
    QVERIFY(window.showNow());
    QSignalSpy clicks(window.list, &ListView::clicked);
    m_core->callManager()->setCallState("CONNECT");
    m_core->setHasMenu(true);
    // Only a release selects here: the press is the list's own business.
    PhoneKeys::press(Qt::Key_F3);
    window.list->setSelectedIdx(0);
    PhoneKeys::release(Qt::Key_F3);
    QCOMPARE(window.list->selectedIdx(), 0);
    m_core->setVisibleMenu(true);
    PhoneKeys::press(Qt::Key_F3);
    window.list->setSelectedIdx(0);
    PhoneKeys::release(Qt::Key_F3);
    QCOMPARE(window.list->selectedIdx(), 1);
    QCOMPARE(values(clicks), (QList<int>{1, 1}));
    m_core->callManager()->setCallState("IDLE");
}

void TestListView::longPress()
{
    ListWindow<FuncKeyList> window;
    window.add(3);
    window.list->setIsEnabledLongPress(true);
    QVERIFY(window.showNow());
    QSignalSpy held(window.list, &ListView::longPress);
    QSignalSpy clicks(window.list, &ListView::clicked);

    // The timer's own end is brought about here, so that nobody waits for it.
    PhoneKeys::press(Qt::Key_F3);
    window.list->longPressTimeout();
    QCOMPARE(values(held), QList<int>{1});
    PhoneKeys::release(Qt::Key_F3);
    QCOMPARE(values(clicks), QList<int>{1});
    window.list->longPressTimeout();
    QCOMPARE(held.count(), 1);

    connect(window.list, &ListView::longPress, this, [&] { window.list->setKeyPressFlag(false); });
    window.list->setIsVisibleSelectBackGround(false);
    PhoneKeys::press(Qt::Key_F4);
    QTRY_COMPARE(values(held), (QList<int>{1, 2}));
    PhoneKeys::release(Qt::Key_F4);
    QCOMPARE(window.list->selectedIdx(), -1);
    QCOMPARE(clicks.count(), 1);
}

void TestListView::swallowsOneRelease()
{
    ListWindow window;
    window.add(2);
    QVERIFY(window.showNow());
    QSignalSpy clicks(window.list, &ListView::clicked);
    window.list->longPressSwallowed = true;
    PhoneKeys::click(Enter);
    QVERIFY(clicks.isEmpty());
    PhoneKeys::click(Enter);
    QCOMPARE(clicks.count(), 1);
}

void TestListView::realignsWhenShown()
{
    ListWindow window;
    window.add(9);
    window.list->setSelectedIdx(5);
    window.list->setStartIdx(4);
    window.show();
    QCOMPARE(window.list->startIdx(), 3);
    window.hide();
    QCOMPARE(window.list->selectedIdx(), 5);
    window.list->setSelectedIdx(0);
    window.show();
    QCOMPARE(window.list->startIdx(), 3);
    window.hide();
}

void TestListView::scrollBar_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("selected");
    QTest::addColumn<int>("margins");
    QTest::addColumn<qreal>("top");
    QTest::addColumn<qreal>("height");
    QTest::newRow("top") << 5 << 0 << 0 << 0.0 << 50.0;
    QTest::newRow("no selection") << 5 << -1 << 0 << 0.0 << 50.0;
    QTest::newRow("middle") << 5 << 2 << 0 << 25.0 << 50.0;
    QTest::newRow("end") << 5 << 4 << 0 << 50.0 << 50.0;
    QTest::newRow("margins") << 5 << 4 << 10 << 50.0 << 40.0;
    QTest::newRow("never below 20 at the top") << 101 << 0 << 0 << 0.0 << 20.0;
    QTest::newRow("shrunk at the end") << 101 << 100 << 0 << 98.0 << 2.0;
    QTest::newRow("past the end") << 101 << 110 << 0 << 107.8 << 1.0;
}

void TestListView::scrollBar()
{
    QFETCH(int, rows);
    QFETCH(int, selected);
    QFETCH(int, margins);
    ListGeometry::Track track;
    track.height = 100;
    track.topMargin = track.bottomMargin = margins;
    const ListGeometry::Thumb thumb = ListGeometry::scrollThumb(track, rows, 3, selected);
    QTEST(thumb.top, "top");
    QTEST(thumb.height, "height");
}

void TestListView::frames()
{
    const QRect row(0, 34, 374, 34);
    QCOMPARE(ListGeometry::focusFrame(row, false, true), row.adjusted(0, -1, 0, 3));
    QCOMPARE(ListGeometry::focusFrame(row, true, false), row.adjusted(0, -1, -1, 4));
    QCOMPARE(ListGeometry::focusFrame(row.translated(0, -34), false, true), QRect(0, 0, 374, 37));

    // What rows learn from the list as it paints them.
    ListWindow window;
    window.add(3);
    window.list->setLineLeftMargin(4);
    window.list->setLineRightMargin(6);
    QVERIFY(window.showNow());
    QTRY_COMPARE(window.list->item(1)->geometry(), QRect(QPoint(4, 34), QPoint(368, 67)));
    QVERIFY(!window.list->item(1)->hasScrollBar());
    window.add(1);
    window.list->update();
    QTRY_COMPARE(window.list->item(1)->geometry(), QRect(QPoint(4, 34), QPoint(360, 67)));
    QCOMPARE(window.list->item(1)->scrollBarAreaWidth(), 8 + 3);
}

PHONE_TEST_MAIN(TestListView)

#include "tst_listview.moc"
