#include "contactmanager.h"
#include "numberedit.h"
#include "numberedititems.h"
#include "phonescript.h"
#include "phonetest.h"
#include "selectpopup.h"
#include "selectpopuplistview.h"
#include "testmain.h"

#include <QLineEdit>

using namespace PhoneKeys;

/// The edit form: its rows, its limits, what it saves.
class NumberEditTest : public PhoneTest
{
    Q_OBJECT

private slots:
    void keepsEveryFieldOfAContact()
    {
        ContactData contact;
        contact.name = "김철수";
        contact.setNumbers({"1", "2", "3"}, {ContactData::Fax, ContactData::Home, ContactData::Etc});
        contact.setEmails({"a@b", "c@d"});
        contact.memo = "memo";
        contact.id = store()->saveContact(contact, false);
        const int group = store()->saveGroup(GroupData(-1, "Team", ""), false);
        store()->saveGroupMember(contact.id, {group});
        openForm(contact.id);
        QCOMPARE(title(), QString("Contacts | Edit"));
        QCOMPARE(rows(),
                 QStringList({"Name", "Group", "Fax Number", "Home Number", "Etc Number", "Email", "Email", "Bell",
                              "Memo"}));
        for (const auto &[row, text] : {std::pair(1, "Team"), {7, "Undesignated"}})
            QCOMPARE(dynamic_cast<NumberEditSelectItem *>(list()->item(row))->selectedText(), QString(text));
        QCOMPARE(form()->saveContact(), int(NumberEdit::Saved));
        QCOMPARE(stored(contact.id), contact);
        QCOMPARE(store()->getGroupIdsOfMember(contact.id), QList<int>{group});
    }

    void saves_data()
    {
        QTest::addColumn<int>("id"); // of the contact that is edited
        QTest::addColumn<QStringList>("texts"); // name and number
        QTest::addColumn<int>("contacts");
        QTest::addColumn<QString>("toast");
        const QStringList both{"A", "1"}, noName{"", "1"}, noNumber{"A", ""};
        QTest::newRow("no name") << -1 << noName << 0 << "Enter Name";
        QTest::newRow("no number") << -1 << noNumber << 0 << "Input Numbers";
        QTest::newRow("the last that fits") << -1 << both << 299 << "Saved";
        QTest::newRow("one too many") << -1 << both << 300 << "Reached save limit";
        QTest::newRow("an edited one among many") << 1 << both << 300 << "Saved";
        QTest::newRow("one that is gone meanwhile") << 77 << both << 3 << "Failed";
    }

    void saves()
    {
        QFETCH(int, id);
        QFETCH(QStringList, texts);
        QFETCH(int, contacts);
        QFETCH(QString, toast);
        m_phone->addContacts(contacts);
        openForm(id, texts.at(1));
        list()->setSelectedIdx(0);
        settle();
        list()->lineEdit()->setText(texts.at(0));
        QCOMPARE(save(), toast);
        const bool isSaved = toast == "Saved";
        QCOMPARE(store()->getCountOfContact(), contacts + (isSaved && id == -1 ? 1 : 0));
        // A refusal leaves the form as it was.
        QCOMPARE(form()->isVisible(), !isSaved);
        QCOMPARE(lineRow(0)->editText(), texts.at(0));
        QVERIFY(isSaved || list()->hasFocus() || list()->lineEdit()->hasFocus());
    }

    void offersFieldsWithinTheLimits()
    {
        openForm(-1, "1");
        addField(2); // bell
        addField(2); // memo: the keys skip the bell, which is no longer offered
        QCOMPARE(rows(), QStringList({"Name", "Group", "Company Number", "Bell", "Memo"}));
        addField(1); // e-mail
        addField(0, 3);
        QCOMPARE(rows(), QStringList({"Name", "Group", "Company Number", "Fax Number", "Email", "Bell", "Memo"}));
        QCOMPARE(list()->selectedIdx(), 3);
        addField(1);
        addField(1);
        QList<bool> offered;
        PhoneScript script;
        script.opens(Qt::Key_Context1, "SelectPopup").call([&] {
            auto *popup = qobject_cast<SelectPopup *>(QApplication::activeWindow());
            for (int i = 0; i < 4; ++i) {
                popup->listView()->setSelectedIdx(i);
                offered.append(popup->listView()->selectedIdx() == i);
            }
        });
        QCOMPARE(script.opens(Qt::Key_Context4, "NumberEdit").run(), QString());
        QCOMPARE(offered, (QList<bool>{true, false, false, false}));
    }

    void savesUpToNineNumbers()
    {
        const int id = m_phone->addContact("Nine", {"1", "2", "3", "4", "5", "6", "7", "8", "9"});
        const ContactData before = stored(id);
        openForm(id);
        QCOMPARE(save(), QString("Saved"));
        openForm(id, "10");
        QCOMPARE(save(), QString("Number is full\nDelete other Number First"));
        QCOMPARE(stored(id), before);
        QVERIFY(form()->isVisible());
    }

    void addsTheNumberItIsGiven()
    {
        const int id = m_phone->addContact("Kim", {"1"});
        openForm(id, "+49 (89) 55-0");
        QCOMPARE(rows().mid(2, 2), QStringList({"Company Number", "Company Number"}));
        QCOMPARE(list()->selectedIdx(), 3);
        QCOMPARE(form()->saveContact(), int(NumberEdit::Saved));
        QCOMPARE(stored(id).telnum2, QString("+4989550"));
        // A first number that is empty gives its place to the next.
        openForm(id);
        lineRow(2)->setEditText(QString());
        QCOMPARE(form()->saveContact(), int(NumberEdit::Saved));
        QCOMPARE(stored(id).telnum1, QString("+4989550"));
    }

    void cutsWhileTyping()
    {
        openForm(m_phone->addContact("Kim", {"1"}));
        QLineEdit *edit = list()->lineEdit();
        edit->setText(QString(29, 'x'));
        edit->setCursorPosition(3);
        edit->insert("김");
        QCOMPARE(edit->text().size(), 29);
        QCOMPARE(lineRow(0)->editText(), edit->text());
        list()->setSelectedIdx(2);
        QTRY_COMPARE(edit->text(), QString("1"));
        edit->setText("12a 3+*#");
        QCOMPARE(lineRow(2)->editText(), QString("123+*#"));
        list()->setSelectedIdx(4); // the memo
        QTRY_COMPARE(edit->text(), QString());
        edit->setText(QString(59, 'x') + "김");
        QCOMPARE(lineRow(4)->editText(), QString(59, 'x'));
    }

    void deletesAnEmptyField()
    {
        openForm(m_phone->addContact("Kim", {"1", "2"}));
        list()->setSelectedIdx(3);
        settle();
        QLineEdit *edit = list()->lineEdit();
        click(Qt::Key_Context3); // the erase key takes the one digit
        QCOMPARE(edit->text(), QString());
        QCOMPARE(softKeys().at(2), QString("Delete Field"));
        PhoneScript script;
        for (const int answer : {Qt::Key_Context4, Qt::Key_Context3}) // no, then yes
            script.opens(Qt::Key_Context3, "MessageBox").opens(answer, "NumberEdit");
        QCOMPARE(script.run(), QString());
        QCOMPARE(rows(), QStringList({"Name", "Group", "Company Number", "Bell", "Memo"}));
        // Name and group stay, however empty.
        list()->setSelectedIdx(0);
        QTRY_VERIFY(edit->hasFocus());
        edit->clear();
        QCOMPARE(softKeys().at(2), QString("Erase"));
    }

    /// The erase key acts a millisecond later, and a command may close the form before.
    void closedBehindTheEraseKey()
    {
        openForm(-1);
        list()->setSelectedIdx(2);
        settle();
        bool boxOpens = false;
        PhoneScript script;
        script.call([this] {
            click(Qt::Key_Backspace);
            form()->close();
        });
        script.until("the millisecond to pass", [turns = 0]() mutable { return ++turns > 5; }).call([&] {
            QWidget *box = QApplication::activeModalWidget();
            boxOpens = box && box->close();
        });
        QCOMPARE(script.run(), QString());
        QVERIFY(!boxOpens);
    }

    void aRowMayGoWhileItsPopupStands()
    {
        openForm(-1, "123");
        const int last = list()->itemSize() - 1;
        list()->setSelectedIdx(last);
        settle();
        PhoneScript script;
        script.opens(Qt::Key_Return, "SelectPopup")
            .call([&] { list()->removeItem(last); })
            .opens(Qt::Key_Return, "NumberEdit");
        QCOMPARE(script.run(), QString());
        QCOMPARE(list()->itemSize(), last);
    }

private:
    ContactManager *store() const { return m_phone->core.contactManager(); }
    void openForm(int id, const QString &number = QString()) { open(new NumberEdit(nullptr, id, number, -1)); }

    /// The toast after the key that saves.
    QString save()
    {
        QString toast;
        const QString fault = PhoneScript().keys({Qt::Key_Context4}).dismissToast(&toast).run();
        return fault + toast;
    }

    NumberEdit *form() const { return static_cast<NumberEdit *>(m_screen.get()); }
    NumberEditLineEditItem *lineRow(int idx) const
    {
        return dynamic_cast<NumberEditLineEditItem *>(list()->item(idx));
    }
    ContactData stored(int id) const { return store()->getSpecificContactDetail(id); }
    /// Adds a field through the popups, as a person does.
    void addField(int row, int kind = -1)
    {
        PhoneScript script;
        script.opens(Qt::Key_Context1, "SelectPopup").keys(choosing(row));
        const auto kindsShow = [] {
            auto *popup = qobject_cast<SelectPopup *>(QApplication::activeWindow());
            return popup && popup->listView()->itemSize() == 5;
        };
        if (kind >= 0)
            script.until("the kinds", kindsShow).keys(choosing(kind));
        QCOMPARE(script.untilActive("NumberEdit").run(), QString());
    }
    /// The keys that choose this row of a popup.
    static QList<int> choosing(int row) { return QVector<int>(row, Qt::Key_Down).toList() << Qt::Key_Return; }
};

PHONE_TEST_MAIN(NumberEditTest)
#include "tst_numberedit.moc"
