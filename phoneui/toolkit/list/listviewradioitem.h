#ifndef LISTVIEWRADIOITEM_H
#define LISTVIEWRADIOITEM_H

#include "listviewitem.h"

/// One of several values of which the screen keeps one checked.
class ListViewRadioItem : public ListViewItem
{
public:
    ListViewRadioItem(QString const &title, bool const &checked);
    ~ListViewRadioItem() override;

    int type() override;
    void paint(QPainter *painter, QRect &rect) override;

    void setChecked(bool const &checked) { m_checked = checked; }
    bool isChecked() { return m_checked; }
    /// Without the picture the checked row shows a bold title.
    void setUseImage(bool use) { m_useImage = use; }
    bool useImage() const { return m_useImage; }

private:
    bool m_checked;
    bool m_useImage = true;
};

#endif
