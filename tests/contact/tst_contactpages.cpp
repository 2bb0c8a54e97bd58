#include "contactscreen.h"
#include "phonetest.h"
#include "testmain.h"

using namespace PhoneKeys;

/// Moving through the pages of the grid with keys.
class ContactPagesTest : public PhoneTest
{
    Q_OBJECT

private slots:
    void pagesByTotal();
    void keys();
};

/// The number of the selected contact, from 1.
static int selected(ContactScreen &contacts)
{
    return contacts.selectedName().rightRef(3).toInt();
}

void ContactPagesTest::pagesByTotal()
{
    int total = 0;
    for (const QList<int> &pages : QList<QList<int>>{{1}, {6}, {6, 1}, {6, 6}, {6, 6, 6, 2}}) {
        const int wanted = std::accumulate(pages.begin(), pages.end(), 0);
        while (total < wanted)
            m_phone->addContact(QString("Name %1").arg(++total, 3, 10, QChar('0')));
        ContactScreen contacts;
        QVERIFY(contacts.open());
        QCOMPARE(contacts.softKeys().last().isEmpty(), pages.size() == 1);
        int first = 1;
        for (const int cells : pages) {
            QCOMPARE(contacts.names().size(), cells);
            QCOMPARE(selected(contacts), first);
            QCOMPARE(title(), QString("Contacts | All (%1/%2)").arg(first).arg(total));
            first += cells;
            click(Qt::Key_Context4);
        }
        QCOMPARE(selected(contacts), 1);
        // Without a label the key is dead, yet the page command itself stays on the one page.
        contacts.app.tailFuncButtonClicked(3);
        QCOMPARE(selected(contacts), pages.value(1) ? 7 : 1);
    }
}

void ContactPagesTest::keys()
{
    const Qt::Key up = Qt::Key_Up, down = Qt::Key_Down, left = Qt::Key_Left, right = Qt::Key_Right;
    const Qt::Key page = Qt::Key_Context4;
    using Keys = QList<Qt::Key>;
    const QMap<int, QList<QPair<Keys, int>>> roads = {
        {3, {{{up}, 3}, {{up, down}, 1}}},
        {7, {{{up}, 7}, {{page, page}, 1}}},
        {8, {{{down, down, right, right}, 8}}}, // onto a short page
        {9, {{{page, down, right}, 1}}}, // a last page without a neighbour, and one with
        {10, {{{page, right}, 10}, {{down, left}, 10}}},
        {20,
         {{{down, down}, 3},
          {{down, down, down}, 4},
          {{right}, 4},
          {{right, left}, 1},
          {{right, down, down, down}, 7}, // over the end of a page
          {{page, up}, 6},
          {{up}, 20}, // around the ends
          {{up, down}, 1},
          {{down, right, right}, 8}, // the line is kept
          {{page, down, left}, 5},
          {{down, down, left}, 20}}}, // to a last page of one column
    };
    int total = 0;
    for (auto roadsOf = roads.begin(); roadsOf != roads.end(); ++roadsOf) {
        while (total < roadsOf.key())
            m_phone->addContact(QString("Name %1").arg(++total, 3, 10, QChar('0')));
        for (const auto &road : roadsOf.value()) {
            ContactScreen contacts;
            QVERIFY(contacts.open());
            for (const Qt::Key key : road.first)
                click(key);
            QVERIFY2(selected(contacts) == road.second,
                     qPrintable(QString("%1 of %2, not %3").arg(selected(contacts)).arg(total).arg(road.second)));
        }
    }
}

PHONE_TEST_MAIN(ContactPagesTest)
#include "tst_contactpages.moc"
