#include "slidelistview.h"

#include <QPointer>
#include <QPropertyAnimation>

static constexpr QSize DisplaySize(384, 160);
static constexpr int ShowTime = 100, HideTime = 70; // ms

static QPropertyAnimation *makeSlide(QObject *list, int time, QEasingCurve::Type easing)
{
    auto *slide = new QPropertyAnimation(list, "geometry", list);
    slide->setDuration(time);
    slide->setEasingCurve(easing);
    return slide;
}

static void run(QPropertyAnimation *slide, const QRect &from, const QRect &to)
{
    slide->setStartValue(from);
    slide->setEndValue(to);
    slide->start();
}

SlideListView::SlideListView(QWidget *parent)
    : ListView(parent), m_showAnimation(makeSlide(this, ShowTime, QEasingCurve::OutQuad)),
      m_hideAnimation(makeSlide(this, HideTime, QEasingCurve::InQuad)), m_screenRect(QPoint(), DisplaySize)
{
    connect(m_showAnimation, &QPropertyAnimation::finished, this, &SlideListView::showFinished);
}

void SlideListView::setGeometry(QRect const &rect)
{
    m_targetRect = rect;
    m_startRect = rect;
    setSlideType(m_slideType);
    ListView::setGeometry(m_startRect);
}

void SlideListView::setGeometry(int x, int y, int w, int h)
{
    setGeometry(QRect(x, y, w, h));
}

QPoint SlideListView::slideOffset() const
{
    switch (m_slideType) {
    case SlideNone: break;
    case SlideFromBottom: return QPoint(0, m_screenRect.height());
    case SlideFromTop: return QPoint(0, -m_screenRect.height());
    // By the width of the display, whatever the screen's is.
    case SlideFromLeft: return QPoint(-DisplaySize.width(), 0);
    case SlideFromRight: return QPoint(m_screenRect.width(), 0);
    }
    return QPoint();
}

void SlideListView::setSlideType(SlideListView::eSlideType const &type)
{
    m_slideType = type;
    m_startRect = m_targetRect.translated(slideOffset());
    move(m_startRect.topLeft());
}

void SlideListView::setShowDuration(int duration)
{
    m_showDuration = duration;
    m_showAnimation->setDuration(duration);
}

void SlideListView::setHideDuration(int duration)
{
    m_hideDuration = duration;
    m_hideAnimation->setDuration(duration);
}

void SlideListView::setShowAnimationType(QEasingCurve::Type const &type)
{
    m_showEasing = type;
    m_showAnimation->setEasingCurve(type);
}

void SlideListView::setHideAnimationType(QEasingCurve::Type const &type)
{
    m_hideEasing = type;
    m_hideAnimation->setEasingCurve(type);
}

bool SlideListView::isVisible() const
{
    if (m_useAnimation && m_hideAnimation->state() == QAbstractAnimation::Running)
        return false;
    if (m_useAnimation && m_showAnimation->state() == QAbstractAnimation::Running)
        return true;
    return ListView::isVisible();
}

void SlideListView::show()
{
    if (!m_useAnimation) {
        move(m_targetRect.topLeft());
        setVisible(true);
        return;
    }
    // A slide out that this one cuts short must not end at a later one.
    disconnect(m_hideAnimation, &QPropertyAnimation::finished, this, nullptr);
    setVisible(true);
    run(m_showAnimation, m_startRect, m_targetRect);
}

void SlideListView::slideOut(const QRect &from, Slot after)
{
    connect(m_hideAnimation, &QPropertyAnimation::finished, this, after);
    run(m_hideAnimation, from, m_startRect);
}

void SlideListView::hide()
{
    if (m_useAnimation) {
        slideOut(m_targetRect, &SlideListView::hideAfterAnimation);
        return;
    }
    setVisible(false);
    move(m_targetRect.topLeft());
}

void SlideListView::hideAfterAnimation()
{
    disconnect(m_hideAnimation, &QPropertyAnimation::finished, this, &SlideListView::hideAfterAnimation);
    setVisible(false);
    emit hideFinished();
}

void SlideListView::close()
{
    if (m_useAnimation)
        slideOut(QRect(QPoint(), size()), &SlideListView::closeAfterAnimation);
    else
        ListView::close();
}

void SlideListView::closeAfterAnimation()
{
    disconnect(m_hideAnimation, &QPropertyAnimation::finished, this, &SlideListView::closeAfterAnimation);
    const QPointer<SlideListView> alive(this);
    ListView::close();
    if (alive)
        emit closeFinished();
}
