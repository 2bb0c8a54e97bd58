#include "listviewcontactitem.h"

#include "rowpainting.h"

#include <QPainter>

namespace {

bool isOfMobileDevice(int contactType)
{
    return contactType == 1 || contactType == 2;
}

QPixmap mobileIcon(bool selected)
{
    return RowPainting::picture(selected ? QStringLiteral(":/contact/images/menu_icon_mobile_press.png")
                                         : QStringLiteral(":/contact/images/menu_icon_mobile.png"));
}

}

ListViewContactItem::ListViewContactItem(QString const &text, QString const &label) : m_label(label)
{
    setText(text);
    setupNumberImage();
}

ListViewContactItem::~ListViewContactItem() = default;

int ListViewContactItem::type()
{
    return m_itemType == ItemTypeMarked ? 8 : 6;
}

void ListViewContactItem::setupNumberImage()
{
    m_images.setNormal(RowPainting::picture(QStringLiteral(":/ui/images/number_img_default.png")));
}

void ListViewContactItem::paint(QPainter *painter, QRect &rect)
{
    static constexpr int LabelLeft = 10, LabelWidth = 174;
    // From the left edge of the list, not of the row.
    static constexpr int ValueLeft = 10, LabelledValueLeft = 192;
    static const QColor labelColor(85, 85, 85);

    painter->save();
    paintGround(painter, rect);
    if (!m_label.isEmpty()) {
        painter->setPen(labelColor);
        const QRect labelRect(rect.left() + LabelLeft, rect.top(), LabelWidth, rect.height());
        RowPainting::drawElided(painter, labelRect, alignment(), m_label);
    }
    painter->setPen(textColor());
    const int start = m_label.isEmpty() ? ValueLeft : LabelledValueLeft;
    RowPainting::drawElided(painter, QRect(start, rect.top(), rect.width() - start, rect.height()), alignment(),
                            text());
    painter->restore();
}

ListViewContactListItem::ListViewContactListItem(QString const &text, int id, int contactType)
    : ListViewContactItem(text, QString()), m_id(id), m_contactType(contactType)
{
}

ListViewContactListItem::~ListViewContactListItem() = default;

void ListViewContactListItem::paint(QPainter *painter, QRect &rect)
{
    static constexpr int TextLeft = 10, TextRightOfMobile = 20, IconFromRight = 52;

    painter->save();
    paintGround(painter, rect);
    QRect textRect = rect.adjusted(TextLeft, 0, 0, 0);
    if (isOfMobileDevice(m_contactType)) {
        RowPainting::drawCentred(painter, rect, rect.right() - IconFromRight, mobileIcon(selected()));
        textRect.setRight(rect.right() - TextRightOfMobile);
    }
    RowPainting::drawElided(painter, textRect, alignment(), text());
    painter->restore();
}

ListViewContactGridItem::ListViewContactGridItem(QString const &text, int id, int contactType)
    : ListViewContactItem(text, QString()), m_id(id), m_contactType(contactType)
{
}

ListViewContactGridItem::~ListViewContactGridItem() = default;

void ListViewContactGridItem::paint(QPainter *painter, QRect &rect)
{
    // A cell that begins beyond three tenths of the display is one of the right column.
    static constexpr double RightColumnFrom = 115.2;
    static constexpr int Gap = 3, TextLeft = 11, TextRight = 13;

    painter->save();
    paintGround(painter, rect);
    const bool rightColumn = rect.left() > RightColumnFrom;
    const int span = rect.right() - rect.left();
    const int innerWidth = span - 2;
    setItemRect(QRect(rect.left() + (rightColumn ? Gap : 0), rect.top(), innerWidth, rect.height()));

    const QPixmap icon = mobileIcon(selected());
    const int content = span - TextRight < 0 ? innerWidth : span - TextRight;
    // The left column stands at the list's left edge. The icon's place stays free in cells without one.
    const QRect textRect((rightColumn ? rect.left() : 0) + TextLeft, rect.top(), content - icon.width(),
                         rect.height());
    if (isOfMobileDevice(m_contactType))
        RowPainting::drawCentred(painter, rect, textRect.right() + 1, icon);
    RowPainting::drawElided(painter, textRect, alignment(), text());
    painter->restore();
}
