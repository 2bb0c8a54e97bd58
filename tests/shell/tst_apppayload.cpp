#include "control/apppayload.h"
#include "testcase.h"

using Items = QPair<QString, QVariantList>; // of a command

class AppPayloadTest : public TestCase
{
    Q_OBJECT

private slots:
    void roundTrips()
    {
        QByteArray payload;
        QString fault;
        for (const Items &command : {Items("ShowPopup", {}), Items("f(str,str)", {"김철수", "0101234"}),
                                     Items("ack(str,int,str)", {"x", 7, ""}), Items("spaced _noti(int)", {3}),
                                     Items("f(str,str)", {"fewer than named"})}) {
            QVERIFY2(AppPayload::encode(command.first, command.second, &payload, &fault), qPrintable(fault));
            QCOMPARE(AppPayload::decode(command.first, payload), command.second);
        }
        QVERIFY(AppPayload::encode("f(str,int)", {"A", -2}, &payload, &fault));
        QCOMPARE(payload.toHex(), QByteArray("000000020041fffffffe"));
    }

    void refusesWhatIsNoPayload()
    {
        for (const Items &command : {Items("f(int)", {"seven"}), Items("f(str)", {"a", "b"}),
                                     Items("f(float)", {"1"}), Items("f(str", {"a"})}) {
            QByteArray payload;
            QString fault;
            QVERIFY2(!AppPayload::encode(command.first, command.second, &payload, &fault),
                     qPrintable(command.first));
            QVERIFY(!fault.isEmpty());
        }
        // A length that asks for more than there is must not be believed.
        QCOMPARE(AppPayload::decode("f(str)", QByteArray::fromHex("7fffffff0041")), QVariantList());
        QCOMPARE(AppPayload::decode("f(int,str)", QByteArray::fromHex("000000050000")), QVariantList{5});
    }
};

QTEST_GUILESS_MAIN(AppPayloadTest)
#include "tst_apppayload.moc"
