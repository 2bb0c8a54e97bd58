#include "control/apppayload.h"
#include "testcase.h"

class AppPayloadTest : public TestCase
{
    Q_OBJECT

private slots:
    void roundTrips();
    void refusesWhatIsNoPayload();
};

using Items = QPair<QString, QVariantList>; // of a command

void AppPayloadTest::roundTrips()
{
    const QList<Items> commands = {
        {"ShowPopup", {}},
        {"CloseContact()", {}},
        {"searchContactResult(str,str)", {"김철수", "0101234"}},
        {"wpsm2ui_contact_picture_ack(str,int,str)", {"x", 7, ""}},
        {"wpsm2ui _noti_contact_changed(int)", {3}},
        {"f(str,str)", {"one"}}, // fewer than named
    };
    QByteArray payload;
    QString fault;
    for (const Items &command : commands) {
        QVERIFY2(AppPayload::encode(command.first, command.second, &payload, &fault), qPrintable(fault));
        QCOMPARE(AppPayload::decode(command.first, payload), command.second);
    }
    QVERIFY(AppPayload::encode("f(str,int)", {"A", -2}, &payload, &fault));
    QCOMPARE(payload.toHex(), QByteArray("000000020041fffffffe"));
}

void AppPayloadTest::refusesWhatIsNoPayload()
{
    const QList<Items> commands
        = {{"f(int)", {"seven"}}, {"f(str)", {"a", "b"}}, {"f(float)", {"1"}}, {"f(str", {"a"}}};
    for (const Items &command : commands) {
        QByteArray payload;
        QString fault;
        QVERIFY2(!AppPayload::encode(command.first, command.second, &payload, &fault), qPrintable(command.first));
        QVERIFY(!fault.isEmpty());
    }
    // A length that asks for more than there is must not be believed.
    QCOMPARE(AppPayload::decode("f(str)", QByteArray::fromHex("7fffffff0041")), QVariantList());
    QCOMPARE(AppPayload::decode("f(int,str)", QByteArray::fromHex("000000050000")), QVariantList{5});
    QCOMPARE(AppPayload::decode("f(str)", QByteArray()), QVariantList());
}

QTEST_GUILESS_MAIN(AppPayloadTest)
#include "tst_apppayload.moc"
