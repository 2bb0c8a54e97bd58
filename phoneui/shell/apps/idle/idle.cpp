#include "idle.h"

#include "callmanager.h"
#include "core.h"
#include "status.h"
#include "tail.h"

#include <QDateTime>
#include <QKeyEvent>
#include <QLocale>
#include <QPainter>

#include <iterator>

namespace {

constexpr QRect ClockRect(0, 8, 384, 60);
constexpr QRect DateRect(0, 68, 384, 28);
constexpr int ClockSize = 60, DateSize = 20;

/// The soft keys and the applications that they launch.
struct Way
{
    const char *label;
    const char *app;
};
constexpr Way ways[] = {
    {QT_TRANSLATE_NOOP("Idle", "Contacts"), "contact"},
    {QT_TRANSLATE_NOOP("Idle", "History"), "history"},
    {QT_TRANSLATE_NOOP("Idle", "Call"), "call"},
};

/// The way back to a call is there as long as the call.
bool isOpen(const Way &way)
{
    return way.app != QLatin1String("call") || theCore->callManager()->callState() != "IDLE";
}

}

Idle::Idle() : BaseWidget(nullptr), BaseAppInterface("idle", nullptr)
{
    setObjectName("idle");
    setFocusPolicy(Qt::StrongFocus);
    setupTail();
    connect(tail, &Tail::clicked, this, &Idle::softKeyClicked);
    connect(theCore->callManager(), &CallManager::callStateChanged, this, &Idle::setupTail);
    // The clock is right within a second of the minute's turn.
    m_clockTimer.setInterval(1000);
    connect(&m_clockTimer, &QTimer::timeout, this, QOverload<>::of(&QWidget::update));
}

bool Idle::start(QWidget *, void *)
{
    setVisible(true);
    raise();
    return true;
}

void Idle::end()
{
    setVisible(false);
}

void Idle::receiveMsg(const QString &command, const QByteArray &)
{
    if (command == "raiseStatus()")
        raiseStatus();
    else if (command == "lowerStatus()")
        lowerStatus();
    else if (command == "changedLanguage()") {
        reloadLanguage();
        setupTail();
        update();
    }
}

void Idle::raiseStatus()
{
    if (status)
        status->setStatusIcon_isCall(true);
}

void Idle::lowerStatus()
{
    if (status)
        status->setStatusIcon_isCall(false);
}

void Idle::setupStatus()
{
    theCore->setCurrentActivateApp(appName());
    if (status)
        status->setTitle(tr("Home"));
}

void Idle::setupTail()
{
    int key = 0;
    for (const Way &way : ways)
        tail->setFuncButtonText(key++, isOpen(way) ? tr(way.label) : QString());
}

void Idle::softKeyClicked(int idx)
{
    if (idx >= 0 && idx < int(std::size(ways)) && isOpen(ways[idx]))
        theCore->launch(ways[idx].app, nullptr);
}

void Idle::keyReleaseEvent(QKeyEvent *event)
{
    // There is nothing below the home screen to go back to.
    if (event->key() == Qt::Key_Escape)
        event->accept();
    else
        BaseWidget::keyReleaseEvent(event);
}

void Idle::showEvent(QShowEvent *event)
{
    BaseWidget::showEvent(event);
    updateStatus();
    m_clockTimer.start();
}

void Idle::hideEvent(QHideEvent *event)
{
    m_clockTimer.stop();
    BaseWidget::hideEvent(event);
}

void Idle::paintEvent(QPaintEvent *event)
{
    BaseWidget::paintEvent(event);
    QPainter painter(this);
    const QDateTime now = QDateTime::currentDateTime();
    const QLocale locale(theCore->languageName());

    QFont clock = font();
    clock.setPointSize(ClockSize);
    clock.setWeight(QFont::Light);
    painter.setFont(clock);
    painter.setPen(QColor(0x22, 0x22, 0x22));
    painter.drawText(ClockRect, Qt::AlignCenter, now.toString(theCore->use24HourTime() ? "hh:mm" : "h:mm AP"));

    QFont date = font();
    date.setPointSize(DateSize);
    painter.setFont(date);
    painter.setPen(QColor(0x55, 0x55, 0x55));
    painter.drawText(DateRect, Qt::AlignCenter, locale.toString(now.date(), QLocale::LongFormat));
}
