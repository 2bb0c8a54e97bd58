#include "selectpopup.h"

#include "imagebutton.h"

SelectPopup::SelectPopup(QWidget *parent, int type)
    : SelectPopupBase(parent, type), m_list(new SelectPopupListView(this))
{
    static constexpr int RowsPerPage = 4;
    setObjectName("SelectPopup");
    cancelButton()->setText(tr("Cancel"));
    m_list->setObjectName("SelectPopup::m_litView");
    m_list->setPageCount(RowsPerPage);
    setUpList(m_list);
}

void SelectPopup::addListViewItem(const QString &text)
{
    m_list->addItem(new ListViewItem(text, QPixmap(), QPixmap()));
}
