#include "apppayload.h"
#include "testcase.h"
#include "testmain.h"

class AppPayloadTest : public TestCase
{
    Q_OBJECT

private slots:
    void writesTheWire();
    void roundTrips_data();
    void roundTrips();
    void refuses_data();
    void refuses();
    void readsShortPayloadsAsFarAsTheyGo();
};

void AppPayloadTest::writesTheWire()
{
    QByteArray payload;
    QString fault;
    QVERIFY(AppPayload::encode("f(str,int)", {"A", -2}, &payload, &fault));
    QCOMPARE(payload.toHex(), QByteArray("000000020041fffffffe"));
}

void AppPayloadTest::roundTrips_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QVariantList>("items");
    QTest::newRow("no parentheses") << "ShowPopup" << QVariantList();
    QTest::newRow("no arguments") << "CloseContact()" << QVariantList();
    QTest::newRow("texts") << "searchContactResult(str,str)"
                           << QVariantList{QString::fromUtf8("김철수"), QString("0101234")};
    QTest::newRow("mixed") << "wpsm2ui_contact_picture_ack(str,int,str)" << QVariantList{"x", 7, ""};
    QTest::newRow("a blank in the name") << "wpsm2ui _noti_contact_changed(int)" << QVariantList{3};
    QTest::newRow("fewer than named") << "f(str,str)" << QVariantList{"one"};
}

void AppPayloadTest::roundTrips()
{
    QFETCH(QString, command);
    QFETCH(QVariantList, items);
    QByteArray payload;
    QString fault;
    QVERIFY2(AppPayload::encode(command, items, &payload, &fault), qPrintable(fault));
    QCOMPARE(AppPayload::decode(command, payload), items);
}

void AppPayloadTest::refuses_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QVariantList>("items");
    QTest::newRow("no number") << "f(int)" << QVariantList{"seven"};
    QTest::newRow("too many") << "f(str)" << QVariantList{"a", "b"};
    QTest::newRow("an unknown kind") << "f(float)" << QVariantList{"1"};
    QTest::newRow("no closing parenthesis") << "f(str" << QVariantList{"a"};
}

void AppPayloadTest::refuses()
{
    QFETCH(QString, command);
    QFETCH(QVariantList, items);
    QByteArray payload("before");
    QString fault;
    QVERIFY(!AppPayload::encode(command, items, &payload, &fault));
    QVERIFY(!fault.isEmpty());
}

void AppPayloadTest::readsShortPayloadsAsFarAsTheyGo()
{
    // A length that asks for more than there is must not be believed.
    QCOMPARE(AppPayload::decode("f(str)", QByteArray::fromHex("7fffffff0041")), QVariantList());
    QCOMPARE(AppPayload::decode("f(int,str)", QByteArray::fromHex("000000050000")), QVariantList{5});
    QCOMPARE(AppPayload::decode("f(str)", QByteArray()), QVariantList());
}

PHONE_TEST_MAIN(AppPayloadTest)
#include "tst_apppayload.moc"
