#include "apps/aom/keymodule.h"
#include "listviewsubtitleitem.h"
#include "neighbourtest.h"

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
    for (const Qt::Key key : {Qt::Key_Context4, Qt::Key_Escape}) {
        QVERIFY(start());
        click(key);
        QVERIFY(!app()->isVisible());
    }
    QVERIFY(start());
    QCOMPARE(title(), QString("Key Module"));
    QCOMPARE(softKeys(), QStringList({"Add", "", "", "Close"}));
    TestScreen::shot("keymodule-empty");
    receive(Chosen, {"Anna Adams", "+4930100 200"});
    QCOMPARE(static_cast<ListViewSubTitleItem *>(list()->item(0))->subTitle(1)->text(), QString("+4930100200"));
    receive(Chosen, {"김철수", "0101234567"});
    QCOMPARE(rows(), QStringList({"Anna Adams", "김철수"}));
    QCOMPARE(softKeys(), QStringList({"Add", "", "Delete", "Close"}));
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

void KeyModuleTest::dialsAndDeletes()
{
    addKeys(3);
    QVERIFY(start());
    sent();
    click(Qt::Key_Return); // on the last that came
    QCOMPARE(sent(),
             QStringList{"CM ui2cm_svc_dialer(int,str,str,str,str,int,int) 0 NORMAL 103 Name 3 AUDIO 2 -1"});
    click(Qt::Key_Context3);
    QCOMPARE(rows(), QStringList({"Name 1", "Name 2"}));
    click(Qt::Key_Up);
    click(Qt::Key_Context3);
    QCOMPARE(rows(), QStringList{"Name 2"});
    click(Qt::Key_Context3);
    QCOMPARE(softKeys(), QStringList({"Add", "", "", "Close"}));
    for (Qt::Key key : {Qt::Key_Context3, Qt::Key_Return, Qt::Key_Down, Qt::Key_Return})
        click(key);
    QCOMPARE(rows() + sent(), QStringList());
}

void KeyModuleTest::isFullAtSomePoint()
{
    addKeys(ProgramKeys::MostKeys + 1);
    QCOMPARE(rows().size(), ProgramKeys::MostKeys);
    QCOMPARE(softKeys(), QStringList({"", "", "Delete", "Close"}));
    // A number has one key.
    receive(Chosen, {"Last", QString("(%1)").arg(100 + ProgramKeys::MostKeys)});
    QCOMPARE(rows().last(), QString("Last"));
}

void KeyModuleTest::keepsItsKeys()
{
    const QString name = "김철수, \"Kim\"; [=]";
    addKeys(3);
    receive(Chosen, {name, "0101234"});
    receiveSenseless({Chosen, "unknown(str)", "searchContactResult"});
    remake();
    QCOMPARE(rows(), QStringList({"Name 1", "Name 2", "Name 3", name}));
    QVERIFY(start());
    click(Qt::Key_Context3); // shorter than before
    remake();
    QCOMPARE(rows(), QStringList({"Name 2", "Name 3", name}));
    m_phone->writeFile("config/aom.ini",
                       "[Keys]\nsize=2000000000\n1\\Name=Adams, Anna\n1\\Number=100\n2\\Name=None\n3\\Number=x\n");
    remake();
    QCOMPARE(rows(), QStringList{"Adams, Anna"});
}

PHONE_TEST_MAIN(KeyModuleTest)
#include "tst_keymodule.moc"
