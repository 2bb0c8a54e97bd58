#ifndef TEXTCLASS_H
#define TEXTCLASS_H

#include <QColor>
#include <QString>

/// One piece of text of a sub-title row, with its own place, size and colours.
///
/// The default colours are loud on purpose: a piece that shows yellow was never given its own.
class textClass
{
public:
    explicit textClass(QString const &text);

    void setText(QString const &text) { m_text = text; }
    QString text() { return m_text; }
    /// From the row's left edge.
    void settextX(int x) { m_textX = x; }
    int textX() { return m_textX; }
    void setTextWidth(int width) { m_textWidth = width; }
    int textWidth() { return m_textWidth; }
    void setTextPt(int points) { m_textPt = points; }
    int textPt() { return m_textPt; }
    void setTextColor(QColor const &color) { m_textColor = color; }
    QColor textColor() { return m_textColor; }
    void setTextSelecteColor(QColor const &color) { m_textSelectColor = color; }
    QColor textSelectColor() { return m_textSelectColor; }
    void setAlignment(int flags) { m_alignment = flags; }
    int alignment() { return m_alignment; }

private:
    QString m_text;
    int m_textX = 0;
    int m_textWidth = 384;
    int m_textPt = 19;
    QColor m_textColor = Qt::yellow;
    QColor m_textSelectColor = Qt::red;
    int m_alignment = Qt::AlignVCenter | Qt::AlignLeft;
};

#endif
