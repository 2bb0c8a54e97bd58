#include "listview.h"

#include "listviewprogressitem.h"
#include "rowkinds.h"

#include "callmanager.h"
#include "core.h"

#include <QDebug>
#include <QKeyEvent>
#include <QPointer>

static bool isEnter(int key)
{
    return key == Qt::Key_Enter || key == Qt::Key_Return;
}

static bool isArrow(int key)
{
    return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_Left || key == Qt::Key_Right;
}

/// A list behind a call screen must not repaint over it.
static bool liesBehindCall()
{
    return theCore->callManager()->callState() != QLatin1String("IDLE") && theCore->hasMenu()
        && !theCore->isVisibleMenu();
}

void ListView::keyPressEvent(QKeyEvent *event)
{
    const QPointer<ListView> alive(this);
    m_keyPressFlag = true;
    if (isEnter(event->key())) {
        m_selectAndPressed = true;
        if (!ignoreEnterKey && selectedIdx() != -1 && item(selectedIdx()))
            update();
    } else if (m_useDirectMovement) {
        if (isArrow(event->key()))
            keyReleaseEvent(event);
        if (!alive)
            return;
    } else if (m_selectAndPressed) {
        m_selectAndPressed = false;
        update();
    }

    const int idx = keyToItemIdx(event->key());
    event->setAccepted(idx != -1);
    if (idx == -1 || !item(idx))
        return;
    setSelectedIdx(idx);
    if (alive && m_isEnabledLongPress && !event->isAutoRepeat()) {
        longPressSwallowed = false;
        m_longPressTimer.start();
    }
}

void ListView::keyReleaseEvent(QKeyEvent *event)
{
    if (!m_keyPressFlag)
        return;
    m_keyPressFlag = false;
    m_selectAndPressed = false;
    if (longPressSwallowed) {
        longPressSwallowed = false;
        event->ignore();
        return;
    }

    const QPointer<ListView> alive(this);
    emit keyPressed(event->key());
    if (!alive)
        return;

    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down: moveSelection(event); break;
    case Qt::Key_Left:
    case Qt::Key_Right: moveSideways(event); break;
    case Qt::Key_Enter:
    case Qt::Key_Return: clickSelected(event); break;
    case Qt::Key_VolumeMute: muteProgress(event); break;
    default:
        if (!changeProgress(event))
            clickByFuncKey(event);
    }
}

void ListView::moveSelection(QKeyEvent *event)
{
    if (!m_isEnabledArrowKeyMove) {
        qDebug() << "ListView::moveSelection arrow keys are off";
        return;
    }
    const QPointer<ListView> alive(this);
    const int old = selectedIdx();
    if (old == -1)
        m_selectedIdx = searchNextItemIndex(0, false);
    else if (event->key() == Qt::Key_Up)
        moveUp(old);
    else
        moveDown(old, event->key());
    if (!alive)
        return;

    event->accept();
    update();
    scheduleCheckFocus();
    if (selectedIdx() != old)
        emit focusChanged(selectedIdx());
}

void ListView::moveUp(int from)
{
    if (from <= 0 && wrapAround) {
        if (m_activeLeaveFocusSignal) {
            const QPointer<ListView> alive(this);
            setSelectedIdx(0);
            if (alive)
                emit leaveFocus();
            return;
        }
        m_selectedIdx = searchNextItemIndex(itemSize() - 1, true);
        m_startIdx = qMax(0, selectedIdx() + 1 - m_pageCount);
        return;
    }
    int idx = from - 1;
    while (idx >= 0 && !isRowEnabled(idx))
        --idx;
    m_selectedIdx = idx < 0 ? from : idx;
    // One row only: after a leap over disabled rows the window follows with the next moves.
    if (selectedIdx() < m_startIdx)
        --m_startIdx;
}

void ListView::moveDown(int from, int key)
{
    int idx = from;
    do {
        ++idx;
        if (idx - m_startIdx == m_pageCount)
            ++m_startIdx;
    } while (idx < itemSize() && !isRowEnabled(idx));

    if (idx < itemSize()) {
        m_selectedIdx = idx;
    } else {
        m_selectedIdx = from;
        if (m_activeEndLeaveFocusSignal) {
            const QPointer<ListView> alive(this);
            emit endLeaveFocus(key);
            if (!alive)
                return;
        } else if (wrapAround) {
            m_selectedIdx = searchNextItemIndex(0, false);
        }
        m_startIdx = qMax(0, selectedIdx() + 1 - m_pageCount);
    }
    if (m_startIdx + m_pageCount <= selectedIdx())
        ++m_startIdx;
}

void ListView::moveSideways(QKeyEvent *event)
{
    const int idx = selectedIdx();
    if (idx == -1)
        return;
    if (!m_isEnabledArrowKeyMove) {
        qDebug() << "ListView::moveSideways arrow keys are off";
        return;
    }
    ListViewItem *row = item(idx);
    if (row && RowKinds::isClickedSideways(row->type()))
        emit clicked(idx);
    else
        changeProgress(event);
}

bool ListView::changeProgress(QKeyEvent *event)
{
    const bool lower = event->key() == Qt::Key_Left || event->key() == Qt::Key_VolumeDown;
    const bool raise = event->key() == Qt::Key_Right || event->key() == Qt::Key_VolumeUp;
    ListViewProgressItem *row = RowKinds::progress(item(selectedIdx()));
    if (!row || (!lower && !raise))
        return false;

    row->setValue(lower ? qMax(row->value() - row->step(), row->minValue())
                        : qMin(row->value() + row->step(), row->maxValue()));
    event->accept();
    update();
    emit changeValue(selectedIdx(), row->value());
    return true;
}

void ListView::muteProgress(QKeyEvent *event)
{
    ListViewProgressItem *row = RowKinds::progress(item(selectedIdx()));
    if (!row) {
        clickByFuncKey(event);
        return;
    }
    // Screens keep the level from before, to restore it.
    const int former = row->value();
    row->setValue(row->minValue());
    event->accept();
    update();
    emit changeValue(selectedIdx(), former);
}

void ListView::clickSelected(QKeyEvent *event)
{
    if (ignoreEnterKey || selectedIdx() == -1)
        return;
    event->accept();
    const QPointer<ListView> alive(this);
    const bool toggled = RowKinds::toggle(item(selectedIdx()));
    const bool hasRow = item(selectedIdx());
    if (toggled)
        update();
    emit clicked(selectedIdx());
    if (alive && hasRow && !toggled)
        repaint();
}

void ListView::clickByFuncKey(QKeyEvent *event)
{
    const int idx = keyToItemIdx(event->key());
    if (idx == -1 || idx >= itemSize()) {
        qDebug() << "ListView::clickByFuncKey no row for key" << event->key();
        event->ignore();
        return;
    }
    const QPointer<ListView> alive(this);
    RowKinds::toggle(item(idx));

    const bool quiet = liesBehindCall();
    if (!m_isVisibleSelectBackGround)
        m_selectedIdx = -1;
    else if (!quiet)
        setSelectedIdx(idx);
    event->accept();
    if (!alive)
        return;
    if (!quiet)
        update();

    if (!isRowEnabled(idx)) {
        qDebug() << "ListView::clickByFuncKey no row or a disabled one" << idx;
        return;
    }
    emit clicked(idx);
    if (alive)
        emit clickedFuncKey(idx);
}

void ListView::longPressTimeout()
{
    m_longPressTimer.stop();
    // The release does not stop the timer; it only takes the flag away.
    if (!m_keyPressFlag)
        return;
    const QPointer<ListView> alive(this);
    emit longPress(selectedIdx());
    if (!alive)
        return;
    if (!m_isVisibleSelectBackGround)
        m_selectedIdx = -1;
    update();
}
