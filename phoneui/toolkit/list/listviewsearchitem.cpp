#include "listviewsearchitem.h"

#include "rowpainting.h"
#include "shapedtext.h"

#include <QPainter>

ListViewSearchItem::ListViewSearchItem(QString const &text, int id, int contactType, int telnumType,
                                       QString telnumval, int telIndex)
    : m_id(id), m_contactType(contactType), m_telnumType(telnumType), m_telnumval(std::move(telnumval)),
      m_telIndex(telIndex)
{
    setText(text);
}

ListViewSearchItem::~ListViewSearchItem() = default;

void ListViewSearchItem::paint(QPainter *painter, QRect &rect)
{
    static constexpr int NameLeft = 10, NameWidth = 187, NameElideWidth = 177, ImageLeft = 187;
    // The number's width is reckoned from the image and not from its own left edge: a long number is cut by the
    // display's edge before the dots of the elision.
    static constexpr int NumberBehindImage = 196 + 11, NumberFromWidth = 176;

    painter->save();
    paintGround(painter, rect);
    ShapedText::draw(painter, QRect(rect.left() + NameLeft, rect.top(), NameWidth, rect.height()), alignment(),
                     text(), NameElideWidth);

    const QPixmap &image = selected() ? m_images.selected() : m_images.normal();
    if (!image.isNull())
        RowPainting::drawCentred(painter, rect, rect.left() + ImageLeft, image);

    const QRect numberRect(rect.left() + NumberBehindImage + image.width(), rect.top(),
                           rect.right() - rect.left() - NumberFromWidth - image.width(), rect.height());
    RowPainting::drawElided(painter, numberRect, Qt::AlignVCenter | Qt::AlignLeft, m_telnumval);
    painter->restore();
}
