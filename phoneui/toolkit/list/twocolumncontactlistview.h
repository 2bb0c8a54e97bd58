#ifndef TWOCOLUMNCONTACTLISTVIEW_H
#define TWOCOLUMNCONTACTLISTVIEW_H

#include "twocolumnlistview.h"

/// The two-column grid as contact screens use it.
class TwoColumnContactListView : public TwoColumnListView
{
    Q_OBJECT

public:
    explicit TwoColumnContactListView(QWidget *parent = nullptr);

    /// The screen is about to show another page.
    void setPageChange(bool change) { m_pageChange = change; }
    bool pageChange() const { return m_pageChange; }
    /// Closes the grid.
    void end();

signals:
    void pressFuncKey(int key);

private:
    bool m_pageChange = false;
};

#endif
