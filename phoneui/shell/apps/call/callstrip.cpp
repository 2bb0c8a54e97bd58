#include "callstrip.h"

#include <QPainter>

namespace {

// What it leaves of the status bar is room for "Contacts | All (150/300)".
constexpr QRect StripGeometry(200, 0, 184, 25);
constexpr int PointSize = 18;

}

CallStrip::CallStrip()
    : QWidget(nullptr, Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus),
      m_row(QString(), ListViewCallItem::CallActive)
{
    setObjectName("CallStrip");
    setAttribute(Qt::WA_ShowWithoutActivating);
    setFocusPolicy(Qt::NoFocus);
    setGeometry(StripGeometry);
    QFont stripFont = font();
    stripFont.setPointSize(PointSize);
    setFont(stripFont);
    m_row.setBackGroundColor(Qt::black);
    m_row.setTextColor(Qt::white);
}

void CallStrip::setParty(const QString &nameOrNumber)
{
    m_row.setText(nameOrNumber);
    update();
}

void CallStrip::setSeconds(int seconds)
{
    m_row.setSeconds(seconds);
    update();
}

void CallStrip::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    QRect place = rect();
    m_row.paint(&painter, place);
}
