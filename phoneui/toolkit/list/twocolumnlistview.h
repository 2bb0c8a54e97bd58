#ifndef TWOCOLUMNLISTVIEW_H
#define TWOCOLUMNLISTVIEW_H

#include "gridselectview.h"

/// A grid of three rows and two columns with dotted lines and the framed focus, whose cells are clicked by the keys
/// beside the display.
class TwoColumnListView : public GridSelectView
{
    Q_OBJECT

public:
    explicit TwoColumnListView(QWidget *parent = nullptr);

    /// The ten function keys stand for the first ten cells, whatever page shows.
    int keyToItemIdx(int key) override;

    /// Whether the lines are drawn beside places without a cell too.
    void setForceDrawLine(bool force) { m_drawAllLines = force; }
    bool forceDrawLine() const { return m_drawAllLines; }

signals:
    // For screens that put something beside the grid; the grid itself never leaves its columns.
    void columnChanged(int column);
    void leaveLeft();
    void leaveRight();
};

#endif
