#ifndef LISTVIEWSUBTITLEITEM_H
#define LISTVIEWSUBTITLEITEM_H

#include "listviewitem.h"
#include "textclass.h"

#include <QList>

/// A title with further pieces of text, each at its own place and in its own colours.
class ListViewSubTitleItem : public ListViewItem
{
public:
    explicit ListViewSubTitleItem(QString const &title);
    ~ListViewSubTitleItem() override;

    int type() override;
    void paint(QPainter *painter, QRect &rect) override;

    void addSubTitle(QString const &text, int x, int width, QColor const &color, QColor const &selectColor);
    /// Null for an index out of range. The row keeps the piece.
    textClass *subTitle(int idx);
    /// From then on every piece is drawn with these flags instead of its own.
    void setSubtitleAlignment(int flags);
    int subtitleAlignment() { return m_subtitleAlignment; }

    /// The title of a group stands further to the right than a row's.
    void setGroupNameItem(bool const &isGroupName) { m_isGroupNameItem = isGroupName; }
    bool isGroupNameItem() { return m_isGroupNameItem; }
    /// The width of the title.
    void setTextWidth(int width) { m_textWidth = width; }
    int textWidth() { return m_textWidth; }
    void setUseTextShadow(int use) { m_useTextShadow = use; }
    int useTextShadow() const { return m_useTextShadow; }

private:
    void drawPiece(QPainter *painter, const QRect &rect, int flags, const QString &text);

    QList<textClass *> m_subTitles;
    bool m_isGroupNameItem = false;
    bool m_subtitleAlignmentSet = false;
    int m_subtitleAlignment = Qt::AlignVCenter | Qt::AlignLeft;
    int m_textWidth = 192;
    int m_useTextShadow = 0;
};

#endif
