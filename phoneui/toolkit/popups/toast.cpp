#include "toast.h"

#include "toastpainting.h"

#include <QApplication>
#include <QDebug>
#include <QEventLoop>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QTimer>

static constexpr QRect ToastGeometry(0, 0, 384, 160);
static constexpr int SeveralLinesFontSize = 19; // pixels

Toast::Toast(const QString &message, int timeoutMilliseconds, QWidget *parent)
    : QWidget(parent, Qt::FramelessWindowHint), m_timeout(timeoutMilliseconds), m_message(message)
{
    setObjectName(parent ? "Toast:" + parent->objectName() : QStringLiteral("Toast"));
    setPreviousActiveWidget(QApplication::focusWidget());
    if (!m_previousActiveWidget)
        qDebug() << "Toast::Toast There is no focused widget";
    m_resized = parent && parent->width() < ToastGeometry.width();
    setGeometry(ToastGeometry);
    setAttribute(Qt::WA_TranslucentBackground);
    setFocusPolicy(Qt::StrongFocus);
    if (m_timeout > 0)
        startTimer(m_timeout);
}

Toast::~Toast()
{
    if (!m_inExec)
        return;
    // The loop is still on the stack, in the frame of exec(), which deletes it.
    m_eventLoop->setParent(nullptr);
    m_eventLoop->exit(0);
}

void Toast::startTimer(int milliseconds)
{
    m_timer = new QTimer(this);
    m_timer->setSingleShot(true);
    connect(m_timer, &QTimer::timeout, this, &Toast::timeout);
    m_timer->start(milliseconds);
}

int Toast::exec()
{
    const QPointer<Toast> alive(this);
    setPreviousActiveWidget(QApplication::focusWidget());
    setFocusPolicy(Qt::StrongFocus);
    raise();
    setVisible(true);
    setFocus(Qt::OtherFocusReason);
    if (!alive)
        return 0;
    if (!m_eventLoop)
        m_eventLoop = new QEventLoop(this);

    QEventLoop *loop = m_eventLoop;
    m_inExec = true;
    const int result = loop->exec();
    if (!alive) {
        delete loop;
        return result;
    }
    m_inExec = false;
    setFocusToPreviousWidget();
    return result;
}

void Toast::exitLoop()
{
    if (m_eventLoop)
        m_eventLoop->exit(0);
}

void Toast::timeout()
{
    const QPointer<Toast> alive(this);
    exitLoop();
    close();
    if (alive)
        setFocusToPreviousWidget();
    if (alive)
        emit toastTimeout();
}

void Toast::setMessage(const QString &message)
{
    m_message = message;
    if (m_timeout >= 1 && m_timer)
        m_timer->start();
    update();
}

void Toast::setIcon(const QPixmap &icon)
{
    m_icon = icon;
    update();
}

void Toast::setTimeout(int milliseconds)
{
    if (milliseconds < 1) {
        if (m_timer)
            m_timer->stop();
    } else if (m_timer) {
        m_timeout = milliseconds;
        m_timer->start(milliseconds);
    } else {
        // The time given at first still decides whether a new message restarts this timer.
        startTimer(milliseconds);
    }
}

void Toast::setFontSize(int pixels)
{
    m_fontSize = pixels;
    update();
}

void Toast::setUseFullScreen(bool use)
{
    m_useFullScreen = use;
    update();
}

void Toast::setResized(bool resized)
{
    m_resized = resized;
    update();
}

void Toast::setPreviousActiveWidget(QWidget *widget)
{
    if (!m_useRollbackFocus) {
        m_previousActiveWidget.clear();
        return;
    }
    if (!m_previousActiveWidget)
        return;
    if (qobject_cast<Toast *>(m_previousActiveWidget)) {
        qDebug() << "Toast::setPreviousActiveWidget" << m_previousActiveWidget->objectName() << "set failed!";
        m_previousActiveWidget.clear();
        return;
    }
    m_previousActiveWidget = widget;
}

void Toast::setUseRollbackFocus(bool use)
{
    m_useRollbackFocus = use;
    if (!use)
        m_previousActiveWidget.clear();
}

void Toast::setFocusToPreviousWidget()
{
    if (!m_useRollbackFocus) {
        m_previousActiveWidget.clear();
        return;
    }
    const QPointer<QWidget> widget = m_previousActiveWidget;
    if (!widget)
        return;
    if (qobject_cast<Toast *>(widget)) {
        qDebug() << "Toast::setFocusToPreviousWidget Can not rollback focus to a Toast widget";
        return;
    }
    widget->setFocus(Qt::OtherFocusReason);
    if (auto *edit = qobject_cast<QLineEdit *>(widget))
        edit->setText(edit->text());
}

void Toast::keyPressEvent(QKeyEvent *event)
{
    m_keyPressed = true;
    if (m_ignoreKey)
        event->accept();
}

void Toast::keyReleaseEvent(QKeyEvent *event)
{
    // The release of the key that led to the toast does not end it.
    if (!m_keyPressed)
        return;
    if (m_ignoreKey)
        event->accept();
    else
        timeout();
}

void Toast::closeEvent(QCloseEvent *) { }

void Toast::showEvent(QShowEvent *)
{
    setPreviousActiveWidget(QApplication::focusWidget());
    setFocusPolicy(Qt::StrongFocus);
    setFocus(Qt::OtherFocusReason);
}

void Toast::hideEvent(QHideEvent *)
{
    exitLoop();
    setFocusToPreviousWidget();
}

void Toast::paintEvent(QPaintEvent *)
{
    const bool severalLines = m_message.contains('\n');
    if (severalLines)
        m_fontSize = SeveralLinesFontSize;
    QPainter painter(this);
    if (m_useFullScreen) {
        ToastPainting::drawPanel(&painter, {m_message, m_icon, m_fontSize}, m_resized,
                                 ToastPainting::noticePanel(m_icon, m_fontSize, severalLines));
    } else {
        ToastPainting::drawBox(&painter, size(), {m_message, m_icon, m_fontSize}, ToastPainting::noticeBox(m_icon));
    }
}
