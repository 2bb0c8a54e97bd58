// The directory's screens: what they ask for, what they show of an answer, what their keys do with it.

#include "contact.h"
#include "directorysearchdetail.h"
#include "directorysettings.h"
#include "neighbourtest.h"
#include "searchdir.h"
#include "searchdirresult.h"
#include "toast.h"

#include <QTimer>

using namespace PhoneKeys;

class DirectoryTest : public NeighbourTest<Contact>
{
    Q_OBJECT

private slots:
    void requests_data();
    void requests();
    void pagesOfATotal_data();
    void pagesOfATotal();
    void rowsOfAnAnswer();
    void numberOfTheFocusedRow_data();
    void numberOfTheFocusedRow();

private:
    static QList<DirectoryData> entry(const QList<QStringList> &fields)
    {
        QList<DirectoryData> data;
        for (const QStringList &field : fields)
            data.append({data.size(), field.value(0), "label", field.value(1), field.size() > 2});
        return data;
    }
    static QString call(const QString &number, const QString &name)
    {
        return QString("CM ui2cm_svc_dialer(int,str,str,str,str,int,int) 0 NORMAL %1 %2 AUDIO 2 -1")
            .arg(number, name);
    }
    static constexpr auto Close = "contact CloseContact()";
};

void DirectoryTest::requests_data()
{
    QTest::addColumn<QString>("word");
    QTest::addColumn<int>("method");
    QTest::addColumn<QString>("end");
    QTest::newRow("short name") << "k" << 0 << "The keyword is too short";
    QTest::newRow("name") << "ki" << 0 << "&keytype=name&key=ki&enc=UTF-8";
    QTest::newRow("short number") << "12" << 1 << "Input at least 3 digits";
    QTest::newRow("number") << "123" << 1 << "&keytype=number&key=123&enc=UTF-8";
    QTest::newRow("blanks") << "   " << 1 << "&keytype=number&key=&enc=UTF-8";
    QTest::newRow("unknown type") << "1" << -1 << "&keytype=number&key=1&enc=UTF-8";
}

void DirectoryTest::requests()
{
    QFETCH(QString, word);
    QFETCH(int, method);
    QFETCH(QString, end);
    m_phone->writeFile("config/phone_info.conf", "[Prov_Info]\nId=me\n[Directory_svc]\nAddr=server\n");
    m_phone->writeFile("config/secret.ini", "[Prov]\nPassword=secret\n");
    DirectorySettings::setPage(7);
    SearchDir form(nullptr, word);
    QVERIFY(showAndActivate(&form));
    QString notice;
    QTimer::singleShot(50, &form, [&] {
        if (auto *toast = form.findChild<Toast *>()) {
            notice = toast->message();
            TestScreen::shot("directory-short");
            toast->timeout();
        }
    });
    form.searchBegin(word, method);
    const QString request = sent().value(0);
    QVERIFY2(request.isEmpty() ? notice == end : request.endsWith(end), qPrintable(request + notice));
    QCOMPARE(DirectorySettings::page(), request.isEmpty() ? 7 : 1);
    QCOMPARE(int(m_phone->core.getIMEStatus()), int(end.startsWith("Input") ? IMENumeric : IMESmall));
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
    const QList<QList<DirectoryData>> some{entry({{"name", "A"}, {"number", "1"}})};
    DirectorySettings::setPage(2);
    SearchDirResult results(nullptr, some, 50);
    QVERIFY(showAndActivate(&results));
    DirectorySettings::setPage(page);
    results.setupResultData(total ? some : QList<QList<DirectoryData>>(), total);
    QTEST(title().mid(17), "place");
    QTEST(softKeys(&results).mid(2).join(' '), "pageKeys");
    QCOMPARE(softKeys(&results).first(), QString(total ? "Call" : ""));
    QCOMPARE(list(&results)->isVisible(), total > 0);
    QCOMPARE(DirectorySettings::page(), total ? page : 1);
    TestScreen::shot(QString("directory-page-%1-of-%2").arg(page).arg(total));
}

void DirectoryTest::rowsOfAnAnswer()
{
    const auto first
        = entry({{"type", "Staff"}, {"name", "Thirteen_char"}, {"number", "1"}, {"cell", "2", "phone"}});
    const auto second = entry({{"name", "Fourteen_chars"}});
    for (const int mode : {0, 2, 3}) {
        SearchDirResult results(nullptr, {first, second, {}}, 3);
        results.setMode(mode);
        QVERIFY(showAndActivate(&results));
        QCOMPARE(list(&results)->item(0)->text(), QString("Thirteen_char"));
        QCOMPARE(list(&results)->item(1)->text(), QString("Fourteen_c..."));
        QCOMPARE(list(&results)->itemSize(), 3);
        QCOMPARE(softKeys(&results).first(), QString(mode == 2 ? "" : "Call"));
        TestScreen::shot("directory-results");
        click(mode ? Qt::Key_Return : Qt::Key_Context1);
        QVERIFY(!results.isVisible());
        const QString toIdle = "idle searchContactResult(str,str) Thirteen_char 1";
        const QStringList messages[] = {{Close, call("1", "Thirteen_char")},
                                        {},
                                        {"message setReceiver(str) 1", "contact closeSearchAll()"},
                                        {toIdle, QString(toIdle).replace("idle", "aom"), Close}};
        QCOMPARE(sent(), messages[mode]);
        // A first entry without fields makes an answer useless, but for its number of pages.
        results.setupResultData({{}, first}, 30);
        QVERIFY(showAndActivate(&results));
        QCOMPARE(softKeys(&results).mid(0, 2), QStringList({"", ""}));
        click(Qt::Key_Return);
        QVERIFY(results.isVisible());
    }
}

void DirectoryTest::numberOfTheFocusedRow_data()
{
    QTest::addColumn<int>("digits");
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("called");
    QTest::newRow("opened") << 20 << 0 << QString(20, '1');
    QTest::newRow("opened, long") << 21 << 0 << QString(18, '1') + "...";
    QTest::newRow("number") << 21 << 1 << QString(21, '1');
    QTest::newRow("type") << 21 << 2 << QString();
    QTest::newRow("the last other phone") << 21 << 5 << QString(25, '4');
    QTest::newRow("no number") << 0 << 1 << QString();
}

void DirectoryTest::numberOfTheFocusedRow()
{
    QFETCH(int, digits);
    QFETCH(int, row);
    QFETCH(QString, called);
    DirectorySearchDetail detail(nullptr,
                                 entry({{"name", "Anna"},
                                        {"number", QString(digits, '1')},
                                        {"cell", "3", "phone"},
                                        {"car", QString(25, '4'), "phone"},
                                        {"room", "7"}}));
    QVERIFY(showAndActivate(&detail));
    for (int i = 0; i < row; ++i)
        click(Qt::Key_Down);
    const QString none, callKey = called.isEmpty() ? none : "Call",
                        messageKey = called.isEmpty() ? none : "Message";
    QCOMPARE(softKeys(&detail), QStringList({"Save", callKey, messageKey, none}));
    TestScreen::shot(QString("directory-detail-%1").arg(row));
    if (row != 1)
        click(Qt::Key_Return); // acts on the number alone
    QVERIFY(detail.isVisible());
    ListeningApp messages("message");
    click(Qt::Key_Context3);
    click(Qt::Key_Context2);
    const QStringList both{"message newMessage(str) " + called, Close, call(called, "Anna")};
    QCOMPARE(sent(), called.isEmpty() ? QStringList() : both);
}

PHONE_TEST_MAIN(DirectoryTest)
#include "tst_directory.moc"
