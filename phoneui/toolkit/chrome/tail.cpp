#include "tail.h"

#include "core.h"
#include "ime.h"
#include "keyinjection.h"
#include "tailbutton.h"

#include <QButtonGroup>
#include <QDebug>
#include <QKeyEvent>
#include <QPainter>

namespace {

constexpr QRect BarGeometry(8, 133, 369, 27);
constexpr int ButtonPointSize = 20;
constexpr int LongPressTime = 500; // ms
constexpr int EraseButton = 2;

}

Tail::Tail(QWidget *parent) : QLabel(parent, Qt::FramelessWindowHint)
{
    setObjectName("Tail");
    setAttribute(Qt::WA_TranslucentBackground);
    setGeometry(BarGeometry);

    auto *group = new QButtonGroup(this);
    connect(group, QOverload<QAbstractButton *>::of(&QButtonGroup::buttonClicked), this, &Tail::clickedFunction);
    QFont buttonFont = font();
    buttonFont.setPointSize(ButtonPointSize);
    const int w = width() / ButtonCount;
    for (int i = 0; i < ButtonCount; ++i) {
        auto *button = new TailButton(this);
        button->setGeometry(i * w, 0, w, height());
        button->setFont(buttonFont);
        group->addButton(button, i);
        m_buttons[i] = button;
    }
    connect(&m_longPressTimer, &QTimer::timeout, this, &Tail::longPressTimeout);
    if (IME *ime = theCore->ime())
        connect(ime, &IME::changedIMEStatus, this, &Tail::changedIMEStatus);
}

int Tail::buttonOfKey(int key)
{
    return key >= Qt::Key_Context1 && key <= Qt::Key_Context4 ? key - Qt::Key_Context1 : -1;
}

TailButton *Tail::button(int idx)
{
    if (idx >= 0 && idx < ButtonCount)
        return m_buttons[idx];
    qDebug() << "Tail::button index out of range:" << idx;
    return nullptr;
}

void Tail::setFuncButtonText(int idx, QString const &text)
{
    TailButton *target = button(idx);
    if (!target)
        return;
    if (idx == EraseButton)
        m_thirdText = text;
    if (target->text() == text)
        return; // set anew at each move of a selection; painting four keys costs more than the list
    target->setText(text);
    target->update();
}

QString Tail::funcButtonText(int idx)
{
    const TailButton *target = button(idx);
    return target ? target->text() : QString();
}

void Tail::setButtonTextColor(int idx, QColor const &color)
{
    if (TailButton *target = button(idx))
        target->setStyleSheet(QString("QPushButton { color: %1; }").arg(color.name()));
    update();
}

int Tail::findButtonIndex(QString const &text, int from, int to)
{
    const int start = from < 0 || from >= ButtonCount ? 0 : qMax(0, qMin(from, to));
    for (int i = start; i < ButtonCount; ++i) {
        if (m_buttons[i]->text().contains(text))
            return i;
    }
    return -1;
}

int Tail::buttonWidth(int idx)
{
    const TailButton *target = button(idx);
    return target ? target->width() : width() / ButtonCount;
}

QRect Tail::buttonGeometry(int idx)
{
    const TailButton *target = button(idx);
    return target ? target->geometry() : QRect();
}

void Tail::setButtonDown(int idx, bool down)
{
    if (TailButton *target = button(idx)) {
        target->setDown(down);
        target->update();
    }
}

void Tail::keyPressEvent(QKeyEvent *event)
{
    const int idx = buttonOfKey(event->key());
    if (idx < 0 || m_buttons[idx]->text().isEmpty())
        return;
    m_pressed = true;
    m_pendingKey = event->key();
    m_longPressTimer.start(LongPressTime);
    m_pressedIdx = idx;
    setButtonDown(idx, true);
    emit pressed(idx, true);
    update();
}

void Tail::longPressTimeout()
{
    m_longPressTimer.stop();
    m_pressedIdx = -1;
    m_longPressed = true;
    update();
    const int idx = buttonOfKey(m_pendingKey);
    if (idx < 0)
        return;
    m_pressedIdx = idx;
    m_pendingKey = -1;
    if (m_pressed)
        setButtonDown(idx, false);
    emit longPress(idx);
}

void Tail::keyReleaseEvent(QKeyEvent *event)
{
    update();
    if (!m_pressed)
        return;
    const int released = m_pressedIdx;
    setButtonDown(released, false);
    emit pressed(released, false);
    m_longPressTimer.stop();
    if (m_longPressed) {
        // The bar stays pressed after a long press: the next release counts even without a press.
        m_longPressed = false;
    } else {
        m_pressed = false;
        m_pressedIdx = -1;
    }

    const int idx = buttonOfKey(event->key());
    const IME *ime = theCore->ime();
    if (idx == EraseButton && ime && ime->imeStatus() != IMEOff) {
        event->accept();
        injectKeyStroke(Qt::Key_Backspace);
    } else if (idx >= 0) {
        emit clicked(idx);
    }
}

void Tail::clickedFunction(QAbstractButton *button)
{
    for (int i = 0; i < ButtonCount; ++i) {
        if (m_buttons[i] == button) {
            emit clicked(i);
            return;
        }
    }
    emit clicked(0);
}

void Tail::changedIMEStatus(int status)
{
    if (m_blocked)
        return;
    TailButton *third = m_buttons[EraseButton];
    if (status == IMEOff) {
        third->setText(m_thirdText);
    } else if (m_useEraseStr) {
        third->setText(m_eraseStr);
    } else {
        if (!third->icon().isNull()) // taking away none would paint the key anew at each row of a form
            third->setIcon(QIcon());
        third->setText(tr("Erase"));
    }
}

bool Tail::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::WindowActivate:
    case QEvent::WindowUnblocked: m_blocked = false; break;
    case QEvent::WindowBlocked: m_blocked = true; break;
    default: break;
    }
    return QLabel::event(event);
}

void Tail::paintEvent(QPaintEvent *)
{
    QPainter(this).fillRect(rect(), Qt::transparent);
}
