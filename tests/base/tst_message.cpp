#include "message.h"
#include "testcase.h"

#include <array>

static const Message Dial{"CM/UI", "dial(int,str,str)", {-2, QByteArray("01"), QByteArray("")}};

/// The wire between processes: what is written reads back, and nothing else does.
class TestMessage : public TestCase
{
    Q_OBJECT

private slots:
    void layout()
    {
        std::array<char, 64> buffer;
        const int size = message_Make(buffer.data(), 64, "CM/UI", "dial(int,str,str)", -2, "01", "");
        const QByteArray expected("CM/UI\0dial(int,str,str)\0\xff\xff\xff\xfe\0\2\60\61\0\0", 34);
        QCOMPARE(QByteArray(buffer.data(), size), expected);
        QCOMPARE(message_MakeFromValues(Dial), expected);
        Message message;
        QVERIFY(message_Parse(buffer.data(), size, &message));
        QCOMPARE(message.address, Dial.address);
        QCOMPARE(message.signature, Dial.signature);
        QCOMPARE(message.arguments, Dial.arguments);
    }

    void signatures()
    {
        QList<QByteArray> kinds;
        for (const auto &[good, count] :
             {std::pair("closeAll()", 0), {"ShowPopup", 0}, {"wpsm2ui _noti(int)", 1}, {"f(int,str,int)", 3}}) {
            QVERIFY2(message_ArgumentKinds(good, &kinds), good);
            QCOMPARE(kinds.size(), count);
        }
        for (const char *bad :
             {"", "(int)", "f(bool)", "f(int, str)", "f(int,)", "f(int", "f(int))", "f(int)x", "f)", "f(,int)"})
            QVERIFY2(!message_ArgumentKinds(bad, &kinds), bad);
    }

    void limits()
    {
        const int size = message_MakeFromValues(Dial).size();
        std::array<char, 0x11000> buffer;
        const auto make = [&](int room) {
            return message_Make(buffer.data(), room, "CM/UI", "dial(int,str,str)", -2, "01", "");
        };
        QCOMPARE(make(size), size);
        buffer.fill('x');
        QCOMPARE(make(size - 1), 0);
        QCOMPARE(buffer[0], 'x');
        QCOMPARE(make(0), 0);
        QCOMPARE(message_Make(buffer.data(), 64, "CM/UI", "f(str)", static_cast<const char *>(nullptr)), 0);
        QCOMPARE(message_Make(buffer.data(), 64, nullptr, "f()"), 0);
        const auto makeText = [&](int length) {
            return message_Make(buffer.data(), int(buffer.size()), "A", "f(str)",
                                QByteArray(length, 'a').constData());
        };
        QCOMPARE(makeText(0xffff), 2 + 7 + 2 + 0xffff);
        QCOMPARE(makeText(0x10000), 0);
        QVERIFY(message_MakeFromValues({"A", "f(int)", {QByteArray("1")}}).isEmpty());
        QVERIFY(message_MakeFromValues({"A", "f(int)", {}}).isEmpty());
        QVERIFY(message_MakeFromValues({QByteArray("A\0B", 3), "f()", {}}).isEmpty());
        QVERIFY(message_MakeFromValues({"A", "f(str)", {QByteArray("a\0b", 3)}}).isEmpty());
    }

    void broken()
    {
        const QByteArray whole = message_MakeFromValues(Dial);
        QList<QByteArray> faults{whole + 'x', QByteArray(40, '\xff'), QByteArray(40, '\0'),
                                 QByteArray("CM/UI\0f(bool)\0\0\0\0\1", 18),
                                 QByteArray("A\0f(str)\0\xff\xff\60\61", 13)}; // a length beyond the end
        for (int size = 0; size < whole.size(); ++size)
            faults.append(whole.left(size));
        Message message{"kept", "f()", {}};
        for (const QByteArray &fault : qAsConst(faults))
            QVERIFY2(!message_Parse(fault.constData(), fault.size(), &message), fault.toHex().constData());
        QCOMPARE(message.address, QByteArray("kept"));
    }
};

QTEST_GUILESS_MAIN(TestMessage)
#include "tst_message.moc"
