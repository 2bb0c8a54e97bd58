// The directory's screens: what they ask for, what they show, and answers and commands at every depth.

#include "contactmanager.h"
#include "contactscreen.h"
#include "directorysearchdetail.h"
#include "directorysettings.h"
#include "listviewdirectoryitem.h"
#include "listviewinfoitem.h"
#include "listviewselectitem.h"
#include "messagelog.h"
#include "neighbours.h"
#include "phonekey.h"
#include "phonescript.h"
#include "searchdir.h"
#include "searchdirresult.h"
#include "testcase.h"
#include "testmain.h"
#include "testphone.h"
#include "toast.h"

#include <QFile>
#include <QJsonObject>

#include <memory>

using namespace PhoneKeys;

/// Keys, each with the screen that is active after it.
using Road = QList<QPair<int, QString>>;
Q_DECLARE_METATYPE(Road)

class DirectoryTest : public TestCase
{
    Q_OBJECT

    void setUp() override;
    void tearDown() override
    {
        m_screen.reset();
        m_log.reset();
        m_phone.reset();
    }

private slots:
    void requests_data();
    void requests();
    void choosesTheSearchType();
    void pagesOfATotal_data();
    void pagesOfATotal();
    void rowsOfAnAnswer();
    void picksForOthers_data();
    void picksForOthers();
    void theNumberOfTheFocusedRow_data();
    void theNumberOfTheFocusedRow();
    void turnsPagesAndSaves();
    void answersAndCommandsAtAnyDepth_data();
    void answersAndCommandsAtAnyDepth();

private:
    using Results = QList<QList<DirectoryData>>;
    static QList<DirectoryData> entry(const QList<QStringList> &fields)
    {
        QList<DirectoryData> data;
        for (const QStringList &field : fields)
            data.append({data.size(), field.value(0), "label", field.value(1), field.size() > 2});
        return data;
    }
    static QString word(int count, QChar letter = 'x') { return QString(count, letter); }
    /// The server's file with that many entries, as the HTTP client delivers it.
    void answer(int entries, int total);
    void send(const QString &command, const QStringList &texts = {})
    {
        m_phone->core.postAppMsg("contact", command, Neighbours::payload(texts));
    }
    QStringList sent();
    static QStringList keys(QWidget *screen)
    {
        QStringList texts;
        for (int i = 0; i < Tail::ButtonCount; ++i)
            texts.append(screen->findChild<Tail *>(QString(), Qt::FindDirectChildrenOnly)->funcButtonText(i));
        return texts;
    }
    static ListView *list(QWidget *screen)
    {
        return screen->findChild<ListView *>(QString(), Qt::FindDirectChildrenOnly);
    }
    QString title() { return m_phone->status.title(); }

    std::unique_ptr<TestPhone> m_phone;
    std::unique_ptr<MessageLog> m_log;
    std::unique_ptr<ContactScreen> m_screen;
};

void DirectoryTest::setUp()
{
    m_phone.reset(new TestPhone);
    m_phone->writeFile("config/phone_info.conf", "[Prov_Info]\nId=me\n[Directory_svc]\nAddr=server\n");
    m_phone->writeFile("config/secret.ini", "[Prov]\nPassword=secret\n");
    m_log.reset(new MessageLog);
    DirectorySettings::setPage(7);
}

/// What was sent since the last time: of a request to the server the part that the screens decide.
QStringList DirectoryTest::sent()
{
    QStringList lines;
    const QJsonArray messages = m_log->messages();
    for (const QJsonValue &message : messages) {
        QStringList words{message["target"].toString()};
        const QVariantList args = message["args"].toArray().toVariantList();
        for (const QVariant &arg : args)
            words.append(arg.toString());
        if (words.first() == "XCID")
            words = QStringList(words.last().section("/", 3).remove(QRegularExpression("^.*cap=20&|[0-9A-F]{12}")));
        else if (args.isEmpty())
            words.append(message["command"].toString());
        lines.append(words.join(' '));
    }
    m_log->clear();
    return lines;
}

void DirectoryTest::answer(int entries, int total)
{
    QByteArray xml
        = "<directory><display path=\"/pages\" timestamp=\"T1\" count=\"" + QByteArray::number(total) + "\"/>";
    for (int i = 1; i <= entries; ++i) {
        const QByteArray n = QByteArray::number(i);
        xml += "<item><data><type>name</type><value>Entry " + n
            + "</value></data><data isphone=\"true\"><type>number</type>"
              "<value>500"
            + n + "</value></data><data isphone=\"1\"><type>cell</type><value>070</value></data></item>";
    }
    m_phone->writeFile("run/directory-AbCdEf.xml", xml + "</directory>");
    QByteArray payload = Neighbours::payload({m_phone->home.path("run/directory-AbCdEf.xml")});
    m_phone->core.postAppMsg("contact", "http2ui_directory_service_response(str,int)",
                             payload.append("\0\0\0\1", 4));
}

void DirectoryTest::requests_data()
{
    QTest::addColumn<QString>("word");
    QTest::addColumn<int>("method");
    QTest::addColumn<QString>("request");
    QTest::addColumn<QString>("notice");
    QTest::newRow("short name") << "k" << 0 << ""
                                << "The keyword is too short";
    QTest::newRow("name") << "ki" << 0 << "keytype=name&key=ki&enc=UTF-8"
                          << "";
    QTest::newRow("short number") << "12" << 1 << ""
                                  << "Input at least 3 digits";
    QTest::newRow("number") << "123" << 1 << "keytype=number&key=123&enc=UTF-8"
                            << "";
    QTest::newRow("blanks") << "   " << 1 << "keytype=number&key=&enc=UTF-8"
                            << "";
    QTest::newRow("unknown type") << "1" << -1 << "keytype=number&key=1&enc=UTF-8"
                                  << "";
}

void DirectoryTest::requests()
{
    QFETCH(QString, word);
    QFETCH(int, method);
    QFETCH(QString, request);
    QFETCH(QString, notice);
    SearchDir form(nullptr, word);
    QVERIFY(showAndActivate(&form));
    auto *row = static_cast<ListViewSelectItem *>(list(&form)->item(0));
    row->setSelectedText(method == 1 ? "Number" : method == 0 ? "Name" : "Else");
    QCOMPARE(form.getSearchMethod(), method);
    release(Qt::Key_Return); // of a key that went down elsewhere
    QCOMPARE(sent(), QStringList());
    PhoneScript script;
    script.keys({notice.isEmpty() ? Qt::Key_Context4 : Qt::Key_Return});
    if (!notice.isEmpty()) {
        const auto toast = [&form] { return form.findChild<Toast *>(); };
        script.until("the notice", [=] { return toast() && toast()->message() == notice; })
            .call([&] { TestScreen::shot("directory-" + notice.left(9)); })
            .keys({Qt::Key_Return})
            .until("its end", [=] { return !toast(); });
    }
    QCOMPARE(script.run(), QString());
    QCOMPARE(sent(), request.isEmpty() ? QStringList() : QStringList(request));
    QCOMPARE(DirectorySettings::page(), request.isEmpty() ? 7 : 1);
    QCOMPARE(int(m_phone->core.getIMEStatus()), int(notice.startsWith("Input") ? IMENumeric : IMESmall));
}

void DirectoryTest::choosesTheSearchType()
{
    SearchDir form(nullptr, "kim");
    QVERIFY(showAndActivate(&form));
    QCOMPARE(title(), QString("Directory Service"));
    TestScreen::shot("directory-form");
    PhoneScript script;
    const auto is = [&](int method) {
        script.untilActive("SearchDir").call([&form, method] { QCOMPARE(form.getSearchMethod(), method); });
    };
    script.keys({Qt::Key_F7}).untilActive("SelectPopup").call([] { TestScreen::shot("directory-type"); });
    script.keys({Qt::Key_Up, Qt::Key_Context4});
    is(0);
    script.keys({Qt::Key_F7}).untilActive("SelectPopup").keys({Qt::Key_Up, Qt::Key_Return});
    is(1);
    script.call([this] { QCOMPARE(int(m_phone->core.getIMEStatus()), int(IMENumeric)); });
    script.keys({Qt::Key_Down}).until("the list", [&] { return list(&form)->hasFocus(); });
    script.call([] { TestScreen::shot("directory-form-list"); }).keys({Qt::Key_Right}).untilActive("SelectPopup");
    script.keys({Qt::Key_Down, Qt::Key_Return});
    is(0);
    QCOMPARE(script.keys({Qt::Key_Down, Qt::Key_Up}).run(), QString());
    QVERIFY(!list(&form)->hasFocus());
    QCOMPARE(list(&form)->selectedIdx(), -1);
    QCOMPARE(int(m_phone->core.getIMEStatus()), int(IMESmall));
    QCOMPARE(sent(), QStringList());
    form.tailFuncButtonLongPressed(2);
    QCOMPARE(form.getSearchWord(), QString());
}

void DirectoryTest::pagesOfATotal_data()
{
    QTest::addColumn<int>("total");
    QTest::addColumn<int>("page");
    QTest::addColumn<QString>("place");
    QTest::addColumn<QString>("pageKeys");
    QTest::newRow("none") << 0 << 3 << ""
                          << " ";
    QTest::newRow("one") << 1 << 1 << " | 1/1page"
                         << " ";
    QTest::newRow("a page") << 20 << 1 << " | 1/1page"
                            << " ";
    QTest::newRow("two pages") << 21 << 1 << " | 1/2page"
                               << " >";
    QTest::newRow("two whole pages") << 40 << 2 << " | 2/2page"
                                     << "< ";
    QTest::newRow("in the middle") << 41 << 2 << " | 2/3page"
                                   << "< >";
    QTest::newRow("beyond") << 41 << 4 << " | 4/3page"
                            << "< >"; // as they were
}

void DirectoryTest::pagesOfATotal()
{
    QFETCH(int, total);
    QFETCH(int, page);
    const Results some{entry({{"name", "A"}, {"number", "1"}})};
    DirectorySettings::setPage(2);
    SearchDirResult results(nullptr, some, 50);
    QVERIFY(showAndActivate(&results));
    DirectorySettings::setPage(page);
    results.setupResultData(total ? some : Results(), total);
    QTEST(title().mid(17), "place");
    const QStringList shown = keys(&results);
    QTEST(shown.mid(2).join(' '), "pageKeys");
    QCOMPARE(shown.first(), QString(total ? "Call" : ""));
    QCOMPARE(list(&results)->isVisible(), total > 0);
    QCOMPARE(DirectorySettings::page(), total ? page : 1);
    TestScreen::shot(QString("directory-page-%1-of-%2").arg(page).arg(total));
}

void DirectoryTest::rowsOfAnAnswer()
{
    DirectorySettings::setPage(1);
    SearchDirResult results(
        nullptr,
        {entry({{"type", "Staff"}, {"name", word(13)}, {"number", "1"}, {"cell", "2", "phone"}}),
         entry({{"name", word(14)}}),
         {}},
        3);
    QVERIFY(showAndActivate(&results));
    QCOMPARE(list(&results)->item(0)->text(), word(13));
    QCOMPARE(list(&results)->item(1)->text(), word(10) + "...");
    QCOMPARE(list(&results)->itemSize(), 3);
    TestScreen::shot("directory-results");
    // The keys beside the display count from the top of the list.
    QCOMPARE(PhoneScript().keys({Qt::Key_F2}).untilActive("DirectorySearchDetail").keys({Qt::Key_Escape}).run(),
             QString());
    click(Qt::Key_Down);
    click(Qt::Key_Context1);
    QVERIFY(!results.isVisible());
    QCOMPARE(sent(), QStringList({"contact CloseContact()", "CM 0 NORMAL  xxxxxxxxxx... AUDIO 2 -1"}));
    // A first entry without fields makes the answer useless, but for its number of pages.
    QVERIFY(showAndActivate(&results));
    results.setupResultData({{}, entry({{"name", "A"}})}, 30);
    QCOMPARE(keys(&results), QStringList({"", "", "", ">"}));
    click(Qt::Key_Return);
    TestScreen::shot("directory-garbage");
}

void DirectoryTest::picksForOthers_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QStringList>("messages");
    QTest::newRow("message") << 2 << QStringList{"message 51", "contact closeSearchAll()"};
    QTest::newRow("program key") << 3 << QStringList{"idle A 51", "aom A 51", "contact CloseContact()"};
}

void DirectoryTest::picksForOthers()
{
    QFETCH(int, mode);
    SearchDirResult results(nullptr, {entry({{"name", "A"}, {"number", "51"}})}, 1);
    results.setMode(mode);
    QVERIFY(showAndActivate(&results));
    QCOMPARE(keys(&results).first(), QString(mode == 2 ? "" : "Call"));
    click(Qt::Key_Return);
    QTEST(sent(), "messages");
    QVERIFY(!results.isVisible());
}

void DirectoryTest::theNumberOfTheFocusedRow_data()
{
    QTest::addColumn<int>("digits");
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("called");
    QTest::newRow("opened") << 20 << 0 << word(20, '1');
    QTest::newRow("opened, long") << 21 << 0 << word(18, '1') + "...";
    QTest::newRow("number") << 21 << 1 << word(21, '1');
    QTest::newRow("type") << 21 << 2 << QString();
    QTest::newRow("mobile") << 21 << 5 << word(25, '4');
    QTest::newRow("no number") << 0 << 1 << QString();
}

void DirectoryTest::theNumberOfTheFocusedRow()
{
    QFETCH(int, digits);
    QFETCH(int, row);
    QFETCH(QString, called);
    DirectorySearchDetail detail(nullptr,
                                 entry({{"name", "Anna"},
                                        {"number", word(digits, '1')},
                                        {"department", "Sales"},
                                        {"cell", "3", "phone"},
                                        {"car", word(25, '4'), "phone"},
                                        {"room", "7"}}));
    QVERIFY(showAndActivate(&detail));
    for (int i = 0; i < row; ++i)
        click(Qt::Key_Down);
    const QStringList offered{"Save", called.isEmpty() ? "" : "Call", called.isEmpty() ? "" : "Message", ""};
    QCOMPARE(keys(&detail), offered);
    QCOMPARE(static_cast<ListViewInfoItem *>(list(&detail)->item(5))->infoText(), word(18, '4') + "...");
    TestScreen::shot(QString("directory-detail-%1").arg(row));
    if (row != 1)
        click(Qt::Key_Return); // acts on the number alone
    QVERIFY(detail.isVisible());
    click(Qt::Key_Context3);
    ListeningApp message("message");
    click(row == 1 && digits ? Qt::Key_Return : Qt::Key_Context2);
    QCOMPARE(sent(),
             called.isEmpty() ? QStringList()
                              : QStringList({"message " + called, "contact CloseContact()",
                                             "CM 0 NORMAL " + called + " Anna AUDIO 2 -1"}));
}

void DirectoryTest::turnsPagesAndSaves()
{
    m_phone->addContact("Kim");
    m_screen.reset(new ContactScreen);
    QVERIFY(m_screen->open());
    PhoneScript script;
    const auto answered = [&](const char *place) {
        const QString whole = QString("Directory Service | ") + place;
        script.call([this] { answer(20, 45); }).until(whole, [=] { return title() == whole; });
    };
    const auto asks = [&](const char *request) { script.call([=] { QCOMPARE(sent(), QStringList(request)); }); };
    const auto saves = [&](int key, const char *screen) {
        script.keys({Qt::Key_Context1}).untilActive("MessageBox").call([] { TestScreen::shot("directory-save"); });
        script.keys({key}).untilActive(screen);
    };
    script.call([this] { send("viewContactSearchDir(str)", {"kim"}); }).untilActive("SearchDir");
    script.call([this] { m_log->clear(); }).keys({Qt::Key_Context4});
    asks("keytype=name&key=kim&enc=UTF-8");
    answered("1/3page");
    script.keys({Qt::Key_Context3, Qt::Key_Context4}); // there is no page before the first
    asks("pages/_me_T1_2.xml");
    answered("2/3page");
    script.keys({Qt::Key_Context3});
    asks("pages/_me_T1_1.xml");
    script.keys({Qt::Key_Down, Qt::Key_Return}).untilActive("DirectorySearchDetail");
    saves(Qt::Key_Context2, "NumberEdit");
    script.call([] { TestScreen::shot("directory-save-new"); });
    script.keys({Qt::Key_Escape}).untilActive("DirectorySearchDetail");
    script.call([this] { QCOMPARE(title(), QString("Directory Service")); });
    saves(Qt::Key_Context3, "SearchAll");
    script.call([] { QCOMPARE(m_Directory, 1); }).keys({Qt::Key_Down, Qt::Key_Return}).untilActive("NumberEdit");
    script.keys({Qt::Key_Escape}).untilActive("DirectorySearchDetail");
    saves(Qt::Key_Context2, "NumberEdit");
    script.keys({Qt::Key_Escape}).untilActive("DirectorySearchDetail");
    script.keys({Qt::Key_Escape}).untilActive("SearchDirResult").keys({Qt::Key_Escape}).untilActive("SearchDir");
    // A second answer finds the results closed, and shows them again.
    answered("1/3page");
    script.keys({Qt::Key_Escape}).untilActive("SearchDir").keys({Qt::Key_Escape});
    QCOMPARE(script.until("the end", [] { return !QApplication::activeWindow(); }).run(), QString());
    QVERIFY(!m_screen->app.isVisible());
    answer(1, 1);
    QTRY_VERIFY(!QFile::exists(m_phone->home.path("run/directory-AbCdEf.xml")));
    QVERIFY(!QApplication::activeWindow());
}

void DirectoryTest::answersAndCommandsAtAnyDepth_data()
{
    QTest::addColumn<QString>("event");
    QTest::addColumn<Road>("road");
    const Road results{{0, "SearchDirResult"}}, detail = results + Road{{Qt::Key_Return, "DirectorySearchDetail"}};
    const Road box = detail + Road{{Qt::Key_Context1, "MessageBox"}};
    const Road search = box + Road{{Qt::Key_Context3, "SearchAll"}};
    const QList<QPair<const char *, Road>> roads{
        {"form", {}},
        {"popup", {{Qt::Key_F7, "SelectPopup"}}},
        {"results", results},
        {"detail", detail},
        {"box", box},
        {"new contact", box + Road{{Qt::Key_Context2, "NumberEdit"}}},
        {"contact search", search},
        {"picked", search + Road{{Qt::Key_Down, "SearchAll"}, {Qt::Key_Return, "NumberEdit"}}},
    };
    for (const auto &road : roads) {
        for (const char *event : {"answer", "CloseContact()", "closeSearchAll()", "start",
                                  "wpsm2ui_noti_device_disconnected(int)", "viewContactSearchDir(str)"})
            QTest::addRow("%s in %s", event, road.first) << event << road.second;
    }
}

void DirectoryTest::answersAndCommandsAtAnyDepth()
{
    QFETCH(QString, event);
    QFETCH(Road, road);
    m_phone->addContact("Kim");
    m_screen.reset(new ContactScreen);
    QVERIFY(m_screen->open());
    PhoneScript script;
    script.call([this] { send("viewContactSearchDir(str)", {"kim"}); }).untilActive("SearchDir");
    for (const auto &step : qAsConst(road)) {
        if (step.first)
            script.keys({step.first});
        else
            script.call([this] { answer(2, 2); });
        script.untilActive(step.second.toLatin1());
    }
    script.call([&] {
        if (event == "answer")
            answer(20, 30);
        else if (event == "start")
            m_screen->app.start(nullptr, nullptr);
        else
            send(event);
    });
    const auto nothing = [] { return !QApplication::activeWindow(); };
    if (event == "answer") {
        const bool isCovered = road.size() > 1;
        script.until("the answer to be read",
                     [this] { return !QFile::exists(m_phone->home.path("run/directory-AbCdEf.xml")); });
        script.untilActive(isCovered ? road.last().second.toLatin1() : QByteArray("SearchDirResult"));
        script.call([=] { QCOMPARE(title().contains("7/2page"), !isCovered); });
        script.until("the results to come back", [this] {
            if (QApplication::activeWindow()->inherits("SearchDirResult"))
                return title() == "Directory Service | 7/2page";
            PhoneKey::post(Qt::Key_Escape, true);
            PhoneKey::post(Qt::Key_Escape, false);
            return false;
        });
    } else if (event == "viewContactSearchDir(str)") {
        script.untilActive("SearchDir");
    } else {
        script.until("everything to close", nothing);
    }
    script.call([this] { send("CloseContact()"); }).until("everything to close", nothing);
    QCOMPARE(script.run(), QString());
    QVERIFY(!m_screen->app.isVisible());
    QCOMPARE(m_phone->core.contactManager()->getCountOfContact(), 1);
}

PHONE_TEST_MAIN(DirectoryTest)
#include "tst_directory.moc"
