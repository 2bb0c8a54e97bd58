// The edit form: its rows, its limits, what it saves.

#include "contactmanager.h"
#include "listview.h"
#include "numberedit.h"
#include "numberedititems.h"
#include "numbertypes.h"
#include "phonekeys.h"
#include "phonescript.h"
#include "selectpopup.h"
#include "selectpopuplistview.h"
#include "tail.h"
#include "testcase.h"
#include "testmain.h"
#include "testphone.h"
#include "textlimits.h"

#include <QLineEdit>

#include <memory>

using namespace PhoneKeys;

class NumberEditTest : public TestCase
{
    Q_OBJECT

    void setUp() override { m_phone.reset(new TestPhone); }
    void tearDown() override
    {
        m_form.reset();
        m_phone.reset();
    }

private slots:
    void numberLabels_data();
    void numberLabels();
    void cutsNames_data();
    void cutsNames();
    void savesANewContact();
    void keepsEveryFieldOfAContact();
    void refusals_data();
    void refusals();
    void offersFieldsWithinTheLimits();
    void savesUpToNineNumbers();
    void addsTheNumberItIsGiven();
    void cutsWhileTyping();
    void deletesAnEmptyField();
    void aRefusedStoreKeepsTheForm();
    void pictures();

private:
    void open(int id = -1, const QString &number = QString(), int group = -1)
    {
        m_form.reset(new NumberEdit(nullptr, id, number, group));
        QVERIFY(showAndActivate(m_form.get()));
        QTest::qWait(5);
    }
    ListView *list() const { return m_form->findChild<ListView *>("NumberEdit::m_listView"); }
    NumberEditLineEditItem *lineRow(int idx) const
    {
        return dynamic_cast<NumberEditLineEditItem *>(list()->item(idx));
    }
    QStringList labels() const
    {
        QStringList texts;
        for (int i = 0; i < list()->itemSize(); ++i)
            texts.append(list()->item(i)->text());
        return texts;
    }
    ContactData stored(int id) const { return m_phone->core.contactManager()->getSpecificContactDetail(id); }
    /// Adds a field through the popups, as a person does.
    void addField(int row, int kind = -1)
    {
        PhoneScript script;
        script.keys({Qt::Key_Context1}).untilActive("SelectPopup");
        for (int i = 0; i < row; ++i)
            script.keys({Qt::Key_Down});
        script.keys({Qt::Key_Return});
        if (kind >= 0) {
            script.until("the kinds", [] {
                auto *popup = qobject_cast<SelectPopup *>(QApplication::activeWindow());
                return popup && popup->listView()->itemSize() == 5;
            });
            for (int i = 0; i < kind; ++i)
                script.keys({Qt::Key_Down});
            script.keys({Qt::Key_Return});
        }
        script.untilActive("NumberEdit");
        QCOMPARE(script.run(), QString());
    }

    std::unique_ptr<TestPhone> m_phone;
    std::unique_ptr<NumberEdit> m_form;
};

void NumberEditTest::numberLabels_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("label");
    QTest::addColumn<int>("back");
    QTest::newRow("company") << 0 << "Company Number" << 0;
    QTest::newRow("mobile") << 1 << "Mobile Number" << 1;
    QTest::newRow("home") << 2 << "Home Number" << 2;
    QTest::newRow("fax") << 3 << "Fax Number" << 3;
    QTest::newRow("etc") << 4 << "Etc Number" << 4;
    QTest::newRow("unknown") << 7 << "Etc Number" << 4;
    QTest::newRow("negative") << -1 << "Etc Number" << 4;
}

void NumberEditTest::numberLabels()
{
    QFETCH(int, kind);
    QFETCH(QString, label);
    QCOMPARE(getNumberTypeStr(kind), label);
    QTEST(getNumberType(label), "back");
    QCOMPARE(getNumberType("Memo"), 0);
    QCOMPARE(getNumberType("A Number of its own"), 0);
}

void NumberEditTest::cutsNames_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("kept");
    const QString latin(40, 'x'), korean(20, QChar(0xae40));
    QTest::newRow("29 Latin") << latin.left(29) << 29;
    QTest::newRow("30 Latin") << latin.left(30) << 30;
    QTest::newRow("31 Latin") << latin.left(31) << 30;
    QTest::newRow("15 Korean") << korean.left(15) << 15;
    QTest::newRow("16 Korean") << korean.left(16) << 15;
    QTest::newRow("29 Latin and one Korean") << latin.left(29) + korean.left(1) << 29;
    QTest::newRow("beyond ASCII is narrow") << QString(31, QChar(0xff)) << 30;
    QTest::newRow("nothing") << "" << 0;
}

void NumberEditTest::cutsNames()
{
    QFETCH(QString, text);
    QTEST(checkMaxString(text, 30).size(), "kept");
}

void NumberEditTest::savesANewContact()
{
    ListeningApp idle("idle");
    open(-1, "0101234");
    QCOMPARE(m_phone->status.title(), QString("Contacts | Add"));
    QCOMPARE(labels(), QStringList({"Name", "Group", "Company Number"}));
    list()->lineEdit()->setText("Kim");
    PhoneScript script;
    QCOMPARE(script.keys({Qt::Key_Context4})
                 .until("the toast", [this] { return m_form->findChild<QWidget *>("Toast:NumberEdit") != nullptr; })
                 .keys({Qt::Key_Return})
                 .until("the form to close", [this] { return !m_form->isVisible(); })
                 .run(),
             QString());
    const ContactData contact = stored(m_form->getSavedId());
    QCOMPARE(contact.name, QString("Kim"));
    QCOMPARE(contact.telnum1, QString("0101234"));
    QCOMPARE(m_phone->core.contactManager()->getGroupIdsOfMember(contact.id), QList<int>{1});
    QCOMPARE(idle.commands, QStringList("contactUpdatedNumber(str,str)"));
}

void NumberEditTest::keepsEveryFieldOfAContact()
{
    ContactData contact;
    contact.name = QString::fromUtf8("김철수");
    contact.setNumbers({"1", "2", "3"}, {ContactData::Fax, ContactData::Home, ContactData::Etc});
    contact.setEmails({"a@b", "c@d"});
    contact.memo = "memo";
    ContactManager *store = m_phone->core.contactManager();
    const int id = store->saveContact(contact, false);
    const int group = store->saveGroup(GroupData(-1, "Team", ""), false);
    store->saveGroupMember(id, {group});
    open(id);
    QCOMPARE(m_phone->status.title(), QString("Contacts | Edit"));
    QCOMPARE(labels(),
             QStringList(
                 {"Name", "Group", "Fax Number", "Home Number", "Etc Number", "Email", "Email", "Bell", "Memo"}));
    QCOMPARE(dynamic_cast<NumberEditSelectItem *>(list()->item(1))->selectedText(), QString("Team"));
    QCOMPARE(dynamic_cast<NumberEditSelectItem *>(list()->item(7))->selectedText(), QString("Undesignated"));
    QCOMPARE(m_form->saveContact(), int(NumberEdit::Saved));
    contact.id = id;
    QCOMPARE(stored(id), contact);
    QCOMPARE(store->getGroupIdsOfMember(id), QList<int>{group});
}

void NumberEditTest::refusals_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("number");
    QTest::addColumn<int>("contacts");
    QTest::addColumn<int>("result");
    QTest::newRow("no name") << ""
                             << "1" << 0 << int(NumberEdit::NameMissing);
    QTest::newRow("no number") << "A"
                               << "" << 0 << int(NumberEdit::NumberMissing);
    QTest::newRow("the last that fits") << "A"
                                        << "1" << 299 << int(NumberEdit::Saved);
    QTest::newRow("one too many") << "A"
                                  << "1" << 300 << int(NumberEdit::TooManyContacts);
}

void NumberEditTest::refusals()
{
    QFETCH(QString, name);
    QFETCH(QString, number);
    QFETCH(int, contacts);
    m_phone->addContacts(contacts);
    open(-1, number);
    lineRow(0)->setEditText(name);
    QTEST(m_form->saveContact(), "result");
    // An edited contact is saved all the same.
    if (contacts == 300) {
        open(1);
        QCOMPARE(m_form->saveContact(), int(NumberEdit::Saved));
    }
}

void NumberEditTest::offersFieldsWithinTheLimits()
{
    open(-1, "1");
    addField(2); // bell
    addField(2); // memo: the keys skip the bell, which is no longer offered
    QCOMPARE(labels(), QStringList({"Name", "Group", "Company Number", "Bell", "Memo"}));
    addField(1); // e-mail
    addField(0, 3);
    QCOMPARE(labels(), QStringList({"Name", "Group", "Company Number", "Fax Number", "Email", "Bell", "Memo"}));
    QCOMPARE(list()->selectedIdx(), 3);
    addField(1);
    addField(1);
    PhoneScript script;
    QList<bool> offered;
    QCOMPARE(script.keys({Qt::Key_Context1})
                 .untilActive("SelectPopup")
                 .call([&] {
                     auto *popup = qobject_cast<SelectPopup *>(QApplication::activeWindow());
                     for (int i = 0; i < 4; ++i) {
                         popup->listView()->setSelectedIdx(i);
                         offered.append(popup->listView()->selectedIdx() == i);
                     }
                 })
                 .keys({Qt::Key_Context4})
                 .untilActive("NumberEdit")
                 .run(),
             QString());
    QCOMPARE(offered, (QList<bool>{true, false, false, false}));
}

void NumberEditTest::savesUpToNineNumbers()
{
    ContactData contact;
    contact.name = "Nine";
    QStringList numbers;
    QList<int> kinds;
    for (int i = 1; i <= 9; ++i) {
        numbers.append(QString::number(i));
        kinds.append(ContactData::Mobile);
    }
    contact.setNumbers(numbers, kinds);
    const int id = m_phone->core.contactManager()->saveContact(contact, false);
    open(id);
    QCOMPARE(m_form->saveContact(), int(NumberEdit::Saved));
    open(id, "10");
    QCOMPARE(m_form->saveContact(), int(NumberEdit::TooManyNumbers));
    QCOMPARE(stored(id), [&] {
        contact.id = id;
        return contact;
    }());
}

void NumberEditTest::addsTheNumberItIsGiven()
{
    const int id = m_phone->addContact("Kim", {"1"});
    open(id, "+49 (89) 55-0");
    QCOMPARE(labels().mid(2, 2), QStringList({"Company Number", "Company Number"}));
    QCOMPARE(list()->selectedIdx(), 3);
    QCOMPARE(m_form->saveContact(), int(NumberEdit::Saved));
    QCOMPARE(stored(id).telnum2,
             QString("+49"
                     "89550"));
    // A first number that is empty gives its place to the next.
    open(id);
    lineRow(2)->setEditText(QString());
    QCOMPARE(m_form->saveContact(), int(NumberEdit::Saved));
    QCOMPARE(stored(id).telnum1, QString("+4989550"));
}

void NumberEditTest::cutsWhileTyping()
{
    open(-1, "1");
    QLineEdit *edit = list()->lineEdit();
    edit->setText(QString(29, 'x'));
    edit->setCursorPosition(3);
    edit->insert(QString::fromUtf8("김"));
    QCOMPARE(edit->text().size(), 29);
    QCOMPARE(lineRow(0)->editText(), edit->text());
    list()->setSelectedIdx(2);
    QTRY_COMPARE(edit->text(), QString("1"));
    edit->setText("12a 3+*#");
    QCOMPARE(lineRow(2)->editText(), QString("123+*#"));
}

void NumberEditTest::deletesAnEmptyField()
{
    open(m_phone->addContact("Kim", {"1", "2"}));
    list()->setSelectedIdx(3);
    QTest::qWait(5);
    QLineEdit *edit = list()->lineEdit();
    Tail *bar = m_form->findChild<Tail *>();
    click(Qt::Key_Context3); // the erase key takes the one digit
    QCOMPARE(edit->text(), QString());
    QCOMPARE(bar->funcButtonText(2), QString("Delete Field"));
    PhoneScript script;
    QCOMPARE(script.keys({Qt::Key_Context3})
                 .untilActive("MessageBox")
                 .keys({Qt::Key_Context4})
                 .untilActive("NumberEdit")
                 .keys({Qt::Key_Context3})
                 .untilActive("MessageBox")
                 .keys({Qt::Key_Context3})
                 .untilActive("NumberEdit")
                 .run(),
             QString());
    QCOMPARE(labels(), QStringList({"Name", "Group", "Company Number", "Bell", "Memo"}));
    // Name and group stay, however empty.
    list()->setSelectedIdx(0);
    QTRY_VERIFY(edit->hasFocus());
    edit->clear();
    QCOMPARE(bar->funcButtonText(2), QString("Erase"));
}

void NumberEditTest::aRefusedStoreKeepsTheForm()
{
    open(77, "5"); // a contact that is gone meanwhile
    lineRow(0)->setEditText("Ghost");
    QCOMPARE(m_form->saveContact(), int(NumberEdit::Failed));
    QCOMPARE(m_phone->core.contactManager()->getCountOfContact(), 0);
    QCOMPARE(lineRow(0)->editText(), QString("Ghost"));
}

void NumberEditTest::pictures()
{
    open(-1, "0101234");
    TestScreen::shot("edit-new");
    const int id = m_phone->addContact(QString::fromUtf8("김철수 Jäger"), {"+49891234", "5001"});
    open(id);
    TestScreen::shot("edit-name");
    list()->setSelectedIdx(1);
    QTest::qWait(5);
    TestScreen::shot("edit-group");
    list()->setSelectedIdx(3);
    list()->setStartIdx(2);
    QTest::qWait(5);
    TestScreen::shot("edit-number");
    PhoneScript script;
    QCOMPARE(script.keys({Qt::Key_Context1})
                 .untilActive("SelectPopup")
                 .call([] { TestScreen::shot("edit-add-field"); })
                 .keys({Qt::Key_Return})
                 .untilActive("SelectPopup")
                 .call([] { TestScreen::shot("edit-kind"); })
                 .keys({Qt::Key_Context4})
                 .untilActive("NumberEdit")
                 .run(),
             QString());
    list()->lineEdit()->clear();
    TestScreen::shot("edit-number-empty");
}

PHONE_TEST_MAIN(NumberEditTest)
#include "tst_numberedit.moc"
