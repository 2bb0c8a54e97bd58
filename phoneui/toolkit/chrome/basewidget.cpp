#include "basewidget.h"

#include "core.h"
#include "settingsfile.h"
#include "status.h"
#include "tail.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QThread>
#include <QTimer>

namespace {

constexpr QRect ScreenGeometry(0, 26, 384, 134);
constexpr QRect TailGeometry(8, 107, 369, 27);
constexpr int LockingSystemType = 1;

}

BaseWidget::BaseWidget(QWidget *parent)
    : QDialog(parent, Qt::FramelessWindowHint), m_loopLevel(QThread::currentThread()->loopLevel())
{
    setGeometry(ScreenGeometry);
    setBgColor(Qt::white);
    status = theCore->statusWidget();
    tail = new Tail(this);
    tail->setGeometry(TailGeometry);
    tail->setVisible(true);
}

void BaseWidget::setBgColor(QColor const &color)
{
    m_bgColor = color;
    setAttribute(Qt::WA_OpaquePaintEvent, color.alpha() == 0xff); // which needs no ground of Qt's
}

void BaseWidget::setupStatus() { }

void BaseWidget::retranslate() { }

void BaseWidget::bringUp()
{
    if (isVisible() && isActiveWindow())
        return;
    // Of modal windows the one shown last takes the keys; raising alone would leave it blocked.
    hide();
    show();
}

void BaseWidget::retire()
{
    static constexpr int Pause = 20; // ms

    close();
    auto *timer = new QTimer(this);
    connect(timer, &QTimer::timeout, this, [this] {
        if (QThread::currentThread()->loopLevel() <= m_loopLevel)
            deleteLater();
    });
    timer->start(Pause);
}

void BaseWidget::updateStatus()
{
    if (!status)
        return;
    const SettingsFile settings(theCore->configFileName(SettingsConfig));
    status->setTime24Hour(settings.flag("Settings/24HourTime"));

    const SettingsFile system(theCore->configFileName(SystemConfig));
    const bool menuLocked = system.flag("Menu_Password/enable");
    const int callLock = theCore->getSystemType() == LockingSystemType ? system.number("Security/CallLock") : 0;
    status->setUIStatusLock(menuLocked);
    status->setUIStatusCallLock(callLock != 0);
}

bool BaseWidget::event(QEvent *event)
{
    if (event->type() == QEvent::WindowActivate) {
        setupStatus();
    } else if (event->type() == QEvent::LanguageChange) {
        retranslate();
        if (isActiveWindow())
            setupStatus();
    } else if (event->type() == QEvent::Hide) {
        ++m_hideCount;
        closeOwnedWindows();
    }
    return QWidget::event(event);
}

/// A box left open above a closed screen would hold up the screen's event loop for as long as nobody answers it.
void BaseWidget::closeOwnedWindows()
{
    QList<QPointer<QWidget>> owned;
    const QList<QWidget *> children = findChildren<QWidget *>();
    for (QWidget *child : children) {
        if (child->isWindow())
            owned.prepend(child);
    }
    for (const QPointer<QWidget> &window : qAsConst(owned)) {
        if (window && window->isVisible())
            window->close();
    }
}

void BaseWidget::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape) {
        event->accept();
    } else if (Tail::buttonOfKey(event->key()) >= 0) {
        QCoreApplication::sendEvent(tail, event);
        event->accept();
    }
}

void BaseWidget::keyReleaseEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape) {
        event->accept();
        close();
    } else if (Tail::buttonOfKey(event->key()) >= 0) {
        QCoreApplication::sendEvent(tail, event);
        event->accept();
    }
}

void BaseWidget::paintEvent(QPaintEvent *)
{
    QPainter(this).fillRect(QRect(QPoint(0, 0), QPoint(width() - 1, height() - 1)), QBrush(m_bgColor));
}

void BaseWidget::closeEvent(QCloseEvent *) { }

void BaseWidget::hideEvent(QHideEvent *) { }
