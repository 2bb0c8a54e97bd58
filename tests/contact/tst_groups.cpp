// Groups: the list, a group's members, the form.

#include "callmanager.h"
#include "contactmanager.h"
#include "groupadd.h"
#include "groupdetail.h"
#include "grouplist.h"
#include "listviewcontactitem.h"
#include "listviewlineedititem.h"
#include "listviewselectitem.h"
#include "phonescript.h"
#include "phonetest.h"
#include "ringtones.h"
#include "soundmanager.h"
#include "testmain.h"

#include <QLineEdit>
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
    void theBuiltInGroupComesFirst();
    void deletingAGroupMovesItsMembers();
    void aRefusedMemberKeepsTheGroup();
    void theLimitOfGroups();
    void aNewGroupIsSelected();
    void membersByName();
    void takesMembersOut_data();
    void takesMembersOut();
    void addsAContactIntoTheGroup();
    void theNameInTheForm();
    void refusesGroupNames();
    void choosesABellWithPreview();

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

void GroupsTest::theBuiltInGroupComesFirst()
{
    const int team = addGroup("Team");
    addMember("A", {team});
    addMember("B", {1});
    addMember("C", {1});
    open(new GroupList(nullptr));
    QCOMPARE(title(), QString("Contacts | Groups"));
    QCOMPARE(rows(), QStringList({"Unassigned", "Team"}));
    QCOMPARE(softKeys(), QStringList({"All", "Add Group", "", ""}));
    click(Qt::Key_Down);
    QCOMPARE(softKeys(), QStringList({"All", "Add Group", "Delete", "Edit"}));
    TestScreen::shot("groups-list");
    click(Qt::Key_Context1);
    QVERIFY(!m_screen->isVisible());
}

void GroupsTest::deletingAGroupMovesItsMembers()
{
    addGroups(5); // with the ids 2 to 6; the one with 3 goes
    const QList<QPair<QList<int>, QList<int>>> moves = {
        {{3}, {1}}, // in the deleted one alone
        {{2, 3}, {2}},    {{2, 4, 3}, {2, 4}}, {{3, 2}, {3, 2}}, // listed first it stays as it is
        {{2, 4}, {2, 4}},
    };
    QList<int> members;
    for (const auto &move : moves)
        members.append(addMember("A", move.first));
    open(new GroupList(nullptr));
    click(Qt::Key_Up);
    TestScreen::shot("groups-list-full");
    PhoneScript script;
    script.opens(Qt::Key_Context3, "MessageBox").call([] { TestScreen::shot("groups-delete"); });
    script.opens(Qt::Key_Context4, "GroupList").keys({Qt::Key_Down, Qt::Key_Down, Qt::Key_Down}); // no
    QCOMPARE(script.run(), QString());
    QCOMPARE(m_store->getCountOfGroup(), 6);
    removeWith(Qt::Key_Context3);
    QCOMPARE(rows(), QStringList({"Unassigned", "Group 0", "Group 2", "Group 3", "Group 4"}));
    for (int i = 0; i < moves.size(); ++i)
        QCOMPARE(m_store->getGroupIdsOfMember(members.at(i)), moves.at(i).second);
}

void GroupsTest::aRefusedMemberKeepsTheGroup()
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

void GroupsTest::theLimitOfGroups()
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

void GroupsTest::aNewGroupIsSelected()
{
    addGroups(6);
    open(new GroupList(nullptr));
    PhoneScript script;
    script.opens(Qt::Key_Context2, "GroupAdd").untilFocus("QLineEdit").text("Chess").keys({Qt::Key_Context4});
    QCOMPARE(script.dismissToast().untilActive("GroupList").run(), QString());
    QCOMPARE(rows().last(), QString("Chess"));
    QCOMPARE(list()->selectedIdx(), 7);
    QCOMPARE(list()->startIdx(), 5);
    QCOMPARE(m_store->getGroupDetail(8).bell, QString("Unassigned"));
}

void GroupsTest::membersByName()
{
    const int team = addGroup("Team");
    open(new GroupDetail(nullptr, team));
    QCOMPARE(softKeys(), QStringList({"", "Add Contact", "", ""}));
    for (const Qt::Key key : {Qt::Key_Context1, Qt::Key_Context3, Qt::Key_Context4, Qt::Key_Return, Qt::Key_Down})
        click(key);
    QVERIFY(m_screen->isActiveWindow());
    TestScreen::shot("group-empty");

    for (const char *name : {"zoe", "Zoe", "Adam"})
        addMember(name, {team});
    const int newest = addMember("Adam", {team});
    open(new GroupDetail(nullptr, team));
    QCOMPARE(title(), QString("Contacts | Team(4)"));
    QCOMPARE(rows(), QStringList({"Adam", "Adam", "Zoe", "zoe"}));
    QCOMPARE(dynamic_cast<ListViewContactListItem *>(list()->item(0))->getId(), newest);
    QCOMPARE(softKeys(), QStringList({"Detail", "Add Contact", "Delete", "Delete All"}));
    TestScreen::shot("group-members");
    addMember("Nobody", {1});
    open(new GroupDetail(nullptr, 1));
    QCOMPARE(title(), QString("Contacts | Unassigned(1)"));
    QCOMPARE(softKeys(), QStringList({"Detail", "Add Contact", "", ""}));
}

void GroupsTest::takesMembersOut_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QStringList>("left");
    QTest::newRow("one") << int(Qt::Key_Context3) << QStringList({"B", "C"});
    QTest::newRow("all") << int(Qt::Key_Context4) << QStringList();
}

void GroupsTest::takesMembersOut()
{
    QFETCH(int, key);
    QFETCH(QStringList, left);
    const int team = addGroup("Team"), chess = addGroup("Chess");
    const int a = addMember("A", {team, chess}), b = addMember("B", {team}), c = addMember("C", {chess, team});
    open(new GroupDetail(nullptr, team));
    removeWith(key);
    QCOMPARE(rows(), left);
    QCOMPARE(m_store->getGroupIdsOfMember(a), QList<int>{chess});
    QCOMPARE(m_store->getGroupIdsOfMember(b), QList<int>{left.isEmpty() ? 1 : team});
    QCOMPARE(m_store->getGroupIdsOfMember(c), left.isEmpty() ? QList<int>{chess} : QList<int>({chess, team}));
    QCOMPARE(m_store->getCountOfContact(), 3);
}

void GroupsTest::addsAContactIntoTheGroup()
{
    const int team = addGroup("Team");
    for (const char *name : {"A", "B", "C", "E"})
        addMember(name, {team});
    open(new GroupDetail(nullptr, team));
    const auto fieldIsEmpty = [] {
        auto *edit = qobject_cast<QLineEdit *>(QApplication::focusWidget());
        return edit && edit->text().isEmpty();
    };
    PhoneScript script;
    script.opens(Qt::Key_Context2, "NumberEdit").until("the name", fieldIsEmpty).text("D");
    script.keys({Qt::Key_Down, Qt::Key_Down}).until("the number", fieldIsEmpty).text("4711");
    QCOMPARE(script.keys({Qt::Key_Context4}).dismissToast().untilActive("GroupDetail").run(), QString());
    QCOMPARE(rows(), QStringList({"A", "B", "C", "D", "E"}));
    QCOMPARE(list()->selectedIdx(), 3);
}

void GroupsTest::theNameInTheForm()
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

void GroupsTest::refusesGroupNames()
{
    const int team = addGroup("Team");
    addGroup("Chess");
    auto *form = open(new GroupAdd(nullptr, team));
    QCOMPARE(title(), QString("Contacts | Create Group "));
    int added = 0;
    connect(form, &GroupAdd::newGroupAdded, this, [&added] { ++added; });
    for (const char *name : {"", "Chess", "Team"}) {
        QVERIFY(form->isVisible());
        QCOMPARE(list()->selectedIdx() + added, 0);
        list()->lineEdit()->setText(name);
        QCOMPARE(PhoneScript().keys({Qt::Key_Context4}).dismissToast().run(), QString());
    }
    QVERIFY(!form->isVisible());
    QCOMPARE(added, 1);
    QCOMPARE(m_store->getGroupName(team), QString("Team"));
    open(new GroupAdd(nullptr, -1));
    QCOMPARE(title(), QString("Contacts | Edit Group"));
    TestScreen::shot("group-form");
}

void GroupsTest::choosesABellWithPreview()
{
    installRingTones(m_phone->home);
    QList<QFileInfo> tones;
    m_phone->core.soundManager()->addRingDir(tones, m_phone->core.ringtonePath(), "*ring*");
    open(new GroupAdd(nullptr, -1));
    auto *bell = dynamic_cast<ListViewSelectItem *>(list()->item(1));
    QCOMPARE(bell->selectedText(), QString("Unassigned"));
    const auto playing = [&](int tone) {
        return [=] { return m_phone->core.soundManager()->playing() == tones.at(tone).filePath(); };
    };
    const auto bellIsSelected = [this] { return list()->selectedIdx() == 1 && list()->hasFocus(); };
    PhoneScript script;
    script.keys({Qt::Key_Down}).until("the bell", bellIsSelected).opens(Qt::Key_Return, "SoundSelectPopup");
    script.keys({Qt::Key_Down}).until("the first tone", playing(0)).call([] { TestScreen::shot("group-bell"); });
    script.keys({Qt::Key_Down}).until("the second tone", playing(1)).opens(Qt::Key_Return, "GroupAdd");
    QCOMPARE(script.run(), QString());
    QCOMPARE(bell->selectedText(), tones.at(1).baseName());
    QVERIFY(m_phone->core.soundManager()->playing().isEmpty());
    // Nothing sounds during a call.
    m_phone->core.callManager()->setCallState("CONNECT");
    sent();
    PhoneScript silent;
    silent.opens(Qt::Key_Return, "SoundSelectPopup").keys({Qt::Key_Down, Qt::Key_Up});
    QCOMPARE(silent.opens(Qt::Key_Context4, "GroupAdd").run(), QString());
    QCOMPARE(sent().filter("sound play"), QStringList());
}

PHONE_TEST_MAIN(GroupsTest)
#include "tst_groups.moc"
