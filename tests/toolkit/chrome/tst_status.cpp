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

    void setUp() override
    {
        PhoneTest::setUp();
        m_bar = &m_phone->status;
    }

private slots:
    void indicatorsAreKeptButSilentInACall()
    {
        m_bar->setStatusIcon_isCall(true);
        m_bar->setUIStatusDND(true);
        QCOMPARE(shownIcons(), 0);
        m_bar->setUIStatusUpgrade(true);
        QCOMPARE(shownIcons(), 1);
        m_bar->setStatusIcon_isCall(false);
        QVERIFY(m_bar->presenceIconVisible());
        // The value was kept: setting it again is no change, and now it shows.
        QSignalSpy changed(m_bar, &Status::statusInfoChanged);
        m_bar->setUIStatusDND(true);
        QVERIFY(changed.isEmpty());
        QCOMPARE(shownIcons(), 3);
    }

    void switchesTellChangesAndTakeRoomFromTheTitle()
    {
        int shown = 0;
        for (const Switch turn : switches) {
            QSignalSpy changed(m_bar, &Status::statusInfoChanged);
            (m_bar->*turn)(true);
            (m_bar->*turn)(true);
            QCOMPARE(changed.size(), 1);
            QCOMPARE(shownIcons(), ++shown);
        }
        QCOMPARE(m_bar->titleLabelWidgetWidth(), 384 - 20 * shown);
    }

    void enumeratedIndicatorsShowTheirPictures()
    {
        for (int value = -1; value <= 8; ++value) {
            m_bar->setUIStatusWifi(static_cast<Status::UIStatusWifi>(value));
            m_bar->setIMEStatus(static_cast<IMEStatus>(value));
            m_bar->setUIStatusHeadSet(static_cast<Status::UIStatusHeadset>(value));
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
        m_bar->setTitle("Contacts | A group with a very long name that does not fit (12)");
        const QImage title = shoot("status-title");
        m_bar->setTitle("Contacts");
        m_bar->setTime24Hour(true);
        for (int i = 0; i < 8; ++i)
            (m_bar->*switches[i])(true);
        const QImage first = shoot("status-indicators-1");
        for (int i = 0; i < 11; ++i)
            (m_bar->*switches[i])(i >= 4);
        m_bar->setUIStatusHeadSet(Status::HeadsetEhs);
        m_bar->setUIStatusBluetoothHeadset(Status::BluetoothHeadsetOn);
        m_bar->setUIStatusAGMode(Status::AGOn);
        m_bar->setUIStatusBTHeadsetPairing(Status::BTHeadsetPaired);
        m_bar->setUIStatusWifi(Status::Wifi3);
        m_bar->setIMEStatus(IMEFirst);
        const QImage second = shoot("status-indicators-2");
        // Korean has its own input sign.
        QVERIFY(m_phone->core.setLanguageName("ko_KR"));
        m_bar->setIMEStatus(IMEFirst);
        QVERIFY(shoot("status-korean") != second && title != first && first != second);
    }

private:
    int shownIcons() const
    {
        const QList<QLabel *> labels = m_bar->findChildren<QLabel *>(QString(), Qt::FindDirectChildrenOnly);
        return std::count_if(labels.begin(), labels.end(), [](const QLabel *label) {
            return !label->pixmap(Qt::ReturnByValue).isNull() && !label->isHidden();
        });
    }

    Status *m_bar = nullptr;
};

PHONE_TEST_MAIN(StatusTest)
#include "tst_status.moc"
