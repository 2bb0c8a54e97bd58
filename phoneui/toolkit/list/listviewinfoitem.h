#ifndef LISTVIEWINFOITEM_H
#define LISTVIEWINFOITEM_H

#include "listviewitem.h"

/// A title and a text that the row only shows.
class ListViewInfoItem : public ListViewItem
{
public:
    ListViewInfoItem(QString const &title, QString const &infoText);
    ~ListViewInfoItem() override;

    int type() override;
    void paint(QPainter *painter, QRect &rect) override;

    void setInfoText(QString const &text) { m_infoText = text; }
    QString infoText() { return m_infoText; }
    void setInfoAlignment(int flags) { m_infoAlignment = flags; }
    int infoAlignment() { return m_infoAlignment; }
    void setInfoLeftMargin(int margin) { m_infoLeftMargin = margin; }
    int infoLeftMargin() { return m_infoLeftMargin; }
    void setInfoRightMargin(int margin) { m_infoRightMargin = margin; }
    int infoRightMargin() { return m_infoRightMargin; }

private:
    QString m_infoText;
    int m_infoAlignment = Qt::AlignVCenter | Qt::AlignRight;
    int m_infoLeftMargin = 167;
    int m_infoRightMargin = 10;
};

#endif
