#include "listviewgrouplistitem.h"

#include "rowpainting.h"
#include "shapedtext.h"

#include <QPainter>

ListViewGroupListItem::ListViewGroupListItem(QString const &text, QString count, int id)
    : m_id(id), m_count(std::move(count))
{
    setText(text);
}

ListViewGroupListItem::~ListViewGroupListItem() = default;

void ListViewGroupListItem::paint(QPainter *painter, QRect &rect)
{
    static constexpr int TextLeft = 10, Gaps = 23, CountBehindImage = 10;

    painter->save();
    paintGround(painter, rect);
    const QPixmap pressedImage(QStringLiteral(":/ui/images/contact/contacts_group_sel.png"));
    const int digits = ShapedText::width(painter->font(), QStringLiteral("000"));
    const int atRight = pressedImage.width() + digits + Gaps;
    ShapedText::draw(painter, rect.adjusted(TextLeft, 0, -atRight, 0), alignment(), text());

    const int imageLeft = rect.right() + 1 - atRight;
    if (isPressed()) {
        RowPainting::drawCentred(painter, rect, imageLeft, pressedImage);
    } else {
        painter->setPen(Qt::black);
        RowPainting::drawCentred(painter, rect, imageLeft,
                                 QPixmap(QStringLiteral(":/ui/images/contact/contacts_group.png")));
    }
    // As wide as three digits: the front of a longer count is cut off.
    ShapedText::draw(painter,
                     QRect(imageLeft + pressedImage.width() + CountBehindImage, rect.top(), digits, rect.height()),
                     Qt::AlignVCenter | Qt::AlignRight, m_count);
    painter->restore();
}
