#include "titlelabel.h"

#include "rowpainting.h"
#include "shapedtext.h"

#include <QPainter>

namespace {

constexpr int PaddingBlanks = 42;
constexpr int PillGap = 6; // between the words and the pill
constexpr int PillInset = 2; // of the number from the ends' pictures
const QColor pillColor(0x55, 0x55, 0x55);

}

TitleLabel::TitleLabel(QWidget *parent) : QLabel(parent) { }

void TitleLabel::setText(const QString &text)
{
    m_title = text;
    m_pieces = text.split('|');
    QLabel::setText(text + QString(PaddingBlanks, ' '));
    update();
}

void TitleLabel::setTitleColor(const QColor &color)
{
    m_color = color;
    update();
}

QSize TitleLabel::sizeHint() const
{
    return QSize(0, fontMetrics().height() + 2 * margin());
}

QSize TitleLabel::minimumSizeHint() const
{
    return sizeHint();
}

/// The number in the brackets that end the title, and the last piece without them.
QString TitleLabel::pillText(QString *rest) const
{
    const QString last = m_pieces.isEmpty() ? QString() : m_pieces.last().trimmed();
    const int open = last.lastIndexOf('(');
    if (open < 0 || !last.endsWith(')')) {
        *rest = last;
        return QString();
    }
    *rest = last.left(open).trimmed();
    return last.mid(open + 1, last.size() - open - 2);
}

/// Draws the text from x on, cut at `right`; returns the x behind it.
int TitleLabel::drawPiece(QPainter *painter, int x, int right, const QString &text) const
{
    const QRect place(x, 0, qMax(0, right - x), height());
    RowPainting::drawElided(painter, place, Qt::AlignLeft | Qt::AlignVCenter, text);
    return x + qMin(place.width(), ShapedText::width(painter->font(), text));
}

static QPixmap pillEnd(const char *side)
{
    return RowPainting::picture(QString(":ui/images/title/num_bg_%1.png").arg(side));
}

void TitleLabel::drawPill(QPainter *painter, int x, const QString &number) const
{
    const QPixmap left = pillEnd("left");
    const QPixmap right = pillEnd("right");
    const int middle = ShapedText::width(painter->font(), number) + 2 * PillInset;
    const int top = RowPainting::centredTop(rect(), left.height());
    const QRect fill(x + left.width(), top, middle, left.height());
    painter->drawPixmap(x, top, left);
    painter->fillRect(fill, pillColor);
    painter->drawPixmap(fill.right() + 1, top, right);
    painter->setPen(Qt::white);
    ShapedText::draw(painter, fill, Qt::AlignCenter, number);
}

void TitleLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setPen(m_color);
    const QPixmap bar = RowPainting::picture(":ui/images/title/breadcrumb.png");
    const int gap = ShapedText::width(painter.font(), "  ");

    QString last;
    const QString number = pillText(&last);
    const int pillWidth = number.isEmpty() ? 0
                                           : PillGap + pillEnd("left").width() + pillEnd("right").width()
            + ShapedText::width(painter.font(), number) + 2 * PillInset;
    const int right = width() - margin() - qMax(0, indent()) - pillWidth;

    int x = margin() + qMax(0, indent());
    for (int i = 0; i + 1 < m_pieces.size(); ++i) {
        x = drawPiece(&painter, x, right, m_pieces.at(i).trimmed()) + gap;
        RowPainting::drawCentred(&painter, rect(), x, bar);
        x += bar.width() + gap;
    }
    x = drawPiece(&painter, x, right, last);
    if (!number.isEmpty())
        drawPill(&painter, x + PillGap, number);
}
