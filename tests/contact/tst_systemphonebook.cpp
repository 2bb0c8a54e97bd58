// The system phonebook: the provisioned file, its models, its two screens.

#include "callmanager.h"
#include "contactscreen.h"
#include "initext.h"
#include "phonescript.h"
#include "systemphonebook.h"
#include "systemphonebookcategorymodel.h"
#include "systemphonebookdatamodel.h"
#include "systemphonebooklistwidget.h"
#include "systemphonebookview.h"
#include "testcase.h"
#include "testmain.h"
#include "testphone.h"

#include <QSettings>
#include <QTextCodec>
#include <QUdpSocket>

#include <memory>

using Parts = QStringList;
static const char fileName[] = "config/phonebook.conf";

/// A file of entries, each given as name, number, category and index with "|" between; what is left out is not
/// there.
static QByteArray phonebook(const QStringList &entries, const QByteArray &info = QByteArray())
{
    static const char *const fields[] = {"Name", "Num", "Category", "Index"};
    QByteArray text = "[Info]\n" + (info.isEmpty() ? "Count=" + QByteArray::number(entries.size()) : info) + '\n';
    for (int i = 0; i < entries.size(); ++i) {
        text += QString("[Contact_%1]\n").arg(i + 1, 3, 10, QChar('0')).toUtf8();
        const QStringList values = entries.at(i).split('|');
        for (int field = 0; field < values.size(); ++field)
            text += fields[field] + QByteArray("=") + values.at(field).toUtf8() + '\n';
    }
    return text;
}

static QByteArray people(int count)
{
    QStringList entries;
    for (int i = 1; i <= count; ++i)
        entries.append(QString("Name %1| %2 |%3|%4").arg(i).arg(1000 + i).arg(i % 3 ? "Sales" : "").arg(i * 2));
    return phonebook(entries);
}

class SystemPhonebookTest : public TestCase
{
    Q_OBJECT

    void setUp() override { m_phone.reset(new TestPhone); }
    void tearDown() override { m_phone.reset(); }

private slots:
    void readsWhatQSettingsReads();
    void valuesAreText_data();
    void valuesAreText();
    void shows_data();
    void shows();
    void charsets_data();
    void charsets();
    void aNewFileCountsAtTheNextLoad();
    void pages_data();
    void pages();
    void callsAlsoTheSecondOfAPage();
    void commandsCloseIt_data();
    void commandsCloseIt();

private:
    void provision(const QByteArray &text) { m_phone->writeFile(fileName, text); }
    /// The entries of a category, each as name and number.
    static QStringList entriesOf(const QString &category)
    {
        const SystemPhonebookDataModel model(category, nullptr);
        QStringList texts;
        for (int row = 0; row < model.rowCount(); ++row)
            texts.append(model.getName(row) + ' ' + model.getNumber(row));
        return texts;
    }
    static QStringList categories()
    {
        const SystemPhonebookCategoryModel model(nullptr);
        QStringList texts;
        for (int row = 0; row < model.rowCount(); ++row)
            texts.append(model.index(row).data().toString());
        return texts;
    }

    std::unique_ptr<TestPhone> m_phone;
};

void SystemPhonebookTest::readsWhatQSettingsReads()
{
    const QByteArray text
        = "; words\nalone=1\n[General]\nplain =  a b \t\n[Sec %41\\x]\nquoted=\" a ; b "
          "\"\nescaped=\\x41\\101\\n\\\"\\\\\\xe9"
          "\nwide=\\xae40\nbytes=\xb1\xe8\xc3\xb6\nat=@@home\nlong=a\\\n b\nbehind=a ; words\nempty=\nnoequals\r\n"
          "twice=1\ntwice=2\n[%general]\nkey%20two=\"a\" \"b\"\n[open\nhex=\\x\n[Sec %41\\x]\nagain=\\0\\q1";
    provision(text);
    const QSettings settings(m_phone->home.path(fileName), QSettings::IniFormat);
    QMap<QString, QString> expected, read;
    for (const QString &key : settings.allKeys())
        expected[key] = settings.value(key).toString();
    IniText::read(text, [&read](const QString &key, const QString &value) { read[key] = value; });
    QVERIFY(expected.size() >= 14);
    QCOMPARE(read, expected);
}

void SystemPhonebookTest::valuesAreText_data()
{
    QTest::addColumn<QString>("written");
    QTest::addColumn<QString>("read");
    const QStringList asTheyAre{"Kim, Chul",      "a,b", "@Variant(\\0\\0\\0\\x7f)", "@Invalid()", "@ByteArray(a)",
                                "@Rect(1 2 3 4)", "@"};
    for (const QString &text : asTheyAre)
        QTest::newRow(qPrintable(text))
            << text << QString(text).replace("\\0", QChar(0)).replace("\\x7f", QChar(0x7f));
    QTest::newRow("quoted list") << "\"Kim\", \"Chul\""
                                 << "Kim, Chul";
    QTest::newRow("open quote") << "Kim 19\""
                                << "Kim 19";
}

void SystemPhonebookTest::valuesAreText()
{
    QFETCH(QString, written);
    QStringList values;
    const QByteArray text = "name=" + written.toLatin1() + "\nnext=1";
    IniText::read(text, [&](const QString &, const QString &value) { values.append(value); });
    QTEST(values.value(0), "read");
    QCOMPARE(values.value(1), QString("1"));
}

void SystemPhonebookTest::shows_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QStringList>("entries");
    QTest::addColumn<QStringList>("categories");
    const QStringList two{"A|1|X|5", "B|2|x|3"};
    const Parts twoByIndex{"B 2", "A 1"}, twoCategories{"All (2)", "X (1)", "x (1)"};
    const QByteArray all = phonebook(two);
    QTest::newRow("by index") << all << twoByIndex << twoCategories;
    QTest::newRow("no number") << phonebook({"A|1||0", "B||X|1", "C|3||2"}) << Parts{"A 1", "C 3"}
                               << Parts{"All (2)", "Unassigned (2)"};
    QTest::newRow("no index") << phonebook({"A|1|X", "B|2|X|-4", "C|3|X|1"}) << Parts{"C 3"}
                              << Parts{"All (3)", "X (3)"};
    QTest::newRow("same index") << phonebook({"A|1|X|1", "B|2|X|1", "C|3|Y|1", "D|4||1", "E|5||1"}) << Parts{"E 5"}
                                << Parts{"All (4)", "Unassigned (2)", "X (1)", "Y (1)"};
    QTest::newRow("count too low") << phonebook(two, "Count=1") << Parts{"A 1"} << Parts{"All (1)", "X (1)"};
    QTest::newRow("count huge") << phonebook(two, "Count=99999999999999999999999") << twoByIndex << twoCategories;
    QTest::newRow("count negative") << phonebook(two, "Count=-2000000000") << Parts{} << Parts{"All (0)"};
    QTest::newRow("count no number") << phonebook(two, "Count=many") << Parts{} << Parts{};
    QTest::newRow("index huge") << phonebook({"A|1|X|4294967297", "B|2|X|7"}) << Parts{"B 2", "A 1"}
                                << Parts{"All (2)", "X (2)"};
    QTest::newRow("cut off") << all.left(all.lastIndexOf("Num")) << Parts{"A 1"} << Parts{"All (1)", "X (1)"};
    QTest::newRow("other names") << QByteArray(all).replace("_001", "_01").replace("_002", "_0002") << Parts{}
                                 << Parts{"All (0)"};
    QTest::newRow("zeros") << "[Info]\nCount=5\n" + QByteArray(4000, '\0') + "[Contact_001\nName=\nNum=" << Parts{}
                           << Parts{"All (0)"};
}

void SystemPhonebookTest::shows()
{
    QFETCH(QByteArray, file);
    provision(file);
    QTEST(entriesOf(SystemPhonebook::allKey()), "entries");
    QTEST(categories(), "categories");
}

void SystemPhonebookTest::charsets_data()
{
    QTest::addColumn<QByteArray>("codec");
    QTest::addColumn<QByteArray>("info");
    QTest::addColumn<QString>("shown");
    const QString kim = "김";
    QTest::newRow("EUC-KR") << QByteArray("EUC-KR") << QByteArray("Charset=EUC-KR") << kim;
    QTest::newRow("UTF-8") << QByteArray("UTF-8") << QByteArray("Charset=UTF-8") << kim;
    QTest::newRow("the phone's") << QByteArray("UTF-8") << QByteArray() << kim;
    QTest::newRow("unknown") << QByteArray("UTF-8") << QByteArray("Charset=Klingon")
                             << QString::fromLatin1(kim.toUtf8());
}

void SystemPhonebookTest::charsets()
{
    QFETCH(QByteArray, codec);
    QFETCH(QByteArray, info);
    QFETCH(QString, shown);
    const QByteArray text = phonebook({"김|1|김|1", "김|2||2"}, "Count=2\n" + info);
    provision(QTextCodec::codecForName(codec)->fromUnicode(QString::fromUtf8(text)));
    QCOMPARE(entriesOf(SystemPhonebook::allKey()), QStringList({shown + " 1", shown + " 2"}));
    QCOMPARE(categories(), QStringList({"All (2)", "Unassigned (1)", shown + " (1)"}));
    // The file's own text is what an entry's category is compared with.
    const bool isDecoded = shown.size() == 1;
    QCOMPARE(entriesOf(shown).size(), isDecoded ? 0 : 1);
    QCOMPARE(entriesOf(SystemPhonebook::unassignedKey()), QStringList{shown + " 2"});
    QCOMPARE(entriesOf(QString()), QStringList());
}

void SystemPhonebookTest::aNewFileCountsAtTheNextLoad()
{
    provision(phonebook({"A|1||0", "B|2|X|1"}));
    SystemPhonebookDataModel model("X", nullptr);
    provision(phonebook({"A|1||0", "C|3|X|1"}));
    QCOMPARE(model.getName(0), QString("B"));
    model.setCategory(SystemPhonebook::allKey());
    QCOMPARE(model.getName(1), QString("C"));
    QCOMPARE(model.getName(7), QString("A")); // past the end stands index 0
    model.reset();
    QCOMPARE(model.getName(0), QString("C"));
    QVERIFY(QFile::remove(m_phone->home.path(fileName)));
    model.reset();
    QCOMPARE(model.rowCount(), 0);
    QVERIFY(model.getName(0).isNull());
}

void SystemPhonebookTest::pages_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("to");
    QTest::newRow("on") << 7 << 2 << int(Qt::Key_Down) << 5;
    QTest::newRow("on around the end") << 7 << 5 << int(Qt::Key_Context4) << 0;
    QTest::newRow("back around the start") << 7 << 2 << int(Qt::Key_Up) << 5;
    QTest::newRow("back") << 5000 << 4999 << int(Qt::Key_Context3) << 4990;
    QTest::newRow("no page keys") << 3 << 2 << int(Qt::Key_Context3) << 2;
    QTest::newRow("no rows") << 0 << 0 << int(Qt::Key_Left) << -1;
}

void SystemPhonebookTest::pages()
{
    QFETCH(int, rows);
    QFETCH(int, from);
    QFETCH(int, key);
    provision(people(rows));
    SystemPhonebookListWidget screen(SystemPhonebook::allKey(), nullptr, Qt::WindowFlags());
    QVERIFY(PhoneKeys::showAndActivate(&screen));
    auto *view = screen.findChild<SystemPhonebookView *>("SystemPhonebookListWidget::mView");
    view->setCurrentRow(from);
    PhoneKeys::click(static_cast<Qt::Key>(key));
    QTEST(view->currentIndex().row(), "to");
    QCOMPARE(m_phone->status.title(),
             QString("System Phonebook | All (%1/%2)").arg(view->currentIndex().row() + 1).arg(rows));
    TestScreen::shot(QString("systemphonebook-%1-%2").arg(rows).arg(from));
}

void SystemPhonebookTest::callsAlsoTheSecondOfAPage()
{
    QUdpSocket callManager;
    QVERIFY(callManager.bind(QHostAddress::LocalHost));
    m_phone->writeFile("config/ipc.conf", "[CM]\nPort=" + QByteArray::number(callManager.localPort()));
    provision(people(7));
    SystemPhonebookListWidget screen(SystemPhonebook::allKey(), nullptr, Qt::WindowFlags());
    QVERIFY(PhoneKeys::showAndActivate(&screen));
    const auto dialled = [&callManager](Qt::Key key) {
        PhoneKeys::click(key);
        QByteArray request(1000, '\0');
        if (callManager.waitForReadyRead(100))
            callManager.readDatagram(request.data(), request.size());
        return request;
    };
    QVERIFY(dialled(Qt::Key_Return)
                .contains(QByteArray("\0\4"
                                     "1001\0\6Name 1",
                                     14)));
    QVERIFY(dialled(Qt::Key_F2).contains("1002"));
    QVERIFY(dialled(Qt::Key_Context2).contains("1002"));
    m_phone->core.callManager()->setCallState("CONNCECT");
    QVERIFY(!dialled(Qt::Key_Context2).contains("1002"));
    QVERIFY(dialled(Qt::Key_Return).contains("1002"));
}

void SystemPhonebookTest::commandsCloseIt_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QList<int>>("keys");
    const int ok = Qt::Key_Return, groups = Qt::Key_Context1, escape = Qt::Key_Escape;
    for (const char *command : {"CloseContact()", "viewContact(str)"}) {
        QTest::addRow("list, %s", command) << command << QList<int>{ok};
        QTest::addRow("categories, %s", command) << command << QList<int>{ok, groups};
        QTest::addRow("category, %s", command) << command << QList<int>{ok, groups, ok};
        QTest::addRow("back again, %s", command) << command << QList<int>{ok, groups, ok, groups, escape, escape};
    }
}

void SystemPhonebookTest::commandsCloseIt()
{
    QFETCH(QString, command);
    QFETCH(QList<int>, keys);
    provision(people(12));
    ContactScreen contact;
    QVERIFY(contact.open());
    PhoneScript script;
    script.keys({Qt::Key_Down});
    QByteArrayList shown{"Contact"};
    for (const int key : qAsConst(keys)) {
        if (key == Qt::Key_Escape)
            shown.removeLast();
        else
            shown.append(key == Qt::Key_Return ? "SystemPhonebookListWidget" : "SystemPhonebookCategoryWidget");
        script.keys({key}).untilActive(shown.last());
    }
    script.call([&] { TestScreen::shot("systemphonebook-" + shown.last()); });
    script.call([&] { m_phone->core.sendAppMsg("contact", command, QByteArray()); });
    if (command.startsWith("view"))
        script.untilActive("DetailsDial").keys({Qt::Key_Escape});
    script.until("all to be closed",
                 [&] { return !contact.app.isVisible() && !QApplication::activeModalWidget(); });
    QCOMPARE(script.run(), QString());
    QVERIFY(!contact.app.findChild<SystemPhonebookListWidget *>());
}

PHONE_TEST_MAIN(SystemPhonebookTest)
#include "tst_systemphonebook.moc"
