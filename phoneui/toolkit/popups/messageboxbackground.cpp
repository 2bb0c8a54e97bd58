#include "messageboxbackground.h"

#include <QPainter>

MessageBoxBackground::MessageBoxBackground(QWidget *parent) : QWidget(parent, Qt::FramelessWindowHint) { }

void MessageBoxBackground::setTitleHeight(int height)
{
    m_titleHeight = height;
    update();
}

void MessageBoxBackground::paintEvent(QPaintEvent *)
{
    QPainter(this).drawPixmap(0, 0, QPixmap(":ui/images/widget/popup_03.png"));
}
