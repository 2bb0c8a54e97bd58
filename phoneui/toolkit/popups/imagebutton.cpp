#include "imagebutton.h"

#include "rowpainting.h"
#include "softkeypainting.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>

static bool isEnter(const QKeyEvent *event)
{
    return event->key() == Qt::Key_Enter || event->key() == Qt::Key_Return;
}

ImageButton::ImageButton(QWidget *parent) : QWidget(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    QFont textFont = font();
    textFont.setPointSize(SoftKeyPainting::PointSize);
    setFont(textFont);
}

void ImageButton::setIcon(QPixmap const &icon)
{
    m_icon = icon;
    update();
}

void ImageButton::setPressIcon(QPixmap const &icon)
{
    m_pressIcon = icon;
    update();
}

void ImageButton::setText(QString const &text)
{
    m_text = text;
    update();
}

void ImageButton::setLeftGap(int gap)
{
    m_leftGap = gap;
    update();
}

void ImageButton::setRightGap(int gap)
{
    m_rightGap = gap;
    update();
}

void ImageButton::setBgColor(QColor const &color)
{
    m_bgColor = color;
    update();
}

void ImageButton::setHover(bool hover)
{
    const QPointer<ImageButton> alive(this);
    m_hover = hover;
    emit isHover(hover);
    if (alive)
        update();
}

void ImageButton::keyPressEvent(QKeyEvent *event)
{
    if (!isEnter(event)) {
        event->ignore();
        return;
    }
    m_hover = true;
    update();
}

void ImageButton::keyReleaseEvent(QKeyEvent *event)
{
    if (!isEnter(event)) {
        event->ignore();
        return;
    }
    m_hover = false;
    update();
    event->accept();
    emit clicked();
}

void ImageButton::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    event->accept();
    emit clicked();
}

void ImageButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QPixmap &icon = m_hover && !m_pressIcon.isNull() ? m_pressIcon : m_icon;
    const bool dark = SoftKeyPainting::isDarkDesign();
    SoftKeyPainting::drawPlate(&painter, rect(), dark, m_hover, m_text.isEmpty() && icon.isNull(), m_bgColor);

    QRect textRect = rect().adjusted(m_leftGap, SoftKeyPainting::OutlineTop, -m_rightGap, 0);
    if (!icon.isNull()) {
        const int left = m_text.isEmpty() ? (width() - icon.width()) / 2 : SoftKeyPainting::OutlineSide + m_leftGap;
        RowPainting::drawCentred(&painter, textRect, left, icon);
        textRect.setLeft(left + icon.width() + m_leftGap);
    }
    const QFont textFont = SoftKeyPainting::fittedFont(font(), m_text, textRect.width());
    if (icon.isNull() && QFontMetrics(textFont).horizontalAdvance(m_text) > textRect.width())
        textRect.setRect(0, textRect.top(), width(), textRect.height()); // rather a whole word than free gaps
    painter.setFont(textFont);
    painter.setPen(textColor(dark));
    RowPainting::drawElided(&painter, textRect, Qt::AlignCenter, m_text);
}

QColor ImageButton::textColor(bool dark) const
{
    static constexpr int MiddleLightness = 127;
    if (m_hover || !m_bgColor.isValid())
        return SoftKeyPainting::textColor(dark, m_hover);
    return m_bgColor.lightness() > MiddleLightness ? Qt::black : Qt::white;
}
