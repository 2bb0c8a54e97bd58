// The local search: what is found, where the focus goes, and what changes meanwhile.

#include "listviewsearchitem.h"
#include "phonetest.h"
#include "searchall.h"
#include "wpsmcontactmanager.h"

#include <QLabel>
#include <QLineEdit>

using namespace PhoneKeys;

class SearchAllTest : public PhoneTest
{
    Q_OBJECT

    void setUp() override
    {
        PhoneTest::setUp();
        m_phone->addContact("Kim Lee", {"0211", "", "0233"});
        m_phone->addContact("Müller", {"555"});
        m_phone->addContact("No First", {"", "0299"});
        m_phone->addContact("Ten", {"91", "92", "93", "94", "95", "96", "97", "98", "99", "90"});
    }

private slots:
    /// A name finds all numbers of its people, a number itself alone.
    void words()
    {
        const QStringList kim{"Kim Lee 1:0211", "Kim Lee 3:0233"};
        open();
        const QList<QPair<QString, QStringList>> finds
            = {{"kL", kim},         {"0", kim + QStringList{"Ten 10:90"}},
               {"233", kim.mid(1)}, {"mül", {"Müller 1:555"}},
               {"0299", {}},        {"no f", {}},
               {"% \\", {}}};
        for (const auto &[word, expected] : finds) {
            QCOMPARE(numbers().size(), 13); // every number of everybody who has a first one
            type(word);
            QCOMPARE(numbers(), expected);
            QCOMPARE(list()->isVisible(), !expected.isEmpty());
            QCOMPARE(m_search->findChild<QLabel *>("SearchAll::m_noResultLabel")->isVisible(), expected.isEmpty());
            m_search->tailFuncButtonLongPressed(2);
        }
    }

    void sameNameOnBoth()
    {
        m_phone->addContact("Kim Lee", {"1"});
        m_phone->connectMobile({"Kim Lee"});
        m_phone->core.wpsmContactManager()->readWpsmConfigFile();
        open();
        type("kim");
        QCOMPARE(numbers(),
                 QStringList({"Kim Lee 1:0701234567", "Kim Lee 1:1", "Kim Lee 1:0211", "Kim Lee 3:0233"}));
    }

    void focusMoves()
    {
        open();
        QVERIFY(lineHasFocus());
        // Each key with the row and the first row that shows after it; none while the line has the focus.
        constexpr auto Up = Qt::Key_Up, Down = Qt::Key_Down;
        const QList<std::tuple<Qt::Key, int, int>> moves
            = {{Down, 0, 0}, {Down, 1, 0}, {Down, 2, 1}, {Down, 3, 2}, {Up, 2, 2},
               {Up, 1, 1},   {Up, 0, 0},   {Up, -1, 0},  {Down, 0, 0}, {Qt::Key_F6, -1, 0}};
        for (const auto &[key, row, start] : moves) {
            click(key);
            QCOMPARE(list()->selectedIdx(), row);
            QCOMPARE(list()->startIdx(), start);
            QCOMPARE(lineHasFocus(), row < 0);
            QCOMPARE(softKeys().at(1), QString(row < 0 ? "" : "Call"));
        }
        type("mü");
        click(Qt::Key_F3); // no second row
        type("x");
        click(Qt::Key_Down);
        QVERIFY(lineHasFocus());
        click(Qt::Key_Escape);
        QVERIFY(!m_search->isVisible());
    }

    /// The contact that is looked at changes meanwhile.
    void detailsAndBack()
    {
        ContactData ten = store()->getSpecificContactDetail(store()->getIdByUsingNameAndNumber("Ten", "91"));
        open();
        type("ten");
        PhoneScript script;
        script.keys(QVector<int>(4, Qt::Key_Down).toList()).opens(Qt::Key_Return, "DetailsDial").call([&] {
            ten.setNumbers({"91", "92", "93"}, {});
            store()->saveContact(ten, true);
        });
        QCOMPARE(script.opens(Qt::Key_Escape, "SearchAll").run(), QString());
        QCOMPARE(numbers().size(), 3);
        QCOMPARE(list()->selectedIdx(), 2);
        QCOMPARE(list()->startIdx(), 1);
        QVERIFY(list()->hasFocus());
    }

private:
    void open() { m_search = PhoneTest::open(new SearchAll(nullptr, SearchAll::ViewMode, QString())); }
    bool lineHasFocus() const { return m_search->findChild<QLineEdit *>()->hasFocus(); }
    /// The rows, each as name, place of the number among those of its contact, and number.
    QStringList numbers() const
    {
        QStringList texts;
        for (int i = 0; i < list()->itemSize(); ++i) {
            auto *row = dynamic_cast<ListViewSearchItem *>(list()->item(i));
            texts.append(QString("%1 %2:%3").arg(row->text()).arg(row->getTelIndex()).arg(row->getTelnumval()));
        }
        return texts;
    }

    SearchAll *m_search = nullptr;
};

PHONE_TEST_MAIN(SearchAllTest)
#include "tst_searchall.moc"
