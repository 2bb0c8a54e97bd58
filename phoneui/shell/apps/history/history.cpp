#include "history.h"

#include "callmanager.h"
#include "core.h"
#include "dialer.h"
#include "historyitem.h"
#include "listview.h"
#include "listviewcallitem.h"
#include "status.h"
#include "tail.h"

#include <QDataStream>
#include <QLocale>

namespace {

constexpr QRect ListRect(QPoint(5, 2), QPoint(378, 105));
constexpr int CallKey = 0, CloseKey = 3;
constexpr int MostCalls = 200; // that show; nobody looks further back on three rows

QString party(const CallRecord &call)
{
    return call.name.isEmpty() ? call.number : call.name;
}

QString timeText(const QDateTime &when)
{
    return when.toString(theCore->use24HourTime() ? "hh:mm" : "h:mm AP");
}

QString dateText(const QDateTime &when)
{
    return QLocale(theCore->languageName()).toString(when.date(), QLocale::ShortFormat);
}

QString lengthText(int seconds)
{
    ListViewCallItem timer(QString(), ListViewCallItem::CallActive);
    timer.setSeconds(seconds);
    return timer.timerText();
}

}

History::History() : BaseWidget(nullptr), BaseAppInterface("history", nullptr), m_list(new ListView(this))
{
    setObjectName("history");
    setFocusPolicy(Qt::StrongFocus);
    // It may come up over a screen that is modal.
    setModal(true);
    m_list->setGeometry(ListRect);
    m_list->setShowEmptyString(true);
    setFocusProxy(m_list);
    setupTexts();
    connect(tail, &Tail::clicked, this, &History::softKeyClicked);
    connect(m_list, &ListView::clicked, this, &History::dial);
    connect(m_list, &ListView::focusChanged, this, &History::setupTitle);
    // A call that ends is the newest one.
    connect(theCore->callManager(), &CallManager::callStateChanged, this, [this](const QString &state) {
        if (state == "IDLE" && isVisible())
            reload();
    });
}

bool History::start(QWidget *, void *)
{
    if (isActiveWindow())
        end();
    else
        open(QString());
    return true;
}

void History::end()
{
    close();
}

void History::receiveMsg(const QString &command, const QByteArray &payload)
{
    if (command == "viewDetail(str)") {
        QString number;
        QDataStream stream(payload);
        stream >> number;
        open(number);
    } else if (command == "changedLanguage()") {
        setupTexts();
        reload();
    }
}

/// What is not written anew with each list of calls.
void History::setupTexts()
{
    m_list->setEmptyString(tr("No History"));
    setupTail();
}

void History::open(const QString &number)
{
    m_number = number;
    m_calls.clear();
    reload();
    bringUp();
    m_list->setFocus(Qt::OtherFocusReason);
}

void History::reload()
{
    const QCallList *store = theCore->callList();
    const QList<CallRecord> calls
        = (m_number.isEmpty() ? store->calls() : store->callsbyNumber(m_number)).mid(0, MostCalls);
    // A call more has come in at the top, where it is looked for.
    const int selected = calls.size() == m_calls.size() ? m_list->selectedIdx() : 0;
    m_calls = calls;
    m_list->itemClear();
    for (const CallRecord &call : calls)
        m_list->addItem(makeRow(call));
    m_list->setSelectedIdx(calls.isEmpty() ? -1 : selected);
    if (selected == 0)
        m_list->setStartIdx(0);
    m_list->update();
    setupTail();
    setupTitle();
}

HistoryItem *History::makeRow(const CallRecord &call) const
{
    const QDateTime &when = call.startedAt;
    if (!m_number.isEmpty())
        return new HistoryItem(dateText(when) + ' ' + timeText(when), lengthText(call.seconds), call.direction);
    const bool today = when.date() == QDate::currentDate();
    return new HistoryItem(party(call), today ? timeText(when) : dateText(when), call.direction);
}

void History::setupStatus()
{
    theCore->setCurrentActivateApp(appName());
    reload();
}

void History::showEvent(QShowEvent *event)
{
    BaseWidget::showEvent(event);
    updateStatus();
}

void History::setupTitle()
{
    if (!status || !isActiveWindow())
        return;
    const QString whose = m_number.isEmpty() ? tr("All") : m_calls.isEmpty() ? m_number : party(m_calls.first());
    status->setTitle(
        QString("%1 | %2 (%3/%4)").arg(tr("History"), whose).arg(m_list->selectedIdx() + 1).arg(m_calls.size()));
}

void History::setupTail()
{
    for (int i = 0; i < Tail::ButtonCount; ++i)
        tail->setFuncButtonText(i, QString());
    if (!m_calls.isEmpty())
        tail->setFuncButtonText(CallKey, tr("Call"));
    tail->setFuncButtonText(CloseKey, tr("Close"));
}

void History::softKeyClicked(int idx)
{
    if (idx == CallKey)
        dial();
    else if (idx == CloseKey)
        close();
}

void History::dial()
{
    const CallRecord call = m_calls.value(m_list->selectedIdx());
    if (!call.number.isEmpty())
        ::dial(call.number, call.name);
}
