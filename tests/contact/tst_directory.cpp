// The directory's screens: what they show of an answer, and what their keys do with it.

#include "contact.h"
#include "directorysearchdetail.h"
#include "directorysettings.h"
#include "neighbourtest.h"
#include "searchdirresult.h"

using namespace PhoneKeys;

class DirectoryTest : public NeighbourTest<Contact>
{
    Q_OBJECT

private slots:
    void pagesOfATotal()
    {
        // The total, the page, and the title and page keys for them; beyond the last they stay.
        const QList<std::tuple<int, int, const char *, const char *>> cases = {{0, 3, "", " "},
                                                                               {20, 1, " | 1/1page", " "},
                                                                               {21, 1, " | 1/2page", " >"},
                                                                               {40, 2, " | 2/2page", "< "},
                                                                               {41, 2, " | 2/3page", "< >"},
                                                                               {41, 4, " | 4/3page", "< >"}};
        const QList<QList<DirectoryData>> none, some{entry({"name|A", "number|1"})};
        for (const auto &[total, page, place, pageKeys] : cases) {
            DirectorySettings::setPage(2);
            SearchDirResult results(nullptr, some, 50);
            QVERIFY(showAndActivate(&results));
            DirectorySettings::setPage(page);
            results.setupResultData(total ? some : none, total);
            QCOMPARE(title(), QString("Directory Service") + place);
            QCOMPARE(softKeys(&results).mid(2).join(' '), QString(pageKeys));
            QCOMPARE(softKeys(&results).first(), QString(total ? "Call" : ""));
            QCOMPARE(list(&results)->isVisible(), total > 0);
            QCOMPARE(DirectorySettings::page(), total ? page : 1);
        }
    }

    void rowsOfAnAnswer()
    {
        const auto first = entry({"type|Staff", "name|Thirteen_char", "number|1", "cell|2|phone"});
        SearchDirResult results(nullptr, {first, entry({"name|Fourteen_chars"}), {}}, 3);
        QVERIFY(showAndActivate(&results));
        QCOMPARE(list(&results)->item(0)->text(), QString("Thirteen_char"));
        QCOMPARE(list(&results)->item(1)->text(), QString("Fourteen_c..."));
        QCOMPARE(list(&results)->itemSize(), 3);
        click(Qt::Key_Context1);
        QVERIFY(!results.isVisible());
        QCOMPARE(sent(), QStringList({Close, call("1 Thirteen_char")}));
        // A first entry without fields makes an answer useless, but for its number of pages.
        results.setupResultData({{}, first}, 30);
        QVERIFY(showAndActivate(&results));
        QCOMPARE(softKeys(&results).mid(0, 2), QStringList({"", ""}));
        click(Qt::Key_Return);
        QVERIFY(results.isVisible());
    }

    void numberOfTheFocusedRow()
    {
        const QString whole(21, '1'), mobile(25, '4');
        // How many digits the number has, the row, and the number that is called there.
        const QList<std::tuple<int, int, QString>> cases
            = {{20, 0, whole.left(20)}, {21, 0, whole.left(18) + "..."},
               {21, 1, whole},          {21, 2, ""},
               {21, 5, mobile},         {0, 1, ""}};
        ListeningApp messages("message");
        for (const auto &[digits, row, called] : cases) {
            const QStringList fields{"name|Anna", "number|" + whole.left(digits), "cell|3|phone",
                                     "car|" + mobile + "|phone", "room|7"};
            DirectorySearchDetail detail(nullptr, entry(fields));
            QVERIFY(showAndActivate(&detail));
            for (int i = 0; i < row; ++i)
                click(Qt::Key_Down);
            const bool offered = !called.isEmpty();
            QCOMPARE(softKeys(&detail), QStringList({"Save", offered ? "Call" : "", offered ? "Message" : "", ""}));
            if (row != 1)
                click(Qt::Key_Return); // acts on the number alone
            QVERIFY(detail.isVisible());
            click(Qt::Key_Context3);
            click(Qt::Key_Context2);
            const QStringList both{"message newMessage(str) " + called, Close, call(called + " Anna")};
            QCOMPARE(sent(), offered ? both : QStringList());
        }
    }

private:
    /// Each field as type, value and what is there for a number to call, with "|" between.
    static QList<DirectoryData> entry(const QStringList &fields)
    {
        QList<DirectoryData> data;
        for (const QString &field : fields)
            data.append(
                {data.size(), field.section('|', 0, 0), "label", field.section('|', 1, 1), field.count('|') > 1});
        return data;
    }
    static QString call(const QString &person)
    {
        return "CM ui2cm_svc_dialer(int,str,str,str,str,int,int) 0 NORMAL " + person + " AUDIO 2 -1";
    }
    static constexpr auto Close = "contact CloseContact()";
};

PHONE_TEST_MAIN(DirectoryTest)
#include "tst_directory.moc"
