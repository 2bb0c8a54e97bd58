#include "toastpainting.h"

#include "rowpainting.h"

#include <QPainter>
#include <QTextOption>

namespace ToastPainting {

namespace {

/// The panel's pictures reach beyond it by its outline and shadow.
struct Panel
{
    int pictureLeft;
    int top;
    int left;
    int right;
    int bottom;
};

constexpr Panel widePanel{2, 1, 7, 376, 99};
constexpr Panel narrowPanel{0, 0, 5, 368, 98};
constexpr int PictureBeyondRight = 5;
constexpr int TextInset = 7;

constexpr qreal TextWidth = 307.2, TextHeightShare = 0.5;
constexpr qreal AboveMiddle = 26;
constexpr qreal MinimumWidth = 172, MinimumHeight = 58;
constexpr qreal Padding = 10;
constexpr qreal ShadowWidth = 2;
constexpr int BoxTextFlags = Qt::AlignHCenter | Qt::AlignVCenter | Qt::TextWrapAnywhere;

void prepare(QPainter *painter, int fontSize)
{
    QFont font = painter->font();
    font.setPixelSize(fontSize);
    painter->setFont(font);
    painter->setPen(Qt::black);
}

/// The frame that the text is measured in, somewhat above the middle.
QRectF textFrame(const QSize &size, qreal extraHeight)
{
    const qreal height = size.height() * TextHeightShare;
    return QRectF((size.width() - TextWidth) * 0.5, (size.height() - height) * 0.5 - AboveMiddle, TextWidth,
                  height + extraHeight);
}

QRectF boxAround(const QRectF &text, const QSize &size, const BoxLayout &layout)
{
    QRectF box(text.left() - Padding, text.top() - layout.above, text.width() + 2 * Padding,
               text.height() + layout.extraHeight);
    if (box.width() < MinimumWidth) {
        box.setWidth(MinimumWidth);
        box.moveLeft((size.width() - MinimumWidth) * 0.5);
    }
    if (box.height() < layout.minimumHeight) {
        box.setHeight(layout.minimumHeight);
        box.moveTop((size.height() - layout.minimumHeight) * 0.5 - AboveMiddle);
    }
    return box;
}

void drawRounded(QPainter *painter, const QRectF &rect, const QSizeF &roundness)
{
    painter->drawRoundedRect(rect, roundness.width(), roundness.height(), Qt::RelativeSize);
}

/// The box with its outline, above a shadow.
void drawBoxGround(QPainter *painter, const QRectF &box)
{
    static const QColor shadow(187, 187, 187);
    static constexpr qreal Roundness = 3.8; // percent of a square box
    // All three are rounded alike, by the box itself, in whole percents.
    const QSizeF roundness(int(Roundness + Roundness * box.height() / box.width()),
                           int(Roundness + Roundness * box.width() / box.height()));
    const QRectF outer(box.left() - ShadowWidth, box.top(), box.width() + 2 * ShadowWidth,
                       box.height() + 2 * ShadowWidth);
    painter->setPen(shadow);
    painter->setBrush(shadow);
    drawRounded(painter, outer, roundness);
    painter->setPen(Qt::black);
    painter->setBrush(Qt::black);
    drawRounded(painter, outer.translated(0, -ShadowWidth), roundness);
    painter->setBrush(Qt::white);
    drawRounded(painter, box, roundness);
}

}

PanelLayout noticePanel(const QPixmap &icon, int fontSize, bool severalLines)
{
    static constexpr int IconTop = 14, SmallFontLift = 3, FullFontSize = 22;
    PanelLayout layout;
    layout.pictureTop = IconTop - (fontSize < FullFontSize ? SmallFontLift : 0);
    layout.textTop = icon.isNull() ? 0 : IconTop + icon.height();
    layout.elideLines = severalLines ? 2 : 1;
    return layout;
}

PanelLayout waitPanel(const QPixmap &picture)
{
    static constexpr int PictureTop = 18, TextTop = 26;
    return {PictureTop, TextTop + picture.height(), 1};
}

BoxLayout noticeBox(const QPixmap &icon)
{
    static constexpr qreal IconOverlap = 10, IconTop = 8;
    const qreal room = icon.isNull() ? 0 : icon.height() - IconOverlap;
    return {0, Padding + room, 2 * (room + Padding), MinimumHeight, IconTop, room};
}

BoxLayout waitBox(const QPixmap &picture)
{
    static constexpr qreal Above = 25, PictureTop = 10, TextDrop = 23;
    const qreal height = picture.height();
    return {height, Above, 2 * Above, height + 2 * Above, PictureTop, TextDrop};
}

void drawPanel(QPainter *painter, const Content &content, bool narrow, const PanelLayout &layout)
{
    const Panel &panel = narrow ? narrowPanel : widePanel;
    const int width = panel.right - panel.left;
    const int end = panel.left + width + 1 + PictureBeyondRight;
    RowPainting::drawSlices(painter, QRect(panel.pictureLeft, panel.top, end - panel.pictureLeft, panel.bottom),
                            ":ui/images/widget/popup_02");
    if (!content.picture.isNull()) {
        painter->drawPixmap(panel.left + (width + 1 - content.picture.width()) / 2, panel.top + layout.pictureTop,
                            content.picture);
    }

    prepare(painter, content.fontSize);
    const int textWidth = width - 2 * TextInset + 1;
    const QRectF text(QPointF(panel.left + TextInset, panel.top + layout.textTop),
                      QPointF(panel.left + TextInset + textWidth, panel.bottom));
    QTextOption option(Qt::AlignCenter);
    option.setWrapMode(QTextOption::WrapAnywhere);
    painter->drawText(
        text, painter->fontMetrics().elidedText(content.message, Qt::ElideRight, textWidth * layout.elideLines),
        option);
}

void drawBox(QPainter *painter, const QSize &size, const Content &content, const BoxLayout &layout)
{
    prepare(painter, content.fontSize);
    const QRectF frame = textFrame(size, layout.extraTextHeight);
    const QRectF box = boxAround(painter->boundingRect(frame, BoxTextFlags, content.message), size, layout);
    drawBoxGround(painter, box);
    if (!content.picture.isNull()) {
        painter->drawPixmap(QPointF((size.width() - content.picture.width()) / 2, box.top() + layout.pictureTop),
                            content.picture);
    }
    painter->drawText(frame.adjusted(0, layout.textDrop, 0, 0), BoxTextFlags, content.message);
}

}
