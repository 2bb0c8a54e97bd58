#include "listwindow.h"

#include "listviewcheckitem.h"
#include "listviewprogressitem.h"
#include "listviewselectitem.h"

using List = QList<int>;

/// Rows, selection, keys, and what it looks like.
class TestListView : public PhoneTest
{
    Q_OBJECT

private slots:
    void moves()
    {
        // Rows, disabled ones, the selected and the first one, the keys, these two anew, the focus as told,
        // wrapping.
        const QList<std::tuple<int, List, int, int, List, int, int, List, bool>> moves = {
            {5, {}, 2, 0, {Down}, 3, 1, {3}, true}, // moves the window
            {5, {0, 1}, 4, 2, {Down}, 2, 0, {2}, true}, // wraps to the first enabled
            {8, {1, 2, 3}, 0, 0, {Down}, 4, 2, {4}, true}, // leaps over disabled rows
            {3, {}, 2, 0, {Down}, 2, 0, {}, false},
            {5, {4}, 0, 0, {Up}, 3, 1, {3}, true},
            {3, {}, 0, 0, {Up}, 0, 0, {}, false},
            {8, {2, 3, 4}, 5, 4, {Up, Up}, 0, 2, {1, 0}, true}, // leaps out of the window
            {4, {0, 1}, 2, 0, {Up}, 2, 0, {}, true}, // below disabled rows it stays
            {4, {0}, -1, 0, {Up}, 1, 0, {1}, true}, // from no selection, either key
            {3, {0, 1, 2}, -1, 0, {Down}, -1, 0, {}, true},
            {0, {}, 0, 0, {Down}, -1, 0, {-1}, true},
        };
        for (const auto &[rows, disabled, selected, start, keys, newSelected, newStart, told, wraps] : moves) {
            ListWindow window(rows);
            window.list->setSelectedIdx(selected);
            for (int row : disabled)
                window.list->item(row)->setItemSelectEnable(false);
            window.list->wrapAround = wraps;
            QVERIFY(window.showNow());
            window.list->setStartIdx(start);

            QSignalSpy changes(window.list, &ListView::focusChanged), pressed(window.list, &ListView::keyPressed);
            PhoneKeys::clickAll(keys);
            QCOMPARE(window.list->selectedIdx(), newSelected);
            QCOMPARE(window.list->startIdx(), newStart);
            QCOMPARE(values(changes), told);
            QCOMPARE(values(pressed), keys);
            QCOMPARE(window.presses, keys); // arrows are left to the screen, too
            QCOMPARE(window.releases, List()); // and their releases are spent
        }
    }

    void strayReleasesDoNothing()
    {
        ListWindow window(6);
        QVERIFY(window.showNow());
        QSignalSpy keys(window.list, &ListView::keyPressed), clicks(window.list, &ListView::clicked);
        PhoneKeys::press(Down);
        PhoneKeys::repeat(Down);
        PhoneKeys::release(Down);
        QCOMPARE(window.list->selectedIdx(), 2);
        QCOMPARE(keys.count(), 2);
        PhoneKeys::press(Enter);
        window.list->itemClear();
        window.add(6);
        PhoneKeys::release(Enter);
        PhoneKeys::press(Enter);
        window.list->hide();
        window.list->show();
        PhoneKeys::release(Enter);
        QVERIFY(clicks.isEmpty());
        // A list that turns pages moves at the release.
        window.list->setUseDirectMovement(false);
        PhoneKeys::press(Down);
        QCOMPARE(window.list->selectedIdx(), 2);
        PhoneKeys::release(Down);
        PhoneKeys::release(Down);
        QCOMPARE(window.list->selectedIdx(), 3);
    }

    void refusesBadSelectionsAndRemovesRows()
    {
        ListWindow window(4);
        window.list->item(1)->setItemSelectEnable(false);
        QSignalSpy changes(window.list, &ListView::focusChanged);
        for (int idx : {0, 1, 4, 2, 2, -1, -7, 3})
            window.list->setSelectedIdx(idx);
        for (int idx : {4, -1, 0})
            window.list->removeItem(idx);
        QCOMPARE(values(changes), (List{2, -1, -7, 3, 2}));
        QVERIFY(!window.list->item(3) && !window.list->item(-1));
    }

    void changesValuesAndClicks()
    {
        ListWindow window;
        auto *bar = new ListViewProgressItem("Volume", 9);
        auto *check = new ListViewCheckItem("Plain", false), *fixed = new ListViewCheckItem("By its screen", false);
        bar->setStep(2);
        bar->setValue(7);
        fixed->setIsNoValueChange(true);
        window.add({bar, new ListViewSelectItem("Tone", "One"), check, fixed});
        QVERIFY(window.showNow());
        QSignalSpy changes(window.list, &ListView::changeValue), clicks(window.list, &ListView::clicked);
        PhoneKeys::clickAll({Right, Qt::Key_VolumeUp, Left, Qt::Key_VolumeDown, Qt::Key_VolumeMute, Left});
        QCOMPARE(values(changes, 1), (List{9, 9, 7, 5, 5, 0})); // a mute tells the value from before it
        PhoneKeys::clickAll({Down, Left, Right, Qt::Key_VolumeUp, Down, Enter, Down, Qt::Key_Enter});
        window.list->setSelectedIdx(-1);
        PhoneKeys::click(Enter);
        QCOMPARE(values(clicks), (List{1, 1, 2, 3}));
        QVERIFY(check->isChecked() && !fixed->isChecked());
    }

    void rebuildsInsideItsSignals()
    {
        ListWindow window(4);
        window.list->setEnableFuncKey(true);
        window.list->setStartFuncKey(Qt::Key_F2);
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

    void pictures()
    {
        // Rows are 34 pixels high. The bar takes the last 8 of 374 columns; row 0 has a solid separator, row 1 a
        // dotted. The frame stands over the separator.
        const auto floating = ListViewFocusFloating;
        const QList<std::tuple<const char *, int, int, eListViewItemFocusType, int, bool, const char *>> looks = {
            {"list-thin", 8, 0, floating, 0, false,
             "white 369,60 200,0 200,33 2,67 367,67 3,101 #bbb 370,60 0,67 366,67 black 6,0 6,32"},
            {"list-clear", 8, 4, floating, 1, false, "white 368,50 373,50 370,10 #555 369,50 372,50"},
            {"list-boxed", 8, 7, floating, 2, false, "#555 368,10 373,10 370,90 372,90 white 369,10 372,10 369,90"},
            {"list-pressed", 8, 1, floating, 0, true, "black 200,33 200,70 366,50 white 200,71 367,50"},
            {"list-last", 3, 2, floating, 0, false, "black 6,67 6,101 373,95 #bbb 2,33"},
            {"list-bar", 8, 1, ListViewFocusBar, 0, false, "black 0,34 366,50 white 200,32 2,67 #bbb 0,67"},
            {"list-empty", 0, 0, floating, 0, false, "white 0,33"}};
        for (const auto &[name, rows, selected, focusType, scrollBar, isPressed, pixels] : looks) {
            ListWindow window(rows);
            window.list->setFocusType(focusType);
            for (int i = 0; i < rows; ++i)
                window.list->item(i)->setFocusType(focusType);
            if (rows > 0)
                window.list->item(0)->setUnderLineType(ListViewItem::UnderLineSolid);
            window.list->setShowEmptyString(true);
            window.list->setSelectedIdx(selected);
            window.list->setScrollbarBorderType(ListView::eListViewScrollBarType(scrollBar));
            QVERIFY(window.showNow());
            window.list->setStartIdx(selected > 2 ? selected / 3 * 3 : 0);
            if (isPressed)
                PhoneKeys::press(Enter);
            window.checkPicture(name, pixels);
        }
    }
};

PHONE_TEST_MAIN(TestListView)
#include "tst_listview.moc"
