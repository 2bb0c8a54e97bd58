#include "call.h"

#include "callmanager.h"
#include "contactmanager.h"
#include "core.h"
#include "rowpainting.h"
#include "status.h"
#include "tail.h"
#include "tocmsocket.h"

#include <QDataStream>
#include <QDebug>
#include <QPainter>

namespace {

constexpr QRect PartyRect(14, 6, 356, 42);
constexpr QRect NumberRect(14, 46, 356, 24);
constexpr QRect StateRect(14, 74, 356, 28);
constexpr int PartySize = 32, NumberSize = 20, StateSize = 20;
constexpr int SignWidth = 28; // of the state line, before its words
constexpr int EndKey = 3;
constexpr int TickTime = 1000; // ms

const QString idle = QStringLiteral("IDLE");
const QString connected = QStringLiteral("CONNECT");

/// The states of a line and what the screen says of them.
struct StateWords
{
    const char *state;
    const char *words;
};
constexpr StateWords stateWords[] = {
    {"IDLE", ""},
    {"DIALING", QT_TRANSLATE_NOOP("Call", "Dialing")},
    {"ALERT", QT_TRANSLATE_NOOP("Call", "Ringing")},
    {"CONNECT", QT_TRANSLATE_NOOP("Call", "Connected")},
    {"BUSY", QT_TRANSLATE_NOOP("Call", "Busy")},
};

/// Null for a text that is no state.
const StateWords *findState(const QString &state)
{
    for (const StateWords &entry : stateWords) {
        if (state == entry.state)
            return &entry;
    }
    return nullptr;
}

QString lineState()
{
    return theCore->callManager()->callState();
}

}

Call::Call() : BaseWidget(nullptr), BaseAppInterface("call", nullptr)
{
    setObjectName("call");
    setFocusPolicy(Qt::StrongFocus);
    // It may come up over a screen that is modal.
    setModal(true);
    setupTail();
    connect(tail, &Tail::clicked, this, &Call::softKeyClicked);
    m_tick.setInterval(TickTime);
    connect(&m_tick, &QTimer::timeout, this, &Call::refresh);
}

Call::~Call()
{
    if (isUnderWay())
        finishCall();
}

bool Call::start(QWidget *, void *)
{
    if (isActiveWindow())
        end();
    else if (isUnderWay())
        bringUp();
    return true;
}

void Call::end()
{
    close();
}

void Call::receiveMsg(const QString &command, const QByteArray &payload)
{
    QDataStream stream(payload);
    if (command == "cm2ui_call_state(str,str,str)") {
        QString state, number, name;
        stream >> state >> number >> name;
        takeState(state, number, name);
    } else if (command == "m_isContactOpened()") {
        m_contactsOpen = true;
    } else if (command == "m_isContactOpenedOff()") {
        contactsGone();
    } else if (command == "ShowPopup") {
        showStrip(true);
    } else if (command == "HidePopup") {
        showStrip(false);
    } else if (command == "changedLanguage()") {
        setupTail();
        if (isActiveWindow())
            setupStatus();
        update();
    }
}

void Call::takeState(const QString &state, const QString &number, const QString &name)
{
    if (!findState(state)) {
        qWarning() << "Call::takeState: no state of a line:" << state;
        return;
    }
    if (isUnderWay() && (state == idle || number != m_call.number))
        finishCall();
    if (state == idle)
        return;
    const bool begins = !isUnderWay();
    if (begins)
        beginCall(number);
    if (!name.isEmpty())
        m_call.name = name.simplified();
    if (state == connected && !m_talking.isValid())
        m_talking.start();
    theCore->callManager()->setCallState(state);
    if (begins)
        bringUp();
    refresh();
}

void Call::beginCall(const QString &number)
{
    m_call = CallRecord();
    m_call.number = number;
    m_call.name = theCore->contactManager()->getContactByUsingNumber(number).name;
    m_call.startedAt = QDateTime::currentDateTime();
    m_talking.invalidate();
    if (status)
        status->setUIStatusCall(true);
}

void Call::finishCall()
{
    m_call.seconds = seconds();
    if (!theCore->callList()->addCall(m_call))
        qWarning("The call could not be written to the history");
    m_talking.invalidate();
    theCore->callManager()->setCallState(idle);
    showStrip(false);
    hide();
}

/// Contacts that go during a conversation say first whether the strip goes with them; in other states they do not.
void Call::contactsGone()
{
    m_contactsOpen = false;
    if (lineState() != connected)
        showStrip(false);
}

void Call::showStrip(bool show)
{
    m_strip.setVisible(show && isUnderWay());
    refresh();
    if (!status)
        return;
    // The strip is the sign of the call as long as it is there. The order matters: the indicator is deaf while the
    // bar is told of a strip.
    status->setStatusIcon_isCall(m_strip.isVisible());
    status->setUIStatusCall(isUnderWay());
}

void Call::refresh()
{
    m_strip.setParty(party());
    m_strip.setSeconds(seconds());
    update();
    const bool runs = m_talking.isValid() && (isVisible() || m_strip.isVisible());
    if (!runs)
        m_tick.stop();
    else if (!m_tick.isActive())
        m_tick.start();
}

bool Call::isUnderWay() const
{
    return lineState() != idle;
}

QString Call::party() const
{
    return m_call.name.isEmpty() ? m_call.number : m_call.name;
}

int Call::seconds() const
{
    return m_talking.isValid() ? static_cast<int>(m_talking.elapsed() / 1000) : 0;
}

QString Call::stateLine() const
{
    const StateWords *entry = findState(lineState());
    return entry ? tr(entry->words) : QString();
}

void Call::setupStatus()
{
    theCore->setCurrentActivateApp(appName());
    if (status)
        status->setTitle(tr("Call"));
}

void Call::setupTail()
{
    for (int i = 0; i < Tail::ButtonCount; ++i)
        tail->setFuncButtonText(i, i == EndKey ? tr("End") : QString());
}

void Call::softKeyClicked(int idx)
{
    // The call manager says when the call is over.
    if (idx == EndKey)
        ToCMSocket::sendUI2CMSvcHangup();
}

void Call::showEvent(QShowEvent *event)
{
    BaseWidget::showEvent(event);
    updateStatus();
    showStrip(false);
}

void Call::hideEvent(QHideEvent *event)
{
    BaseWidget::hideEvent(event);
    showStrip(m_contactsOpen);
}

void Call::paintEvent(QPaintEvent *event)
{
    static const QColor quiet(0x55, 0x55, 0x55);
    BaseWidget::paintEvent(event);
    QPainter painter(this);
    painter.setPen(Qt::black);
    RowPainting::setPointSize(&painter, PartySize);
    RowPainting::drawElided(&painter, PartyRect, Qt::AlignVCenter | Qt::AlignLeft, party());

    painter.setPen(quiet);
    RowPainting::setPointSize(&painter, NumberSize);
    if (!m_call.name.isEmpty())
        RowPainting::drawElided(&painter, NumberRect, Qt::AlignVCenter | Qt::AlignLeft, m_call.number);

    painter.setPen(Qt::black);
    RowPainting::setPointSize(&painter, StateSize);
    RowPainting::drawCentred(&painter, StateRect, StateRect.left(), QPixmap(":/ui/images/title/status_call.png"));
    painter.drawText(StateRect.adjusted(SignWidth, 0, 0, 0), Qt::AlignVCenter | Qt::AlignLeft, stateLine());
    if (m_talking.isValid()) {
        ListViewCallItem timer(QString(), ListViewCallItem::CallActive);
        timer.setSeconds(seconds());
        painter.drawText(StateRect, Qt::AlignVCenter | Qt::AlignRight, timer.timerText());
    }
}
