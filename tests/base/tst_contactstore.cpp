#include "contactmanager.h"
#include "people.h"
#include "testcase.h"
#include "textcodec.h"

/// The contact store as its users see it, on a real file, and which word finds whom.
class TestContactStore : public TestCase
{
    Q_OBJECT

private slots:
    void contactRoundTrip()
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
        ContactData nameless;
        nameless.setNumber(2, "33", ContactData::Fax); // a gap before it
        for (ContactData *contact : {&full, &nameless})
            contact->id = m_store->saveContact(*contact, false);
        m_store.reset(new ContactManager(path()));
        QCOMPARE(m_store->getAllContacts(), QList<ContactData>({nameless, full}));
        QCOMPARE(m_store->getSpecificContactDetail(full.id), full);
        QVERIFY(m_store->getAllContacts().first().name.isNull());
        QCOMPARE(m_store->getSpecificContactDetail(99).id, 0);
    }

    void modify()
    {
        ContactData contact = person("Before", {"1"});
        contact.setNumber(4, "5", ContactData::Home);
        contact.id = m_store->saveContact(contact, false);
        const int group = addGroup("Team");
        QVERIFY(m_store->saveGroupMember(contact.id, {group}));
        QCOMPARE(found("before"), 1);
        contact.name = "After";
        contact.setNumbers({"2"}, {ContactData::Etc});
        QCOMPARE(m_store->saveContact(contact, true), contact.id);
        QCOMPARE(m_store->getAllContacts(), QList<ContactData>({contact}));
        QCOMPARE(m_store->getGroupIdsOfMember(contact.id), QList<int>({group}));
        QCOMPARE(found("before") + found("1"), 0);
        QCOMPARE(found("after"), 1);
    }

    void refusals()
    {
        ContactData stranger = person("Nobody");
        stranger.id = 77;
        QCOMPARE(m_store->saveContact(stranger, true), 0);
        stranger.type = ContactData::MobileContact;
        QCOMPARE(m_store->saveContact(stranger, false), 0);
        QCOMPARE(m_store->deleteContact(77, ContactData::LocalContact), 0);
        QCOMPARE(m_store->saveGroupMember(77, {1}), 0);
        for (const int group : {77, 1}) // one that is not there, and the built-in one
            QCOMPARE(m_store->saveGroup(GroupData(group, "New"), true) + m_store->deleteGroup(group), 0);
        QCOMPARE(m_store->getCountOfContact(), 0);
        QCOMPARE(m_store->getGroupName(1), QString("Unsigned"));
    }

    void numbers()
    {
        const int first = add("Kim", {"+82 (2) 555-01*#", "9"}), lee = add("Lee", {"", "9", "+82255501*#"}),
                  newest = add("Kim", {"+82255501*#"});
        QCOMPARE(m_store->getTelnum1_valByUsingId(first), QString("+82255501*#"));
        QCOMPARE(m_store->getContactByUsingNumber("+82255501*#").id, first);
        for (const char *unknown : {"82255501", ""})
            QCOMPARE(m_store->getContactByUsingNumber(unknown).id, 0);
        QCOMPARE(m_store->getIdByUsingNameAndNumber("Kim", "+82 2 555 01*#"), newest);
        QCOMPARE(m_store->getIdByUsingNameAndNumber("Lee", ""), lee);
        QCOMPARE(m_store->getIdByUsingNameAndNumber("Lee", "1"), -1);
        QCOMPARE(found("501*"), 3);
        QCOMPARE(found("#9") + found("#\n9") + found("555-01"), 0); // never across two numbers
    }

    void groups()
    {
        const int work = addGroup("Work"), home = addGroup("Home");
        QCOMPARE(addGroup("Work"), 0);
        QCOMPARE(m_store->saveGroup(GroupData(home, "Work"), true), 0);
        QCOMPARE(m_store->saveGroup(GroupData(work, "Work", "/r/x.wav"), true), work);
        QCOMPARE(m_store->getGroupDetail(work).bell, QString("/r/x.wav"));
        QVERIFY(m_store->existGroupName("Home") && !m_store->existGroupName("home"));
        QStringList names;
        for (const GroupData &group : m_store->getAllGroups(false))
            names.append(group.name);
        QCOMPARE(names, QStringList({"Unsigned", "Work", "Home"}));
        QVERIFY(m_store->deleteGroup(home));
        QVERIFY(addGroup("Home") > home);
        QCOMPARE(m_store->getGroupDetail(home).id, -1);
    }

    void membershipOrder()
    {
        const int a = addGroup("a"), b = addGroup("b"), c = addGroup("c"), contact = add("Kim");
        const auto joins = [&](const QList<int> &groups) {
            return m_store->saveGroupMember(contact, groups) ? m_store->getGroupIdsOfMember(contact) : QList<int>();
        };
        QCOMPARE(m_store->getGroupIdsOfMember(contact), QList<int>({1}));
        QCOMPARE(joins({c, a, b}), QList<int>({c, a, b}));
        QCOMPARE(m_store->getGroupMemberCount(1, true), 0);
        // The store leaves it to its user to move the members of a group that goes.
        QVERIFY(m_store->deleteGroup(a));
        QCOMPARE(m_store->getGroupIdsOfMember(contact), QList<int>({c, a, b}));
        QCOMPARE(joins({b, b}), QList<int>({b}));
        QCOMPARE(m_store->getMembersOfGroup(b), QList<int>({contact}));
        QCOMPARE(joins({}), QList<int>({1}));
    }

    void deletes()
    {
        const int kim = add("Kim", {"1"}), lee = add("Lee", {"2"});
        QCOMPARE(m_store->deleteContact(kim, ContactData::MobileContact), 0);
        QVERIFY(m_store->deleteContact(lee, ContactData::LocalContact));
        QCOMPARE(m_store->getMembersOfGroup(1), QList<int>{kim});
        QCOMPARE(m_store->getContactByUsingNumber("2").id, 0);
        QVERIFY(add("Park") > lee); // an id is never given twice
        for (int i = 0; i < 2; ++i) // also when nothing is left to delete
            QVERIFY(m_store->deleteGroupMemberbyContactId(kim) && m_store->deleteAllContacts());
        QCOMPARE(m_store->getCountOfContact(), 0);
    }

    void otherProcess()
    {
        add("Kim", {"1"});
        QCOMPARE(found("lee"), 0);
        ContactManager other(path());
        const int lee = other.saveContact(person("Lee", {"2"}), false);
        QCOMPARE(found("lee"), 1);
        QVERIFY(m_store->deleteContact(lee, ContactData::LocalContact));
        QCOMPARE(other.getContactSearchResults("lee").size(), 0);
        QCOMPARE(other.getAllContacts().size(), 1);
    }

    void searchedWords()
    {
        // Each name with the words that find it, and behind "-" those that do not: wildcards, and ㅁ, which is no
        // initial here. ㄳ is how the input method joins two of them.
        const QStringList people
            = QString("Kim Lee|kim|m l|KL|-kml|-%|-_|-'|-*; John Doe|jd|d|-dj; Anna-Lena Müller|alm|MUL; "
                      "O'Brien Niamh|on; Muller|mül; Groß|gross; Søren|soren; Éloïse|elo; Łukasz Żółw|lukasz zolw; "
                      "Lukasz|Ł; Işık|isik; IŞIK|ışık; İbrahim|ibr; ibrahim|İBR; Пётр Фёдоров|петр|ПФ; "
                      "김철수|김|철수|처|김처|김ㅊ|ㄱㅊㅅ|ㅊㅅ|-ㄱㅅ|-기ㅁ|-ㅁ; 김 철수|ㄱㅊㅅ; 고석|ㄱㅅ|ㄳ; "
                      "값|갑; 과일|고; "
                      "까치|ㄲ|-ㄱ; 50% \"off\" \\ _|% \"o|\\ _; Ｋｉｍ|kim; 😀 Smile|😀; |-a")
                  .split("; ");
        for (const QString &one : people)
            add(one.section('|', 0, 0));
        QVERIFY(!chosungCompare("Kim", ""));
        QCOMPARE(found(""), people.size());
        const auto namesFor = [this](const QString &word) {
            QStringList names;
            for (const ContactData &contact : m_store->getContactSearchResults(word))
                names.append(contact.name);
            return names;
        };
        // By code unit: the halves of 😀 come before Ｋ, which is the smaller letter.
        const QStringList all = namesFor("");
        QVERIFY(std::is_sorted(all.begin(), all.end()));
        for (const QString &one : people) {
            const QString name = one.section('|', 0, 0);
            for (QString word : one.split('|').mid(1)) {
                const bool matches = !word.startsWith('-');
                word.remove('-');
                const QStringList names = namesFor(word);
                QVERIFY2(names.contains(name) == matches, qPrintable(name + word));
                QVERIFY2(chosungCompare(name, word) == matches, qPrintable(name + word));
            }
        }
    }

private:
    void setUp() override { m_store.reset(new ContactManager(path())); }
    QString path() const { return m_dir->filePath("contacts.db"); }

    int add(const QString &name, const QStringList &numbers = {})
    {
        return m_store->saveContact(person(name, numbers), false);
    }
    int addGroup(const QString &name, const QString &bell = QString())
    {
        return m_store->saveGroup(GroupData(-1, name, bell), false);
    }
    int found(const QString &word) const { return m_store->getContactSearchResults(word).size(); }

    QScopedPointer<ContactManager> m_store;
};

QTEST_GUILESS_MAIN(TestContactStore)
#include "tst_contactstore.moc"
