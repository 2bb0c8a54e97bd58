#include "contactmanager.h"
#include "testcase.h"
#include "textcodec.h"

#include <QTemporaryDir>

/// Which word finds which contact.
class TestSearch : public TestCase
{
    Q_OBJECT

private slots:
    void words_data();
    void words();
    void emptyWord();
    void numbers();
    void followsChanges();
    void manyFound();

private:
    void setUp() override
    {
        m_dir.reset(new QTemporaryDir);
        m_store.reset(new ContactManager(m_dir->filePath("contacts.db")));
    }
    void tearDown() override { m_store.reset(); }
    int add(const QString &name, const QStringList &numbers = {})
    {
        ContactData contact;
        contact.name = name;
        contact.setNumbers(numbers, {});
        return m_store->saveContact(contact, false);
    }
    int found(const QString &word) const { return m_store->getContactSearchResults(word).size(); }

    QScopedPointer<QTemporaryDir> m_dir;
    QScopedPointer<ContactManager> m_store;
};

void TestSearch::words_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("word");
    QTest::addColumn<bool>("matches");
    const auto row = [](const char *name, const char *word, bool matches) {
        QTest::addRow("%s in %s", word, name) << QString(name) << QString(word) << matches;
    };
    row("Kim Lee", "kim", true);
    row("Kim Lee", "m l", true);
    row("Kim Lee", "KL", true);
    row("Kim Lee", "kml", false);
    row("John Doe", "jd", true);
    row("John Doe", "d", true);
    row("John Doe", "dj", false);
    row("Anna-Lena Müller", "alm", true);
    row("O'Brien Niamh", "on", true);
    row("Müller", "MUL", true);
    row("Muller", "mül", true);
    row("Groß", "gross", true);
    row("Søren", "soren", true);
    row("Éloïse", "elo", true);
    row("Łukasz Żółw", "lukasz zolw", true);
    row("Lukasz", "Ł", true);
    row("Işık", "isik", true);
    row("IŞIK", "ışık", true);
    row("İbrahim", "ibr", true);
    row("ibrahim", "İBR", true);
    row("Пётр Фёдоров", "петр", true);
    row("Пётр Фёдоров", "ПФ", true);
    row("김철수", "김", true);
    row("김철수", "철수", true);
    row("김철수", "처", true);
    row("김철수", "김처", true);
    row("김철수", "김ㅊ", true);
    row("김철수", "ㄱㅊㅅ", true);
    row("김철수", "ㅊㅅ", true);
    row("김철수", "ㄱㅅ", false);
    row("김철수", "ㅁ", false); // a final consonant is no initial
    row("김철수", "기ㅁ", false);
    row("김 철수", "ㄱㅊㅅ", true);
    row("고석", "ㄱㅅ", true);
    row("고석", "ㄳ", true); // as the input method joins them
    row("값", "갑", true);
    row("과일", "고", true);
    row("까치", "ㄲ", true);
    row("까치", "ㄱ", false);
    row("50% \"off\" \\ _", "% \"o", true);
    row("50% \"off\" \\ _", "\\ _", true);
    row("Kim", "%", false);
    row("Kim", "_", false);
    row("Kim", "'", false);
    row("Kim", "*", false);
    row("Ｋｉｍ", "kim", true);
    row("😀 Smile", "😀", true);
    row("", "a", false);
}

void TestSearch::words()
{
    QFETCH(QString, name);
    QFETCH(QString, word);
    QFETCH(bool, matches);
    add(name);
    QCOMPARE(chosungCompare(name, word), matches);
    QCOMPARE(found(word), matches ? 1 : 0);
}

void TestSearch::emptyWord()
{
    add("Kim");
    add("Lee");
    QVERIFY(!chosungCompare("Kim", ""));
    QCOMPARE(found(""), 2);
}

void TestSearch::numbers()
{
    add("Kim", {"02-123", "+82*45#"});
    QCOMPARE(found("212"), 1);
    QCOMPARE(found("*45#"), 1);
    QCOMPARE(found("+82"), 1);
    QCOMPARE(found("23+8"), 0); // not across two numbers
    QCOMPARE(found("02-123"), 0);
    QCOMPARE(found("23\n+8"), 0);
}

void TestSearch::followsChanges()
{
    const int id = add("Kim", {"1"});
    QCOMPARE(found("kim"), 1);
    ContactData contact = m_store->getSpecificContactDetail(id);
    contact.name = "Lee";
    contact.setNumbers({"2"}, {});
    m_store->saveContact(contact, true);
    QCOMPARE(found("kim") + found("1"), 0);
    QCOMPARE(found("lee"), 1);
    m_store->deleteContact(id, ContactData::LocalContact);
    QCOMPARE(found("lee"), 0);
}

void TestSearch::manyFound()
{
    QList<ContactImport> people;
    for (int i = 0; i < 200; ++i) {
        ContactData contact;
        contact.name = QStringLiteral("Person %1").arg(i);
        people.append({contact, {}});
    }
    m_store->importContacts(people);
    QCOMPARE(found("person"), 200);
    const QList<ContactData> few = m_store->getContactSearchResults("person 19");
    QCOMPARE(few.size(), 11);
    QVERIFY(std::is_sorted(few.begin(), few.end(),
                           [](const ContactData &a, const ContactData &b) { return a.name < b.name; }));
}

QTEST_GUILESS_MAIN(TestSearch)
#include "tst_search.moc"
