#include "core.h"
#include "directorydocument.h"
#include "directorysettings.h"
#include "directorytexts.h"
#include "phonehome.h"
#include "testcase.h"

#include <QFile>
#include <QSettings>
#include <QTemporaryDir>

/// From the file that the server's answer lies in to the lists that the screens show.
class TestDirectoryDocument : public TestCase
{
    Q_OBJECT

private slots:
    void page();
    void handlesStay();
    void fields_data();
    void fields();
    void charset();
    void damaged_data();
    void damaged();
    void trimmed();

private:
    void setUp() override
    {
        m_folder.reset(new QTemporaryDir);
        const PhoneHome home(m_folder->path());
        home.create();
        home.enter();
        m_core.reset(new Core(home));
    }
    void tearDown() override
    {
        m_core.reset();
        m_folder.reset();
    }

    QList<QList<DirectoryData>> load(const QByteArray &document)
    {
        const QString path = m_folder->filePath("answer.xml");
        QFile file(path);
        file.open(QIODevice::WriteOnly);
        file.write(document);
        file.close();
        const QList<QList<DirectoryData>> results = loadData(path.toLatin1(), &m_total);
        [&] { QVERIFY(!QFile::exists(path)); }();
        return results;
    }

    QScopedPointer<QTemporaryDir> m_folder;
    QScopedPointer<Core> m_core;
    int m_total = -1;
};

namespace {

QByteArray data(const QByteArray &value)
{
    return "<data><type>name</type><value>" + value + "</value></data>";
}

}

void TestDirectoryDocument::page()
{
    QByteArray items;
    for (int i = 0; i < 20; ++i)
        items += "<item>" + data(QByteArray::number(i)) + data("x") + "</item>\n<other/>";
    const auto results = load("<any>" + items + "<display count='57' path=' /p ' timestamp='42'/><item/></any>");
    QCOMPARE(results.size(), 21);
    QCOMPARE(m_total, 57);
    QCOMPARE(results.at(19).at(0).getValue(), QString("19"));
    QCOMPARE(results.at(19).at(1).getIndex(), 1);
    QVERIFY(results.at(20).isEmpty());
    QCOMPARE(DirectorySettings::path(), QString("/p"));
    QCOMPARE(DirectorySettings::timeStamp(), QString("42"));
}

/// An answer that does not carry the handles of the prepared pages leaves those of the answer before.
void TestDirectoryDocument::handlesStay()
{
    load("<r><display path='/first' timestamp='1'/></r>");
    QCOMPARE(load("<r><item>" + data("x") + "</item></r>").size(), 1);
    QCOMPARE(m_total, 0);
    load("<r><display path=''/></r>");
    QCOMPARE(DirectorySettings::path(), QString(""));
    QCOMPARE(DirectorySettings::timeStamp(), QString("1"));
}

void TestDirectoryDocument::fields_data()
{
    QTest::addColumn<QByteArray>("element");
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("value");
    QTest::addColumn<bool>("isPhone");
    QTest::newRow("bare") << QByteArray("<data/>") << ""
                          << "" << false;
    QTest::newRow("capitals") << QByteArray("<data isphone='TRUE'/>") << ""
                              << "" << true;
    QTest::newRow("one") << QByteArray("<data isphone='1' fontsize='big'/>") << ""
                         << "" << true;
    QTest::newRow("yes") << QByteArray("<data isphone='yes'/>") << ""
                         << "" << false;
    QTest::newRow("01") << QByteArray("<data isphone='01'/>") << ""
                        << "" << false;
    QTest::newRow("trimmed") << QByteArray("<data><type>\tnumber </type><value> \n1 2\n </value></data>")
                             << "number"
                             << "\n1 2\n"
                             << false;
}

void TestDirectoryDocument::fields()
{
    QFETCH(QByteArray, element);
    const DirectoryData field = load("<r><item>" + element + "</item></r>").value(0).value(0);
    QTEST(field.getType(), "type");
    QTEST(field.getValue(), "value");
    QTEST(field.getIsPhone(), "isPhone");
    QCOMPARE(field.getLabel(), QString());
}

/// The phone's charset decides, whatever the document says of itself.
void TestDirectoryDocument::charset()
{
    const QByteArray document = "<r><display charset='utf-8'/><item>" + data("\xb1\xe8") + "</item></r>";
    QSettings(m_core->configFileName(SystemConfig), QSettings::IniFormat).setValue("System/Charset", "EUC-KR");
    QCOMPARE(load(document).at(0).at(0).getValue(), QString::fromUtf8("\xea\xb9\x80"));
}

void TestDirectoryDocument::damaged_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<int>("results");
    QTest::newRow("empty") << QByteArray() << 0;
    QTest::newRow("no document") << QByteArray("404 not found") << 0;
    QTest::newRow("cut") << "<r><item>" + data("1") + "</item><item>" + data("2") + "</item><item><da" << 3;
    QTest::newRow("wrong end") << "<r><item>" + data("1") + "</item></s><item/>" << 1;
}

void TestDirectoryDocument::damaged()
{
    QFETCH(QByteArray, document);
    const auto results = load(document);
    QTEST(results.size(), "results");
    QCOMPARE(m_total, 0);
    QVERIFY(loadData("/nowhere/answer.xml", &m_total).isEmpty());
}

void TestDirectoryDocument::trimmed()
{
    for (const auto &[text, expected] :
         {std::pair{" \ta\t b\t ", "a\t b"}, {" \t ", ""}, {"a \n", "a \n"}, {"", ""}}) {
        char *copy = strduptrim(QByteArray(text).data());
        QCOMPARE(copy, expected);
        std::free(copy);
    }
}

QTEST_GUILESS_MAIN(TestDirectoryDocument)
#include "tst_directorydocument.moc"
