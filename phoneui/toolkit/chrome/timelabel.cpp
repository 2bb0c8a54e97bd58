#include "timelabel.h"

#include "core.h"
#include "shapedtext.h"

#include <QPainter>
#include <QTime>

TimeLabel::TimeLabel(QWidget *parent) : QLabel(parent) { }

QString TimeLabel::format() const
{
    return m_time24Hour ? QStringLiteral("hh:mm") : QStringLiteral("hh:mm AP");
}

QFont TimeLabel::clockFont() const
{
    QFont light = font();
    light.setWeight(QFont::Light);
    return light;
}

void TimeLabel::setTime24Hour(bool use)
{
    if (m_time24Hour == use)
        return;
    m_time24Hour = use;
    updateGeometry();
    update();
}

void TimeLabel::changeTimeBlinkFlag()
{
    m_blink = !m_blink;
    update();
}

QSize TimeLabel::sizeHint() const
{
    const QFontMetrics metrics(clockFont());
    const QString widest = m_time24Hour ? QStringLiteral("00:00") : QStringLiteral("00:00 PM");
    return QSize(metrics.horizontalAdvance(widest) + 2, metrics.height());
}

void TimeLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setFont(clockFont());
    painter.setPen(theCore->designType() == 1 ? QColor(0x55, 0x55, 0x55) : QColor(0x22, 0x22, 0x22));

    // The halves keep their places while the colon between them comes and goes.
    const QString clock = QTime::currentTime().toString(format());
    const QString head = clock.section(':', 0, 0);
    const QString tail = clock.section(':', 1);
    const auto widthOf = [&](const QString &text) { return ShapedText::width(painter.font(), text); };
    int x = width() - widthOf(clock);
    const auto draw = [&](const QString &text, int at) {
        ShapedText::draw(&painter, QRect(at, 0, width() - at, height()), Qt::AlignLeft | Qt::AlignVCenter, text);
    };
    draw(head, x);
    x += widthOf(head);
    if (!m_blink)
        draw(":", x);
    draw(tail, x + widthOf(":"));
}
