// Each operation that keeps something, with each of its writes, syncs and renames failing in turn, or the process
// killed there. What was acknowledged stands, what was not is there as a whole or not at all.

#include "contactmanager.h"
#include "faultyfiles.h"
#include "favourite.h"
#include "programkeys.h"
#include "qcalllist.h"
#include "sentmessages.h"
#include "testphone.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTest>

#include <unistd.h>

using FaultyFiles::Fault;

namespace {

/// Everything of a phone that keeps something.
class Phone
{
public:
    explicit Phone(const QString &folder)
        : m_home(TestPhone::makeHome(folder)), m_core(m_home), m_favourite(folder + "/data/favourite.ini"),
          m_keys(folder + "/data/programkeys.ini"), m_messages(folder + "/data/messages.db")
    {
    }

    ContactManager *store() { return m_core.contactManager(); }
    /// All that is kept, as lines.
    QStringList content() const
    {
        QStringList lines{m_core.languageName(), m_favourite.name() + m_favourite.number()};
        const ContactManager *store = m_core.contactManager();
        for (const ContactData &contact : store->getAllContacts()) {
            QStringList groups;
            for (int id : store->getGroupIdsOfMember(contact.id))
                groups.append(QString::number(id));
            lines += contact.name + '|' + contact.telnum1 + '|' + contact.telnum2 + '|' + contact.memo + '|'
                + groups.join(',');
        }
        for (const GroupData &group : store->getAllGroups(true))
            lines.append(group.name + group.bell);
        for (const CallRecord &call : m_core.callList()->calls())
            lines.append(call.name + call.number);
        for (const ProgramKey &key : m_keys.keys())
            lines.append(key.name + key.number);
        for (const SentMessage &message : m_messages.all())
            lines.append(message.number + message.text);
        return lines;
    }

    PhoneHome m_home;
    Core m_core;
    Favourite m_favourite;
    ProgramKeys m_keys;
    SentMessages m_messages;
};

/// Needs more than one page of the file.
ContactData large(const QString &name, int id = 0)
{
    ContactData contact = person(name, {"1", "22"}, 3000);
    contact.id = id;
    return contact;
}

enum { Kim = 1, Team = 2 };

/// What the prepared phone can be asked for; each returns whether it was acknowledged.
struct Operation
{
    const char *name;
    std::function<bool(Phone &)> run;
};

const QList<Operation> &operations()
{
    static const QList<Operation> all = {
        {"add", [](Phone &phone) { return phone.store()->saveContact(large("Lee"), false) != 0; }},
        {"edit", [](Phone &phone) { return phone.store()->saveContact(large("Lee", Kim), true) != 0; }},
        {"delete", [](Phone &phone) { return phone.store()->deleteContact(Kim, ContactData::LocalContact) != 0; }},
        {"delete all", [](Phone &phone) { return phone.store()->deleteAllContacts() != 0; }},
        {"import",
         [](Phone &phone) {
             return phone.store()->importContacts({{large("A"), {"Team", "New"}}, {large("B"), {}}}) != 0;
         }},
        {"add group", [](Phone &phone) { return phone.store()->saveGroup(GroupData(-1, "New", ""), false) != 0; }},
        {"edit group",
         [](Phone &phone) { return phone.store()->saveGroup(GroupData(Team, "New", "x"), true) != 0; }},
        {"delete group", [](Phone &phone) { return phone.store()->deleteGroup(Team) != 0; }},
        {"membership",
         [](Phone &phone) {
             return phone.store()->saveGroupMember(Kim, {1, Team}) != 0;
         }},
        {"no membership", [](Phone &phone) { return phone.store()->deleteGroupMemberbyContactId(Kim) != 0; }},
        {"no memberships", [](Phone &phone) { return phone.store()->deleteAllGroupMember() != 0; }},
        {"call",
         [](Phone &phone) {
             return phone.m_core.callList()->addCall({"5", "Call", {}, {}, 1}) != 0;
         }},
        {"message",
         [](Phone &phone) { return phone.m_messages.add("5", "Message", QDateTime::currentDateTime()); }},
        {"language", [](Phone &phone) { return phone.m_core.setLanguageName("de_DE"); }},
        {"favourite",
         [](Phone &phone) {
             phone.m_favourite.set("Lee", "6");
             return phone.m_favourite.name() == "Lee";
         }},
        {"key", [](Phone &phone) { return phone.m_keys.set("Lee", "6") >= 0; }},
    };
    return all;
}

/// A process of its own, which is killed on its way: says so on the standard output once it was acknowledged.
int runOnce(const QStringList &arguments)
{
    const QString home = arguments.value(2);
    Phone phone(home);
    FaultyFiles::arm(qPrintable(home), arguments.value(4).toInt(), Fault::Killed);
    const bool acknowledged = operations().at(arguments.value(3).toInt()).run(phone);
    return acknowledged && ::write(STDOUT_FILENO, "done", 4) != 4 ? 1 : 0;
}

}

class CrashSafetyTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // Each fault is told in the log, in words that depend on where it strikes.
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
        Phone phone(m_folder.filePath("made"));
        QCOMPARE(phone.store()->saveContact(large("Kim"), false), int(Kim));
        QCOMPARE(phone.store()->saveGroup(GroupData(-1, "Team", ""), false), int(Team));
        QVERIFY(phone.store()->saveGroupMember(Kim, {Team}));
        phone.m_favourite.set("Kim", "1");
        phone.m_keys.set("Kim", "1");
        m_before = phone.content();
    }

    void failures_data() { operationRows(); }

    void failures()
    {
        QFETCH(int, operation);
        const QStringList after = contentAfter(operation);
        QVERIFY(after != m_before);
        for (Fault fault : {Fault::NoSpace, Fault::NoSpaceOnce, Fault::InputOutput, Fault::InputOutputOnce}) {
            int step = 0;
            bool struck = true;
            while (struck && ++step < MostSteps) {
                const QString home = freshHome();
                const QByteArray where = QByteArray::number(int(fault)) + " at " + QByteArray::number(step);
                bool acknowledged = false;
                {
                    Phone phone(home);
                    FaultyFiles::arm(qPrintable(home), step, fault);
                    acknowledged = operations().at(operation).run(phone);
                    struck = FaultyFiles::disarm() >= step;
                    // The phone goes on with what it has said.
                    QVERIFY2(phone.content() == (acknowledged ? after : m_before), where);
                }
                const QStringList found = Phone(home).content();
                QVERIFY2(found == after || (!acknowledged && found == m_before), where);
                verifyDatabases(home);
                // With room again it does what it was asked for.
                if (!acknowledged) {
                    Phone phone(home);
                    QVERIFY2(found == after || operations().at(operation).run(phone), where);
                    QVERIFY2(phone.content() == after, where);
                }
            }
            QVERIFY(step > 1 && step < MostSteps);
        }
    }

    void kills_data() { operationRows(); }

    void kills()
    {
        QFETCH(int, operation);
        const QStringList after = contentAfter(operation);
        int step = 0;
        bool struck = true;
        while (struck && ++step < MostSteps) {
            const QString home = freshHome();
            QProcess process;
            process.start(QCoreApplication::applicationFilePath(),
                          {"--once", home, QString::number(operation), QString::number(step)});
            QVERIFY(process.waitForFinished());
            struck = process.exitStatus() == QProcess::CrashExit;
            QVERIFY(struck || process.exitCode() == 0);
            const bool acknowledged = !process.readAllStandardOutput().isEmpty();
            const QStringList found = Phone(home).content();
            QVERIFY2(found == after || (!acknowledged && found == m_before), QByteArray::number(step));
            verifyDatabases(home);
        }
        QVERIFY(step > 1 && step < MostSteps);
    }

private:
    static constexpr int MostSteps = 200;

    static void operationRows()
    {
        QTest::addColumn<int>("operation");
        for (int i = 0; i < operations().size(); ++i)
            QTest::newRow(operations().at(i).name) << i;
    }

    QString freshHome() const
    {
        const QString home = m_folder.filePath("home");
        QDir(home).removeRecursively();
        QProcess::execute("cp", {"-r", m_folder.filePath("made"), home});
        return home;
    }

    QStringList contentAfter(int operation) const
    {
        Phone phone(freshHome());
        operations().at(operation).run(phone);
        return phone.content();
    }

    static void verifyDatabases(const QString &home)
    {
        for (const char *name : {"contacts.db", "calls.db", "messages.db"}) {
            {
                QSqlDatabase file = QSqlDatabase::addDatabase("QSQLITE", "check");
                file.setDatabaseName(home + "/data/" + name);
                QVERIFY(file.open());
                QSqlQuery check("PRAGMA integrity_check", file);
                QVERIFY(check.next());
                QCOMPARE(check.value(0).toString(), QString("ok"));
            }
            QSqlDatabase::removeDatabase("check");
        }
        QCOMPARE(QDir(home + "/data").entryList({"*.damaged-*"}), QStringList());
    }

    QTemporaryDir m_folder{"/dev/shm/phone-XXXXXX"}; // syncing costs nothing there
    QStringList m_before;
};

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == "--once")
        return runOnce(arguments);
    CrashSafetyTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_crashsafety.moc"
