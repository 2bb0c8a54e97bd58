#ifndef TEXTRECORDER_H
#define TEXTRECORDER_H

#include <QList>
#include <QRectF>
#include <QString>

class QWidget;

/// A run of text as a widget painted it. Rectangles are in the widget's window.
struct DrawnText
{
    QString text;
    const QWidget *widget;
    QRectF ink; ///< what the letters cover, with the room at their sides
    QRectF place; ///< what shows of them: the widget inside its window, inside what the painter clipped to
    QPointF end; ///< of its baseline
};

/// The texts that the visible widgets of a window paint, each widget alone.
QList<DrawnText> recordTexts(QWidget *window);

#endif
