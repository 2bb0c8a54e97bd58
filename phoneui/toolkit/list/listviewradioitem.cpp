#include "listviewradioitem.h"

#include "formpainting.h"

#include <QPainter>

ListViewRadioItem::ListViewRadioItem(QString const &title, bool const &checked) : m_checked(checked)
{
    setText(title);
}

ListViewRadioItem::~ListViewRadioItem() = default;

int ListViewRadioItem::type()
{
    return 4;
}

void ListViewRadioItem::paint(QPainter *painter, QRect &rect)
{
    static constexpr int Gap = 4;

    painter->save();
    paintGround(painter, rect);
    const QPoint mark = FormPainting::markAtEnd(rect);
    if (m_useImage) {
        painter->drawPixmap(mark,
                            QPixmap(m_checked ? QStringLiteral(":/ui/images/widget/radio_sel.png")
                                              : QStringLiteral(":/ui/images/widget/radio.png")));
    } else if (m_checked) {
        QFont font = painter->font();
        font.setBold(true);
        painter->setFont(font);
    }
    FormPainting::drawTitle(painter, rect, m_useImage ? mark.x() - Gap : rect.right() + 1, alignment(), text());
    painter->restore();
}
