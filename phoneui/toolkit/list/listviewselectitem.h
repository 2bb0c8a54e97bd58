#ifndef LISTVIEWSELECTITEM_H
#define LISTVIEWSELECTITEM_H

#include "listviewitem.h"

/// A title with a value that Left and Right change.
class ListViewSelectItem : public ListViewItem
{
public:
    ListViewSelectItem(QString const &title, QString const &selectedText);
    ~ListViewSelectItem() override;

    int type() override;
    void paint(QPainter *painter, QRect &rect) override;

    void setSelectedText(QString const &text) { m_selectedText = text; }
    QString selectedText() { return m_selectedText; }
    /// Kept for the screens that set it; the value is always drawn at one size.
    void setSelectTextFontPt(int points) { m_selectTextFontPt = points; }
    int selectTextFontPt() { return m_selectTextFontPt; }
    /// The width of the title.
    void setTextWidth(int width) { m_textWidth = width; }
    int textWidth() { return m_textWidth; }

private:
    QString m_selectedText;
    int m_selectTextFontPt = -1;
    int m_textWidth = 192;
};

#endif
