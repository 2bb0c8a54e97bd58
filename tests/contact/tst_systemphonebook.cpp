// The system phonebook: the provisioned file, its models, its two screens.

#include "callmanager.h"
#include "contactscreen.h"
#include "initext.h"
#include "phonescript.h"
#include "phonetest.h"
#include "systemphonebook.h"
#include "systemphonebookcategorymodel.h"
#include "systemphonebookdatamodel.h"
#include "systemphonebooklistwidget.h"
#include "systemphonebookview.h"
#include "testmain.h"

#include <QSettings>
#include <QTextCodec>

using namespace PhoneKeys;
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

class SystemPhonebookTest : public PhoneTest
{
    Q_OBJECT

private slots:
    void readsWhatQSettingsReads()
    {
        const QByteArray text
            = "; words\nalone=1\n[General]\nplain =  a b \t\n[Sec %41\\x]\nquoted=\" a ; b "
              "\"\nescaped=\\x41\\101\\n\\\"\\\\\\xe9"
              "\nwide=\\xae40\nbytes=\xb1\xe8\xc3\xb6\nat=@@home\nlong=a\\\n b\nbehind=a ; "
              "words\nempty=\nnoequals\r\n"
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

    void shows_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QStringList>("entries");
        QTest::addColumn<QStringList>("categories");
        const QStringList two{"A|1|X|5", "B|2|x|3"};
        const QStringList twoByIndex{"B 2", "A 1"}, twoCategories{"All (2)", "X (1)", "x (1)"};
        const QByteArray all = phonebook(two);
        const auto row
            = [](const char *name, const QByteArray &file, const QStringList &entries,
                 const QStringList &categories) { QTest::newRow(name) << file << entries << categories; };
        row("by index", all, twoByIndex, twoCategories);
        row("no number", phonebook({"A|1||0", "B||X|1", "C|3||2"}), {"A 1", "C 3"}, {"All (2)", "Unassigned (2)"});
        row("no index", phonebook({"A|1|X", "B|2|X|-4", "C|3|X|1"}), {"C 3"}, {"All (3)", "X (3)"});
        row("same index", phonebook({"A|1|X|1", "B|2|X|1", "D|4||1"}), {"D 4"},
            {"All (2)", "Unassigned (1)", "X (1)"});
        row("count too low", phonebook(two, "Count=1"), {"A 1"}, {"All (1)", "X (1)"});
        row("count huge", phonebook(two, "Count=99999999999999999999999"), twoByIndex, twoCategories);
        row("count negative", phonebook(two, "Count=-2000000000"), {}, {"All (0)"});
        row("count no number", phonebook(two, "Count=many"), {}, {});
        row("index huge", phonebook({"A|1|X|4294967297", "B|2|X|7"}), {"B 2", "A 1"}, {"All (2)", "X (2)"});
        row("cut off", all.left(all.lastIndexOf("Num")), {"A 1"}, {"All (1)", "X (1)"});
        row("other names", QByteArray(all).replace("_001", "_01").replace("_002", "_0002"), {}, {"All (0)"});
    }

    void shows()
    {
        QFETCH(QByteArray, file);
        provision(file);
        QTEST(entriesOf(SystemPhonebook::allKey()), "entries");
        QTEST(categories(), "categories");
    }

    void charsets()
    {
        const QString kim = "김";
        for (const auto &[codec, info, shown] : {std::tuple("EUC-KR", "Charset=EUC-KR", kim),
                                                 {"UTF-8", "", kim},
                                                 {"UTF-8", "Charset=Klingon", QString::fromLatin1(kim.toUtf8())}}) {
            const QByteArray text = phonebook({"김|1|김|1", "김|2||2"}, "Count=2\n" + QByteArray(info));
            provision(QTextCodec::codecForName(codec)->fromUnicode(QString::fromUtf8(text)));
            QCOMPARE(entriesOf(SystemPhonebook::allKey()), QStringList({shown + " 1", shown + " 2"}));
            QCOMPARE(categories(), QStringList({"All (2)", "Unassigned (1)", shown + " (1)"}));
            // The file's own text is what an entry's category is compared with.
            QCOMPARE(entriesOf(shown).size(), shown == kim ? 0 : 1);
            QCOMPARE(entriesOf(SystemPhonebook::unassignedKey()), QStringList{shown + " 2"});
            QCOMPARE(entriesOf(QString()), QStringList());
        }
    }

    void aNewFileCountsAtTheNextLoad()
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

    void pages()
    {
        // How many rows, from which of them with which key to which.
        for (const auto &[count, from, key, to] : {std::tuple(7, 2, Qt::Key_Down, 5),
                                                   {7, 5, Qt::Key_Context4, 0},
                                                   {7, 2, Qt::Key_Up, 5},
                                                   {5000, 4999, Qt::Key_Context3, 4990},
                                                   {3, 2, Qt::Key_Context3, 2},
                                                   {0, 0, Qt::Key_Left, -1}}) {
            provision(people(count));
            auto *view = openList();
            view->setCurrentRow(from);
            click(key);
            QCOMPARE(view->currentIndex().row(), to);
            QCOMPARE(title(), QString("System Phonebook | All (%1/%2)").arg(to + 1).arg(count));
        }
    }

    void callsAlsoTheSecondOfAPage()
    {
        provision(people(7));
        openList();
        const auto dialled = [this](Qt::Key key) {
            click(key);
            return sent().join('\n').remove("CM ui2cm_svc_dialer(int,str,str,str,str,int,int) 0 NORMAL ");
        };
        QCOMPARE(dialled(Qt::Key_Return), QString("1001 Name 1 AUDIO 2 -1"));
        const QString second = "1002 Name 2 AUDIO 2 -1";
        QCOMPARE(dialled(Qt::Key_F2), second);
        QCOMPARE(dialled(Qt::Key_Context2), second);
        m_phone->core.callManager()->setCallState("CONNCECT");
        QCOMPARE(dialled(Qt::Key_Context2), QString());
        QCOMPARE(dialled(Qt::Key_Return), second);
    }

    void commandsCloseIt_data()
    {
        QTest::addColumn<QString>("command");
        QTest::addColumn<QString>("road");
        for (const char *command : {"CloseContact()", "viewContact(str)"}) {
            for (const char *road : {"O", "OG", "OGO", "OGOGEE"}) // open, groups, escape
                QTest::addRow("%s after %s", command, road) << command << road;
        }
    }

    void commandsCloseIt()
    {
        QFETCH(QString, command);
        QFETCH(QString, road);
        provision(people(12));
        ContactScreen contact;
        QVERIFY(contact.open());
        PhoneScript script;
        script.keys({Qt::Key_Down});
        QByteArrayList shown{"Contact"};
        for (const QChar step : road) {
            if (step == 'E')
                shown.removeLast();
            else
                shown.append(step == 'O' ? "SystemPhonebookListWidget" : "SystemPhonebookCategoryWidget");
            script.opens(step == 'E'       ? Qt::Key_Escape
                             : step == 'O' ? Qt::Key_Return
                                           : Qt::Key_Context1,
                         shown.last());
        }
        script.call([&] { m_phone->core.sendAppMsg("contact", command, QByteArray()); });
        if (command.startsWith("view"))
            script.untilActive("DetailsDial").keys({Qt::Key_Escape});
        script.until("all to be closed",
                     [&] { return !contact.app.isVisible() && !QApplication::activeModalWidget(); });
        QCOMPARE(script.run(), QString());
        QVERIFY(!contact.app.findChild<SystemPhonebookListWidget *>());
    }

private:
    SystemPhonebookView *openList()
    {
        open(new SystemPhonebookListWidget(SystemPhonebook::allKey(), nullptr, Qt::WindowFlags()));
        return m_screen->findChild<SystemPhonebookView *>("SystemPhonebookListWidget::mView");
    }
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
};

PHONE_TEST_MAIN(SystemPhonebookTest)
#include "tst_systemphonebook.moc"
