#include "textbutton.h"

#include "shapedtext.h"
#include "softkeypainting.h"

#include <QPainter>

TextButton::TextButton(QWidget *parent) : QPushButton(parent) { }

void TextButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    SoftKeyPainting::drawPlate(&painter, rect(), isDown(), text().isEmpty());
    painter.setFont(SoftKeyPainting::fittedFont(font(), text(), width()));
    painter.setPen(SoftKeyPainting::textColor(isDown()));
    ShapedText::draw(&painter, rect().adjusted(0, SoftKeyPainting::OutlineTop, 0, 0), Qt::AlignCenter, text());
}
