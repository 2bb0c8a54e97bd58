#include "callmanager.h"
#include "idle.h"
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
    void theFavouriteFollowsItsContact_data();
    void theFavouriteFollowsItsContact();
    void senselessMessages();
    void pictures();

private:
    static constexpr auto Chosen = "searchContactResult(str,str)";
    static constexpr auto Updated = "contactUpdatedNumber(str,str)";
    static constexpr auto Deleted = "contactDeletedNumber(str)";
    static constexpr auto AllDeleted = "contactAllDelete()";

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
    QVERIFY(open());
    for (Qt::Key key : {Qt::Key_Context1, Qt::Key_Context2, Qt::Key_Context3, Qt::Key_Context4, Qt::Key_Escape})
        click(key);
    QCOMPARE(launched, QStringList({"contact", "history", "message", "aom"}));
    m_phone->core.callManager()->setCallState("ALERT");
    TestScreen::shot("idle-in-call");
    click(Qt::Key_Context3);
    m_phone->core.callManager()->setCallState("IDLE");
    click(Qt::Key_Context3);
    QCOMPARE(launched.mid(4), QStringList({"call", "message"}));
    QVERIFY(m_app->isVisible());
}

void IdleTest::aDirectoryIsBehindTheOthers()
{
    QStringList launched;
    m_phone->core.setLauncher([&](const QString &name, void *) { launched.append(name); });
    m_phone->writeFile("config/phone_info.conf", "[Directory_svc]\nAddr=server\n");
    QVERIFY(open());
    QCOMPARE(softKeys(m_app.get()), QStringList({"Contacts", "History", "Messages", ">"}));
    click(Qt::Key_Context4);
    QCOMPARE(softKeys(m_app.get()), QStringList({"Directory", "Keys", "", ">"}));
    TestScreen::shot("idle-further");
    click(Qt::Key_Context1);
    m_phone->core.setVisibleContact(true);
    click(Qt::Key_Context1); // contacts that show already would end
    QCOMPARE(launched, QStringList("contact"));
    QCOMPARE(sent(), QStringList({"contact viewContactSearchDir(str) ", "contact viewContactSearchDir(str) "}));
    click(Qt::Key_Context4);
    QCOMPARE(softKeys(m_app.get()).last(), QString(">"));
    QCOMPARE(softKeys(m_app.get()).first(), QString("Contacts"));
}

void IdleTest::okCallsTheFavourite()
{
    QVERIFY(open());
    QCOMPARE(called(), QString());
    receive(Chosen, {"Anna Adams", "+49 (30) 100"});
    click(Qt::Key_Return);
    QCOMPARE(sent(),
             QStringList{"CM ui2cm_svc_dialer(int,str,str,str,str,int,int) 0 NORMAL +4930100 Anna Adams "
                         "AUDIO 2 -1"});
    release(Qt::Key_Return); // of a key that went down elsewhere
    QCOMPARE(sent(), QStringList());
    remake();
    QVERIFY(open());
    QCOMPARE(called(), QString("+4930100 Anna Adams"));
}

void IdleTest::theFavouriteFollowsItsContact_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QVariantList>("items");
    QTest::addColumn<QString>("favourite");
    QTest::newRow("another") << Chosen << QVariantList{"Bea", "200"} << "200 Bea";
    QTest::newRow("nobody") << Chosen << QVariantList{"Bea", ""} << "100 Anna";
    QTest::newRow("new name") << Updated << QVariantList{"1 00", "Anne"} << "100 Anne";
    QTest::newRow("another's new name") << Updated << QVariantList{"200", "Anne"} << "100 Anna";
    QTest::newRow("update without a name") << Updated << QVariantList{"100"} << "100 Anna";
    QTest::newRow("deleted") << Deleted << QVariantList{"100"} << "";
    QTest::newRow("another deleted") << Deleted << QVariantList{"200"} << "100 Anna";
    QTest::newRow("one without a number deleted") << Deleted << QVariantList{""} << "100 Anna";
    QTest::newRow("all deleted") << AllDeleted << QVariantList() << "";
}

void IdleTest::theFavouriteFollowsItsContact()
{
    QFETCH(QVariantList, items);
    QVERIFY(open());
    receive(Chosen, {"Anna", "100"});
    QFETCH(QString, command);
    receive(command, items);
    QTEST(called(), "favourite");
    remake();
    QVERIFY(open());
    QTEST(called(), "favourite");
}

void IdleTest::senselessMessages()
{
    QVERIFY(open());
    receive(Chosen, {"Anna", "100"});
    for (const QByteArray &payload : senselessPayloads()) {
        for (const char *command : {Chosen, Updated, Deleted, "unknown(str)", "contactDeletedNumber"})
            receiveRaw(command, payload);
    }
    QCOMPARE(called(), QString("100 Anna"));
}

void IdleTest::pictures()
{
    QVERIFY(open());
    TestScreen::shot("idle");
    receive(Chosen, {"Anna Adams", "100"});
    TestScreen::shot("idle-favourite");
    receive(Chosen, {"Maximiliane von und zu Hohenlohe-Schillingsfürst", "200"});
    TestScreen::shot("idle-favourite-long");
}

PHONE_TEST_MAIN(IdleTest)
#include "tst_idle.moc"
