#include "inputpopuplineedit.h"

#include "rowpainting.h"

#include <QPainter>

InputPopupLineEdit::InputPopupLineEdit(QWidget *parent) : QLineEdit(parent)
{
    setTextMargins(3, 3, 3, 3);
}

void InputPopupLineEdit::paintEvent(QPaintEvent *event)
{
    {
        QPainter painter(this);
        RowPainting::drawSlices(&painter, rect(), ":ui/images/widget/inputbox");
    }
    QLineEdit::paintEvent(event);
}
