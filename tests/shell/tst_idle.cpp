#include "apps/idle/idle.h"
#include "neighbourtest.h"

using namespace PhoneKeys;

/// The home screen and its favourite.
class IdleTest : public NeighbourTest<Idle>
{
    Q_OBJECT

private slots:
    void okCallsTheFavouriteWhichFollowsItsContact()
    {
        // A command and its items, and the favourite after it, which was Anna with 100 before.
        const QList<std::tuple<QString, QVariantList, QString>> events
            = {{Chosen, {"Bea", "+49 (30) 200"}, "+4930200 Bea"},
               {Chosen, {"Bea", ""}, "100 Anna"},
               {Updated, {"1 00", "Anne"}, "100 Anne"},
               {Updated, {"200", "Anne"}, "100 Anna"},
               {Updated, {"100"}, "100 Anna"},
               {Deleted, {"100"}, ""},
               {Deleted, {"200"}, "100 Anna"},
               {Deleted, {""}, "100 Anna"},
               {"contactAllDelete()", {}, ""}};
        for (const auto &[command, items, favourite] : events) {
            remake();
            QVERIFY(start());
            receive(Chosen, {"Anna", "100"});
            receive(command, items);
            QCOMPARE(called(), favourite);
            remake();
            QVERIFY(start());
            QCOMPARE(called(), favourite);
        }
        receive(Chosen, {"Maximiliane von und zu Hohenlohe-Schillingsfürst", "100"});
        receiveSenseless({Chosen, Updated, Deleted, "unknown(str)", "contactDeletedNumber"});
        release(Qt::Key_Return); // of a key that went down elsewhere
        QCOMPARE(sent(), QStringList());
        TestScreen::shot("idle-favourite");
        QVERIFY(called().startsWith("100 Max"));
    }

private:
    static constexpr auto Chosen = "searchContactResult(str,str)";
    static constexpr auto Updated = "contactUpdatedNumber(str,str)";
    static constexpr auto Deleted = "contactDeletedNumber(str)";

    /// Who is called by Ok, or nobody.
    QString called()
    {
        sent();
        click(Qt::Key_Return);
        const QStringList messages = sent();
        return messages.isEmpty() ? QString() : messages.first().section(' ', 4, -4);
    }
};

PHONE_TEST_MAIN(IdleTest)
#include "tst_idle.moc"
