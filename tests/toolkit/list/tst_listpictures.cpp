#include "listwindow.h"

#include "gridlistviewitem.h"
#include "listviewcontactitem.h"
#include "twocolumnlistview.h"

/// What lists and grids look like. With PHONE_PICTURES set, each look is also written there, to be seen.
class TestListPictures : public TestCase
{
    Q_OBJECT

private slots:
    void lists()
    {
        // Rows are 34 pixels high. The bar takes the last 8 of 374 columns; row 0 has a solid separator, row 1 a
        // dotted. The frame stands over the separator.
        const auto floating = ListViewFocusFloating;
        const struct
        {
            const char *name;
            int rows, selected;
            eListViewItemFocusType focusType;
            int scrollBar;
            bool pressed;
            const char *pixels;
        } looks[] = {
            {"list-thin", 8, 0, floating, 0, false,
             "white 369,60 200,0 200,33 2,67 367,67 3,101 #bbb 370,60 0,67 366,67 black 6,0 6,32"},
            {"list-clear", 8, 4, floating, 1, false, "white 368,50 373,50 370,10 #555 369,50 372,50"},
            {"list-boxed", 8, 7, floating, 2, false, "#555 368,10 373,10 370,90 372,90 white 369,10 372,10 369,90"},
            {"list-pressed", 8, 1, floating, 0, true, "black 200,33 200,70 366,50 white 200,71 367,50"},
            {"list-last", 3, 2, floating, 0, false, "black 6,67 6,101 373,95 #bbb 2,33"},
            {"list-bar", 8, 1, ListViewFocusBar, 0, false, "black 0,34 366,50 white 200,32 2,67 #bbb 0,67"},
            {"list-empty", 0, 0, floating, 0, false, "white 0,33"}};
        for (const auto &look : looks) {
            ListWindow window(look.rows);
            window.list->setFocusType(look.focusType);
            for (int i = 0; i < look.rows; ++i)
                window.list->item(i)->setFocusType(look.focusType);
            if (look.rows > 0)
                window.list->item(0)->setUnderLineType(ListViewItem::UnderLineSolid);
            window.list->setShowEmptyString(true);
            window.list->setSelectedIdx(look.selected);
            window.list->setScrollbarBorderType(ListView::eListViewScrollBarType(look.scrollBar));
            QVERIFY(window.showNow());
            window.list->setStartIdx(look.selected > 2 ? look.selected / 3 * 3 : 0);
            if (look.pressed)
                PhoneKeys::press(Enter);
            check(window, look.name, look.pixels);
        }
    }

    void grid()
    {
        ListWindow<TwoColumnListView> window;
        for (const char *name : {"Anna Schmidt", "Bernd Maier-Leibnitz", "Carla", "Dora", "Emil von Hohenstaufen"})
            window.list->addItem(new ListViewContactGridItem(name, 1, 1));
        QVERIFY(window.showNow());
        // Dotted lines between the cells; the frame keeps to the part of the cell that the contact takes.
        check(window, "grid-first", "#bbb 190,33 186,90 white 90,33 184,5 0,102 black 183,5");
        PhoneKeys::clickAll({Right, Down});
        PhoneKeys::press(Enter);
        check(window, "grid-pressed", "black 373,50 190,50 white 189,50");
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
        check(window, "grid-menu", "white 0,103");
    }

private:
    /// Saves the window, and looks at places in its list: each colour stands before those that have it.
    template <class List> static void check(ListWindow<List> &window, const char *name, const QString &pixels)
    {
        QTest::qWait(20);
        const QImage shown = window.grab().toImage();
        TestScreen::save(shown, name);
        const QImage image = shown.copy(window.list->geometry());
        QColor wanted;
        for (const QString &word : pixels.split(' ')) {
            if (!word.contains(','))
                wanted = QColor(word);
            else if (image.pixelColor(word.section(',', 0, 0).toInt(), word.section(',', 1).toInt()) != wanted)
                QFAIL(qPrintable(word + " is not " + wanted.name()));
        }
    }
};

PHONE_TEST_MAIN(TestListPictures)
#include "tst_listpictures.moc"
