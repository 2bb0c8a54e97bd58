#include "systemphonebookdelegate.h"

#include "systemphonebookpainting.h"

void SystemPhonebookDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                    const QModelIndex &index) const
{
    SystemPhonebookPainting::drawItem(painter, option, index);
}

QSize SystemPhonebookDelegate::sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const
{
    return SystemPhonebookPainting::ItemSize;
}
