#include "keymodule.h"
#include "neighbourtest.h"

#include <QSettings>

using namespace PhoneKeys;

/// The key module: keys come from the contacts, stay, dial and go.
class KeyModuleTest : public NeighbourTest<KeyModule>
{
    Q_OBJECT

private slots:
    void addsFromTheContacts();
    void dialsAndDeletes();
    void isFullAtSomePoint();
    void keepsItsKeys();
    void readsAForeignFile();
    void senselessMessages();
    void endsAndStarts();
    void pictures();

private:
    static constexpr auto Chosen = "searchContactResult(str,str)";

    void addKeys(int count)
    {
        for (int i = 1; i <= count; ++i)
            receive(Chosen, {QString("Name %1").arg(i), QString::number(100 + i)});
    }
};

void KeyModuleTest::addsFromTheContacts()
{
    QVERIFY(open());
    QCOMPARE(title(), QString("Key Module"));
    QCOMPARE(softKeys(m_app.get()), QStringList({"Add", "", "", "Close"}));
    click(Qt::Key_Context1);
    QCOMPARE(sent(), QStringList{"contact searchContact()"});
    receive(Chosen, {"Anna Adams", "+49 100"});
    QCOMPARE(rows(m_app.get()), QStringList{"Anna Adams"});
    QCOMPARE(piece(m_app.get(), 0, 1), QString("+49100"));
    QCOMPARE(title(), QString("Key Module (1/24)"));
    QCOMPARE(softKeys(m_app.get()), QStringList({"Add", "", "Delete", "Close"}));
}

void KeyModuleTest::dialsAndDeletes()
{
    addKeys(3);
    QVERIFY(open());
    sent();
    click(Qt::Key_Return); // on the last that came
    QCOMPARE(sent(),
             QStringList{"CM ui2cm_svc_dialer(int,str,str,str,str,int,int) 0 NORMAL 103 Name 3 AUDIO 2 -1"});
    click(Qt::Key_Context3);
    QCOMPARE(rows(m_app.get()), QStringList({"Name 1", "Name 2"}));
    click(Qt::Key_Up);
    click(Qt::Key_Context3);
    QCOMPARE(rows(m_app.get()), QStringList{"Name 2"});
    click(Qt::Key_Context3);
    QCOMPARE(rows(m_app.get()), QStringList());
    QCOMPARE(softKeys(m_app.get()), QStringList({"Add", "", "", "Close"}));
    sent();
    for (Qt::Key key : {Qt::Key_Context3, Qt::Key_Return, Qt::Key_Down, Qt::Key_Return})
        click(key);
    QCOMPARE(sent(), QStringList());
}

void KeyModuleTest::isFullAtSomePoint()
{
    addKeys(ProgramKeys::MostKeys + 1);
    QCOMPARE(rows(m_app.get()).size(), ProgramKeys::MostKeys);
    QCOMPARE(softKeys(m_app.get()), QStringList({"", "", "Delete", "Close"}));
    // A number has one key.
    receive(Chosen, {"Last", QString("(%1)").arg(100 + ProgramKeys::MostKeys)});
    QCOMPARE(rows(m_app.get()).last(), QString("Last"));
}

void KeyModuleTest::keepsItsKeys()
{
    const QString name = QString::fromUtf8("김철수, \"Kim\"; [=]");
    addKeys(3);
    receive(Chosen, {name, "0101234"});
    remake();
    QCOMPARE(rows(m_app.get()), QStringList({"Name 1", "Name 2", "Name 3", name}));
    QVERIFY(open());
    click(Qt::Key_Context3); // shorter than before
    remake();
    QCOMPARE(rows(m_app.get()), QStringList({"Name 2", "Name 3", name}));
}

void KeyModuleTest::readsAForeignFile()
{
    m_phone->writeFile("config/aom.ini",
                       "[Keys]\nsize=2000000000\n1\\Name=Adams, Anna\n1\\Number=100\n2\\Name=None\n3\\Number=x\n");
    remake();
    QCOMPARE(rows(m_app.get()), QStringList{"Adams, Anna"});
}

void KeyModuleTest::senselessMessages()
{
    addKeys(1);
    for (const QByteArray &payload : senselessPayloads()) {
        for (const char *command : {Chosen, "unknown(str)", "searchContactResult"})
            receiveRaw(command, payload);
    }
    QCOMPARE(rows(m_app.get()), QStringList{"Name 1"});
}

void KeyModuleTest::endsAndStarts()
{
    QVERIFY(open());
    QCOMPARE(m_phone->core.currentActivateApp(), QString("aom"));
    click(Qt::Key_Context4);
    QVERIFY(!m_app->isVisible());
    QVERIFY(open());
    click(Qt::Key_Escape);
    QVERIFY(!m_app->isVisible());
    QVERIFY(open());
    m_app->start(nullptr, nullptr);
    QVERIFY(!m_app->isVisible());
}

void KeyModuleTest::pictures()
{
    QVERIFY(open());
    TestScreen::shot("keymodule-empty");
    receive(Chosen, {"Anna Adams", "+4930100200"});
    receive(Chosen, {QString::fromUtf8("김철수"), "0101234567"});
    TestScreen::shot("keymodule-two");
    receive(Chosen, {"Maximiliane von und zu Hohenlohe", "+49691234567890123"});
    addKeys(9);
    for (int i = 0; i < 10; ++i)
        click(Qt::Key_Up);
    TestScreen::shot("keymodule");
    press(Qt::Key_Return);
    TestScreen::shot("keymodule-pressed");
    release(Qt::Key_Return);
}

PHONE_TEST_MAIN(KeyModuleTest)
#include "tst_keymodule.moc"
