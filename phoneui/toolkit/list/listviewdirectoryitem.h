#ifndef LISTVIEWDIRECTORYITEM_H
#define LISTVIEWDIRECTORYITEM_H

#include "listviewitem.h"

/// A result of a directory search in up to three columns. The last two share their left edge, so a row fills the
/// one or the other.
class ListViewDirectoryItem : public ListViewItem
{
public:
    ListViewDirectoryItem(QString const &text, QString const &midText, QString const &endText);
    ~ListViewDirectoryItem() override;

    void paint(QPainter *painter, QRect &rect) override;

    void setMidText(QString const &text) { m_midText = text; }
    QString getMidText() { return m_midText; }
    void setEndText(QString const &text) { m_endText = text; }
    QString getEndText() { return m_endText; }
    void setEndTextAlignment(int flags) { m_endTextAlignment = flags; }
    /// Kept for the screens that set it; the columns stand where they stand.
    void setEndTextRightMargin(int margin) { m_endTextRightMargin = margin; }
    int endTextRightMargin() const { return m_endTextRightMargin; }

private:
    QString m_midText;
    QString m_endText;
    int m_midAlignment = Qt::AlignVCenter | Qt::AlignLeft;
    int m_endTextAlignment = Qt::AlignVCenter | Qt::AlignRight;
    int m_endTextRightMargin = 10;
};

#endif
