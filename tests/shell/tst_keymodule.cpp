#include "apps/aom/keymodule.h"
#include "listviewsubtitleitem.h"
#include "neighbourtest.h"

using namespace PhoneKeys;

/// The key module: keys come from the contacts, stay, dial and go.
class KeyModuleTest : public NeighbourTest<KeyModule>
{
    Q_OBJECT

private slots:
    void dialsAndDeletes()
    {
        addKeys(2);
        receive(Chosen, {"Anna Adams", "+4930100 200"});
        QVERIFY(start());
        TestScreen::shot("keymodule");
        QCOMPARE(static_cast<ListViewSubTitleItem *>(list()->item(2))->subTitle(1)->text(), QString("+4930100200"));
        click(Qt::Key_Return); // on the last that came
        QVERIFY(sent().last().endsWith("NORMAL +4930100200 Anna Adams AUDIO 2 -1"));
        click(Qt::Key_Context3);
        QCOMPARE(rows(), QStringList({"Name 1", "Name 2"}));
        clickAll({Qt::Key_Up, Qt::Key_Context3});
        QCOMPARE(rows(), QStringList{"Name 2"});
        clickAll({Qt::Key_Context3, Qt::Key_Context3, Qt::Key_Return, Qt::Key_Down, Qt::Key_Return});
        QCOMPARE(softKeys(), QStringList({"Add", "", "", "Close"}));
        QCOMPARE(rows() + sent(), QStringList());
    }

    void isFullAtSomePoint()
    {
        addKeys(ProgramKeys::MostKeys + 1);
        QCOMPARE(rows().size(), ProgramKeys::MostKeys);
        QCOMPARE(softKeys(), QStringList({"", "", "Delete", "Close"}));
        // A number has one key.
        receive(Chosen, {"Last", QString("(%1)").arg(100 + ProgramKeys::MostKeys)});
        QCOMPARE(rows().last(), QString("Last"));
    }

    void keepsItsKeys()
    {
        const QString name = "김철수, \"Kim\"; [=]";
        addKeys(1);
        receive(Chosen, {name, "0101234"});
        receiveSenseless({Chosen, "unknown(str)", "searchContactResult"});
        remake();
        QCOMPARE(rows(), QStringList({"Name 1", name}));
        m_phone->writeFile(
            "config/aom.ini",
            "[Keys]\nsize=2000000000\n1\\Name=Adams, Anna\n1\\Number=100\n2\\Name=None\n3\\Number=x\n");
        remake();
        QCOMPARE(rows(), QStringList{"Adams, Anna"});
    }

private:
    static constexpr auto Chosen = "searchContactResult(str,str)";

    void addKeys(int count)
    {
        for (int i = 1; i <= count; ++i)
            receive(Chosen, {QString("Name %1").arg(i), QString::number(100 + i)});
    }
};

PHONE_TEST_MAIN(KeyModuleTest)
#include "tst_keymodule.moc"
