// The local search: what is found, what picking it does, and commands that come in the middle.

#include "contactmanager.h"
#include "contactscreen.h"
#include "listviewsearchitem.h"
#include "phonekey.h"
#include "phonescript.h"
#include "searchall.h"
#include "searchlineedit.h"
#include "testcase.h"
#include "testmain.h"
#include "testphone.h"
#include "wpsmcontactmanager.h"

#include <QLabel>
#include <QLineEdit>

#include <memory>

using namespace PhoneKeys;

class SearchAllTest : public TestCase
{
    Q_OBJECT

    void setUp() override
    {
        m_phone.reset(new TestPhone);
        m_phone->addContact("Kim Lee", {"0211", "", "0233"});
        m_phone->addContact("Müller", {"555"});
        m_phone->addContact("김철수", {"010"});
        m_phone->addContact("Пётр", {"7"});
        m_phone->addContact("Işık \"50%\" \\", {"8"});
        m_phone->addContact("No First", {"", "0299"});
        m_phone->addContact("Ten", {"91", "92", "93", "94", "95", "96", "97", "98", "99", "90"});
    }
    void tearDown() override
    {
        m_search.reset();
        m_contacts.reset();
        m_phone.reset();
    }

private slots:
    void words_data();
    void words();
    void sameNameOnBoth();
    void focusMoves();
    void detailsAndBack();
    void picks_data();
    void picks();
    void commandsInTheMiddle_data();
    void commandsInTheMiddle();

private:
    void open(int mode = SearchAll::ViewMode, const QString &number = QString())
    {
        m_search.reset(new SearchAll(nullptr, mode, number));
        QVERIFY(showAndActivate(m_search.get()));
    }
    ListView *list() const { return m_search->findChild<ListView *>("SearchAll::m_listView"); }
    QString line() const { return m_search->getSearchWord(); }
    bool lineHasFocus() const { return m_search->findChild<QLineEdit *>()->hasFocus(); }
    QString callKey() const { return m_search->findChild<Tail *>()->funcButtonText(1); }
    QStringList rows() const
    {
        QStringList texts;
        for (int i = 0; i < list()->itemSize(); ++i) {
            auto *row = dynamic_cast<ListViewSearchItem *>(list()->item(i));
            texts.append(QString("%1 %2:%3").arg(row->text()).arg(row->getTelIndex()).arg(row->getTelnumval()));
        }
        return texts;
    }

    std::unique_ptr<TestPhone> m_phone;
    std::unique_ptr<SearchAll> m_search;
    std::unique_ptr<ContactScreen> m_contacts;
};

void SearchAllTest::words_data()
{
    QTest::addColumn<QString>("word");
    QTest::addColumn<QStringList>("found");
    const QStringList kim{"Kim Lee 1:0211", "Kim Lee 3:0233"}, mueller{"Müller 1:555"}, chulsoo{"김철수 1:010"};
    const QStringList isik{"Işık \"50%\" \\ 1:8"}, pyotr{"Пётр 1:7"};
    const QList<QPair<QStringList, QStringList>> table
        = {{{"kim", "KIM", "m l", "kl", "lEe"}, kim},
           {{"233"}, {"Kim Lee 3:0233"}},
           {{"müll", "MUL", "55"}, mueller},
           {{"철", "처", "김ㅊ", "ㄱㅊㅅ", "ㅊㅅ"}, chulsoo},
           {{"петр", "ПЁ"}, pyotr},
           {{"isik", "ışık", "IŞI", "50%", "\"", "\\"}, isik},
           {{"96"}, {"Ten 6:96"}},
           {{"0299", "no f", "zz", "_", "'", "%%", " 8", "% \\"}, {}}};
    for (const auto &entry : table) {
        for (const QString &word : entry.first)
            QTest::newRow(qPrintable(word)) << word << entry.second;
    }
}

void SearchAllTest::words()
{
    QFETCH(QString, word);
    QFETCH(QStringList, found);
    open();
    QCOMPARE(list()->itemSize(), 16); // every number of everybody who has a first one
    PhoneKey::postText(word);
    QTRY_COMPARE(line(), word);
    QCOMPARE(rows(), found);
    QCOMPARE(list()->isVisible(), !found.isEmpty());
    QCOMPARE(m_search->findChild<QLabel *>("SearchAll::m_noResultLabel")->isVisible(), found.isEmpty());
    m_search->tailFuncButtonLongPressed(2);
    QCOMPARE(list()->itemSize(), 16);
}

void SearchAllTest::sameNameOnBoth()
{
    m_phone->addContact("Kim Lee", {"1"});
    m_phone->connectMobile({"Kim Lee"});
    m_phone->core.wpsmContactManager()->readWpsmConfigFile();
    open();
    PhoneKey::postText("kim");
    const QStringList expected{"Kim Lee 1:0701234567", "Kim Lee 1:1", "Kim Lee 1:0211", "Kim Lee 3:0233"};
    QTRY_COMPARE(rows(), expected);
}

void SearchAllTest::focusMoves()
{
    open();
    QVERIFY(lineHasFocus());
    QCOMPARE(list()->selectedIdx(), -1);
    TestScreen::shot("search-empty-word");
    click(Qt::Key_Down);
    QVERIFY(list()->hasFocus());
    QCOMPARE(callKey(), QString("Call"));
    for (int row : {1, 2, 3}) {
        click(Qt::Key_Down);
        QCOMPARE(list()->selectedIdx(), row);
    }
    QCOMPARE(list()->startIdx(), 2);
    TestScreen::shot("search-list");
    for (int i = 0; i < 3; ++i)
        click(Qt::Key_Up);
    QVERIFY(list()->hasFocus());
    click(Qt::Key_Up);
    QVERIFY(lineHasFocus());
    QCOMPARE(callKey(), QString());
    QCOMPARE(list()->selectedIdx(), -1);
    click(Qt::Key_Down);
    click(Qt::Key_F6);
    QVERIFY(lineHasFocus());

    PhoneKey::postText("mü");
    QTRY_COMPARE(rows().size(), 1);
    TestScreen::shot("search-result");
    click(Qt::Key_F3); // no second row
    PhoneKey::postText("x");
    QTRY_COMPARE(rows().size(), 0);
    click(Qt::Key_Down);
    QVERIFY(lineHasFocus());
    TestScreen::shot("search-no-result");
    click(Qt::Key_Escape);
    QVERIFY(!m_search->isVisible());
}

void SearchAllTest::detailsAndBack()
{
    ContactManager *store = m_phone->core.contactManager();
    const int ten = store->getIdByUsingNameAndNumber("Ten", "91");
    open();
    PhoneKey::postText("ten");
    PhoneScript script;
    QCOMPARE(script.until("ten rows", [this] { return rows().size() == 10; })
                 .keys({Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Return})
                 .untilActive("DetailsDial")
                 .call([&] {
                     ContactData contact = store->getSpecificContactDetail(ten);
                     contact.setNumbers({"91", "92", "93"}, {});
                     store->saveContact(contact, true);
                 })
                 .keys({Qt::Key_Escape})
                 .untilActive("SearchAll")
                 .call([this] {
                     QCOMPARE(rows().size(), 3);
                     QCOMPARE(list()->selectedIdx(), 2);
                     QCOMPARE(list()->startIdx(), 1);
                     QVERIFY(list()->hasFocus());
                 })
                 .keys({Qt::Key_F2})
                 .untilActive("DetailsDial")
                 .call([&] { store->deleteContact(ten, ContactData::LocalContact); })
                 .keys({Qt::Key_Escape})
                 .untilActive("SearchAll")
                 .run(),
             QString());
    QCOMPARE(rows(), QStringList());
    QVERIFY(lineHasFocus());
    QCOMPARE(callKey(), QString());
}

void SearchAllTest::picks_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QStringList>("heard");
    QTest::newRow("receiver") << int(SearchAll::ReceiverMode) << QStringList{"message setReceiver(str)"};
    QTest::newRow("program key") << int(SearchAll::ProgramKeyMode)
                                 << QStringList{"idle searchContactResult(str,str)",
                                                "aom searchContactResult(str,str)"};
    QTest::newRow("cancelled form") << int(SearchAll::AddNumberMode) << QStringList();
}

void SearchAllTest::picks()
{
    QFETCH(int, mode);
    QFETCH(QStringList, heard);
    ListeningApp apps[] = {ListeningApp("idle"), ListeningApp("aom"), ListeningApp("message")};
    open(mode, "4711");
    PhoneScript script;
    script.keys({Qt::Key_Down, Qt::Key_Return});
    if (mode == SearchAll::AddNumberMode)
        script.untilActive("NumberEdit").keys({Qt::Key_Escape});
    QCOMPARE(script.until("the search to close", [this] { return !m_search->isVisible(); }).run(), QString());
    QStringList commands;
    for (const ListeningApp &app : apps) {
        for (const QString &command : app.commands)
            commands.append(app.appName() + ' ' + command);
    }
    std::sort(commands.begin(), commands.end());
    std::sort(heard.begin(), heard.end());
    QCOMPARE(commands, heard);
}

void SearchAllTest::commandsInTheMiddle_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<bool>("inDetails");
    QTest::addColumn<QString>("left");
    for (const bool inDetails : {false, true}) {
        const QList<QPair<const char *, QString>> commands
            = {{"CloseContact()", ""},
               {"closeSearchAll()", "Contact"},
               {"wpsm2ui_noti_device_disconnected(int)", "Contact"},
               {"showSearchAllToFindReceiver()", "SearchAll"},
               {"api2ui_noti_contact_changed()", inDetails ? "DetailsDial" : "SearchAll"}};
        for (const auto &command : commands)
            QTest::addRow("%s%s", command.first, inDetails ? " in details" : "")
                << QString(command.first) << inDetails << command.second;
    }
}

void SearchAllTest::commandsInTheMiddle()
{
    QFETCH(QString, command);
    QFETCH(bool, inDetails);
    QFETCH(QString, left);
    m_contacts.reset(new ContactScreen);
    QVERIFY(m_contacts->open());
    PhoneScript script;
    script.keys({Qt::Key_Context2}).untilActive("SearchAll");
    if (inDetails)
        script.keys({Qt::Key_F2}).untilActive("DetailsDial");
    script.call([&] { m_phone->core.postAppMsg("contact", command, QByteArray("")); });
    if (!left.isEmpty())
        script.untilActive(left.toLatin1());
    script.call([this] { m_phone->core.postAppMsg("contact", "CloseContact()", QByteArray("")); });
    script.until("all to close",
                 [this] { return !m_contacts->app.isVisible() && !m_contacts->app.findChild<SearchAll *>(); });
    QCOMPARE(script.run(), QString());
}

PHONE_TEST_MAIN(SearchAllTest)
#include "tst_searchall.moc"
