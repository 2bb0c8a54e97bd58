#include "rowpainting.h"

#include "shapedtext.h"

#include <QPainter>
#include <QPixmapCache>

namespace RowPainting {

QPixmap picture(const QString &resource)
{
    QPixmap found;
    if (!QPixmapCache::find(resource, &found) && found.load(resource))
        QPixmapCache::insert(resource, found);
    return found;
}

int centredTop(const QRect &rect, int height)
{
    return rect.top() + (rect.height() - height) / 2;
}

void drawCentred(QPainter *painter, const QRect &rect, int x, const QPixmap &picture)
{
    painter->drawPixmap(x, centredTop(rect, picture.height()), picture);
}

void drawElided(QPainter *painter, const QRect &rect, int flags, const QString &text)
{
    ShapedText::draw(painter, rect, flags, text, rect.width());
}

void drawSlices(QPainter *painter, const QRect &rect, const QString &stem, const QString &suffix)
{
    const auto slice = [&](const char *part) { return picture(stem + QLatin1String(part) + suffix + ".png"); };
    drawSlices(painter, rect, slice("_left"), slice("_mid"), slice("_right"));
}

void drawSlices(QPainter *painter, const QRect &rect, const QPixmap &left, const QPixmap &middle,
                const QPixmap &right)
{
    const int rightEdge = rect.left() + rect.width() - right.width();
    const QRect stretch(rect.left() + left.width(), rect.top(), rightEdge - rect.left() - left.width(),
                        middle.height());

    painter->drawPixmap(rect.topLeft(), left);
    if (stretch.width() > 0)
        painter->drawPixmap(stretch, middle, QRect(0, 0, 1, middle.height()));
    painter->drawPixmap(rightEdge, rect.top(), right);
}

QPixmap inked(const QPixmap &picture, const QColor &ink)
{
    if (picture.isNull())
        return picture;
    QPixmap result = picture;
    QPainter painter(&result);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(result.rect(), ink);
    return result;
}

void setPointSize(QPainter *painter, int points)
{
    QFont font = painter->font();
    font.setPointSize(points);
    painter->setFont(font);
}

}
