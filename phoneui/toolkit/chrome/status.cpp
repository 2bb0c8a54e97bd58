#include "status.h"

#include "core.h"
#include "timelabel.h"
#include "titlelabel.h"
#include "ui_status.h"

#include <QDebug>
#include <QLayout>
#include <QPainter>

namespace {

constexpr int PointSize = 18;
constexpr int ClockTick = 1000; // ms
constexpr int WidestTitle = 300;

QString titlePicture(const QString &name)
{
    return ":/ui/images/title/" + name + ".png";
}

QString pictureOf(Status::UIStatusHeadset value)
{
    switch (value) {
    case Status::HeadsetWired: return titlePicture("status_headset");
    case Status::HeadsetEhs: return titlePicture("status_headset_ehs");
    default: return QString();
    }
}

QString pictureOf(Status::UIStatusBluetoothHeadset value)
{
    switch (value) {
    case Status::BluetoothHeadsetOn: return titlePicture("status_headset_bt");
    case Status::BluetoothHeadsetOff: return titlePicture("status_headset_bt_off");
    default: return QString();
    }
}

QString pictureOf(Status::UIStatusAG value)
{
    switch (value) {
    case Status::AGOn: return titlePicture("status_bluetooth_acc");
    case Status::AGOff: return titlePicture("status_bluetooth_acc_off");
    default: return QString();
    }
}

QString pictureOf(Status::UIStatusBTHeadsetPairing value)
{
    switch (value) {
    case Status::BTHeadsetPaired: return titlePicture("status_bluetooth");
    case Status::BTHeadsetUnpaired: return titlePicture("status_bluetooth_off");
    default: return QString();
    }
}

QString pictureOf(Status::UIStatusWifi value)
{
    if (value < Status::WifiLost || value > Status::Wifi4)
        return QString();
    return titlePicture(QString("status_wifi_%1").arg(value - Status::Wifi0));
}

QString pictureOf(IMEStatus value)
{
    switch (value) {
    case IMEFirst:
        return titlePicture(theCore->language() == Korean ? "status_type_korean" : "status_type_smallletter");
    case IMESmall: return titlePicture("status_type_smallletter");
    case IMECapital: return titlePicture("status_type_capital");
    case IMEDigit: return titlePicture("status_type_num");
    default: return QString();
    }
}

}

Status::Status(QWidget *parent)
    : QLabel(parent, Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus), ui(new Ui_Status),
      m_bgColor(0xec, 0xec, 0xec), m_upperLineColor(0xbb, 0xbb, 0xbb), m_lowerLineColor(Qt::white)
{
    ui->setupUi(this);
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_ShowWithoutActivating);

    setUIStatusLock(false);
    setUIStatusCallLock(false);
    setUIStatusCallForward(false);
    setUIStatusDND(false);
    setUIStatusAutoAnswer(false);
    setUIStatusCallHold(false);
    setUIStatusUpgrade(false);
    setUIStatusConnectMobile(false);
    setUIStatusConnectAOM(false);
    setUIStatusConnectNVC(false);
    setUIStatusCall(false);
    setUIStatusHeadSet(HeadsetNone);
    setUIStatusBluetoothHeadset(BluetoothHeadsetNone);
    setUIStatusAGMode(AGNone);
    setUIStatusBTHeadsetPairing(BTHeadsetPairingNone);
    setUIStatusWifi(WifiNone);
    setIMEStatus(IMEOff);

    connect(&m_callTimer, &QTimer::timeout, this, &Status::callTimeout);
    connect(&m_clockTimer, &QTimer::timeout, this, &Status::timeout);
    m_clockTimer.start(ClockTick);
    timeout();
    m_displayRssi = QString::fromLocal8Bit(qgetenv("DISPLAY_RSSI"));

    QFont barFont = font();
    barFont.setPointSize(PointSize);
    ui->titleLabel->setFont(barFont);
    ui->timeLabel->setFont(barFont);
    ui->titleLabel->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    ui->timeLabel->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setTitleColor(QColor(0x22, 0x22, 0x22));
}

Status::~Status() = default;

void Status::setTitle(const QString &text)
{
    if (m_disabledUpdateTitle) {
        qDebug() << "Status::setTitle disabled, lost:" << text;
        return;
    }
    ui->titleLabel->setText(text);
    emit titleChanged(text);
}

QString Status::title()
{
    return ui->titleLabel->title();
}

void Status::setTitleFromSignal(const QString &text)
{
    ui->titleLabel->setText(text);
}

void Status::setTime24Hour(bool use)
{
    ui->timeLabel->setTime24Hour(use);
}

void Status::setIndicator(bool *state, int icon, bool on)
{
    const bool changed = *state != on;
    *state = on;
    if (m_statusIcon_isCall)
        return;
    ui->icons[icon]->setVisible(on);
    if (changed)
        emit statusInfoChanged();
}

template <typename Value> bool Status::setIndicator(Value *state, int icon, Value value, const QString &picture)
{
    const bool changed = *state != value;
    *state = value;
    if (!picture.isEmpty())
        ui->icons[icon]->setPixmap(QPixmap(picture));
    ui->icons[icon]->setVisible(!picture.isEmpty());
    return changed;
}

void Status::setUIStatusLock(bool on)
{
    setIndicator(&m_lock, Ui_Status::Lock, on);
}

void Status::setUIStatusCallLock(bool on)
{
    setIndicator(&m_callLock, Ui_Status::CallLock, on);
}

void Status::setUIStatusCallForward(bool on)
{
    setIndicator(&m_callForward, Ui_Status::CallForward, on);
}

void Status::setUIStatusDND(bool on)
{
    setIndicator(&m_dnd, Ui_Status::Dnd, on);
}

void Status::setUIStatusAutoAnswer(bool on)
{
    setIndicator(&m_autoAnswer, Ui_Status::AutoAnswer, on);
}

void Status::setUIStatusCallHold(bool on)
{
    setIndicator(&m_callHold, Ui_Status::CallHold, on);
}

void Status::setUIStatusUpgrade(bool on)
{
    // An upgrade shows in a call as well.
    const bool changed = m_upgrade != on;
    m_upgrade = on;
    ui->icons[Ui_Status::Upgrade]->setVisible(on);
    if (changed && !m_statusIcon_isCall)
        emit statusInfoChanged();
}

void Status::setUIStatusConnectMobile(bool on)
{
    qDebug() << "Status::setUIStatusConnectMobile" << on;
    setIndicator(&m_connectMobile, Ui_Status::ConnectMobile, on);
}

void Status::setUIStatusConnectAOM(bool on)
{
    qDebug() << "Status::setUIStatusConnectAOM" << on;
    setIndicator(&m_connectAOM, Ui_Status::ConnectAom, on);
}

void Status::setUIStatusConnectNVC(bool on)
{
    qDebug() << "Status::setUIStatusConnectNVC" << on;
    setIndicator(&m_connectNVC, Ui_Status::ConnectNvc, on);
}

void Status::setUIStatusCall(bool on)
{
    setIndicator(&m_call, Ui_Status::Call, on);
}

void Status::setUIStatusHeadSet(Status::UIStatusHeadset value)
{
    if (setIndicator(&m_headset, Ui_Status::Headset, value, pictureOf(value)))
        emit changeHeadset(value);
    emit statusInfoChanged();
}

void Status::setUIStatusBluetoothHeadset(Status::UIStatusBluetoothHeadset value)
{
    if (setIndicator(&m_bluetoothHeadset, Ui_Status::BluetoothHeadset, value, pictureOf(value)))
        emit changeBluetoothHeadset(value);
    emit statusInfoChanged();
}

void Status::setUIStatusAGMode(Status::UIStatusAG value)
{
    if (setIndicator(&m_agMode, Ui_Status::AgMode, value, pictureOf(value)))
        emit changeAGMode(value);
    emit statusInfoChanged();
}

void Status::setUIStatusBTHeadsetPairing(Status::UIStatusBTHeadsetPairing value)
{
    if (setIndicator(&m_btHeadsetPairing, Ui_Status::BtHeadsetPairing, value, pictureOf(value)))
        emit changeBTHsetPairing(value);
    emit statusInfoChanged();
}

void Status::setUIStatusWifi(Status::UIStatusWifi value)
{
    if (setIndicator(&m_wifi, Ui_Status::Wifi, value, pictureOf(value)))
        emit changeWifi(value);
    emit statusInfoChanged();
}

void Status::setIMEStatus(IMEStatus value)
{
    if (setIndicator(&m_imeStatus, Ui_Status::Ime, value, pictureOf(value)))
        emit changeIMEStatus(value);
    emit statusInfoChanged();
}

void Status::setStatusIcon_isCall(bool isCall)
{
    m_statusIcon_isCall = isCall;
    ui->icons[Ui_Status::Call]->setVisible(!isCall);
}

bool Status::presenceIconVisible() const
{
    return !ui->icons[Ui_Status::Call]->isHidden();
}

int Status::titleLabelWidgetWidth() const
{
    int left = width();
    for (const QLabel *icon : ui->icons) {
        if (!icon->isHidden())
            left -= icon->width();
    }
    return qMin(left, WidestTitle);
}

void Status::setBgColor(const QColor &color)
{
    m_bgColor = color;
    update();
}

QColor Status::titleColor() const
{
    return ui->titleLabel->titleColor();
}

void Status::setTitleColor(const QColor &color)
{
    ui->titleLabel->setTitleColor(color);
}

void Status::setUnderlineColor(const QColor &upper, const QColor &lower)
{
    m_upperLineColor = upper;
    m_lowerLineColor = lower;
    update();
}

void Status::timeout()
{
    ui->timeLabel->changeTimeBlinkFlag();
}

void Status::callTimeout() { }

void Status::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    if (m_bgColor.isValid())
        painter.fillRect(rect(), m_bgColor);
    painter.fillRect(0, height() - 2, width(), 1, m_upperLineColor);
    painter.fillRect(0, height() - 1, width(), 1, m_lowerLineColor);
}
