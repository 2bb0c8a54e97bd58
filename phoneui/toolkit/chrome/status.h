#ifndef STATUS_H
#define STATUS_H

#include "ime.h"

#include <QColor>
#include <QLabel>
#include <QScopedPointer>
#include <QTimer>

class Ui_Status;

/// The bar across the top of the display, lines 0 to 25, shared by all applications: title, indicators, clock.
///
/// It outlives every application; the title stays as last set, so each screen sets its own when it becomes active.
/// While `statusIcon_isCall` is set, the on-and-off indicators keep their values and show nothing new.
class Status : public QLabel
{
    Q_OBJECT

public:
    enum UIStatusHeadset { HeadsetNone = 0, HeadsetWired = 1, HeadsetEhs = 2 };
    enum UIStatusBluetoothHeadset { BluetoothHeadsetNone = 0, BluetoothHeadsetOn = 1, BluetoothHeadsetOff = 2 };
    enum UIStatusAG { AGNone = 0, AGOn = 1, AGOff = 2 };
    enum UIStatusBTHeadsetPairing { BTHeadsetPairingNone = 0, BTHeadsetPaired = 1, BTHeadsetUnpaired = 2 };
    /// WifiLost is no signal at all, then five steps.
    enum UIStatusWifi { WifiNone = 0, WifiLost = 1, Wifi0 = 2, Wifi1 = 3, Wifi2 = 4, Wifi3 = 5, Wifi4 = 6 };
    Q_ENUM(UIStatusHeadset)
    Q_ENUM(UIStatusBluetoothHeadset)
    Q_ENUM(UIStatusAG)
    Q_ENUM(UIStatusBTHeadsetPairing)
    Q_ENUM(UIStatusWifi)

    explicit Status(QWidget *parent = nullptr);
    ~Status() override;

    /// While updates are disabled, a title that is set is lost.
    void setTitle(const QString &text);
    QString title();
    /// As setTitle, past the lock and without a signal.
    void setTitleFromSignal(const QString &text);
    void setDisabledUpdateTitle(bool disabled) { m_disabledUpdateTitle = disabled; }
    void setTime24Hour(bool use);

    void setUIStatusLock(bool on);
    void setUIStatusCallLock(bool on);
    void setUIStatusCallForward(bool on);
    void setUIStatusDND(bool on);
    void setUIStatusAutoAnswer(bool on);
    void setUIStatusCallHold(bool on);
    void setUIStatusUpgrade(bool on);
    void setUIStatusConnectMobile(bool on);
    void setUIStatusConnectAOM(bool on);
    void setUIStatusConnectNVC(bool on);
    void setUIStatusCall(bool on);

    void setUIStatusHeadSet(Status::UIStatusHeadset value);
    void setUIStatusBluetoothHeadset(Status::UIStatusBluetoothHeadset value);
    void setUIStatusAGMode(Status::UIStatusAG value);
    void setUIStatusBTHeadsetPairing(Status::UIStatusBTHeadsetPairing value);
    void setUIStatusWifi(Status::UIStatusWifi value);
    void setIMEStatus(IMEStatus value);

    void setStatusIcon_isCall(bool isCall);
    bool statusIcon_isCall() const { return m_statusIcon_isCall; }
    UIStatusHeadset statusHeadset() const { return m_headset; }
    UIStatusBluetoothHeadset statusBluetoothHeadset() const { return m_bluetoothHeadset; }
    UIStatusBTHeadsetPairing statusBTHeadsetPairing() const { return m_btHeadsetPairing; }
    /// Whether the call-state sign, where the phone's presence stands, is shown.
    bool presenceIconVisible() const;
    void setDisplayRssi(const QString &rssi) { m_displayRssi = rssi; }
    QString displayRssi() const { return m_displayRssi; }

    /// What the visible indicators leave of the bar's width, 300 pixels at most.
    int titleLabelWidgetWidth() const;

    QColor bgColor() const { return m_bgColor; }
    void setBgColor(const QColor &color);
    QColor titleColor() const;
    void setTitleColor(const QColor &color);
    /// The two lines along the bottom, the upper one first.
    void setUnderlineColor(const QColor &upper, const QColor &lower);

signals:
    void changeHeadset(Status::UIStatusHeadset value);
    void changeBluetoothHeadset(Status::UIStatusBluetoothHeadset value);
    void changeCamOff(bool off);
    void changeWifi(Status::UIStatusWifi value);
    void changeAGMode(Status::UIStatusAG value);
    void changeBTHsetPairing(Status::UIStatusBTHeadsetPairing value);
    void changeIMEStatus(IMEStatus value);
    void statusInfoChanged();
    void titleChanged(const QString &title);

public slots:
    void timeout();
    void callTimeout();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void setIndicator(bool *state, int icon, bool on);
    template <typename Value> bool setIndicator(Value *state, int icon, Value value, const QString &picture);

    QScopedPointer<Ui_Status> ui;
    bool m_lock = false;
    bool m_callLock = false;
    bool m_callForward = false;
    bool m_dnd = false;
    bool m_autoAnswer = false;
    bool m_callHold = false;
    bool m_upgrade = false;
    bool m_connectMobile = false;
    bool m_connectAOM = false;
    bool m_connectNVC = false;
    bool m_call = false;
    bool m_statusIcon_isCall = false;
    UIStatusHeadset m_headset = HeadsetNone;
    UIStatusBluetoothHeadset m_bluetoothHeadset = BluetoothHeadsetNone;
    UIStatusAG m_agMode = AGNone;
    UIStatusBTHeadsetPairing m_btHeadsetPairing = BTHeadsetPairingNone;
    UIStatusWifi m_wifi = WifiNone;
    IMEStatus m_imeStatus = IMEOff;
    bool m_disabledUpdateTitle = false;
    QString m_displayRssi;
    QTimer m_callTimer;
    QTimer m_clockTimer;
    QColor m_bgColor;
    QColor m_upperLineColor;
    QColor m_lowerLineColor;
};

#endif
