// The history as a person sees it.

#include "apps/history/history.h"
#include "callmanager.h"
#include "control/apppayload.h"
#include "listview.h"
#include "message.h"
#include "phonekeys.h"
#include "tail.h"
#include "testcase.h"
#include "testmain.h"
#include "testphone.h"

#include <memory>

using namespace PhoneKeys;

class HistoryTest : public TestCase
{
    Q_OBJECT

    void setUp() override { m_phone.reset(new TestPhone); }
    void tearDown() override
    {
        m_app.reset();
        m_phone.reset();
        message_SetObserver({});
    }

private slots:
    void theNewestFirst();
    void withoutCalls();
    void theCallsOfOneNumber();
    void callsWithTheNameInThePhonesCharset();
    void aCallThatEndsComesIn();
    void startTogglesWhatIsSeen();

private:
    void addCall(const QString &number, const QString &name, int minutesAgo, int seconds = 0,
                 CallRecord::Direction direction = CallRecord::Outgoing)
    {
        const QDateTime when = QDateTime::currentDateTime().addSecs(-60 * minutesAgo);
        QVERIFY(m_phone->core.callList()->addCall({number, name, direction, when, seconds}));
    }
    void addSomeCalls()
    {
        addCall("5551", "Zoë Łukasik", 4 * 24 * 60, 75);
        addCall("5552", "김철수", 3 * 24 * 60, 0, CallRecord::Missed);
        addCall("5553", "", 2, 8, CallRecord::Incoming);
        addCall("5551", "Zoë Łukasik", 1, 3725);
    }
    void open()
    {
        m_app.reset(new History);
        m_app->start(nullptr, nullptr);
        QTRY_VERIFY(m_app->isActiveWindow());
    }
    QStringList rows() const
    {
        const auto *list = m_app->findChild<ListView *>();
        QStringList texts;
        for (int i = 0; i < list->itemSize(); ++i)
            texts.append(list->item(i)->text());
        return texts;
    }
    QString title() { return m_phone->status.title(); }
    QString key(int idx) const { return m_app->findChild<Tail *>()->funcButtonText(idx); }

    std::unique_ptr<TestPhone> m_phone;
    std::unique_ptr<History> m_app;
};

void HistoryTest::theNewestFirst()
{
    addSomeCalls();
    open();
    QCOMPARE(rows(), (QStringList{"Zoë Łukasik", "5553", "김철수", "Zoë Łukasik"}));
    QCOMPARE(title(), QString("History | All (1/4)"));
    TestScreen::shot("history");
    click(Qt::Key_Down);
    QCOMPARE(title(), QString("History | All (2/4)"));
    click(Qt::Key_Context4);
    QVERIFY(!m_app->isVisible());
}

void HistoryTest::withoutCalls()
{
    open();
    QCOMPARE(title(), QString("History | All (0/0)"));
    QCOMPARE(key(0), QString());
    TestScreen::shot("history-empty");
    click(Qt::Key_Down);
    click(Qt::Key_Return);
    click(Qt::Key_Context1);
    click(Qt::Key_Escape);
    QVERIFY(!m_app->isVisible());
}

void HistoryTest::theCallsOfOneNumber()
{
    addSomeCalls();
    open();
    QByteArray payload;
    QString fault;
    QVERIFY(AppPayload::encode("viewDetail(str)", {"5551"}, &payload, &fault));
    m_app->receiveMsg("viewDetail(str)", payload);
    QCOMPARE(rows().size(), 2);
    QCOMPARE(title(), QString("History | Zoë Łukasik (1/2)"));
    TestScreen::shot("history-detail");
    // All of them again.
    click(Qt::Key_Escape);
    m_app->start(nullptr, nullptr);
    QTRY_COMPARE(title(), QString("History | All (1/4)"));
}

void HistoryTest::callsWithTheNameInThePhonesCharset()
{
    m_phone->writeFile("config/system.conf", "[System]\nCharset=euc-kr\n");
    addSomeCalls();
    open();
    QVariantList sent;
    message_SetObserver([&sent](const Message &message) { sent = message.arguments; });
    click(Qt::Key_Down);
    click(Qt::Key_Down);
    click(Qt::Key_Context1);
    QCOMPARE(sent,
             (QVariantList{0, QByteArray("NORMAL"), QByteArray("5552"), QByteArray("\xb1\xe8\xc3\xb6\xbc\xf6"),
                           QByteArray("AUDIO"), 2, -1}));
    sent.clear();
    click(Qt::Key_Return);
    QCOMPARE(sent.value(2).toByteArray(), QByteArray("5552"));
}

void HistoryTest::aCallThatEndsComesIn()
{
    addSomeCalls();
    open();
    click(Qt::Key_Up);
    QCOMPARE(title(), QString("History | All (4/4)"));
    m_phone->core.callManager()->setCallState("CONNECT");
    addCall("1", "New", 0);
    m_phone->core.callManager()->setCallState("IDLE");
    QCOMPARE(rows().first(), QString("New"));
    QCOMPARE(title(), QString("History | All (1/5)"));
}

void HistoryTest::startTogglesWhatIsSeen()
{
    open();
    QDialog over;
    QVERIFY(showAndActivate(&over));
    m_app->start(nullptr, nullptr);
    QTRY_VERIFY(m_app->isActiveWindow());
    m_app->start(nullptr, nullptr);
    QVERIFY(!m_app->isVisible());
}

PHONE_TEST_MAIN(HistoryTest)
#include "tst_history.moc"
