#ifndef GRIDSELECTPOPUP_H
#define GRIDSELECTPOPUP_H

#include "gridselectview.h"
#include "selectpopupbase.h"

/// A choice from the cells of a grid, such as signs or pictures. The next button shows the grid's next page.
class GridSelectPopup : public SelectPopupBase
{
    Q_OBJECT

public:
    /// The type is the owner's own mark.
    GridSelectPopup(QWidget *parent, int type);

    GridSelectView *gridView() const { return m_grid; }
    /// Adds a cell with a caption.
    void addGridViewItem(const QString &text);

protected:
    void turnPage() override;

private:
    GridSelectView *m_grid;
};

#endif
