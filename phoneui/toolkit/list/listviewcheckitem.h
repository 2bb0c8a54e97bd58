#ifndef LISTVIEWCHECKITEM_H
#define LISTVIEWCHECKITEM_H

#include "listviewitem.h"

/// A title with a check box at the row's end, which Enter toggles.
class ListViewCheckItem : public ListViewItem
{
public:
    ListViewCheckItem(QString const &title, bool const &checked);
    ~ListViewCheckItem() override;

    int type() override;
    void paint(QPainter *painter, QRect &rect) override;

    void setChecked(bool const &checked) { m_checked = checked; }
    bool isChecked() { return m_checked; }
    /// While set, the list leaves the check alone and the screen decides.
    void setIsNoValueChange(bool noChange) { m_isNoValueChange = noChange; }
    bool isNoValueChange() { return m_isNoValueChange; }

private:
    bool m_checked;
    bool m_isNoValueChange = false;
};

/// A group that a contact may belong to, with its check box in front.
class ListViewCheckGroupItem : public ListViewCheckItem
{
public:
    ListViewCheckGroupItem(QString const &text, bool const &checked, int id);
    ~ListViewCheckGroupItem() override;

    void paint(QPainter *painter, QRect &rect) override;

    int getId() { return m_id; }

private:
    int m_id;
};

#endif
