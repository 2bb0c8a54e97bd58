#include "textbutton.h"

#include "shapedtext.h"
#include "softkeypainting.h"

#include <QPainter>

TextButton::TextButton(QWidget *parent) : QPushButton(parent) { }

void TextButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const bool dark = SoftKeyPainting::isDarkDesign();
    SoftKeyPainting::drawPlate(&painter, rect(), dark, isDown(), text().isEmpty());
    painter.setFont(SoftKeyPainting::fittedFont(font(), text(), width()));
    painter.setPen(SoftKeyPainting::textColor(dark, isDown()));
    ShapedText::draw(&painter, rect().adjusted(0, SoftKeyPainting::OutlineTop, 0, 0), Qt::AlignCenter, text());
}
