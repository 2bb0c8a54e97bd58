#include "twocolumncontactlistview.h"

TwoColumnContactListView::TwoColumnContactListView(QWidget *parent) : TwoColumnListView(parent) { }

void TwoColumnContactListView::end()
{
    close();
}
