#ifndef SELECTPOPUPLISTVIEW_H
#define SELECTPOPUPLISTVIEW_H

#include "listview.h"

/// The list inside a select popup: black rows on the popup's plate, and a frame with an outline around the current
/// one.
class SelectPopupListView : public ListView
{
    Q_OBJECT

public:
    explicit SelectPopupListView(QWidget *parent);

    /// Pictures for the selection, taken once and for all; the present look has a use for none.
    void setSelectPixmap(const QPixmap &left, const QPixmap &middle, const QPixmap &right);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void paintRow(QPainter *painter, int idx, bool lastOfPage);
    void paintCurrent(QPainter *painter, ListViewItem *row, const QRect &rect, bool lastSlot);

    QList<QPixmap> m_selectPixmaps;
};

#endif
