#ifndef LISTVIEWGROUPLISTITEM_H
#define LISTVIEWGROUPLISTITEM_H

#include "listviewitem.h"

/// A group with the number of its members.
class ListViewGroupListItem : public ListViewItem
{
public:
    ListViewGroupListItem(QString const &text, QString count, int id);
    ~ListViewGroupListItem() override;

    void paint(QPainter *painter, QRect &rect) override;

    int getId() { return m_id; }

private:
    int m_id;
    QString m_count;
};

#endif
