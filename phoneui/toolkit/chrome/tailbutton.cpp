#include "tailbutton.h"

#include "rowpainting.h"
#include "shapedtext.h"
#include "softkeypainting.h"
#include "tail.h"

#include <QPainter>

namespace {

constexpr int TextTop = 3;

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

QPixmap picture(const QString &name, bool other)
{
    return RowPainting::picture(":/ui/images/widget/" + name + (other ? "_sel.png" : ".png"));
}

}

TailButton::TailButton(QWidget *parent) : QPushButton(parent)
{
    setFocusPolicy(Qt::NoFocus);
}

void TailButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    QString shown = text();
    QFont font = painter.font();
    if (shown == "<" || shown == ">")
        font.setWeight(QFont::Bold);
    font.setPointSize(SoftKeyPainting::PointSize);

    const QString name = pictureName(shown);
    if (name.isEmpty() && shown.contains("MSG_"))
        shown.remove("MSG_");
    shown = shown.trimmed();
    painter.setFont(SoftKeyPainting::fittedFont(font, shown, width() - 3));

    const bool dark = SoftKeyPainting::isDarkDesign();
    SoftKeyPainting::drawPlate(&painter, rect(), dark, isDown(), shown.isEmpty());
    const QRect textRect = rect().adjusted(0, TextTop, 0, 0);
    if (!name.isEmpty()) {
        const QPixmap image = picture(name, isDown() != dark);
        QRect place = image.rect();
        place.moveCenter(textRect.center());
        painter.drawPixmap(place.topLeft(), image);
        return;
    }
    painter.setPen(SoftKeyPainting::textColor(dark, isDown()));
    ShapedText::draw(&painter, textRect, Qt::AlignCenter, shown);
}
