#include "listviewdirectoryitem.h"

#include "shapedtext.h"

#include <QPainter>

ListViewDirectoryItem::ListViewDirectoryItem(QString const &text, QString const &midText, QString const &endText)
    : m_midText(midText), m_endText(endText)
{
    setText(text);
}

ListViewDirectoryItem::~ListViewDirectoryItem() = default;

void ListViewDirectoryItem::paint(QPainter *painter, QRect &rect)
{
    // The name's column and the next overlap: a name may end in the gap before a right-aligned value.
    static constexpr int NameLeft = 10, ColumnWidth = 187, SecondColumn = 187, EndFromRight = 197;

    painter->save();
    paintGround(painter, rect);
    const int second = rect.left() + SecondColumn;
    const auto column = [&](int left, int width) { return QRect(left, rect.top(), width, rect.height()); };
    ShapedText::draw(painter, column(rect.left() + NameLeft, ColumnWidth), alignment(), text());
    ShapedText::draw(painter, column(second, ColumnWidth), m_midAlignment, m_midText);
    ShapedText::draw(painter, column(second, rect.width() - EndFromRight), m_endTextAlignment, m_endText);
    painter->restore();
}
