#include "gridselectpopup.h"

#include "gridlistviewitem.h"
#include "imagebutton.h"

#include <QPointer>

GridSelectPopup::GridSelectPopup(QWidget *parent, int type)
    : SelectPopupBase(parent, type), m_grid(new GridSelectView(this))
{
    setObjectName("GridSelectPopup");
    cancelButton()->setText(tr("Cancel"));
    m_grid->setObjectName("GridSelectPopup::m_gridView");
    m_grid->setFocusType(ListViewFocusFloating);
    m_grid->setUseDotLines(true);
    setUpList(m_grid);
    connect(m_grid, &GridSelectView::reject, this, &GridSelectPopup::reject);
}

void GridSelectPopup::addGridViewItem(const QString &text)
{
    m_grid->addItem(new GridListViewItem(text, QPixmap(), QPixmap()));
    m_grid->update();
}

void GridSelectPopup::turnPage()
{
    const QPointer<GridSelectPopup> alive(this);
    m_grid->moveToNextPage();
    if (alive)
        m_grid->repositionSelectedItem();
}
