// Groups: the list, a group's members, the form.

#include "callmanager.h"
#include "groupadd.h"
#include "groupdetail.h"
#include "grouplist.h"
#include "listviewcontactitem.h"
#include "phonetest.h"
#include "ringtones.h"

using namespace PhoneKeys;

class GroupsTest : public PhoneTest
{
    Q_OBJECT

private slots:
    void membersByName()
    {
        const int team = addGroup("Team");
        for (const char *name : {"zoe", "Zoe", "Adam"})
            addMember(name, team);
        const int newest = addMember("Adam", team);
        open(new GroupDetail(nullptr, team));
        QCOMPARE(title(), QString("Contacts | Team(4)"));
        QCOMPARE(rows(), QStringList({"Adam", "Adam", "Zoe", "zoe"}));
        QCOMPARE(dynamic_cast<ListViewContactListItem *>(list()->item(0))->getId(), newest);
        addMember("Nobody", 1);
        open(new GroupDetail(nullptr, 1));
        QCOMPARE(title(), QString("Contacts | Unassigned(1)"));
        QCOMPARE(softKeys(), QStringList({"Detail", "Add Contact", "", ""}));
    }

    void keepsItsOwnName()
    {
        const int team = addGroup("Team");
        auto *form = open(new GroupAdd(nullptr, team));
        QCOMPARE(title(), QString("Contacts | Create Group "));
        QCOMPARE(PhoneScript().keys({Qt::Key_Context4}).dismissToast().run(), QString());
        QVERIFY(!form->isVisible());
        QCOMPARE(store()->getGroupName(team), QString("Team"));
    }

    void noBellSoundsDuringACall()
    {
        installRingTones(m_phone->home);
        open(new GroupAdd(nullptr, -1));
        QCOMPARE(title(), QString("Contacts | Edit Group"));
        m_phone->core.callManager()->setCallState("CONNECT");
        click(Qt::Key_Down);
        settle();
        PhoneScript script;
        script.opens(Qt::Key_Return, "SoundSelectPopup").keys({Qt::Key_Down, Qt::Key_Up});
        QCOMPARE(script.opens(Qt::Key_Context4, "GroupAdd").run(), QString());
        QCOMPARE(sent().filter("sound play"), QStringList());
    }

private:
    int addMember(const QString &name, int group)
    {
        const int id = m_phone->addContact(name);
        store()->saveGroupMember(id, {group});
        return id;
    }
};

PHONE_TEST_MAIN(GroupsTest)
#include "tst_groups.moc"
