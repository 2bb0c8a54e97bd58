#ifndef LISTVIEWNETWORKITEM_H
#define LISTVIEWNETWORKITEM_H

#include "listviewitem.h"

/// A wireless network: its name, a lock when it asks for a password, and how well it is received.
class ListViewNetworkItem : public ListViewItem
{
public:
    ListViewNetworkItem(QString const &name, int signalStep, bool secured);
    ~ListViewNetworkItem() override;

    int type() override;
    void paint(QPainter *painter, QRect &rect) override;

    /// 0 (hardly received) to 4; what lies outside is taken to the nearer end.
    void setSignalStep(int step);
    int signalStep() const { return m_signalStep; }
    void setSecured(bool secured) { m_secured = secured; }
    bool isSecured() const { return m_secured; }

private:
    int m_signalStep = 0;
    bool m_secured;
};

#endif
