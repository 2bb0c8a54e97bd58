#include "apps/idle/idle.h"
#include "callmanager.h"
#include "neighbourtest.h"

using namespace PhoneKeys;

/// The home screen: its ways into the applications and its favourite.
class IdleTest : public NeighbourTest<Idle>
{
    Q_OBJECT

private slots:
    void launchesTheApplications();
    void aDirectoryIsBehindTheOthers();
    void okCallsTheFavourite();
    void theFavouriteFollowsItsContact();

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

void IdleTest::launchesTheApplications()
{
    QStringList launched;
    m_phone->core.setLauncher([&](const QString &name, void *) { launched.append(name); });
    QVERIFY(start());
    TestScreen::shot("idle");
    for (Qt::Key key : {Qt::Key_Context1, Qt::Key_Context2, Qt::Key_Context3, Qt::Key_Context4, Qt::Key_Escape})
        click(key);
    QCOMPARE(launched, QStringList({"contact", "history", "message", "aom"}));
    m_phone->core.callManager()->setCallState("ALERT");
    TestScreen::shot("idle-in-call");
    click(Qt::Key_Context3);
    m_phone->core.callManager()->setCallState("IDLE");
    click(Qt::Key_Context3);
    QCOMPARE(launched.mid(4), QStringList({"call", "message"}));
    QVERIFY(app()->isVisible());
}

void IdleTest::aDirectoryIsBehindTheOthers()
{
    QStringList launched;
    m_phone->core.setLauncher([&](const QString &name, void *) { launched.append(name); });
    m_phone->writeFile("config/phone_info.conf", "[Directory_svc]\nAddr=server\n");
    QVERIFY(start());
    QCOMPARE(softKeys(), QStringList({"Contacts", "History", "Messages", ">"}));
    click(Qt::Key_Context4);
    QCOMPARE(softKeys(), QStringList({"Directory", "Keys", "", ">"}));
    TestScreen::shot("idle-further");
    click(Qt::Key_Context1);
    m_phone->core.setVisibleContact(true);
    click(Qt::Key_Context1); // contacts that show already would end
    QCOMPARE(launched, QStringList("contact"));
    QCOMPARE(sent(), QStringList({"contact viewContactSearchDir(str) ", "contact viewContactSearchDir(str) "}));
    click(Qt::Key_Context4);
    QCOMPARE(softKeys().last(), QString(">"));
    QCOMPARE(softKeys().first(), QString("Contacts"));
}

void IdleTest::okCallsTheFavourite()
{
    QVERIFY(start());
    QCOMPARE(called(), QString());
    receive(Chosen, {"Anna Adams", "+49 (30) 100"});
    TestScreen::shot("idle-favourite");
    click(Qt::Key_Return);
    QCOMPARE(sent(),
             QStringList{"CM ui2cm_svc_dialer(int,str,str,str,str,int,int) 0 NORMAL +4930100 Anna Adams "
                         "AUDIO 2 -1"});
    release(Qt::Key_Return); // of a key that went down elsewhere
    QCOMPARE(sent(), QStringList());
    receive(Chosen, {"Maximiliane von und zu Hohenlohe-Schillingsfürst", "200"});
    TestScreen::shot("idle-favourite-long");
}

void IdleTest::theFavouriteFollowsItsContact()
{
    const struct
    {
        QString command;
        QVariantList items;
        QString favourite; // that was Anna with 100 before
    } events[] = {
        {Chosen, {"Bea", "200"}, "200 Bea"},     {Chosen, {"Bea", ""}, "100 Anna"},
        {Updated, {"1 00", "Anne"}, "100 Anne"}, {Updated, {"200", "Anne"}, "100 Anna"},
        {Updated, {"100"}, "100 Anna"},          {Deleted, {"100"}, ""},
        {Deleted, {"200"}, "100 Anna"},          {Deleted, {""}, "100 Anna"},
        {"contactAllDelete()", {}, ""},
    };
    for (const auto &event : events) {
        QVERIFY(start());
        receive(Chosen, {"Anna", "100"});
        receive(event.command, event.items);
        QCOMPARE(called(), event.favourite);
        remake();
        QVERIFY(start());
        QCOMPARE(called(), event.favourite);
        remake();
    }
    QVERIFY(start());
    receive(Chosen, {"Anna", "100"});
    receiveSenseless({Chosen, Updated, Deleted, "unknown(str)", "contactDeletedNumber"});
    QCOMPARE(called(), QString("100 Anna"));
}

PHONE_TEST_MAIN(IdleTest)
#include "tst_idle.moc"
