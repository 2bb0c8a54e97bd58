#include "directorydocument.h"
#include "directorysettings.h"
#include "directorytexts.h"
#include "testcase.h"
#include "testmain.h"
#include "testphone.h"

static QByteArray data(const QByteArray &value)
{
    return "<data><type>name</type><value>" + value + "</value></data>";
}

/// From the file that the server's answer lies in to the lists that the screens show.
class TestDirectoryDocument : public TestCase
{
    Q_OBJECT

private slots:
    void page()
    {
        QByteArray items;
        for (int i = 0; i < 20; ++i)
            items += "<item>" + data(QByteArray::number(i)) + data("x") + "</item>\n<other/>";
        const auto results
            = load("<any>" + items + "<display count='57' path=' /p ' timestamp='42'/><item/></any>");
        QCOMPARE(results.size(), 21);
        QCOMPARE(m_total, 57);
        QCOMPARE(results.at(19).at(0).getValue(), QString("19"));
        QCOMPARE(results.at(19).at(1).getIndex(), 1);
        QVERIFY(results.at(20).isEmpty());
        QCOMPARE(DirectorySettings::path(), QString("/p"));
        QCOMPARE(DirectorySettings::timeStamp(), QString("42"));
    }

    /// An answer that does not carry the handles of the prepared pages leaves those of the answer before.
    void handlesStay()
    {
        load("<r><display path='/first' timestamp='1'/></r>");
        QCOMPARE(load("<r><item>" + data("x") + "</item></r>").size(), 1);
        QCOMPARE(m_total, 0);
        load("<r><display path=''/></r>");
        QCOMPARE(DirectorySettings::path(), QString(""));
        QCOMPARE(DirectorySettings::timeStamp(), QString("1"));
    }

    void fields()
    {
        // An element, its type and value, a number to call.
        const QList<std::tuple<QByteArray, QString, QString, bool>> elements
            = {{"<data/>", "", "", false},
               {"<data isphone='TRUE'/>", "", "", true},
               {"<data isphone='1' fontsize='big'/>", "", "", true},
               {"<data isphone='01'/>", "", "", false},
               {"<data><type>\tnumber </type><value> \n1 2\n </value></data>", "number", "\n1 2\n", false}};
        for (const auto &[element, type, value, isPhone] : elements) {
            const DirectoryData field = load("<r><item>" + element + "</item></r>").value(0).value(0);
            QCOMPARE(field.getType(), type);
            QCOMPARE(field.getValue(), value);
            QCOMPARE(field.getIsPhone(), isPhone);
            QCOMPARE(field.getLabel(), QString());
        }
    }

    /// The phone's charset decides, whatever the document says of itself.
    void charset()
    {
        const QByteArray document = "<r><display charset='utf-8'/><item>" + data("\xb1\xe8") + "</item></r>";
        m_phone->writeFile("config/system.conf", "[System]\nCharset=EUC-KR\n");
        QCOMPARE(load(document).at(0).at(0).getValue(), QString::fromUtf8("\xea\xb9\x80"));
    }

    void damaged()
    {
        for (const auto &[document, results] :
             {std::pair(QByteArray(), 0),
              {"404 not found", 0},
              {"<r><item>" + data("1") + "</item><item>" + data("2") + "</item><item><da", 3},
              {"<r><item>" + data("1") + "</item></s><item/>", 1}}) {
            QCOMPARE(load(document).size(), results);
            QCOMPARE(m_total, 0);
        }
        QVERIFY(loadData("/nowhere/answer.xml", &m_total).isEmpty());
    }

    void trimmed()
    {
        for (const auto &[text, expected] :
             {std::pair{" \ta\t b\t ", "a\t b"}, {" \t ", ""}, {"a \n", "a \n"}, {"", ""}}) {
            char *copy = strduptrim(QByteArray(text).data());
            QCOMPARE(copy, expected);
            std::free(copy);
        }
    }

private:
    void setUp() override { m_phone.reset(new TestPhone); }
    void tearDown() override { m_phone.reset(); }

    QList<QList<DirectoryData>> load(const QByteArray &document)
    {
        m_phone->writeFile("answer.xml", document);
        QFile file(m_phone->home.path("answer.xml"));
        const QList<QList<DirectoryData>> results = loadData(file.fileName().toLatin1(), &m_total);
        [&] { QVERIFY(!file.exists()); }();
        return results;
    }

    std::unique_ptr<TestPhone> m_phone;
    int m_total = -1;
};

PHONE_TEST_MAIN(TestDirectoryDocument)
#include "tst_directorydocument.moc"
