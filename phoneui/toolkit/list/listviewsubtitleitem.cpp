#include "listviewsubtitleitem.h"

#include "rowpainting.h"

#include <QDebug>
#include <QPainter>

ListViewSubTitleItem::ListViewSubTitleItem(QString const &title)
{
    setText(title);
}

ListViewSubTitleItem::~ListViewSubTitleItem()
{
    qDeleteAll(m_subTitles);
}

int ListViewSubTitleItem::type()
{
    return 9;
}

void ListViewSubTitleItem::addSubTitle(QString const &text, int x, int width, QColor const &color,
                                       QColor const &selectColor)
{
    auto *piece = new textClass(text);
    piece->settextX(x);
    piece->setTextWidth(width);
    piece->setTextColor(color);
    piece->setTextSelecteColor(selectColor);
    m_subTitles.append(piece);
}

textClass *ListViewSubTitleItem::subTitle(int idx)
{
    if (idx < 0 || idx >= m_subTitles.size()) {
        qDebug() << "ListViewSubTitleItem::subTitle index err" << idx;
        return nullptr;
    }
    return m_subTitles.at(idx);
}

void ListViewSubTitleItem::setSubtitleAlignment(int flags)
{
    m_subtitleAlignment = flags;
    m_subtitleAlignmentSet = true;
}

void ListViewSubTitleItem::drawPiece(QPainter *painter, const QRect &rect, int flags, const QString &text)
{
    static const QColor shadowColor(85, 85, 85);

    if (m_useTextShadow != 0 && !selected()) {
        const QPen pen = painter->pen();
        painter->setPen(shadowColor);
        RowPainting::drawElided(painter, rect.translated(1, 2), flags, text);
        painter->setPen(pen);
    }
    RowPainting::drawElided(painter, rect, flags, text);
}

void ListViewSubTitleItem::paint(QPainter *painter, QRect &rect)
{
    static constexpr int TitleLeft = 10, GroupNameLeft = 35;

    painter->save();
    paintGround(painter, rect);
    const int titleLeft = rect.left() + (m_isGroupNameItem ? GroupNameLeft : TitleLeft);
    drawPiece(painter, QRect(titleLeft, rect.top(), m_textWidth, rect.height()), alignment(), text());

    const int barWidth = hasScrollBar() ? scrollBarAreaWidth() : 0;
    for (textClass *piece : qAsConst(m_subTitles)) {
        if (m_subtitleAlignmentSet)
            piece->setAlignment(m_subtitleAlignment);
        RowPainting::setPointSize(painter, piece->textPt());
        painter->setPen(selected() ? piece->textSelectColor() : piece->textColor());
        drawPiece(painter,
                  QRect(rect.left() + piece->textX(), rect.top(), piece->textWidth() - barWidth, rect.height()),
                  piece->alignment(), piece->text());
    }
    painter->restore();
}
