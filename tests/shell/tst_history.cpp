#include "apps/history/history.h"
#include "callmanager.h"
#include "message.h"
#include "neighbourtest.h"

using namespace PhoneKeys;

/// The history as a person sees it.
class HistoryTest : public NeighbourTest<History>
{
    Q_OBJECT

private slots:
    void showsTheCalls()
    {
        QVERIFY(startWithCalls());
        QCOMPARE(rows(), (QStringList{"Zoë Łukasik", "5553", "김철수", "Zoë Łukasik"}));
        TestScreen::shot("history");
        click(Qt::Key_Up);
        QCOMPARE(title(), QString("History | All (4/4)"));
        // One that ends comes in.
        m_phone->core.callManager()->setCallState("CONNECT");
        addCall("1", "New", 0);
        m_phone->core.callManager()->setCallState("IDLE");
        QCOMPARE(rows().first(), QString("New"));
        QCOMPARE(title(), QString("History | All (1/5)"));
        // A start shows it again when something lies over it, and ends it when it is seen.
        QDialog over;
        QVERIFY(showAndActivate(&over));
        QVERIFY(start());
        app()->start(nullptr, nullptr);
        QVERIFY(!app()->isVisible());
    }

    void callsWithTheNameInThePhonesCharset()
    {
        m_phone->writeFile("config/system.conf", "[System]\nCharset=euc-kr\n");
        QVERIFY(startWithCalls());
        QVariantList request;
        message_SetObserver([&request](const Message &message) { request = message.arguments; });
        clickAll({Qt::Key_Down, Qt::Key_Down, Qt::Key_Return});
        QCOMPARE(request,
                 (QVariantList{0, QByteArray("NORMAL"), QByteArray("5552"), QByteArray("\xb1\xe8\xc3\xb6\xbc\xf6"),
                               QByteArray("AUDIO"), 2, -1}));
    }

private:
    void addCall(const QString &number, const QString &name, int minutesAgo, int seconds = 0,
                 CallRecord::Direction direction = CallRecord::Outgoing)
    {
        const QDateTime when = QDateTime::currentDateTime().addSecs(-60 * minutesAgo);
        QVERIFY(m_phone->core.callList()->addCall({number, name, direction, when, seconds}));
    }
    bool startWithCalls()
    {
        addCall("5551", "Zoë Łukasik", 4 * 24 * 60, 75);
        addCall("5552", "김철수", 3 * 24 * 60, 0, CallRecord::Missed);
        addCall("5553", "", 2, 8, CallRecord::Incoming);
        addCall("5551", "Zoë Łukasik", 1, 3725);
        return start();
    }
};

PHONE_TEST_MAIN(HistoryTest)
#include "tst_history.moc"
