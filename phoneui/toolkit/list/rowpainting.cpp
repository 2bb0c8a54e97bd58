#include "rowpainting.h"

#include "shapedtext.h"

#include <QPainter>
#include <QPixmapCache>

#include <functional>

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

/// Draws the plate of that width that is kept under the name, or else is made by `slice` from three parts.
static void drawKeptPlate(QPainter *painter, const QRect &rect, const QString &name,
                          const std::function<QPixmap(int part)> &slice)
{
    const QString key = name + QLatin1Char('/') + QString::number(rect.width());
    QPixmap plate;
    if (!QPixmapCache::find(key, &plate)) {
        const QPixmap middle = slice(1);
        plate = QPixmap(qMax(1, rect.width()), qMax(1, middle.height()));
        plate.fill(Qt::transparent);
        QPainter plater(&plate);
        drawSlices(&plater, QRect(0, 0, rect.width(), rect.height()), slice(0), middle, slice(2));
        plater.end();
        QPixmapCache::insert(key, plate);
    }
    painter->drawPixmap(rect.topLeft(), plate);
}

void drawSlices(QPainter *painter, const QRect &rect, const QString &stem, const QString &suffix)
{
    static const char *const parts[] = {"_left", "_mid", "_right"};
    drawKeptPlate(painter, rect, stem + suffix,
                  [&](int part) { return picture(stem + QLatin1String(parts[part]) + suffix + ".png"); });
}

void drawSlices(QPainter *painter, const QRect &rect, const QString &resource, int endWidth)
{
    drawKeptPlate(painter, rect, resource, [&](int part) {
        const QPixmap whole = picture(resource);
        const int left[] = {0, endWidth, whole.width() - endWidth};
        return whole.copy(left[part], 0, part == 1 ? 1 : endWidth, whole.height());
    });
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
