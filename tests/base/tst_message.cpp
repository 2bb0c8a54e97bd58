#include "message.h"
#include "testcase.h"

#include <array>

/// The wire between processes: what is written reads back, and nothing else does.
class TestMessage : public TestCase
{
    Q_OBJECT

private slots:
    void layout();
    void signatures_data();
    void signatures();
    void limits();
    void broken_data();
    void broken();
    void observer();
};

static QByteArray dialMessage()
{
    return message_MakeFromValues({"CM/UI", "dial(int,str,str)", {-2, QByteArray("01"), QByteArray("")}});
}

void TestMessage::layout()
{
    std::array<char, 64> buffer;
    const int size = message_Make(buffer.data(), 64, "CM/UI", "dial(int,str,str)", -2, "01", "");
    const QByteArray expected("CM/UI\0dial(int,str,str)\0\xff\xff\xff\xfe\0\2"
                              "01\0\0",
                              34);
    QCOMPARE(QByteArray(buffer.data(), size), expected);
    QCOMPARE(dialMessage(), expected);

    Message message;
    QVERIFY(message_Parse(buffer.data(), size, &message));
    QCOMPARE(message.address, QByteArray("CM/UI"));
    QCOMPARE(message.signature, QByteArray("dial(int,str,str)"));
    QCOMPARE(message.arguments, QVariantList({-2, QByteArray("01"), QByteArray("")}));
}

void TestMessage::signatures_data()
{
    QTest::addColumn<QByteArray>("signature");
    QTest::addColumn<int>("count"); // -1: no signature
    QTest::newRow("none") << QByteArray("closeAll()") << 0;
    QTest::newRow("no parentheses") << QByteArray("ShowPopup") << 0;
    QTest::newRow("blank inside") << QByteArray("wpsm2ui _noti(int)") << 1;
    QTest::newRow("many") << QByteArray("f(int,str,int)") << 3;
    QTest::newRow("empty") << QByteArray("") << -1;
    QTest::newRow("no name") << QByteArray("(int)") << -1;
    QTest::newRow("unknown kind") << QByteArray("f(bool)") << -1;
    QTest::newRow("blank before a kind") << QByteArray("f(int, str)") << -1;
    QTest::newRow("empty kind") << QByteArray("f(int,)") << -1;
    QTest::newRow("open") << QByteArray("f(int") << -1;
    QTest::newRow("closed twice") << QByteArray("f(int))") << -1;
    QTest::newRow("text behind") << QByteArray("f(int)x") << -1;
    QTest::newRow("only closed") << QByteArray("f)") << -1;
}

void TestMessage::signatures()
{
    QFETCH(QByteArray, signature);
    QFETCH(int, count);
    QList<QByteArray> kinds;
    QCOMPARE(message_ArgumentKinds(signature, &kinds), count >= 0);
    QCOMPARE(kinds.size(), qMax(count, 0));
}

void TestMessage::limits()
{
    const int size = dialMessage().size();
    std::array<char, 0x11000> buffer;
    const auto make
        = [&](int room) { return message_Make(buffer.data(), room, "CM/UI", "dial(int,str,str)", -2, "01", ""); };
    QCOMPARE(make(size), size);
    buffer.fill('x');
    QCOMPARE(make(size - 1), 0);
    QCOMPARE(buffer[0], 'x');
    QCOMPARE(make(0), 0);
    QCOMPARE(message_Make(buffer.data(), 64, "CM/UI", "f(str)", static_cast<const char *>(nullptr)), 0);
    QCOMPARE(message_Make(buffer.data(), 64, nullptr, "f()"), 0);

    const int room = static_cast<int>(buffer.size());
    QCOMPARE(message_Make(buffer.data(), room, "A", "f(str)", QByteArray(0xffff, 'a').constData()),
             2 + 7 + 2 + 0xffff);
    QCOMPARE(message_Make(buffer.data(), room, "A", "f(str)", QByteArray(0x10000, 'a').constData()), 0);

    QVERIFY(message_MakeFromValues({"A", "f(int)", {QByteArray("1")}}).isEmpty());
    QVERIFY(message_MakeFromValues({"A", "f(int)", {}}).isEmpty());
    QVERIFY(message_MakeFromValues({QByteArray("A\0B", 3), "f()", {}}).isEmpty());
}

void TestMessage::broken_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray whole = dialMessage();
    for (int size = 0; size < whole.size(); ++size)
        QTest::addRow("cut at %d", size) << whole.left(size);
    QTest::newRow("one byte more") << whole + 'x';
    QTest::newRow("no text at all") << QByteArray(40, '\xff');
    QTest::newRow("only zeros") << QByteArray(40, '\0');
    QTest::newRow("unknown kind") << QByteArray("CM/UI\0f(bool)\0\0\0\0\1", 18);
    QTest::newRow("length beyond the end") << QByteArray("A\0f(str)\0\xff\xff"
                                                         "ab",
                                                         13);
}

void TestMessage::broken()
{
    QFETCH(QByteArray, bytes);
    Message message{"kept", "f()", {}};
    QVERIFY(!message_Parse(bytes.constData(), bytes.size(), &message));
    QCOMPARE(message.address, QByteArray("kept"));
}

void TestMessage::observer()
{
    QList<Message> heard;
    message_SetObserver([&](const Message &message) { heard.append(message); });
    std::array<char, 32> buffer;
    message_Make(buffer.data(), 32, "XCID/UI", "get(str)", "http");
    message_Make(buffer.data(), 4, "XCID/UI", "get(str)", "http");
    message_SetObserver({});
    message_Make(buffer.data(), 32, "XCID/UI", "get(str)", "later");
    QCOMPARE(heard.size(), 1);
    QCOMPARE(heard.first().arguments, QVariantList({QByteArray("http")}));
}

QTEST_GUILESS_MAIN(TestMessage)
#include "tst_message.moc"
