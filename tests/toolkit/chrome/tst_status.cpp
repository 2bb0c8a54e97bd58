#include "phonekeys.h"
#include "status.h"
#include "testcase.h"
#include "testmain.h"
#include "testphone.h"
#include "ui_status.h"

#include <QSignalSpy>

#include <memory>

class StatusTest : public TestCase
{
    Q_OBJECT

    void setUp() override
    {
        m_phone.reset(new TestPhone);
        m_bar = &m_phone->status;
    }
    void tearDown() override { m_phone.reset(); }

private slots:
    void aTitleSetWhileDisabledIsLost();
    void indicatorsAreKeptButSilentInACall();
    void onAndOffIndicatorsTellChanges();
    void enumeratedIndicatorsShowTheirPictures_data();
    void enumeratedIndicatorsShowTheirPictures();
    void koreanHasItsOwnInputSign();
    void theTitleNeverGetsMoreThan300Pixels();
    void pictures();

private:
    QList<QLabel *> shownIcons() const;

    std::unique_ptr<TestPhone> m_phone;
    Status *m_bar = nullptr;
};

QList<QLabel *> StatusTest::shownIcons() const
{
    QList<QLabel *> shown;
    const QList<QLabel *> labels = m_bar->findChildren<QLabel *>(QString(), Qt::FindDirectChildrenOnly);
    for (QLabel *label : labels) {
        if (!label->pixmap(Qt::ReturnByValue).isNull() && !label->isHidden())
            shown.append(label);
    }
    return shown;
}

void StatusTest::aTitleSetWhileDisabledIsLost()
{
    QSignalSpy changed(m_bar, &Status::titleChanged);
    m_bar->setTitle("First");
    m_bar->setDisabledUpdateTitle(true);
    m_bar->setTitle("Lost");
    QCOMPARE(m_bar->title(), QString("First"));
    m_bar->setTitleFromSignal("From a signal");
    QCOMPARE(m_bar->title(), QString("From a signal"));
    m_bar->setDisabledUpdateTitle(false);
    QCOMPARE(m_bar->title(), QString("From a signal"));
    QCOMPARE(changed.size(), 1);
}

void StatusTest::indicatorsAreKeptButSilentInACall()
{
    m_bar->setStatusIcon_isCall(true);
    QSignalSpy changed(m_bar, &Status::statusInfoChanged);
    m_bar->setUIStatusDND(true);
    QVERIFY(changed.isEmpty());
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

void StatusTest::onAndOffIndicatorsTellChanges()
{
    using Setter = void (Status::*)(bool);
    const Setter setters[]
        = {&Status::setUIStatusLock,       &Status::setUIStatusCallLock,      &Status::setUIStatusCallForward,
           &Status::setUIStatusDND,        &Status::setUIStatusAutoAnswer,    &Status::setUIStatusCallHold,
           &Status::setUIStatusUpgrade,    &Status::setUIStatusConnectMobile, &Status::setUIStatusConnectAOM,
           &Status::setUIStatusConnectNVC, &Status::setUIStatusCall};
    int shown = 0;
    for (const Setter setter : setters) {
        QSignalSpy changed(m_bar, &Status::statusInfoChanged);
        (m_bar->*setter)(true);
        (m_bar->*setter)(true);
        QCOMPARE(changed.size(), 1);
        QCOMPARE(shownIcons().size(), ++shown);
        QVERIFY(!shownIcons().last()->pixmap(Qt::ReturnByValue).isNull());
    }
}

void StatusTest::enumeratedIndicatorsShowTheirPictures_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<bool>("shown");
    for (int value = -1; value <= 8; ++value)
        QTest::addRow("value %d", value) << value << (value >= 1 && value <= 6);
}

void StatusTest::enumeratedIndicatorsShowTheirPictures()
{
    QFETCH(int, value);
    QFETCH(bool, shown);
    m_bar->setUIStatusWifi(Status::Wifi4);
    int changes = 0;
    connect(m_bar, &Status::changeWifi, this, [&] { ++changes; });
    m_bar->setUIStatusWifi(static_cast<Status::UIStatusWifi>(value));
    QCOMPARE(!shownIcons().isEmpty(), shown);
    QCOMPARE(changes, value == Status::Wifi4 ? 0 : 1);
    disconnect(m_bar, &Status::changeWifi, this, nullptr);

    // The others have two pictures each; the input method has four.
    const bool isPair = value == 1 || value == 2;
    m_bar->setUIStatusWifi(Status::WifiNone);
    m_bar->setUIStatusHeadSet(static_cast<Status::UIStatusHeadset>(value));
    m_bar->setUIStatusBluetoothHeadset(static_cast<Status::UIStatusBluetoothHeadset>(value));
    m_bar->setUIStatusAGMode(static_cast<Status::UIStatusAG>(value));
    m_bar->setUIStatusBTHeadsetPairing(static_cast<Status::UIStatusBTHeadsetPairing>(value));
    QCOMPARE(shownIcons().size(), isPair ? 4 : 0);
    m_bar->setIMEStatus(static_cast<IMEStatus>(value));
    QCOMPARE(shownIcons().size(), (isPair ? 4 : 0) + (value >= 1 && value <= 4 ? 1 : 0));
}

void StatusTest::koreanHasItsOwnInputSign()
{
    const auto sign = [this] {
        m_bar->setIMEStatus(IMEFirst);
        return shownIcons().value(0)->pixmap(Qt::ReturnByValue).toImage();
    };
    const QImage latin = sign();
    QVERIFY(m_phone->core.setLanguageName("ko_KR"));
    QVERIFY(sign() != latin);
}

void StatusTest::theTitleNeverGetsMoreThan300Pixels()
{
    QCOMPARE(m_bar->titleLabelWidgetWidth(), 300);
    m_bar->setUIStatusWifi(Status::Wifi4);
    m_bar->setUIStatusLock(true);
    QVERIFY(m_bar->titleLabelWidgetWidth() <= 300);
}

void StatusTest::pictures()
{
    m_bar->setTitle("Contacts | All (15/300)");
    TestScreen::shot("status-title");
    m_bar->setTitle("Contacts | A group with a very long name that does not fit (12)");
    TestScreen::shot("status-title-elided");
    m_bar->setTitle("Contacts");
    m_bar->setTime24Hour(true);
    m_bar->setUIStatusLock(true);
    m_bar->setUIStatusCallLock(true);
    m_bar->setUIStatusCallForward(true);
    m_bar->setUIStatusDND(true);
    m_bar->setUIStatusAutoAnswer(true);
    m_bar->setUIStatusCallHold(true);
    m_bar->setUIStatusUpgrade(true);
    m_bar->setUIStatusConnectMobile(true);
    TestScreen::shot("status-indicators-1");
    m_bar->setUIStatusLock(false);
    m_bar->setUIStatusCallLock(false);
    m_bar->setUIStatusCallForward(false);
    m_bar->setUIStatusDND(false);
    m_bar->setUIStatusConnectAOM(true);
    m_bar->setUIStatusConnectNVC(true);
    m_bar->setUIStatusCall(true);
    m_bar->setUIStatusHeadSet(Status::HeadsetEhs);
    m_bar->setUIStatusBluetoothHeadset(Status::BluetoothHeadsetOn);
    m_bar->setUIStatusAGMode(Status::AGOn);
    m_bar->setUIStatusBTHeadsetPairing(Status::BTHeadsetPaired);
    m_bar->setUIStatusWifi(Status::Wifi3);
    m_bar->setIMEStatus(IMECapital);
    TestScreen::shot("status-indicators-2");
}

PHONE_TEST_MAIN(StatusTest)
#include "tst_status.moc"
