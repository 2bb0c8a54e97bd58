#include "screentest.h"

#include <QLabel>

using Switch = void (Status::*)(bool);
static const Switch switches[]
    = {&Status::setUIStatusLock,       &Status::setUIStatusCallLock,      &Status::setUIStatusCallForward,
       &Status::setUIStatusDND,        &Status::setUIStatusAutoAnswer,    &Status::setUIStatusCallHold,
       &Status::setUIStatusUpgrade,    &Status::setUIStatusConnectMobile, &Status::setUIStatusConnectAOM,
       &Status::setUIStatusConnectNVC, &Status::setUIStatusCall};

class StatusTest : public PhoneTest
{
    Q_OBJECT

private slots:
    void indicatorsAreKeptButSilentInACall()
    {
        bar()->setStatusIcon_isCall(true);
        bar()->setUIStatusDND(true);
        QCOMPARE(shownIcons(), 0);
        bar()->setUIStatusUpgrade(true);
        QCOMPARE(shownIcons(), 1);
        bar()->setStatusIcon_isCall(false);
        QVERIFY(bar()->presenceIconVisible());
        // The value was kept: setting it again is no change, and now it shows.
        QSignalSpy changed(bar(), &Status::statusInfoChanged);
        bar()->setUIStatusDND(true);
        QVERIFY(changed.isEmpty());
        QCOMPARE(shownIcons(), 3);
    }

    void switchesTellChangesAndTakeRoomFromTheTitle()
    {
        int shown = 0;
        for (const Switch turn : switches) {
            QSignalSpy changed(bar(), &Status::statusInfoChanged);
            (bar()->*turn)(true);
            (bar()->*turn)(true);
            QCOMPARE(changed.size(), 1);
            QCOMPARE(shownIcons(), ++shown);
        }
        QCOMPARE(bar()->titleLabelWidgetWidth(), 384 - 20 * shown);
    }

    void enumeratedIndicatorsShowTheirPictures()
    {
        for (int value = -1; value <= 8; ++value) {
            bar()->setUIStatusWifi(static_cast<Status::UIStatusWifi>(value));
            bar()->setIMEStatus(static_cast<IMEStatus>(value));
            bar()->setUIStatusHeadSet(static_cast<Status::UIStatusHeadset>(value));
            // Six pictures of the network, four of the input method, two of the headset.
            QCOMPARE(shownIcons(),
                     (value >= 1 && value <= 6) + (value >= 1 && value <= 4) + (value == 1 || value == 2));
        }
    }

    void pictures()
    {
        const auto shoot = [this](const QString &name) {
            TestScreen::shot(name);
            return TestScreen::picture().copy(0, 0, 384, 26);
        };
        bar()->setTitle("Contacts | A group with a very long name that does not fit (12)");
        const QImage title = shoot("status-title");
        bar()->setTitle("Contacts");
        bar()->setTime24Hour(true);
        for (int i = 0; i < 8; ++i)
            (bar()->*switches[i])(true);
        const QImage first = shoot("status-indicators-1");
        for (int i = 0; i < 11; ++i)
            (bar()->*switches[i])(i >= 4);
        bar()->setUIStatusHeadSet(Status::HeadsetEhs);
        bar()->setUIStatusBluetoothHeadset(Status::BluetoothHeadsetOn);
        bar()->setUIStatusAGMode(Status::AGOn);
        bar()->setUIStatusBTHeadsetPairing(Status::BTHeadsetPaired);
        bar()->setUIStatusWifi(Status::Wifi3);
        bar()->setIMEStatus(IMEFirst);
        const QImage second = shoot("status-indicators-2");
        // Korean has its own input sign.
        QVERIFY(m_phone->core.setLanguageName("ko_KR"));
        bar()->setIMEStatus(IMEFirst);
        QVERIFY(shoot("status-korean") != second && title != first && first != second);
    }

private:
    Status *bar() const { return &m_phone->status; }
    int shownIcons() const
    {
        const QList<QLabel *> labels = bar()->findChildren<QLabel *>(QString(), Qt::FindDirectChildrenOnly);
        return std::count_if(labels.begin(), labels.end(), [](const QLabel *label) {
            return !label->pixmap(Qt::ReturnByValue).isNull() && !label->isHidden();
        });
    }
};

PHONE_TEST_MAIN(StatusTest)
#include "tst_status.moc"
