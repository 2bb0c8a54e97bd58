#include "textrecorder.h"

#include <QPaintEngine>
#include <QPainter>
#include <QWidget>

namespace {

/// Paints nothing and keeps the texts.
class TextEngine : public QPaintEngine
{
public:
    TextEngine() : QPaintEngine(AllFeatures) { }

    bool begin(QPaintDevice *) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }
    void updateState(const QPaintEngineState &) override { }
    void drawPixmap(const QRectF &, const QPixmap &, const QRectF &) override { }
    void drawImage(const QRectF &, const QImage &, const QRectF &, Qt::ImageConversionFlags) override { }
    void drawPolygon(const QPointF *, int, PolygonDrawMode) override { }
    void drawPath(const QPainterPath &) override { }
    void drawTextItem(const QPointF &at, const QTextItem &item) override;

    void setWidget(const QWidget *widget);
    QList<DrawnText> texts;

private:
    const QWidget *m_widget = nullptr;
    QPoint m_origin; ///< of the widget in its window
    QRectF m_shown; ///< of the widget
};

class TextDevice : public QPaintDevice
{
public:
    explicit TextDevice(QSize size) : m_size(size) { }
    QPaintEngine *paintEngine() const override { return &m_engine; }
    TextEngine *engine() { return &m_engine; }

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        switch (metric) {
        case PdmWidth: return m_size.width();
        case PdmHeight: return m_size.height();
        case PdmDepth: return 32;
        case PdmDevicePixelRatio: return 1;
        case PdmDevicePixelRatioScaled: return int(devicePixelRatioFScale());
        default: return 72; // dots per inch
        }
    }

private:
    QSize m_size;
    mutable TextEngine m_engine;
};

void TextEngine::setWidget(const QWidget *widget)
{
    m_widget = widget;
    m_origin = widget->mapTo(widget->window(), QPoint());
    m_shown = widget->window()->rect();
    for (const QWidget *outer = widget; outer != widget->window(); outer = outer->parentWidget())
        m_shown &= QRectF(outer->mapTo(outer->window(), QPoint()), outer->size());
}

void TextEngine::drawTextItem(const QPointF &at, const QTextItem &item)
{
    const auto toWindow
        = [this](const QRectF &rect) { return painter()->transform().mapRect(rect).translated(m_origin); };
    QRectF place = m_shown;
    if (painter()->hasClipping())
        place &= toWindow(painter()->clipBoundingRect());
    QRectF letters = QFontMetricsF(item.font()).tightBoundingRect(item.text()).translated(at);
    letters.setLeft(at.x());
    letters.setWidth(item.width());
    const QRectF ink = toWindow(letters);
    const QPointF start = painter()->transform().map(at) + m_origin;
    const QPointF end = start + QPointF(item.width(), 0);
    // Letters of another font continue the text.
    if (!texts.isEmpty() && texts.last().widget == m_widget && (texts.last().end - start).manhattanLength() < 1.5) {
        texts.last().text += item.text();
        texts.last().ink |= ink;
        texts.last().end = end;
    } else if (!item.text().trimmed().isEmpty()) {
        texts.append({item.text(), m_widget, ink, place, end});
    }
}

}

QList<DrawnText> recordTexts(QWidget *window)
{
    TextDevice device(window->size());
    QList<QWidget *> widgets = window->findChildren<QWidget *>();
    widgets.prepend(window);
    for (QWidget *widget : qAsConst(widgets)) {
        if (widget->window() != window || !widget->isVisible())
            continue;
        device.engine()->setWidget(widget);
        widget->render(&device, QPoint(), QRegion(), QWidget::RenderFlags());
    }
    return device.engine()->texts;
}
