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
    void aTitleSetWhileDisabledIsLost()
    {
        QSignalSpy changed(m_bar, &Status::titleChanged);
        m_bar->setTitle("First");
        m_bar->setDisabledUpdateTitle(true);
        m_bar->setTitle("Lost");
        QCOMPARE(m_bar->title(), QString("First"));
        m_bar->setTitleFromSignal("From a signal");
        QCOMPARE(m_bar->title(), QString("From a signal"));
        QCOMPARE(changed.size(), 1);
    }

    void indicatorsAreKeptButSilentInACall()
    {
        m_bar->setStatusIcon_isCall(true);
        QSignalSpy changed(m_bar, &Status::statusInfoChanged);
        m_bar->setUIStatusDND(true);
        QVERIFY(shownIcons().isEmpty());
        m_bar->setUIStatusUpgrade(true);
        QCOMPARE(shownIcons().size(), 1);
        m_bar->setStatusIcon_isCall(false);
        QVERIFY(m_bar->presenceIconVisible());
        // The value was kept: setting it again is no change, and now it shows.
        m_bar->setUIStatusDND(true);
        QVERIFY(changed.isEmpty());
        QCOMPARE(shownIcons().size(), 3);
    }

    void switchesTellChanges()
    {
        int shown = 0;
        for (const Switch turn : switches) {
            QSignalSpy changed(m_bar, &Status::statusInfoChanged);
            (m_bar->*turn)(true);
            (m_bar->*turn)(true);
            QCOMPARE(changed.size(), 1);
            QCOMPARE(shownIcons().size(), ++shown);
        }
    }

    void enumeratedIndicatorsShowTheirPictures_data()
    {
        QTest::addColumn<int>("value");
        for (int value = -1; value <= 8; ++value)
            QTest::addRow("value %d", value) << value;
    }

    void enumeratedIndicatorsShowTheirPictures()
    {
        QFETCH(int, value);
        int changes = 0;
        m_bar->setUIStatusWifi(Status::Wifi4);
        connect(m_bar, &Status::changeWifi, m_bar, [&] { ++changes; });
        m_bar->setUIStatusWifi(static_cast<Status::UIStatusWifi>(value));
        QCOMPARE(shownIcons().size(), value >= 1 && value <= 6 ? 1 : 0);
        QCOMPARE(changes, value == Status::Wifi4 ? 0 : 1);

        // The others have two pictures each; the input method has four.
        const int pairs = value == 1 || value == 2 ? 4 : 0;
        m_bar->setUIStatusWifi(Status::WifiNone);
        m_bar->setUIStatusHeadSet(static_cast<Status::UIStatusHeadset>(value));
        m_bar->setUIStatusBluetoothHeadset(static_cast<Status::UIStatusBluetoothHeadset>(value));
        m_bar->setUIStatusAGMode(static_cast<Status::UIStatusAG>(value));
        m_bar->setUIStatusBTHeadsetPairing(static_cast<Status::UIStatusBTHeadsetPairing>(value));
        QCOMPARE(shownIcons().size(), pairs);
        m_bar->setIMEStatus(static_cast<IMEStatus>(value));
        QCOMPARE(shownIcons().size(), pairs + (value >= 1 && value <= 4 ? 1 : 0));
    }

    void koreanHasItsOwnInputSign()
    {
        const auto sign = [this] {
            m_bar->setIMEStatus(IMEFirst);
            return shownIcons().value(0)->pixmap(Qt::ReturnByValue).toImage();
        };
        const QImage latin = sign();
        QVERIFY(m_phone->core.setLanguageName("ko_KR"));
        QVERIFY(sign() != latin);
    }

    void theTitleLeavesRoomForTheIcons()
    {
        QCOMPARE(m_bar->titleLabelWidgetWidth(), 300);
        for (const Switch turn : switches)
            (m_bar->*turn)(true);
        QCOMPARE(m_bar->titleLabelWidgetWidth(), 384 - 11 * shownIcons().first()->width());
    }

    void pictures()
    {
        m_bar->setTitle("Contacts | All (15/300)");
        TestScreen::shot("status-title");
        m_bar->setTitle("Contacts | A group with a very long name that does not fit (12)");
        TestScreen::shot("status-title-elided");
        m_bar->setTitle("Contacts");
        m_bar->setTime24Hour(true);
        for (int i = 0; i < 8; ++i)
            (m_bar->*switches[i])(true);
        TestScreen::shot("status-indicators-1");
        for (int i = 0; i < 11; ++i)
            (m_bar->*switches[i])(i >= 4);
        m_bar->setUIStatusHeadSet(Status::HeadsetEhs);
        m_bar->setUIStatusBluetoothHeadset(Status::BluetoothHeadsetOn);
        m_bar->setUIStatusAGMode(Status::AGOn);
        m_bar->setUIStatusBTHeadsetPairing(Status::BTHeadsetPaired);
        m_bar->setUIStatusWifi(Status::Wifi3);
        m_bar->setIMEStatus(IMECapital);
        TestScreen::shot("status-indicators-2");
    }

private:
    QList<QLabel *> shownIcons() const
    {
        QList<QLabel *> shown;
        const QList<QLabel *> labels = m_bar->findChildren<QLabel *>(QString(), Qt::FindDirectChildrenOnly);
        for (QLabel *label : labels) {
            if (!label->pixmap(Qt::ReturnByValue).isNull() && !label->isHidden())
                shown.append(label);
        }
        return shown;
    }

    Status *m_bar = nullptr;
};

PHONE_TEST_MAIN(StatusTest)
#include "tst_status.moc"
