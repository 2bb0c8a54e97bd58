#include "contactmanager.h"
#include "qcalllist.h"
#include "testcase.h"

#include <QSettings>
#include <QTemporaryDir>

/// The contact store as its users see it, on a real file.
class TestContactStore : public TestCase
{
    Q_OBJECT

private slots:
    void contactRoundTrip();
    void modify();
    void refusals();
    void numbers();
    void groups();
    void membershipOrder();
    void deletedGroupStaysNamed();
    void deletes();
    void importTogether();
    void otherProcess();
    void presence();
    void callHistory();

private:
    void setUp() override
    {
        m_dir.reset(new QTemporaryDir);
        m_store.reset(new ContactManager(path()));
    }
    void tearDown() override { m_store.reset(); }
    QString path() const { return m_dir->filePath("contacts.db"); }

    static ContactData person(const QString &name, const QString &number = QString())
    {
        ContactData contact;
        contact.name = name;
        contact.telnum1 = number;
        return contact;
    }

    QScopedPointer<QTemporaryDir> m_dir;
    QScopedPointer<ContactManager> m_store;
};

void TestContactStore::contactRoundTrip()
{
    ContactData full = person("김 \"Bobby'; DROP TABLE contacts;--\" 😀");
    for (int slot = 0; slot < ContactData::NumberCount; ++slot)
        full.setNumber(slot, QString::number(1000 + slot), static_cast<ContactData::Telnum_Type>(slot % 5));
    full.setEmails({"a@b", "", "c@d"});
    full.picture = "photo:x.png";
    full.memo = "one\ntwo";
    full.bell = "/r/a b.wav";
    full.buddyId = "kim@example.com";
    full.extra = "%_\\";
    full.id = m_store->saveContact(full, false);
    QVERIFY(full.id > 0);

    ContactData nameless;
    nameless.setNumber(2, "33", ContactData::Fax); // a gap before it
    nameless.id = m_store->saveContact(nameless, false);

    m_store.reset(new ContactManager(path()));
    QCOMPARE(m_store->getAllContacts(), QList<ContactData>({nameless, full}));
    QCOMPARE(m_store->getSpecificContactDetail(full.id), full);
    QCOMPARE(m_store->getSpecificContactDetail(nameless.id), nameless);
    QVERIFY(m_store->getAllContacts().first().name.isNull());
    QCOMPARE(m_store->getSpecificContactDetail(99).id, 0);
    QCOMPARE(m_store->getCountOfContact(), 2);
    QCOMPARE(m_store->getContactName(full.id), full.name);
    QCOMPARE(m_store->getTelnum1_valByUsingId(full.id), QString("1000"));
}

void TestContactStore::modify()
{
    ContactData contact = person("Before", "1");
    contact.setNumber(4, "5", ContactData::Home);
    contact.id = m_store->saveContact(contact, false);
    const int group = m_store->saveGroup(GroupData(-1, "Team"), false);
    QVERIFY(m_store->saveGroupMember(contact.id, {group}));

    contact.name = "After";
    contact.setNumbers({"2"}, {ContactData::Etc});
    QCOMPARE(m_store->saveContact(contact, true), contact.id);
    QCOMPARE(m_store->getAllContacts(), QList<ContactData>({contact}));
    QCOMPARE(m_store->getGroupIdsOfMember(contact.id), QList<int>({group}));
}

void TestContactStore::refusals()
{
    ContactData stranger = person("Nobody");
    stranger.id = 77;
    QCOMPARE(m_store->saveContact(stranger, true), 0);
    stranger.type = ContactData::MobileContact;
    QCOMPARE(m_store->saveContact(stranger, false), 0);
    QCOMPARE(m_store->deleteContact(77, ContactData::LocalContact), 0);
    QCOMPARE(m_store->saveGroupMember(77, {1}), 0);
    QCOMPARE(m_store->deleteGroup(77), 0);
    QCOMPARE(m_store->saveGroup(GroupData(77, "New"), true), 0);
    QCOMPARE(m_store->saveGroup(GroupData(1, "Renamed"), true), 0);
    QCOMPARE(m_store->deleteGroup(1), 0);
    QCOMPARE(m_store->getCountOfContact(), 0);
    QCOMPARE(m_store->getGroupName(1), QString("Unsigned"));
}

void TestContactStore::numbers()
{
    const int first = m_store->saveContact(person("Kim", "+82 (2) 555-01*#"), false);
    ContactData second = person("Lee");
    second.setNumber(9, "+82255501*#", ContactData::Fax);
    m_store->saveContact(second, false);
    const int newest = m_store->saveContact(person("Kim", "+82255501*#"), false);

    QCOMPARE(m_store->getTelnum1_valByUsingId(first), QString("+82255501*#"));
    QCOMPARE(m_store->getContactByUsingNumber("+82255501*#").id, first);
    QCOMPARE(m_store->getContactByUsingNumber("82255501").id, 0);
    QCOMPARE(m_store->getContactByUsingNumber("").id, 0);
    QCOMPARE(m_store->getIdByUsingNameAndNumber("Kim", "+82 2 555 01*#"), newest);
    QCOMPARE(m_store->getIdByUsingNameAndNumber("Lee", ""), first + 1);
    QCOMPARE(m_store->getIdByUsingNameAndNumber("Lee", "1"), -1);
}

void TestContactStore::groups()
{
    const int work = m_store->saveGroup(GroupData(-1, "Work", "/r/w.wav"), false);
    const int home = m_store->saveGroup(GroupData(-1, "Home"), false);
    QVERIFY(work > 1 && home > work);
    QCOMPARE(m_store->saveGroup(GroupData(-1, "Work"), false), 0);
    QCOMPARE(m_store->saveGroup(GroupData(home, "Work"), true), 0);
    QCOMPARE(m_store->saveGroup(GroupData(work, "Work", "/r/x.wav"), true), work);
    QCOMPARE(m_store->getGroupDetail(work).bell, QString("/r/x.wav"));
    QCOMPARE(m_store->getGroupDetail(99).id, -1);
    QVERIFY(m_store->existGroupName("Home"));
    QVERIFY(!m_store->existGroupName("home"));
    QCOMPARE(m_store->getCountOfGroup(), 3);
    QStringList names;
    const QList<GroupData> all = m_store->getAllGroups(false);
    for (const GroupData &group : all)
        names.append(group.name);
    QCOMPARE(names, QStringList({"Unsigned", "Work", "Home"}));

    QVERIFY(m_store->deleteGroup(home));
    QVERIFY(m_store->saveGroup(GroupData(-1, "Home"), false) > home);
}

void TestContactStore::membershipOrder()
{
    QList<int> ids;
    for (const char *name : {"a", "b", "c"})
        ids.append(m_store->saveGroup(GroupData(-1, name), false));
    const int contact = m_store->saveContact(person("Kim"), false);
    QCOMPARE(m_store->getGroupIdsOfMember(contact), QList<int>({1}));

    const QList<int> order = {ids.at(2), ids.at(0), ids.at(1)};
    QVERIFY(m_store->saveGroupMember(contact, order));
    QCOMPARE(m_store->getGroupIdsOfMember(contact), order);
    QCOMPARE(m_store->getGroupMemberCount(1, true), 0);
    QVERIFY(m_store->saveGroupMember(contact, {ids.at(1), ids.at(1)}));
    QCOMPARE(m_store->getGroupIdsOfMember(contact), QList<int>({ids.at(1)}));
    QCOMPARE(m_store->getMembersOfGroup(ids.at(1)), QList<int>({contact}));
    QVERIFY(m_store->saveGroupMember(contact, {}));
    QCOMPARE(m_store->getGroupIdsOfMember(contact), QList<int>({1}));
}

void TestContactStore::deletedGroupStaysNamed()
{
    const int first = m_store->saveGroup(GroupData(-1, "first"), false);
    const int second = m_store->saveGroup(GroupData(-1, "second"), false);
    const int contact = m_store->saveContact(person("Kim"), false);
    QVERIFY(m_store->saveGroupMember(contact, {first, second}));
    QVERIFY(m_store->deleteGroup(first));
    QCOMPARE(m_store->getGroupIdsOfMember(contact), QList<int>({first, second}));
    QVERIFY(m_store->saveGroupMember(contact, {first, second}));
}

void TestContactStore::deletes()
{
    const int kim = m_store->saveContact(person("Kim", "1"), false);
    const int lee = m_store->saveContact(person("Lee", "2"), false);
    QCOMPARE(m_store->deleteContact(kim, ContactData::MobileContact), 0);
    QVERIFY(m_store->deleteGroupMemberbyContactId(kim));
    QVERIFY(m_store->deleteGroupMemberbyContactId(kim));
    QVERIFY(m_store->deleteContact(kim, ContactData::LocalContact));
    QVERIFY(m_store->deleteContact(lee, ContactData::LocalContact));
    QCOMPARE(m_store->getMembersOfGroup(1), QList<int>());
    QCOMPARE(m_store->getContactByUsingNumber("2").id, 0);
    QVERIFY(m_store->saveContact(person("Park"), false) > lee);
    QVERIFY(m_store->deleteAllGroupMember());
    QVERIFY(m_store->deleteAllContacts());
    QVERIFY(m_store->deleteAllContacts());
    QCOMPARE(m_store->getCountOfContact(), 0);
}

void TestContactStore::importTogether()
{
    const int work = m_store->saveGroup(GroupData(-1, "Work"), false);
    int heard = 0;
    const QList<ContactImport> people = {{person("A", "1"), {"New", "Work"}}, {person("B"), {}}};
    QCOMPARE(m_store->importContacts(people, [&](int count) { heard = count; }), 2);
    QCOMPARE(heard, 2);
    QCOMPARE(m_store->getCountOfGroup(), 3);
    const QList<ContactData> all = m_store->getAllContacts();
    QCOMPARE(m_store->getGroupIdsOfMember(all.at(0).id).last(), work);
    QCOMPARE(m_store->getGroupIdsOfMember(all.at(1).id), QList<int>({1}));
}

void TestContactStore::otherProcess()
{
    m_store->saveContact(person("Kim", "1"), false);
    QCOMPARE(m_store->getContactSearchResults("lee").size(), 0);
    ContactManager other(path());
    const int lee = other.saveContact(person("Lee", "2"), false);
    QCOMPARE(m_store->getContactSearchResults("lee").size(), 1);
    QCOMPARE(m_store->getCountOfContact(), 2);
    QVERIFY(m_store->deleteContact(lee, ContactData::LocalContact));
    QCOMPARE(other.getContactSearchResults("lee").size(), 0);
    QCOMPARE(other.getAllContacts().size(), 1);
}

void TestContactStore::presence()
{
    QVERIFY(m_store->getPresenceStatus().isEmpty());
    {
        QSettings file(m_dir->filePath("presence.ini"), QSettings::IniFormat);
        file.setValue("kim@example.com/Status", 2);
        file.setValue("kim@example.com/Device", 1);
        file.setValue("lee@example.com/Status", 0);
    }
    const auto presence = m_store->getPresenceStatus();
    QCOMPARE(presence.size(), 2);
    QCOMPARE(presence.value("kim@example.com").status, 2);
    QCOMPARE(presence.value("lee@example.com").device, -1);
}

void TestContactStore::callHistory()
{
    QCallList list(m_dir->filePath("calls.db"));
    const QDateTime noon(QDate(2024, 2, 29), QTime(12, 0));
    QVERIFY(list.addCall({"010-1", "Kim", CallRecord::Incoming, noon, 5}));
    QVERIFY(list.addCall({"0102", "Lee", CallRecord::Missed, noon.addSecs(-60), 0}));
    QVERIFY(list.addCall({"0101", "", CallRecord::Outgoing, noon.addSecs(60), 0}));
    QCOMPARE(list.calls().size(), 3);
    const QList<CallRecord> calls = list.callsbyNumber("0101");
    QCOMPARE(calls.size(), 2);
    QCOMPARE(calls.last().startedAt, noon);
    QCOMPARE(calls.last().direction, CallRecord::Incoming);
    QVERIFY(list.callsbyNumber("01").isEmpty());
}

QTEST_GUILESS_MAIN(TestContactStore)
#include "tst_contactstore.moc"
