// Groups: the list, a group's members, the form.

#include "callmanager.h"
#include "contactmanager.h"
#include "groupadd.h"
#include "groupdetail.h"
#include "grouplist.h"
#include "listview.h"
#include "listviewcontactitem.h"
#include "listviewgrouplistitem.h"
#include "listviewlineedititem.h"
#include "listviewselectitem.h"
#include "phonekeys.h"
#include "phonescript.h"
#include "soundmanager.h"
#include "tail.h"
#include "testcase.h"
#include "testmain.h"
#include "testphone.h"

#include <QDataStream>
#include <QLineEdit>
#include <QSignalSpy>
#include <QSqlDatabase>
#include <QSqlQuery>

#include <memory>

using namespace PhoneKeys;

/// A WAV file of a second without a sound.
static QByteArray silence()
{
    const QByteArray samples(16000, '\0');
    QByteArray file;
    QDataStream stream(&file, QIODevice::WriteOnly);
    stream.setByteOrder(QDataStream::LittleEndian);
    stream.writeRawData("RIFF", 4);
    stream << quint32(36 + samples.size());
    stream.writeRawData("WAVEfmt ", 8);
    stream << quint32(16) << quint16(1) << quint16(1) << quint32(8000) << quint32(16000) << quint16(2) << quint16(16);
    stream.writeRawData("data", 4);
    stream << quint32(samples.size());
    return file + samples;
}

class GroupsTest : public TestCase
{
    Q_OBJECT

    void setUp() override
    {
        m_phone.reset(new TestPhone);
        m_store = m_phone->core.contactManager();
    }
    void tearDown() override
    {
        m_screen.reset();
        m_phone.reset();
    }

private slots:
    void theBuiltInGroupComesFirst();
    void deletingAGroupMovesItsMembers_data();
    void deletingAGroupMovesItsMembers();
    void aRefusedMemberKeepsTheGroup();
    void theLimitOfGroups_data();
    void theLimitOfGroups();
    void aNewGroupIsSelected();
    void membersByName();
    void anEmptyGroupOffersOnlyToAdd();
    void takesMembersOut_data();
    void takesMembersOut();
    void addsAContactIntoTheGroup();
    void cutsGroupNames_data();
    void cutsGroupNames();
    void refusesGroupNames();
    void choosesABellWithPreview();
    void nothingSoundsDuringACall();
    void longPressClearsTheName();
    void pictures();

private:
    int addGroup(const QString &name) { return m_store->saveGroup(GroupData(-1, name, ""), false); }
    int addMember(const QString &name, const QList<int> &groups)
    {
        const int id = m_phone->addContact(name);
        m_store->saveGroupMember(id, groups);
        return id;
    }
    template <typename Screen> Screen *open(Screen *screen)
    {
        m_screen.reset(screen);
        if (!showAndActivate(screen))
            qWarning("The screen does not become active");
        QTest::qWait(5);
        return screen;
    }
    ListView *list() const { return m_screen->findChild<ListView *>(); }
    QStringList rows() const
    {
        QStringList texts;
        for (int i = 0; i < list()->itemSize(); ++i)
            texts.append(list()->item(i)->text());
        return texts;
    }
    QStringList softKeys() const
    {
        QStringList texts;
        for (int i = 0; i < Tail::ButtonCount; ++i)
            texts.append(m_screen->findChild<Tail *>()->funcButtonText(i));
        return texts;
    }
    std::function<bool()> toast(bool shown) const
    {
        return [this, shown] {
            const QList<QWidget *> widgets = m_screen->findChildren<QWidget *>();
            for (const QWidget *widget : widgets) {
                if (widget->inherits("Toast") && widget->isVisible())
                    return shown;
            }
            return !shown;
        };
    }
    /// Answers the question with the soft key, and the toast after it with any key.
    QString answer(PhoneScript &script, int key = Qt::Key_Context3)
    {
        script.untilActive("MessageBox").keys({key});
        if (key == Qt::Key_Context3)
            script.until("the toast", toast(true)).keys({Qt::Key_Return}).until("it to go", toast(false));
        return script.run();
    }

    std::unique_ptr<TestPhone> m_phone;
    std::unique_ptr<BaseWidget> m_screen;
    ContactManager *m_store = nullptr;
};

void GroupsTest::theBuiltInGroupComesFirst()
{
    const int team = addGroup("Team");
    addMember("A", {team});
    addMember("B", {1});
    addMember("C", {1});
    open(new GroupList(nullptr));
    QCOMPARE(m_phone->status.title(), QString("Contacts | Groups"));
    QCOMPARE(rows(), QStringList({"Unassigned", "Team"}));
    QCOMPARE(softKeys(), QStringList({"All", "Add Group", "", ""}));
    click(Qt::Key_Down);
    QCOMPARE(softKeys(), QStringList({"All", "Add Group", "Delete", "Edit"}));
    TestScreen::shot("groups-list");
    click(Qt::Key_Context1);
    QVERIFY(!m_screen->isVisible());
}

void GroupsTest::deletingAGroupMovesItsMembers_data()
{
    // The groups have the ids 2, 3 and 4; the second is deleted.
    QTest::addColumn<QList<int>>("before");
    QTest::addColumn<QList<int>>("after");
    QTest::newRow("in this one alone") << QList<int>{3} << QList<int>{1};
    QTest::newRow("listed second") << QList<int>{2, 3} << QList<int>{2};
    QTest::newRow("listed third") << QList<int>{2, 4, 3} << QList<int>{2, 4};
    QTest::newRow("listed first stays as it is") << QList<int>{3, 2} << QList<int>{3, 2};
    QTest::newRow("elsewhere") << QList<int>{2, 4} << QList<int>{2, 4};
}

void GroupsTest::deletingAGroupMovesItsMembers()
{
    QFETCH(QList<int>, before);
    for (const char *name : {"Alpha", "Beta", "Gamma"})
        addGroup(name);
    const int member = addMember("A", before);
    open(new GroupList(nullptr));
    click(Qt::Key_Down);
    click(Qt::Key_Down);
    PhoneScript refused;
    QCOMPARE(answer(refused.keys({Qt::Key_Context3}), Qt::Key_Context4), QString());
    QCOMPARE(m_store->getCountOfGroup(), 4);
    PhoneScript script;
    QCOMPARE(answer(script.keys({Qt::Key_Context3})), QString());
    QCOMPARE(rows(), QStringList({"Unassigned", "Alpha", "Gamma"}));
    QTEST(m_store->getGroupIdsOfMember(member), "after");
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
        other.close();
    }
    QSqlDatabase::removeDatabase("saboteur");
    open(new GroupList(nullptr));
    click(Qt::Key_Down);
    expectWarning("refused");
    PhoneScript script;
    QCOMPARE(answer(script.keys({Qt::Key_Context3})), QString());
    QCOMPARE(rows(), QStringList({"Unassigned", "Team"}));
    QCOMPARE(m_store->getGroupIdsOfMember(first), QList<int>{1});
    QCOMPARE(m_store->getGroupIdsOfMember(second), QList<int>{team});
}

void GroupsTest::theLimitOfGroups_data()
{
    QTest::addColumn<int>("groups");
    QTest::addColumn<bool>("opens");
    QTest::newRow("thirty with the built-in one") << 29 << true;
    QTest::newRow("thirty-one") << 30 << false;
}

void GroupsTest::theLimitOfGroups()
{
    QFETCH(int, groups);
    QFETCH(bool, opens);
    for (int i = 0; i < groups; ++i)
        addGroup(QString("Group %1").arg(i));
    open(new GroupList(nullptr));
    PhoneScript script;
    script.keys({Qt::Key_Context2});
    if (opens)
        script.untilActive("GroupAdd").keys({Qt::Key_Escape}).untilActive("GroupList");
    else
        script.until("the toast", toast(true)).keys({Qt::Key_Return}).until("it to go", toast(false));
    QCOMPARE(script.run(), QString());
}

void GroupsTest::aNewGroupIsSelected()
{
    for (int i = 0; i < 6; ++i)
        addGroup(QString("Group %1").arg(i));
    open(new GroupList(nullptr));
    PhoneScript script;
    QCOMPARE(
        script.keys({Qt::Key_Context2})
            .untilActive("GroupAdd")
            .until("a field", [] { return qobject_cast<QLineEdit *>(QApplication::focusWidget()) != nullptr; })
            .text("Chess")
            .keys({Qt::Key_Context4})
            .until("the toast",
                   [] { return QApplication::focusWidget() && QApplication::focusWidget()->inherits("Toast"); })
            .keys({Qt::Key_Return})
            .untilActive("GroupList")
            .run(),
        QString());
    QCOMPARE(rows().last(), QString("Chess"));
    QCOMPARE(list()->selectedIdx(), 7);
    QCOMPARE(list()->startIdx(), 5);
    QCOMPARE(m_store->getGroupDetail(8).bell, QString("Unassigned"));
}

void GroupsTest::membersByName()
{
    const int team = addGroup("Team");
    for (const char *name : {"zoe", "Zoe", "Adam", "Adam"})
        addMember(name, {team});
    open(new GroupDetail(nullptr, team));
    QCOMPARE(m_phone->status.title(), QString("Contacts | Team(4)"));
    QCOMPARE(rows(), QStringList({"Adam", "Adam", "Zoe", "zoe"}));
    QCOMPARE(softKeys(), QStringList({"Detail", "Add Contact", "Delete", "Delete All"}));
    TestScreen::shot("group-members");
    addMember("Nobody", {1});
    open(new GroupDetail(nullptr, 1));
    QCOMPARE(m_phone->status.title(), QString("Contacts | Unassigned(1)"));
    QCOMPARE(softKeys(), QStringList({"Detail", "Add Contact", "", ""}));
}

void GroupsTest::anEmptyGroupOffersOnlyToAdd()
{
    open(new GroupDetail(nullptr, addGroup("Team")));
    QCOMPARE(softKeys(), QStringList({"", "Add Contact", "", ""}));
    for (const Qt::Key key : {Qt::Key_Context1, Qt::Key_Context3, Qt::Key_Context4, Qt::Key_Return, Qt::Key_Down})
        click(key);
    QVERIFY(m_screen->isActiveWindow());
    TestScreen::shot("group-empty");
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
    const int team = addGroup("Team"), chess = addGroup("Chess");
    const int a = addMember("A", {team});
    const int b = addMember("B", {team, chess});
    const int c = addMember("C", {chess, team});
    open(new GroupDetail(nullptr, team));
    PhoneScript script;
    QCOMPARE(answer(script.keys({key})), QString());
    QTEST(rows(), "left");
    QCOMPARE(m_store->getGroupIdsOfMember(a), QList<int>{1});
    QCOMPARE(m_store->getGroupIdsOfMember(b),
             (key == Qt::Key_Context3 ? QList<int>{team, chess} : QList<int>{chess}));
    QCOMPARE(m_store->getGroupIdsOfMember(c),
             (key == Qt::Key_Context3 ? QList<int>{chess, team} : QList<int>{chess}));
    QCOMPARE(m_store->getCountOfContact(), 3);
}

void GroupsTest::addsAContactIntoTheGroup()
{
    const int team = addGroup("Team");
    for (const char *name : {"A", "B", "C", "E"})
        addMember(name, {team});
    open(new GroupDetail(nullptr, team));
    PhoneScript script;
    QCOMPARE(
        script.keys({Qt::Key_Context2})
            .untilActive("NumberEdit")
            .until("a field", [] { return qobject_cast<QLineEdit *>(QApplication::focusWidget()) != nullptr; })
            .text("D")
            .keys({Qt::Key_Down, Qt::Key_Down})
            .until("the number",
                   [] {
                       auto *edit = qobject_cast<QLineEdit *>(QApplication::focusWidget());
                       return edit && edit->text().isEmpty();
                   })
            .text("4711")
            .keys({Qt::Key_Context4})
            .until("the toast",
                   [] { return QApplication::focusWidget() && QApplication::focusWidget()->inherits("Toast"); })
            .keys({Qt::Key_Return})
            .untilActive("GroupDetail")
            .run(),
        QString());
    QCOMPARE(rows(), QStringList({"A", "B", "C", "D", "E"}));
    QCOMPARE(list()->selectedIdx(), 3);
}

void GroupsTest::cutsGroupNames_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("kept");
    const QString latin(40, 'x'), korean(20, QChar(0xae40));
    QTest::newRow("29") << latin.left(29) << 29;
    QTest::newRow("30") << latin.left(30) << 30;
    QTest::newRow("31") << latin.left(31) << 30;
    QTest::newRow("15 wide") << korean.left(15) << 15;
    QTest::newRow("16 wide") << korean.left(16) << 15;
    QTest::newRow("29 and a wide one") << latin.left(29) + korean.left(1) << 29;
    QTest::newRow("28 and a wide one") << latin.left(28) + korean.left(1) << 29;
    QTest::newRow("up to 255 is narrow") << QString(30, QChar(0xff)) << 30;
}

void GroupsTest::cutsGroupNames()
{
    QFETCH(QString, typed);
    open(new GroupAdd(nullptr, -1));
    for (const QChar c : typed)
        list()->lineEdit()->insert(c);
    QTEST(list()->lineEdit()->text().size(), "kept");
    QCOMPARE(dynamic_cast<ListViewLineEditItem *>(list()->item(0))->editText(), list()->lineEdit()->text());
}

void GroupsTest::refusesGroupNames()
{
    const int team = addGroup("Team");
    addGroup("Chess");
    auto *form = open(new GroupAdd(nullptr, team));
    QCOMPARE(m_phone->status.title(), QString("Contacts | Create Group "));
    for (const char *name : {"", "Chess"}) {
        list()->lineEdit()->setText(name);
        PhoneScript script;
        QCOMPARE(script.keys({Qt::Key_Context4})
                     .until("the toast", toast(true))
                     .keys({Qt::Key_Return})
                     .until("it to go", toast(false))
                     .run(),
                 QString());
        QVERIFY(form->isVisible());
        QCOMPARE(list()->selectedIdx(), 0);
    }
    QSignalSpy added(form, &GroupAdd::newGroupAdded);
    list()->lineEdit()->setText("Team");
    PhoneScript script;
    QCOMPARE(script.keys({Qt::Key_Context4})
                 .until("the toast", toast(true))
                 .keys({Qt::Key_Return})
                 .until("the form to close", [form] { return !form->isVisible(); })
                 .run(),
             QString());
    QCOMPARE(added.size(), 1);
    QCOMPARE(m_store->getGroupName(team), QString("Team"));
    open(new GroupAdd(nullptr, -1));
    QCOMPARE(m_phone->status.title(), QString("Contacts | Edit Group"));
    TestScreen::shot("group-form");
}

void GroupsTest::choosesABellWithPreview()
{
    for (const char *tone : {"ring_b.wav", "ring_A.wav"})
        m_phone->writeFile("ringtones/download/" + QString(tone), silence());
    open(new GroupAdd(nullptr, -1));
    QStringList played;
    connect(m_phone->core.soundManager(), &SoundManager::soundStarted, this,
            [&](const QString &path) { played.append(path.section('/', -1)); });
    auto *bell = dynamic_cast<ListViewSelectItem *>(list()->item(1));
    QCOMPARE(bell->selectedText(), QString("Unassigned"));
    PhoneScript script;
    QCOMPARE(script.keys({Qt::Key_Down})
                 .until("the bell", [this] { return list()->selectedIdx() == 1 && list()->hasFocus(); })
                 .keys({Qt::Key_Return})
                 .untilActive("SoundSelectPopup")
                 .keys({Qt::Key_Down})
                 .until("the first tone", [&] { return played.size() == 1; })
                 .call([] { TestScreen::shot("group-bell"); })
                 .keys({Qt::Key_Down})
                 .until("the second tone", [&] { return played.size() == 2; })
                 .keys({Qt::Key_Return})
                 .untilActive("GroupAdd")
                 .run(),
             QString());
    QCOMPARE(played, QStringList({"ring_A.wav", "ring_b.wav"}));
    QCOMPARE(bell->selectedText(), QString("ring_b"));
    QVERIFY(m_phone->core.soundManager()->playing().isEmpty());
}

void GroupsTest::nothingSoundsDuringACall()
{
    m_phone->writeFile("ringtones/download/ring_A.wav", silence());
    m_phone->core.callManager()->setCallState("CONNECT");
    open(new GroupAdd(nullptr, -1));
    QSignalSpy played(m_phone->core.soundManager(), &SoundManager::soundStarted);
    click(Qt::Key_Down);
    PhoneScript script;
    QCOMPARE(script.keys({Qt::Key_Return})
                 .untilActive("SoundSelectPopup")
                 .keys({Qt::Key_Down, Qt::Key_Up, Qt::Key_Context4})
                 .untilActive("GroupAdd")
                 .run(),
             QString());
    QVERIFY(played.isEmpty());
}

void GroupsTest::longPressClearsTheName()
{
    auto *form = open(new GroupAdd(nullptr, addGroup("Team")));
    form->tailFuncButtonLongPressed(2);
    QCOMPARE(list()->lineEdit()->text(), QString());
    list()->lineEdit()->setText("Again");
    list()->setSelectedIdx(1);
    form->tailFuncButtonLongPressed(2);
    QCOMPARE(dynamic_cast<ListViewLineEditItem *>(list()->item(0))->editText(), QString("Again"));
}

void GroupsTest::pictures()
{
    for (int i = 0; i < 5; ++i) {
        const int group = addGroup(QString("Group %1").arg(i));
        for (int j = 0; j < i; ++j)
            addMember(QString("Member %1 %2").arg(i).arg(j), {group});
    }
    open(new GroupList(nullptr));
    click(Qt::Key_Up);
    TestScreen::shot("groups-list-full");
    PhoneScript script;
    QCOMPARE(script.keys({Qt::Key_Context3})
                 .untilActive("MessageBox")
                 .call([] { TestScreen::shot("groups-delete"); })
                 .keys({Qt::Key_Context4})
                 .untilActive("GroupList")
                 .run(),
             QString());
}

PHONE_TEST_MAIN(GroupsTest)
#include "tst_groups.moc"
