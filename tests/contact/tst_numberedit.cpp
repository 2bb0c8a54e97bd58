#include "numberedit.h"
#include "numberedititems.h"
#include "phonetest.h"
#include "selectpopup.h"
#include "selectpopuplistview.h"

#include <QLineEdit>

using namespace PhoneKeys;

/// The edit form: its rows, its limits, what it saves.
class NumberEditTest : public PhoneTest
{
    Q_OBJECT

private slots:
    void keepsEveryFieldOfAContact()
    {
        ContactData contact = person("김철수");
        contact.setNumbers({"1", "2", "3"}, {ContactData::Fax, ContactData::Home, ContactData::Etc});
        contact.setEmails({"a@b", "c@d"});
        contact.memo = "memo";
        contact.id = store()->saveContact(contact, false);
        const int group = addGroup("Team");
        store()->saveGroupMember(contact.id, {group});
        openForm(contact.id);
        QCOMPARE(title(), QString("Contacts | Edit"));
        QCOMPARE(rows(), QString("Name,Group,Fax Number,Home Number,Etc Number,Email,Email,Bell,Memo").split(','));
        for (const auto &[row, text] : {std::pair(1, "Team"), {7, "Undesignated"}})
            QCOMPARE(dynamic_cast<NumberEditSelectItem *>(list()->item(row))->selectedText(), QString(text));
        QCOMPARE(form()->saveContact(), int(NumberEdit::Saved));
        QCOMPARE(stored(contact.id), contact);
        QCOMPARE(store()->getGroupIdsOfMember(contact.id), QList<int>{group});
    }

    void saves()
    {
        // How many contacts come before, which one is edited, its name and number, and what the toast says.
        const QList<std::tuple<int, int, QString, QString, QString>> cases
            = {{0, -1, "", "1", "Enter Name"}, {0, -1, "A", "", "Input Numbers"},       {3, 77, "A", "1", "Failed"},
               {296, -1, "A", "1", "Saved"},   {0, -1, "B", "2", "Reached save limit"}, {0, 1, "B", "2", "Saved"}};
        int count = 0;
        for (const auto &[more, id, name, number, toast] : cases) {
            m_phone->addContacts(more);
            openForm(id, number);
            list()->setSelectedIdx(0);
            settle();
            list()->lineEdit()->setText(name);
            QCOMPARE(save(), toast);
            count += more + (toast == "Saved" && id == -1 ? 1 : 0);
            QCOMPARE(store()->getCountOfContact(), count);
            // A refusal leaves the form as it was.
            QCOMPARE(form()->isVisible(), toast != "Saved");
            QCOMPARE(lineRow(0)->editText(), name);
        }
    }

    void offersFieldsWithinTheLimits()
    {
        openForm(-1, "1");
        addField({Qt::Key_Down, Qt::Key_Down}); // bell
        addField({Qt::Key_Down, Qt::Key_Down}); // memo: the keys skip the bell, which is no longer offered
        for (int i = 0; i < 3; ++i)
            addField({Qt::Key_Down}); // e-mail
        QCOMPARE(rows(),
                 QStringList({"Name", "Group", "Company Number", "Email", "Email", "Email", "Bell", "Memo"}));
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
        openForm(id, "10");
        QCOMPARE(save(), QString("Number is full\nDelete other Number First"));
        openForm(id);
        QCOMPARE(save(), QString("Saved"));
        QCOMPARE(stored(id), before);
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

private:
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
    /// Adds a field as a person does: with the keys that lead to it in the popup.
    void addField(const QList<int> &keys)
    {
        PhoneScript script;
        script.opens(Qt::Key_Context1, "SelectPopup").keys(keys).opens(Qt::Key_Return, "NumberEdit");
        QCOMPARE(script.run(), QString());
    }
};

PHONE_TEST_MAIN(NumberEditTest)
#include "tst_numberedit.moc"
