#include "slidemessagebox.h"

#include <QPainter>
#include <QPointer>
#include <QPropertyAnimation>

namespace {

constexpr int ShowTime = 100, HideTime = 80, DimTime = 50; // ms
constexpr int DimmedTop = 27; // what lies above is the status bar
const QColor clear(0, 0, 0, 0);
const QColor dimmed(0, 0, 0, 90);

QPropertyAnimation *makeAnimation(QObject *box, const char *property, int time, const QEasingCurve &easing)
{
    auto *animation = new QPropertyAnimation(box, property, box);
    animation->setDuration(time);
    animation->setEasingCurve(easing);
    return animation;
}

}

SlideMessageBox::SlideMessageBox(QWidget *parent)
    : MessageBoxBase(parent), m_showAnimation(makeAnimation(this, "geometry", ShowTime, QEasingCurve::OutQuad)),
      m_hideAnimation(makeAnimation(this, "geometry", HideTime, QEasingCurve::InQuad)),
      m_backgroundAnimation(makeAnimation(this, "backgroundColor", DimTime, QEasingCurve::Linear))
{
    setModal(true);
    const QRect place(0, 0, width(), height());
    const QRect below = place.translated(0, height());
    m_showAnimation->setStartValue(below);
    m_showAnimation->setEndValue(place);
    m_hideAnimation->setStartValue(place);
    m_hideAnimation->setEndValue(below);
    m_backgroundAnimation->setStartValue(clear);
    m_backgroundAnimation->setEndValue(dimmed);
    connect(m_backgroundAnimation, &QPropertyAnimation::finished, this, &SlideMessageBox::showAnimationFinished);
    setUseBackGroundRect(false);
    setBackgroundColor(clear);
}

void SlideMessageBox::setBackgroundColor(const QColor &color)
{
    m_backgroundColor = color;
    update();
}

void SlideMessageBox::show()
{
    m_animating = true;
    setVisible(true);
    if (m_useAnimation && m_showAnimation) {
        connect(m_showAnimation, &QPropertyAnimation::finished, this, &SlideMessageBox::showAfterAnimation);
        m_showAnimation->start();
    }
}

void SlideMessageBox::showAfterAnimation() { }

void SlideMessageBox::showAnimationFinished()
{
    m_backgroundAnimation->setStartValue(dimmed);
}

void SlideMessageBox::beginToGo()
{
    m_animating = true;
    setBackgroundColor(clear);
}

void SlideMessageBox::slideOut(Slot after)
{
    connect(m_hideAnimation, &QPropertyAnimation::finished, this, after);
    m_hideAnimation->start();
}

void SlideMessageBox::endSlide(Slot after)
{
    disconnect(m_hideAnimation, &QPropertyAnimation::finished, this, after);
    m_backgroundColor = clear;
}

void SlideMessageBox::hide()
{
    beginToGo();
    if (m_useAnimation && m_hideAnimation)
        slideOut(&SlideMessageBox::hideAfterAnimation);
    else
        setVisible(false);
}

void SlideMessageBox::hideAfterAnimation()
{
    m_animating = false;
    endSlide(&SlideMessageBox::hideAfterAnimation);
    setVisible(false);
}

void SlideMessageBox::close()
{
    beginToGo();
    if (m_useAnimation && m_hideAnimation)
        slideOut(&SlideMessageBox::closeAfterAnimation);
    else
        QWidget::close();
}

void SlideMessageBox::closeAfterAnimation()
{
    const QPointer<SlideMessageBox> alive(this);
    endSlide(&SlideMessageBox::closeAfterAnimation);
    QWidget::close();
    if (alive)
        m_animating = false;
}

void SlideMessageBox::reject()
{
    beginToGo();
    if (m_useAnimation)
        slideOut(&SlideMessageBox::rejectAfterAnimation);
    else
        QDialog::reject();
}

void SlideMessageBox::rejectAfterAnimation()
{
    const QPointer<SlideMessageBox> alive(this);
    endSlide(&SlideMessageBox::rejectAfterAnimation);
    QDialog::reject();
    if (alive)
        m_animating = false;
}

void SlideMessageBox::accept()
{
    beginToGo();
    if (m_useAnimation)
        slideOut(&SlideMessageBox::acceptAfterAnimation);
    else
        QDialog::accept();
}

void SlideMessageBox::acceptAfterAnimation()
{
    const QPointer<SlideMessageBox> alive(this);
    endSlide(&SlideMessageBox::acceptAfterAnimation);
    QDialog::accept();
    if (alive)
        m_animating = false;
}

bool SlideMessageBox::isVisible()
{
    return (m_useAnimation && m_animating) || QWidget::isVisible();
}

int SlideMessageBox::exec()
{
    show();
    return QDialog::exec();
}

void SlideMessageBox::paintEvent(QPaintEvent *event)
{
    QPainter(this).fillRect(rect().adjusted(0, DimmedTop, 0, 0), m_backgroundColor);
    MessageBoxBase::paintEvent(event);
}
