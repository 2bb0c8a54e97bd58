#ifndef NUMBEREDITITEMS_H
#define NUMBEREDITITEMS_H

#include "listviewlineedititem.h"
#include "listviewselectitem.h"

/// A text row of the edit form: the label in grey, the value in an input box.
class NumberEditLineEditItem : public ListViewLineEditItem
{
public:
    NumberEditLineEditItem(const QString &label, const QString &value);
    ~NumberEditLineEditItem() override;

    int type() override;
    void paint(QPainter *painter, QRect &rect) override;
};

/// A row of the edit form whose value is chosen elsewhere, on the list's focus plate.
class NumberEditSelectItem : public ListViewSelectItem
{
public:
    NumberEditSelectItem(const QString &label, const QString &value);
    ~NumberEditSelectItem() override;

    void paint(QPainter *painter, QRect &rect) override;
};

#endif
