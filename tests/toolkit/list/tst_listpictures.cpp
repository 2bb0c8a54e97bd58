#include "listwindow.h"

#include "gridlistviewitem.h"
#include "listviewcontactitem.h"
#include "twocolumnlistview.h"

/// Places in the list, as "x,y x,y", by the colour that they have.
using Pixels = QVector<QPair<QRgb, QString>>;

static const QRgb Grey = qRgb(187, 187, 187), Dark = qRgb(85, 85, 85), White = qRgb(255, 255, 255),
                  Black = qRgb(0, 0, 0);

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
            Pixels pixels;
        } looks[] = {
            {"list-thin",
             8,
             0,
             floating,
             0,
             false,
             {{White, "369,60 200,0 200,33 2,67 367,67 3,101"}, {Grey, "370,60 0,67 366,67"}, {Black, "6,0 6,32"}}},
            {"list-clear", 8, 4, floating, 1, false, {{White, "368,50 373,50 370,10"}, {Dark, "369,50 372,50"}}},
            {"list-boxed",
             8,
             7,
             floating,
             2,
             false,
             {{Dark, "368,10 373,10 370,90 372,90"}, {White, "369,10 372,10 369,90"}}},
            {"list-pressed", 8, 1, floating, 0, true, {{Black, "200,33 200,70 366,50"}, {White, "200,71 367,50"}}},
            {"list-last", 3, 2, floating, 0, false, {{Black, "6,67 6,101 373,95"}, {Grey, "2,33"}}},
            {"list-bar",
             8,
             1,
             ListViewFocusBar,
             0,
             false,
             {{Black, "0,34 366,50"}, {White, "200,32 2,67"}, {Grey, "0,67"}}},
            {"list-empty", 0, 0, floating, 0, false, {{White, "0,33"}}}};
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
            check(picture(window, look.name), look.pixels);
        }
    }

    void grid()
    {
        ListWindow<TwoColumnListView> window;
        for (const char *name : {"Anna Schmidt", "Bernd Maier-Leibnitz", "Carla", "Dora", "Emil von Hohenstaufen"})
            window.list->addItem(new ListViewContactGridItem(name, 1, 1));
        QVERIFY(window.showNow());
        // Dotted lines between the cells; the frame keeps to the part of the cell that the contact takes.
        check(picture(window, "grid-first"),
              {{Grey, "190,33 186,90"}, {White, "90,33 184,5 0,102"}, {Black, "183,5"}});
        PhoneKeys::clickAll({Right, Down});
        PhoneKeys::press(Enter);
        check(picture(window, "grid-pressed"), {{Black, "373,50 190,50"}, {White, "189,50"}});
        PhoneKeys::release(Enter);
        window.list->setUseDotLines(false);
        window.list->setUseDivideLines(true);
        window.list->setShowIndex(true);
        window.list->setGridSize(2, 3);
        window.list->itemClear();
        const QPixmap icon(":/ui/images/widget/confirm.png"), small = icon.scaled(24, 24);
        window.add({new GridListViewItem("Settings", icon, QPixmap()),
                    new GridListViewMenuItem("Menu", small, QPixmap()),
                    new GridListViewFunctionItem("Add", small, QPixmap()),
                    new GridListViewItem("A long caption", QPixmap(), QPixmap())});
        window.list->setSelectedIdx(2);
        window.list->update();
        picture(window, "grid-menu");
    }

private:
    /// The list in its window, which is saved.
    template <class List> static QImage picture(ListWindow<List> &window, const char *name)
    {
        QTest::qWait(20);
        const QImage image = window.grab().toImage().convertToFormat(QImage::Format_RGB32);
        TestScreen::save(image, name);
        return image.copy(window.list->geometry());
    }
    static void check(const QImage &image, const Pixels &pixels)
    {
        for (const auto &colored : pixels) {
            const QStringList places = colored.second.split(' ');
            for (const QString &place : places) {
                const QRgb found = image.pixel(place.section(',', 0, 0).toInt(), place.section(',', 1).toInt());
                QVERIFY2(found == colored.first, qPrintable(place + ": " + QString::number(found, 16)));
            }
        }
    }
};

PHONE_TEST_MAIN(TestListPictures)
#include "tst_listpictures.moc"
