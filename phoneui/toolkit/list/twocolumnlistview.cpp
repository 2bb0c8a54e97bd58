#include "twocolumnlistview.h"

TwoColumnListView::TwoColumnListView(QWidget *parent) : GridSelectView(3, 2, parent)
{
    setUseTopLine(false);
    setUseBottomLine(false);
    setUseSideLine(false);
    setUseDivideLines(false);
    setUseDotLines(true);
    setFocusType(1);
}

int TwoColumnListView::keyToItemIdx(int key)
{
    return key >= Qt::Key_F1 && key <= Qt::Key_F10 ? key - Qt::Key_F1 : -1;
}
