// Groups: the list, a group's members, the form.

#include "callmanager.h"
#include "contactmanager.h"
#include "groupadd.h"
#include "groupdetail.h"
#include "grouplist.h"
#include "listviewcontactitem.h"
#include "listviewlineedititem.h"
#include "phonescript.h"
#include "phonetest.h"
#include "ringtones.h"
#include "testmain.h"

#include <QLineEdit>
#include <QSignalSpy>
#include <QSqlDatabase>
#include <QSqlQuery>

using namespace PhoneKeys;

class GroupsTest : public PhoneTest
{
    Q_OBJECT

    void setUp() override
    {
        PhoneTest::setUp();
        m_store = m_phone->core.contactManager();
    }

private slots:
    void deletingAGroupMovesItsMembers()
    {
        addGroups(3); // with the ids 2 to 4; the one with 3 goes
        // Members of it alone come into the built-in group; with it listed first they stay as they are.
        const QList<QPair<QList<int>, QList<int>>> moves
            = {{{3}, {1}}, {{2, 3}, {2}}, {{2, 4, 3}, {2, 4}}, {{3, 2}, {3, 2}}, {{2, 4}, {2, 4}}};
        QList<int> members;
        for (const auto &move : moves)
            members.append(addMember("A", move.first));
        open(new GroupList(nullptr));
        clickAll({Qt::Key_Down, Qt::Key_Down});
        removeWith(Qt::Key_Context3);
        QCOMPARE(rows(), QStringList({"Unassigned", "Group 0", "Group 2"}));
        for (int i = 0; i < moves.size(); ++i)
            QCOMPARE(m_store->getGroupIdsOfMember(members.at(i)), moves.at(i).second);
    }

    void aRefusedMemberKeepsTheGroup()
    {
        const int team = addGroup("Team");
        const int first = addMember("A", {team}), second = addMember("B", {team});
        {
            // A store that takes the first member and refuses the second.
            QSqlDatabase other = QSqlDatabase::addDatabase("QSQLITE", "saboteur");
            other.setDatabaseName(m_phone->home.contactDatabase());
            QVERIFY(other.open());
            QVERIFY(QSqlQuery(other).exec(
                QString("CREATE TRIGGER refuse BEFORE DELETE ON memberships WHEN OLD.contact_id = "
                        "%1 BEGIN SELECT RAISE(ABORT, 'refused'); END")
                    .arg(second)));
        }
        QSqlDatabase::removeDatabase("saboteur");
        open(new GroupList(nullptr));
        click(Qt::Key_Down);
        expectWarning("refused");
        removeWith(Qt::Key_Context3);
        QCOMPARE(rows(), QStringList({"Unassigned", "Team"}));
        QCOMPARE(m_store->getGroupIdsOfMember(first), QList<int>{1});
        QCOMPARE(m_store->getGroupIdsOfMember(second), QList<int>{team});
    }

    void theLimitOfGroups()
    {
        addGroups(29); // thirty with the built-in one
        open(new GroupList(nullptr));
        PhoneScript script;
        script.opens(Qt::Key_Context2, "GroupAdd").opens(Qt::Key_Escape, "GroupList");
        QCOMPARE(script.run(), QString());
        addGroup("One more");
        open(new GroupList(nullptr));
        QCOMPARE(PhoneScript().keys({Qt::Key_Context2}).dismissToast().run(), QString());
    }

    void membersByName()
    {
        const int team = addGroup("Team");
        for (const char *name : {"zoe", "Zoe", "Adam"})
            addMember(name, {team});
        const int newest = addMember("Adam", {team});
        open(new GroupDetail(nullptr, team));
        QCOMPARE(title(), QString("Contacts | Team(4)"));
        QCOMPARE(rows(), QStringList({"Adam", "Adam", "Zoe", "zoe"}));
        QCOMPARE(dynamic_cast<ListViewContactListItem *>(list()->item(0))->getId(), newest);
        addMember("Nobody", {1});
        open(new GroupDetail(nullptr, 1));
        QCOMPARE(title(), QString("Contacts | Unassigned(1)"));
        QCOMPARE(softKeys(), QStringList({"Detail", "Add Contact", "", ""}));
    }

    void theNameInTheForm()
    {
        auto *form = open(new GroupAdd(nullptr, addGroup("Team")));
        auto *row = dynamic_cast<ListViewLineEditItem *>(list()->item(0));
        QLineEdit *edit = list()->lineEdit();
        form->tailFuncButtonLongPressed(2);
        QCOMPARE(edit->text(), QString());
        const QString typed = QString(29, 'x') + QChar(0xae40) + "xx"; // the wide letter does not fit any more
        for (const QChar c : typed)
            edit->insert(c);
        QCOMPARE(edit->text(), QString(30, 'x'));
        QCOMPARE(row->editText(), edit->text());
        list()->setSelectedIdx(1);
        form->tailFuncButtonLongPressed(2); // of another row than the name
        QCOMPARE(row->editText(), QString(30, 'x'));
    }

    void keepsItsOwnName()
    {
        const int team = addGroup("Team");
        auto *form = open(new GroupAdd(nullptr, team));
        QCOMPARE(title(), QString("Contacts | Create Group "));
        QSignalSpy added(form, &GroupAdd::newGroupAdded);
        QCOMPARE(PhoneScript().keys({Qt::Key_Context4}).dismissToast().run(), QString());
        QVERIFY(!form->isVisible());
        QCOMPARE(added.size(), 1);
        QCOMPARE(m_store->getGroupName(team), QString("Team"));
        open(new GroupAdd(nullptr, -1));
        QCOMPARE(title(), QString("Contacts | Edit Group"));
    }

    void noBellSoundsDuringACall()
    {
        installRingTones(m_phone->home);
        open(new GroupAdd(nullptr, -1));
        m_phone->core.callManager()->setCallState("CONNECT");
        sent();
        PhoneScript script;
        script.keys({Qt::Key_Down}).until("the bell", [this] {
            return list()->selectedIdx() == 1 && list()->hasFocus();
        });
        script.opens(Qt::Key_Return, "SoundSelectPopup").keys({Qt::Key_Down, Qt::Key_Up});
        QCOMPARE(script.opens(Qt::Key_Context4, "GroupAdd").run(), QString());
        QCOMPARE(sent().filter("sound play"), QStringList());
    }

private:
    int addGroup(const QString &name) { return m_store->saveGroup(GroupData(-1, name, ""), false); }
    void addGroups(int count)
    {
        for (int i = 0; i < count; ++i)
            addGroup(QString("Group %1").arg(i));
    }
    int addMember(const QString &name, const QList<int> &groups)
    {
        const int id = m_phone->addContact(name);
        m_store->saveGroupMember(id, groups);
        return id;
    }
    /// Presses the key that deletes, says yes to the question and sends the toast away.
    void removeWith(int key)
    {
        PhoneScript script;
        script.opens(key, "MessageBox").keys({Qt::Key_Context3}).dismissToast();
        QCOMPARE(script.run(), QString());
    }

    ContactManager *m_store = nullptr;
};

PHONE_TEST_MAIN(GroupsTest)
#include "tst_groups.moc"
