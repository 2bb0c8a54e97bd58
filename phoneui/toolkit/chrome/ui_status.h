#ifndef UI_STATUS_H
#define UI_STATUS_H

#include <array>

class QLabel;
class TimeLabel;
class TitleLabel;

/// The labels of the status bar in one row: the title, the seventeen indicators, the clock.
class Ui_Status
{
public:
    enum Icon {
        Lock,
        CallLock,
        CallForward,
        Dnd,
        AutoAnswer,
        CallHold,
        Upgrade,
        ConnectMobile,
        ConnectAom,
        ConnectNvc,
        Call,
        Headset,
        BluetoothHeadset,
        AgMode,
        BtHeadsetPairing,
        Wifi,
        Ime,
        IconCount
    };

    void setupUi(QLabel *status);
    void retranslateUi(QLabel *status);

    TitleLabel *titleLabel = nullptr;
    std::array<QLabel *, IconCount> icons{};
    TimeLabel *timeLabel = nullptr;
};

#endif
