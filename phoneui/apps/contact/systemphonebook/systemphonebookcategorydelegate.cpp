#include "systemphonebookcategorydelegate.h"

#include "systemphonebookpainting.h"

void SystemPhonebookCategoryDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                            const QModelIndex &index) const
{
    SystemPhonebookPainting::drawItem(painter, option, index);
}

QSize SystemPhonebookCategoryDelegate::sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const
{
    return SystemPhonebookPainting::ItemSize;
}
