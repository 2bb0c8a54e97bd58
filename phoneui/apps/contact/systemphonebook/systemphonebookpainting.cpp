#include "systemphonebookpainting.h"

#include "rowpainting.h"
#include "systemphonebook.h"
#include "systemphonebookcategorymodel.h"

#include <QModelIndex>
#include <QPainter>
#include <QStyleOptionViewItem>

namespace SystemPhonebookPainting {

static constexpr int Margin = 10, Gap = 8;

static void drawEntry(QPainter *painter, const QRect &rect, const QModelIndex &index)
{
    // The name has two fifths of the row; what the number leaves is the category's.
    const int nameWidth = rect.width() * 2 / 5;
    const int numberWidth = rect.width() / 3;
    const QRect name(rect.left(), rect.top(), nameWidth - Gap, rect.height());
    const QRect number(rect.left() + nameWidth, rect.top(), numberWidth - Gap, rect.height());
    const QRect category = rect.adjusted(nameWidth + numberWidth, 0, 0, 0);

    const auto text = [&index](int role) { return index.data(role).toString(); };
    RowPainting::drawElided(painter, name, Qt::AlignLeft | Qt::AlignVCenter, text(SystemPhonebook::NameRole));
    RowPainting::drawElided(painter, number, Qt::AlignLeft | Qt::AlignVCenter, text(SystemPhonebook::NumberRole));
    RowPainting::drawElided(painter, category, Qt::AlignRight | Qt::AlignVCenter,
                            SystemPhonebookCategoryModel::shownName(text(SystemPhonebook::CategoryRole)));
}

void drawTexts(QPainter *painter, const QRect &rect, const QModelIndex &index)
{
    const QRect inner = rect.adjusted(Margin, 0, -Margin, 0);
    if (index.data(SystemPhonebook::KindRole) == SystemPhonebook::dataKind())
        drawEntry(painter, inner, index);
    else
        RowPainting::drawElided(painter, inner, Qt::AlignLeft | Qt::AlignVCenter, index.data().toString());
}

void drawItem(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index)
{
    const bool isSelected = option.state & QStyle::State_Selected;
    painter->save();
    painter->setFont(option.font);
    painter->fillRect(option.rect, isSelected ? Qt::black : Qt::white);
    painter->setPen(isSelected ? Qt::white : Qt::black);
    drawTexts(painter, option.rect, index);
    painter->restore();
}

}
