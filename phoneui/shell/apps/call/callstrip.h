#ifndef CALLSTRIP_H
#define CALLSTRIP_H

#include "listviewcallitem.h"

#include <QWidget>

/// The call in small, over the right end of the status bar: who it is with and how long it lasts. It shows while
/// another application lies over the call, and never has the focus.
class CallStrip : public QWidget
{
    Q_OBJECT

public:
    CallStrip();

    void setParty(const QString &nameOrNumber);
    void setSeconds(int seconds);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    ListViewCallItem m_row;
};

#endif
