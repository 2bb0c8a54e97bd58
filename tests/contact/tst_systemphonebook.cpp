// The system phonebook: the provisioned file, its models, its two screens.

#include "callmanager.h"
#include "contactscreen.h"
#include "initext.h"
#include "phonetest.h"
#include "systemphonebook.h"
#include "systemphonebookcategorymodel.h"
#include "systemphonebookdatamodel.h"
#include "systemphonebooklistwidget.h"
#include "systemphonebookview.h"

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
            = "; words\nalone=1\n[General]\nplain =  a b \t\n[Sec %41\\x]\nquoted=\" a ; b \"\nwide=\\xae40\n"
              "escaped=\\x41\\101\\n\\\"\\\\\\xe9\nbytes=\xb1\xe8\xc3\xb6\nat=@@home\nlong=a\\\n b\nempty=\n"
              "behind=a ; words\nnoequals\r\ntwice=1\ntwice=2\n[%general]\nkey%20two=\"a\" \"b\"\n[open\nhex=\\x\n"
              "[Sec %41\\x]\nagain=\\0\\q1";
        provision(text);
        const QSettings settings(m_phone->home.path(fileName), QSettings::IniFormat);
        QMap<QString, QString> expected, read;
        for (const QString &key : settings.allKeys())
            expected[key] = settings.value(key).toString();
        IniText::read(text, [&read](const QString &key, const QString &value) { read[key] = value; });
        QVERIFY(expected.size() >= 14);
        QCOMPARE(read, expected);
    }

    void shows()
    {
        const QStringList two{"A|1|X|5", "B|2|x|3"}, none;
        const QStringList twoByIndex{"B 2", "A 1"}, twoCategories{"All (2)", "X (1)", "x (1)"};
        const QByteArray all = phonebook(two), cutOff = all.left(all.lastIndexOf("Num"));
        // A file, its entries by index, and its categories; the count stays in its bounds, the sections have names.
        const QList<std::tuple<QByteArray, QStringList, QStringList>> files
            = {{all, twoByIndex, twoCategories},
               {phonebook({"A|1||0", "B||X|1", "C|3||2"}), {"A 1", "C 3"}, {"All (2)", "Unassigned (2)"}},
               {phonebook({"A|1|X", "B|2|X|-4", "C|3|X|1"}), {"C 3"}, {"All (3)", "X (3)"}},
               {phonebook({"A|1|X|1", "B|2|X|1", "D|4||1"}), {"D 4"}, {"All (2)", "Unassigned (1)", "X (1)"}},
               {phonebook({"A|1|X|4294967297", "B|2|X|7"}), {"B 2", "A 1"}, {"All (2)", "X (2)"}},
               {phonebook(two, "Count=1"), {"A 1"}, {"All (1)", "X (1)"}},
               {phonebook(two, "Count=99999999999999999999999"), twoByIndex, twoCategories},
               {phonebook(two, "Count=-2000000000"), none, {"All (0)"}},
               {phonebook(two, "Count=many"), none, none},
               {cutOff, {"A 1"}, {"All (1)", "X (1)"}},
               {QByteArray(all).replace("_001", "_01").replace("_002", "_0002"), none, {"All (0)"}}};
        for (const auto &[file, entries, groups] : files) {
            provision(file);
            QVERIFY2(entriesOf(SystemPhonebook::allKey()) == entries && categories() == groups, file);
        }
    }

    void charsets()
    {
        const QString kim = "김", misread = QString::fromLatin1(kim.toUtf8());
        for (const auto &[codec, info, shown] :
             {std::tuple("EUC-KR", "Charset=EUC-KR", kim), {"UTF-8", "Charset=Klingon", misread}}) {
            const QByteArray text = phonebook({"김|1|김|1", "김|2||2"}, "Count=2\n" + QByteArray(info));
            provision(QTextCodec::codecForName(codec)->fromUnicode(QString::fromUtf8(text)));
            QCOMPARE(entriesOf(SystemPhonebook::allKey()), QStringList({shown + " 1", shown + " 2"}));
            QCOMPARE(categories(), QStringList({"All (2)", "Unassigned (1)", shown + " (1)"}));
            // The file's own text is what an entry's category is compared with.
            QCOMPARE(entriesOf(shown).size(), shown == kim ? 0 : 1);
            QCOMPARE(entriesOf(SystemPhonebook::unassignedKey()), QStringList{shown + " 2"});
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
        QVERIFY(QFile::remove(m_phone->home.path(fileName)));
        model.reset();
        QVERIFY(model.rowCount() == 0 && model.getName(0).isNull());
    }

    void pages()
    {
        // How many rows, from which of them with which key to which.
        const QList<std::tuple<int, int, Qt::Key, int>> cases
            = {{7, 2, Qt::Key_Down, 5},     {7, 5, Qt::Key_Context4, 0},
               {7, 2, Qt::Key_Up, 5},       {5000, 4999, Qt::Key_Context3, 4990},
               {3, 2, Qt::Key_Context3, 2}, {0, 0, Qt::Key_Left, -1}};
        for (const auto &[count, from, key, to] : cases) {
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
        const QList<QPair<Qt::Key, QString>> keys
            = {{Qt::Key_Return, "1001 Name 1"}, {Qt::Key_F2, "1002 Name 2"}, {Qt::Key_Context2, "1002 Name 2"}};
        for (const auto &[key, person] : keys) {
            click(key);
            QCOMPARE(sent().join('\n').section(" NORMAL ", 1), person + " AUDIO 2 -1");
        }
        m_phone->core.callManager()->setCallState("CONNCECT");
        click(Qt::Key_Context2);
        QCOMPARE(sent(), QStringList());
    }

    void commandsCloseIt()
    {
        const QByteArray list = "SystemPhonebookListWidget", groups = "SystemPhonebookCategoryWidget";
        const QList<QPair<int, QByteArray>> road
            = {{Qt::Key_Return, list},     {Qt::Key_Context1, groups}, {Qt::Key_Return, list},
               {Qt::Key_Context1, groups}, {Qt::Key_Escape, list},     {Qt::Key_Escape, groups}};
        provision(people(12));
        for (const int depth : {1, 2, 3, 6}) {
            for (const char *command : {"CloseContact()", "viewContact(str)"}) {
                ContactScreen contact;
                QVERIFY(contact.open());
                PhoneScript script;
                script.keys({Qt::Key_Down});
                for (const auto &[key, screen] : road.mid(0, depth))
                    script.opens(key, screen);
                script.call([&] { m_phone->core.sendAppMsg("contact", command, QByteArray()); });
                if (*command == 'v')
                    script.untilActive("DetailsDial").keys({Qt::Key_Escape});
                script.until("all to close", [] { return !QApplication::activeWindow(); });
                QCOMPARE(script.run(), QString());
                QVERIFY(!contact.app.isVisible() && !contact.app.findChild<SystemPhonebookListWidget *>());
            }
        }
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
