// Moving through the pages of the grid with keys.

#include "contactscreen.h"
#include "testcase.h"
#include "testmain.h"
#include "testphone.h"

#include <memory>

using namespace PhoneKeys;

class ContactPagesTest : public TestCase
{
    Q_OBJECT

    void setUp() override { m_phone.reset(new TestPhone); }
    void tearDown() override
    {
        m_screen.reset();
        m_phone.reset();
    }

private slots:
    void pagesByTotal_data();
    void pagesByTotal();
    void arrows_data();
    void arrows();
    void theFourthKeyPages();
    void theTitleFollowsTheSelection();

private:
    void open(int contacts)
    {
        m_phone->addContacts(contacts);
        m_screen.reset(new ContactScreen);
        QVERIFY(m_screen->open());
    }
    /// The number of the selected contact, from 1.
    int selected() const { return m_screen->selectedName().right(3).toInt(); }

    std::unique_ptr<TestPhone> m_phone;
    std::unique_ptr<ContactScreen> m_screen;
};

void ContactPagesTest::pagesByTotal_data()
{
    QTest::addColumn<int>("total");
    QTest::addColumn<QList<int>>("pages");
    QTest::newRow("one") << 1 << QList<int>{1};
    QTest::newRow("a full page") << 6 << QList<int>{6};
    QTest::newRow("one more") << 7 << QList<int>{6, 1};
    QTest::newRow("two full pages") << 12 << QList<int>{6, 6};
    QTest::newRow("some") << 20 << QList<int>{6, 6, 6, 2};
}

void ContactPagesTest::pagesByTotal()
{
    QFETCH(int, total);
    QFETCH(QList<int>, pages);
    open(total);
    int first = 1;
    for (const int cells : qAsConst(pages)) {
        QCOMPARE(m_screen->names().size(), cells);
        QCOMPARE(selected(), first);
        first += cells;
        click(Qt::Key_Context4);
    }
    QCOMPARE(selected(), 1);
}

void ContactPagesTest::arrows_data()
{
    QTest::addColumn<int>("total");
    QTest::addColumn<QList<int>>("keys");
    QTest::addColumn<int>("landsOn");
    const int up = Qt::Key_Up, down = Qt::Key_Down, left = Qt::Key_Left, right = Qt::Key_Right;
    const int page = Qt::Key_Context4;
    QTest::newRow("down within a column") << 20 << QList<int>{down, down} << 3;
    QTest::newRow("down into the next column") << 20 << QList<int>{down, down, down} << 4;
    QTest::newRow("right to the next column") << 20 << QList<int>{right} << 4;
    QTest::newRow("right and back") << 20 << QList<int>{right, left} << 1;
    QTest::newRow("down over the end of a page") << 20 << QList<int>{right, down, down, down} << 7;
    QTest::newRow("up over the start of a page") << 20 << QList<int>{page, up} << 6;
    QTest::newRow("up from the first wraps to the last") << 20 << QList<int>{up} << 20;
    QTest::newRow("down from the last wraps to the first") << 20 << QList<int>{up, down} << 1;
    QTest::newRow("down wraps on one page") << 3 << QList<int>{up, down} << 1;
    QTest::newRow("up wraps on one page") << 3 << QList<int>{up} << 3;
    QTest::newRow("right from the right column keeps the line") << 20 << QList<int>{down, right, right} << 8;
    QTest::newRow("right onto a short page") << 8 << QList<int>{down, down, right, right} << 8;
    QTest::newRow("left to a full page keeps the line") << 20 << QList<int>{page, down, left} << 5;
    QTest::newRow("left wraps to a last page of one column") << 20 << QList<int>{down, down, left} << 20;
    QTest::newRow("left wraps to a last page of two columns") << 10 << QList<int>{down, left} << 10;
    QTest::newRow("right on a last page without a neighbour") << 9 << QList<int>{page, down, right} << 1;
    QTest::newRow("right on a last page with a neighbour") << 10 << QList<int>{page, right} << 10;
    QTest::newRow("forward from the last of seven") << 7 << QList<int>{page, page} << 1;
    QTest::newRow("backward from the first of seven") << 7 << QList<int>{up} << 7;
}

void ContactPagesTest::arrows()
{
    QFETCH(int, total);
    QFETCH(QList<int>, keys);
    open(total);
    for (const int key : qAsConst(keys))
        click(static_cast<Qt::Key>(key));
    QTEST(selected(), "landsOn");
}

void ContactPagesTest::theFourthKeyPages()
{
    open(6);
    QCOMPARE(m_screen->softKeys().last(), QString());
    click(Qt::Key_Context4);
    QCOMPARE(selected(), 1);
    // Without a label the key is dead, yet the page command itself stays on the one page.
    m_screen->app.tailFuncButtonClicked(3);
    QCOMPARE(selected(), 1);
}

void ContactPagesTest::theTitleFollowsTheSelection()
{
    open(20);
    QCOMPARE(m_phone->status.title(), QString("Contacts | All (1/20)"));
    for (int i = 0; i < 14; ++i)
        click(Qt::Key_Down);
    QCOMPARE(m_phone->status.title(), QString("Contacts | All (15/20)"));
    click(Qt::Key_Up);
    QCOMPARE(m_phone->status.title(), QString("Contacts | All (14/20)"));
}

PHONE_TEST_MAIN(ContactPagesTest)
#include "tst_contactpages.moc"
