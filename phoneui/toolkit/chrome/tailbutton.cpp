#include "tailbutton.h"

#include "core.h"
#include "tail.h"

#include <QPainter>

namespace {

constexpr int PointSize = 20, SmallPointSize = 18; // there is no second step down
constexpr int TextTop = 3;
const QColor grey(187, 187, 187);

/// The colours of the two designs of the phone.
struct Colours
{
    QColor outline, body, empty, textUp, textDown;
};

bool isDarkDesign()
{
    return theCore->designType() == 1;
}

Colours colours()
{
    return isDarkDesign() ? Colours{grey, Qt::black, grey, Qt::white, Qt::black}
                          : Colours{Qt::black, Qt::white, Qt::white, Qt::black, Qt::white};
}

/// The stem of the picture that the text stands for, empty for a text that is shown as words.
QString pictureName(const QString &text)
{
    if (text == QString::fromUtf8("∨"))
        return QStringLiteral("softkey_ok");
    if (text == "<-" || text == Tail::tr("Erase") || text.compare("erase", Qt::CaseInsensitive) == 0)
        return QStringLiteral("softkey_delete");
    if (text == "X")
        return QStringLiteral("softkey_cancel");
    if (text == ">>")
        return QStringLiteral("softkey_nextpage");
    return QString();
}

QPixmap picture(const QString &name, bool down)
{
    return QPixmap(":/ui/images/widget/" + name + (down != isDarkDesign() ? "_sel.png" : ".png"));
}

QRect corners(int left, int top, int right, int bottom)
{
    return QRect(QPoint(left, top), QPoint(right, bottom));
}

}

TailButton::TailButton(QWidget *parent) : QPushButton(parent)
{
    setFocusPolicy(Qt::NoFocus);
}

void TailButton::paintPlate(QPainter *painter, bool empty) const
{
    const QRect body = corners(2, 0, width() - 3, height() - 1);
    const Colours c = colours();
    if (isDown()) {
        painter->fillRect(body, c.outline);
    } else if (isDarkDesign()) {
        painter->fillRect(body, empty ? c.empty : c.body);
    } else if (empty) {
        painter->fillRect(body, grey);
    } else {
        painter->fillRect(body, c.outline);
        painter->fillRect(body.adjusted(2, 3, -2, 0), c.body);
    }
}

void TailButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    QString shown = text();
    QFont font = painter.font();
    if (shown == "<" || shown == ">")
        font.setWeight(QFont::Bold);
    font.setPointSize(PointSize);

    const QString name = pictureName(shown);
    if (name.isEmpty() && shown.contains("MSG_"))
        shown.remove("MSG_");
    shown = shown.trimmed();
    const int widest = width() - 3;
    if (QFontMetrics(font).horizontalAdvance(shown) >= widest)
        font.setPointSize(SmallPointSize);
    painter.setFont(font);

    paintPlate(&painter, shown.isEmpty());
    const QRect textRect = corners(0, TextTop, width() - 1, height() - 1);
    if (!name.isEmpty()) {
        const QPixmap image = picture(name, isDown());
        QRect place = image.rect();
        place.moveCenter(textRect.center());
        painter.drawPixmap(place.topLeft(), image);
        return;
    }
    const Colours c = colours();
    painter.setPen(isDown() ? c.textDown : c.textUp);
    painter.drawText(textRect, Qt::AlignCenter, shown);
}
