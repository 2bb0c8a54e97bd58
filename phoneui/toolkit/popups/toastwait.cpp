#include "toastwait.h"

#include "toastpainting.h"

#include <QPainter>
#include <QTimer>

static constexpr int FrameCount = 8, FrameTime = 100; // ms
static constexpr int FontSize = 22; // pixels, for several lines too

ToastWait::ToastWait(const QString &message, int timeoutMilliseconds, QWidget *parent)
    : Toast(message, timeoutMilliseconds, parent), m_pixmapTimer(new QTimer(this))
{
    setUseRollbackFocus(false);
    connect(m_pixmapTimer, &QTimer::timeout, this, &ToastWait::pixmapTimeout);
    m_pixmapTimer->start(FrameTime);
}

void ToastWait::pixmapTimeout()
{
    m_pixmapIndex = (m_pixmapIndex + 1) % FrameCount;
    update();
}

void ToastWait::paintEvent(QPaintEvent *)
{
    const QPixmap frame(QString(":ui/images/widget/loading_0%1.png").arg(m_pixmapIndex + 1));
    const ToastPainting::Content content{message(), frame, FontSize};
    QPainter painter(this);
    if (useFullScreen())
        ToastPainting::drawPanel(&painter, content, resized(), ToastPainting::waitPanel(frame));
    else
        ToastPainting::drawBox(&painter, size(), content, ToastPainting::waitBox(frame));
}
