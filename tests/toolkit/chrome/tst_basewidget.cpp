#include "basewidget.h"
#include "phonekeys.h"
#include "testcase.h"
#include "testmain.h"
#include "testphone.h"

#include <QKeyEvent>
#include <QSettings>

#include <memory>

using namespace PhoneKeys;

class Screen : public BaseWidget
{
public:
    explicit Screen(const QString &title) : BaseWidget(nullptr), m_title(title) { setFocusPolicy(Qt::StrongFocus); }
    int closes = 0;

protected:
    void setupStatus() override { status->setTitle(m_title); }
    void closeEvent(QCloseEvent *event) override
    {
        ++closes;
        BaseWidget::closeEvent(event);
    }

private:
    QString m_title;
};

class BaseWidgetTest : public TestCase
{
    Q_OBJECT

    void setUp() override { m_phone.reset(new TestPhone); }
    void tearDown() override { m_phone.reset(); }

private slots:
    void fillsTheDisplayBelowTheStatusBar();
    void escapeClosesOnceAtTheRelease();
    void otherKeysKeepTheirAcceptState();
    void theTitleComesBack();
    void execReturnsWhenClosedFromOutside();
    void aRetiredScreenOutlivesLoopsOfItsHandlers();
    void locksShowAsTheSettingsSay_data();
    void locksShowAsTheSettingsSay();

private:
    std::unique_ptr<TestPhone> m_phone;
};

void BaseWidgetTest::fillsTheDisplayBelowTheStatusBar()
{
    Screen screen("One");
    QVERIFY(showAndActivate(&screen));
    QCOMPARE(screen.geometry(), QRect(0, 26, 384, 134));
    screen.setBgColor(Qt::yellow);
    const QImage picture = TestScreen::picture();
    QCOMPARE(picture.pixelColor(0, 26), QColor(Qt::yellow));
    QCOMPARE(picture.pixelColor(383, 159), QColor(Qt::yellow));
    QVERIFY(picture.pixelColor(383, 25) != QColor(Qt::yellow));
}

void BaseWidgetTest::escapeClosesOnceAtTheRelease()
{
    Screen screen("One");
    QVERIFY(showAndActivate(&screen));
    press(Qt::Key_Escape);
    QVERIFY(screen.isVisible());
    release(Qt::Key_Escape);
    QVERIFY(!screen.isVisible());
    QCOMPARE(screen.closes, 1);
}

void BaseWidgetTest::otherKeysKeepTheirAcceptState()
{
    Screen screen("One");
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        for (const bool accepted : {false, true}) {
            QKeyEvent event(type, Qt::Key_5, Qt::NoModifier);
            event.setAccepted(accepted);
            QCoreApplication::sendEvent(&screen, &event);
            QCOMPARE(event.isAccepted(), accepted);
        }
    }
}

void BaseWidgetTest::theTitleComesBack()
{
    Screen below("Below");
    QVERIFY(showAndActivate(&below));
    QCOMPARE(m_phone->status.title(), QString("Below"));
    {
        Screen above("Above");
        QVERIFY(showAndActivate(&above));
        QCOMPARE(m_phone->status.title(), QString("Above"));
        click(Qt::Key_Escape);
    }
    QTRY_COMPARE(m_phone->status.title(), QString("Below"));
    QVERIFY(below.hasFocus());
}

void BaseWidgetTest::execReturnsWhenClosedFromOutside()
{
    Screen screen("One");
    QTimer::singleShot(0, &screen, [&screen] { screen.close(); });
    QCOMPARE(screen.exec(), int(QDialog::Rejected));
}

void BaseWidgetTest::aRetiredScreenOutlivesLoopsOfItsHandlers()
{
    const QPointer<Screen> screen = new Screen("One");
    QVERIFY(showAndActivate(screen));
    QEventLoop handler;
    QTimer::singleShot(0, screen, [screen] { screen->retire(); });
    QTimer::singleShot(100, &handler, &QEventLoop::quit);
    handler.exec();
    QVERIFY(screen && !screen->isVisible());
    QTRY_VERIFY(!screen);
}

void BaseWidgetTest::locksShowAsTheSettingsSay_data()
{
    QTest::addColumn<int>("systemType");
    QTest::addColumn<bool>("menuPassword");
    QTest::addColumn<int>("callLock");
    QTest::addColumn<int>("changes");
    QTest::newRow("nothing locked") << 1 << false << 0 << 0;
    QTest::newRow("menu") << 1 << true << 0 << 1;
    QTest::newRow("menu and calls") << 1 << true << 2 << 2;
    QTest::newRow("a system without call lock") << 2 << false << 1 << 0;
}

void BaseWidgetTest::locksShowAsTheSettingsSay()
{
    QFETCH(int, systemType);
    QFETCH(bool, menuPassword);
    QFETCH(int, callLock);
    {
        QSettings system(m_phone->core.configFileName(SystemConfig), QSettings::IniFormat);
        system.setValue("System/Type", systemType);
        system.setValue("Menu_Password/enable", menuPassword);
        system.setValue("Security/CallLock", callLock);
    }
    int changes = 0;
    connect(&m_phone->status, &Status::statusInfoChanged, this, [&] { ++changes; });
    Screen screen("One");
    screen.updateStatus();
    QTEST(changes, "changes");
}

PHONE_TEST_MAIN(BaseWidgetTest)
#include "tst_basewidget.moc"
