#include "listviewsysphonebookitem.h"

#include "rowpainting.h"
#include "systemphonebook.h"
#include "systemphonebookpainting.h"

#include <QPainter>

ListViewSysPhonebookItem::ListViewSysPhonebookItem(const QModelIndex &index) : m_index(index)
{
    setFocusType(ListViewFocusBar);
    const bool isEntry = index.data(SystemPhonebook::KindRole) == SystemPhonebook::dataKind();
    setText(index.data(isEntry ? int(SystemPhonebook::NameRole) : int(Qt::DisplayRole)).toString());
}

ListViewSysPhonebookItem::~ListViewSysPhonebookItem() = default;

int ListViewSysPhonebookItem::type()
{
    return 18;
}

void ListViewSysPhonebookItem::paint(QPainter *painter, QRect &rect)
{
    static constexpr int PointSize = 16; // five rows share the list's height

    painter->save();
    paintGround(painter, rect);
    RowPainting::setPointSize(painter, PointSize);
    SystemPhonebookPainting::drawTexts(painter, rect, m_index);
    painter->restore();
}
