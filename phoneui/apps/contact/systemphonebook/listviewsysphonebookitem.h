#ifndef LISTVIEWSYSPHONEBOOKITEM_H
#define LISTVIEWSYSPHONEBOOKITEM_H

#include "listviewitem.h"

#include <QPersistentModelIndex>

/// A row of the system phonebook: an entry or a category, painted from its model. Its own text is the name, or the
/// category with its count.
class ListViewSysPhonebookItem : public ListViewItem
{
public:
    explicit ListViewSysPhonebookItem(const QModelIndex &index);
    ~ListViewSysPhonebookItem() override;

    int type() override;
    void paint(QPainter *painter, QRect &rect) override;

private:
    const QPersistentModelIndex m_index; ///< invalid once the model is gone
};

#endif
