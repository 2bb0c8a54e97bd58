#ifndef LISTWINDOW_H
#define LISTWINDOW_H

#include "listview.h"
#include "phonekeys.h"

#include <QKeyEvent>
#include <QWidget>

#include <initializer_list>

/// A screen with one list, which counts the key presses that the list leaves to it.
template <class List = ListView> class ListWindow : public QWidget
{
public:
    ListWindow()
    {
        setGeometry(0, 26, 384, 134);
        list = new List(this);
        list->setGeometry(5, 2, 374, 104);
    }

    void add(int count)
    {
        for (int i = 0; i < count; ++i)
            list->addItem(new ListViewItem(QString("Row %1").arg(list->itemSize()), QPixmap(), QPixmap()));
    }
    void disable(std::initializer_list<int> rows)
    {
        for (int row : rows)
            list->item(row)->setItemSelectEnable(false);
    }
    bool showNow() { return PhoneKeys::showAndActivate(this); }

    void keyPressEvent(QKeyEvent *event) override { presses.append(event->key()); }
    void keyReleaseEvent(QKeyEvent *event) override { releases.append(event->key()); }

    List *list;
    QList<int> presses, releases;
};

#endif
