#ifndef FOCUSFRAME_H
#define FOCUSFRAME_H

#include <QColor>
#include <QPixmap>
#include <QRect>

class QPainter;

/// The floating focus: four corner pictures and the ground between them. Nothing is filled under the pictures,
/// whose outer corners may be transparent. The lower pictures of the plain look end with four pixels of ground,
/// because the frame laps that far over the row below and, in the last row, over the list's edge.
class FocusFrame
{
public:
    enum Look { Plain, Pressed };

    explicit FocusFrame(Look look);

    /// White, or black while the key is held.
    QColor color() const { return m_color; }

    void draw(QPainter *painter, const QRect &rect) const;
    /// The four pictures alone, for a list that joins them by edges of its own.
    void drawCorners(QPainter *painter, const QRect &rect) const;

    // What lies between two corners, along the frame's edges.
    QRect topBand(const QRect &rect) const;
    QRect bottomBand(const QRect &rect) const;
    QRect leftBand(const QRect &rect) const;
    QRect rightBand(const QRect &rect) const;

private:
    QRect leftTop(const QRect &rect) const;
    QRect leftBottom(const QRect &rect) const;
    QRect rightTop(const QRect &rect) const;
    QRect rightBottom(const QRect &rect) const;

    QColor m_color;
    QPixmap m_leftTop;
    QPixmap m_leftBottom;
    QPixmap m_rightTop;
    QPixmap m_rightBottom;
};

#endif
