#include "listwindow.h"

#include "callmanager.h"
#include "listviewcheckitem.h"
#include "listviewchecklineedititem.h"
#include "listviewprogressitem.h"
#include "listviewselectitem.h"

using List = QList<int>;

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
};

/// Rows, selection, paging and keys.
class TestListView : public PhoneTest
{
    Q_OBJECT

private slots:
    void moves()
    {
        const struct
        {
            int rows;
            List disabled;
            int selected, start;
            List keys;
            int newSelected, newStart;
            List focusChanged;
            bool wraps;
        } moves[] = {
            {5, {}, 2, 0, {Down}, 3, 1, {3}, true}, // moves the window
            {5, {0, 1}, 4, 2, {Down}, 2, 0, {2}, true}, // wraps to the first enabled
            {5, {3, 4}, 2, 0, {Down}, 0, 0, {0}, true},
            {8, {1, 2, 3}, 0, 0, {Down}, 4, 2, {4}, true}, // leaps over disabled rows
            {3, {}, 2, 0, {Down}, 2, 0, {}, false},
            {5, {4}, 0, 0, {Up}, 3, 1, {3}, true},
            {2, {}, 0, 0, {Up}, 1, 0, {1}, true},
            {3, {}, 0, 0, {Up}, 0, 0, {}, false},
            {6, {}, 3, 3, {Up}, 2, 2, {2}, true},
            {8, {2, 3, 4}, 5, 4, {Up, Up}, 0, 2, {1, 0}, true}, // leaps out of the window
            {4, {0, 1}, 2, 0, {Up}, 2, 0, {}, true}, // below disabled rows it stays
            {4, {0}, -1, 0, {Up}, 1, 0, {1}, true}, // from no selection, either key
            {3, {0, 1, 2}, -1, 0, {Down}, -1, 0, {}, true},
            {0, {}, 0, 0, {Down}, -1, 0, {-1}, true},
            {0, {}, 0, 0, {Up}, 0, 0, {}, true},
        };
        for (const auto &move : moves) {
            ListWindow window(move.rows);
            window.list->setSelectedIdx(move.selected);
            for (int row : move.disabled)
                window.list->item(row)->setItemSelectEnable(false);
            window.list->wrapAround = move.wraps;
            QVERIFY(window.showNow());
            window.list->setStartIdx(move.start);

            QSignalSpy changes(window.list, &ListView::focusChanged), keys(window.list, &ListView::keyPressed);
            PhoneKeys::clickAll(move.keys);
            QCOMPARE(window.list->selectedIdx(), move.newSelected);
            QCOMPARE(window.list->startIdx(), move.newStart);
            QCOMPARE(values(changes), move.focusChanged);
            QCOMPARE(values(keys), move.keys);
            QCOMPARE(window.presses, move.keys); // arrows are left to the screen, too
            QCOMPARE(window.releases, List()); // and their releases are spent
        }
    }

    void leavesAtTheEnd()
    {
        ListWindow window(4);
        window.list->setActiveEndLeaveFocusSignal(true);
        QVERIFY(window.showNow());
        QSignalSpy atEnd(window.list, &ListView::endLeaveFocus);
        window.list->setSelectedIdx(3);
        PhoneKeys::click(Down);
        QCOMPARE(values(atEnd), List{Down});
        QCOMPARE(window.list->selectedIdx(), 3);
    }

    void movesOnReleaseAndDropsStrayReleases()
    {
        ListWindow window(6);
        QVERIFY(window.showNow());
        QSignalSpy keys(window.list, &ListView::keyPressed), clicks(window.list, &ListView::clicked);
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
        PhoneKeys::release(Down);
        QCOMPARE(window.list->selectedIdx(), 4);

        window.list->setIsEnabledArrowKeyMove(false);
        PhoneKeys::click(Down);
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

    void refusesBadSelections()
    {
        ListWindow window(3);
        window.list->item(1)->setItemSelectEnable(false);
        QSignalSpy changes(window.list, &ListView::focusChanged);
        for (int idx : {0, 1, 3, 2, 2, -1, -7})
            window.list->setSelectedIdx(idx);
        QCOMPARE(values(changes), (List{2, -1, -7}));
    }

    void pages()
    {
        ListWindow window;
        const auto turned = [&](int rows, const char *steps) {
            window.list->itemClear();
            window.list->setStartIdx(0);
            window.list->setPage(0);
            window.add(rows);
            for (const char *step = steps; *step; ++step)
                *step == 'n' ? window.list->nextPage() : window.list->prevPage();
            return List{window.list->page(), window.list->startIdx(), window.list->selectedIdx()};
        };
        QCOMPARE(turned(7, "nn"), (List{2, 6, 6})); // a short page
        QCOMPARE(turned(6, "nn"), (List{0, 0, 0}));
        QCOMPARE(turned(7, "p"), (List{2, 6, 6}));
        QCOMPARE(turned(0, "p").mid(0, 2), (List{0, 0}));
    }

    void removesRows()
    {
        ListWindow window(4);
        window.list->setSelectedIdx(3);
        QSignalSpy changes(window.list, &ListView::focusChanged);
        for (int idx : {4, -1, 0})
            window.list->removeItem(idx);
        QCOMPARE(values(changes), List{2});
        QVERIFY(!window.list->item(3) && !window.list->item(-1));
    }

    void changesValues()
    {
        ListWindow window;
        auto *bar = new ListViewProgressItem("Volume", 9);
        bar->setStep(2);
        bar->setMinValue(1);
        bar->setValue(7);
        window.list->addItem(bar);
        QVERIFY(window.showNow());
        QSignalSpy changes(window.list, &ListView::changeValue), clicks(window.list, &ListView::clicked);
        PhoneKeys::clickAll({Right, Qt::Key_VolumeUp, Left, Qt::Key_VolumeDown, Qt::Key_VolumeMute, Left});
        QCOMPARE(values(changes, 1), (List{9, 9, 7, 5, 5, 1})); // a mute tells the value from before it
        QCOMPARE(bar->value(), 1);

        window.list->addItem(new ListViewSelectItem("Tone", "One"));
        window.list->setSelectedIdx(1);
        PhoneKeys::clickAll({Left, Right, Qt::Key_VolumeUp});
        QCOMPARE(values(clicks), (List{1, 1}));
    }

    void togglesAndClicks()
    {
        ListWindow window;
        auto *check = new ListViewCheckItem("Plain", false),
             *fixed = new ListViewCheckItem("Screen decides", false);
        auto *bare = new ListViewCheckLineEditItem("Without its field", false, true, QString());
        fixed->setIsNoValueChange(true);
        bare->setUseEditText(false);
        window.add({check, fixed, bare});
        window.add(1);
        QVERIFY(window.showNow());
        QSignalSpy clicks(window.list, &ListView::clicked);
        PhoneKeys::clickAll({Enter, Down, Qt::Key_Enter, Down, Enter, Down, Qt::Key_Enter});
        QCOMPARE(values(clicks), (List{0, 1, 2, 3}));
        QVERIFY(check->isChecked() && !fixed->isChecked() && bare->isChecked());
    }

    void ignoresEnter()
    {
        ListWindow window(1);
        QVERIFY(window.showNow());
        QSignalSpy clicks(window.list, &ListView::clicked);
        window.list->ignoreEnterKey = true;
        PhoneKeys::click(Enter);
        window.list->ignoreEnterKey = false;
        window.list->setSelectedIdx(-1);
        PhoneKeys::click(Enter);
        window.list->setSelectedIdx(0);
        window.list->longPressSwallowed = true;
        PhoneKeys::click(Enter);
        QVERIFY(clicks.isEmpty());
        window.list->itemClear();
        PhoneKeys::click(Enter);
        QCOMPARE(values(clicks), List{0}); // a selection without its row is clicked all the same
    }

    void rebuildsInsideItsSignals()
    {
        ListWindow<FuncKeyList> window(4);
        const auto rebuild = [&] {
            window.list->itemClear();
            window.list->addItem(new ListViewCheckItem("New", false));
        };
        QVERIFY(window.showNow());
        connect(window.list, &ListView::clicked, this, rebuild);
        connect(window.list, &ListView::keyPressed, this, rebuild);
        connect(window.list, &ListView::focusChanged, this, rebuild);
        connect(window.list, &ListView::endLeaveFocus, this, rebuild);
        window.list->setActiveEndLeaveFocusSignal(true);
        PhoneKeys::clickAll({Enter, Qt::Key_F3, Down, Qt::Key_F2, Up, Left, Qt::Key_VolumeMute, Enter});
        QTest::qWait(10);
        QCOMPARE(window.list->itemSize(), 1);
    }

    void clicksByFuncKey()
    {
        ListWindow<FuncKeyList> window(3);
        window.list->item(1)->setItemSelectEnable(false);
        QVERIFY(window.showNow());
        QSignalSpy clicks(window.list, &ListView::clicked);
        PhoneKeys::press(Qt::Key_F4);
        QCOMPARE(window.list->selectedIdx(), 2);
        PhoneKeys::release(Qt::Key_F4);
        PhoneKeys::clickAll({Qt::Key_F3 /* disabled */, Qt::Key_F2});
        QCOMPARE(window.presses, List());
        PhoneKeys::clickAll({Qt::Key_F5 /* of the range, but no row */, Qt::Key_F7});
        QCOMPARE(values(clicks), (List{2, 0}));
        QCOMPARE(window.presses, List{Qt::Key_F7});
        QCOMPARE(window.releases, (List{Qt::Key_F5, Qt::Key_F7}));
    }

    void staysQuietBehindACall()
    {
        ListWindow<FuncKeyList> window(3);
        QVERIFY(window.showNow());
        QSignalSpy clicks(window.list, &ListView::clicked);
        m_phone->core.callManager()->setCallState("CONNECT");
        for (const bool menu : {false, true}) {
            // Only a release selects here: the press is the list's own business.
            m_phone->core.setVisibleMenu(menu);
            PhoneKeys::press(Qt::Key_F3);
            window.list->setSelectedIdx(0);
            PhoneKeys::release(Qt::Key_F3);
            QCOMPARE(window.list->selectedIdx(), menu ? 1 : 0);
        }
        QCOMPARE(values(clicks), (List{1, 1}));
    }

    void longPress()
    {
        ListWindow<FuncKeyList> window(3);
        window.list->setIsEnabledLongPress(true);
        QVERIFY(window.showNow());
        QSignalSpy held(window.list, &ListView::longPress), clicks(window.list, &ListView::clicked);
        // The timer's own end is brought about here, so that nobody waits for it.
        PhoneKeys::press(Qt::Key_F3);
        window.list->longPressTimeout();
        QCOMPARE(values(held), List{1});
        PhoneKeys::release(Qt::Key_F3);
        window.list->longPressTimeout();
        QCOMPARE(held.count(), 1);
        QCOMPARE(values(clicks), List{1});

        connect(window.list, &ListView::longPress, this, [&] { window.list->setKeyPressFlag(false); });
        window.list->setIsVisibleSelectBackGround(false);
        PhoneKeys::press(Qt::Key_F4);
        QTRY_COMPARE(values(held), (List{1, 2}));
        PhoneKeys::release(Qt::Key_F4);
        QCOMPARE(window.list->selectedIdx(), -1);
        QCOMPARE(clicks.count(), 1);
    }

    void realignsWhenShown()
    {
        ListWindow window(9);
        for (const int selected : {5, 0}) {
            window.list->setStartIdx(4);
            window.list->setSelectedIdx(selected);
            window.show();
            QCOMPARE(window.list->startIdx(), selected ? 3 : 4);
            window.hide();
        }
    }

    /// What rows learn from the list as it paints them, which it does anew for another selection.
    void frames()
    {
        ListWindow window(3);
        window.list->setLineLeftMargin(4);
        window.list->setLineRightMargin(6);
        QVERIFY(window.showNow());
        QTRY_COMPARE(window.list->item(1)->geometry(), QRect(QPoint(4, 34), QPoint(368, 67)));
        QVERIFY(!window.list->item(1)->hasScrollBar());
        window.add(1);
        window.list->setSelectedIdx(1);
        QTRY_COMPARE(window.list->item(1)->geometry(), QRect(QPoint(4, 34), QPoint(360, 67)));
        QCOMPARE(window.list->item(1)->scrollBarAreaWidth(), 8 + 3);
    }
};

PHONE_TEST_MAIN(TestListView)
#include "tst_listview.moc"
