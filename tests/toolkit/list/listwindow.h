#ifndef LISTWINDOW_H
#define LISTWINDOW_H

#include "listview.h"
#include "screentest.h"

/// A screen with one list, which keeps the keys that the list leaves to it.
template <class List = ListView> class ListWindow : public KeyCounter
{
public:
    explicit ListWindow(int rows = 0)
    {
        setGeometry(0, 26, 384, 134);
        list = new List(this);
        list->setGeometry(5, 2, 374, 104);
        add(rows);
    }

    void add(int count)
    {
        for (int i = 0; i < count; ++i)
            list->addItem(new ListViewItem(QString("Row %1").arg(list->itemSize()), QPixmap(), QPixmap()));
    }
    void add(std::initializer_list<ListViewItem *> rows)
    {
        for (ListViewItem *row : rows)
            list->addItem(row);
    }
    bool showNow() { return PhoneKeys::showAndActivate(this); }
    /// Saves how it looks, and checks places in the list: each colour stands before those that have it.
    void checkPicture(const char *name, const QString &pixels)
    {
        QTest::qWait(20);
        const QImage shown = grab().toImage(), image = shown.copy(list->geometry());
        TestScreen::save(shown, name);
        QColor wanted;
        for (const QString &word : pixels.split(' ')) {
            if (!word.contains(','))
                wanted = QColor(word);
            else if (image.pixelColor(word.section(',', 0, 0).toInt(), word.section(',', 1).toInt()) != wanted)
                QFAIL(qPrintable(word + " is not " + wanted.name()));
        }
    }

    List *list;
};

/// What a signal told, by one of its arguments.
inline QList<int> values(const QSignalSpy &spy, int argument = 0)
{
    QList<int> list;
    for (const QList<QVariant> &arguments : spy)
        list.append(arguments.at(argument).toInt());
    return list;
}

constexpr auto Up = Qt::Key_Up, Down = Qt::Key_Down, Left = Qt::Key_Left, Right = Qt::Key_Right,
               Enter = Qt::Key_Return;

#endif
