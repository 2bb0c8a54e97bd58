#ifndef LISTVIEWCALLITEM_H
#define LISTVIEWCALLITEM_H

#include "listviewitem.h"

/// A call under way: who it is with, its state as a picture, and how long it lasts. The row keeps no clock: its
/// owner sets the seconds and has the list repaint.
class ListViewCallItem : public ListViewItem
{
public:
    enum CallState { CallActive = 0, CallHold = 1, CallMute = 2 };

    ListViewCallItem(QString const &nameOrNumber, ListViewCallItem::CallState state);
    ~ListViewCallItem() override;

    int type() override;
    void paint(QPainter *painter, QRect &rect) override;

    void setCallState(ListViewCallItem::CallState state) { m_callState = state; }
    ListViewCallItem::CallState callState() const { return m_callState; }
    void setSeconds(int seconds) { m_seconds = seconds; }
    int seconds() const { return m_seconds; }
    /// The timer as it is shown: "05:09", from an hour on "1:05:09".
    QString timerText() const;

private:
    ListViewCallItem::CallState m_callState;
    int m_seconds = 0;
};

#endif
