#ifndef SELECTPOPUP_H
#define SELECTPOPUP_H

#include "selectpopupbase.h"
#include "selectpopuplistview.h"

/// A choice from a list of rows.
class SelectPopup : public SelectPopupBase
{
    Q_OBJECT

public:
    /// The type is the owner's own mark.
    SelectPopup(QWidget *parent, int type);

    SelectPopupListView *listView() const { return m_list; }
    /// Adds a plain row.
    void addListViewItem(const QString &text);

private:
    SelectPopupListView *m_list;
};

#endif
