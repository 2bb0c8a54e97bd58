#include "noresultlabel.h"

#include <QLabel>

QLabel *makeNoResultLabel(const QString &text, const QRect &place, QWidget *screen)
{
    static constexpr int TextHeight = 20; // pixels

    auto *label = new QLabel(text, screen);
    QFont font("1V_02_GO_UI");
    font.setPixelSize(TextHeight);
    label->setFont(font);
    label->setAlignment(Qt::AlignCenter);
    label->setGeometry(place);
    label->hide();
    return label;
}
