#include "listviewcheckitem.h"

#include "formpainting.h"
#include "shapedtext.h"

#include <QPainter>

ListViewCheckItem::ListViewCheckItem(QString const &title, bool const &checked) : m_checked(checked)
{
    setText(title);
}

ListViewCheckItem::~ListViewCheckItem() = default;

int ListViewCheckItem::type()
{
    return 3;
}

void ListViewCheckItem::paint(QPainter *painter, QRect &rect)
{
    static constexpr int BeyondBox = 3, Gap = 4;

    painter->save();
    paintGround(painter, rect);
    const QPoint box = FormPainting::markAtEnd(rect);
    QRect titleRect = rect.adjusted(FormPainting::TitleLeft, 0, 0, 0);
    titleRect.setRight(rect.right() - FormPainting::markSize().width() + BeyondBox);
    // The rectangle reaches under the box, which counts for other alignments; a long title ends before the box.
    ShapedText::draw(painter, titleRect, alignment(), text(), box.x() - Gap - titleRect.left());
    FormPainting::drawCheckBox(painter, box, m_checked, isPressed());
    painter->restore();
}

ListViewCheckGroupItem::ListViewCheckGroupItem(QString const &text, bool const &checked, int id)
    : ListViewCheckItem(text, checked), m_id(id)
{
}

ListViewCheckGroupItem::~ListViewCheckGroupItem() = default;

void ListViewCheckGroupItem::paint(QPainter *painter, QRect &rect)
{
    static constexpr int BoxLeft = 10, TextBehindBox = 20;

    painter->save();
    paintGround(painter, rect);
    FormPainting::drawCheckBox(painter, QPoint(rect.left() + BoxLeft, FormPainting::markTop(rect)), isChecked(),
                               isPressed());
    ShapedText::draw(painter, rect.adjusted(FormPainting::markSize().width() + TextBehindBox, 0, 0, 0), alignment(),
                     text());
    painter->restore();
}
