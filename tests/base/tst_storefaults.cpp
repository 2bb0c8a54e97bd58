#include "contactmanager.h"
#include "people.h"
#include "testcase.h"

#include <QDir>
#include <QSqlDatabase>
#include <QSqlQuery>

#include <csignal>
#include <functional>
#include <sys/resource.h>
#include <unistd.h>

using Action = std::function<void()>;

/// Runs a statement on a connection that the store knows nothing of; `meanwhile` runs while it is open.
static void onOwnConnection(const QString &path, const QString &sql, const Action &meanwhile = {})
{
    {
        QSqlDatabase database = QSqlDatabase::addDatabase("QSQLITE", "other");
        database.setDatabaseName(path);
        QVERIFY(database.open());
        QVERIFY(QSqlQuery(database).exec(sql));
        if (meanwhile)
            meanwhile();
    }
    QSqlDatabase::removeDatabase("other");
}

/// The contact store on files that are broken, not ours, locked, closed to us, or have no room to grow.
class TestStoreFaults : public TestCase
{
    Q_OBJECT

private slots:
    void movedAside()
    {
        const auto put
            = [this](qint64 at, const QByteArray &bytes) { return [=] { overwrite(path(), at, bytes); }; };
        const auto cut = [this](qint64 size) { return [=] { QFile::resize(path(), size); }; };
        const auto sql = [this](const QString &statement) { return [=] { onOwnConnection(path(), statement); }; };
        const QList<QPair<Action, QString>> faults = {
            {put(0, QByteArray(5000, 'x')), "no database"},
            {cut(40), "no database"},
            {cut(4 * 4096), ""},
            {put(12288, QByteArray(4096, '\xa7')), ""},
            {[=] { QFile::remove(path()), sql("CREATE TABLE songs (title TEXT)")(); }, "another program"},
            {sql("PRAGMA user_version = 99"), "version 99"},
            {sql("DROP TABLE numbers"), "numbers"},
            {sql("ALTER TABLE contacts RENAME memo TO note"), "memo"},
        };
        for (const auto &fault : faults) {
            m_dir.reset(new QTemporaryDir);
            makeStore(500);
            fault.first();
            const QByteArray spoilt = readFile(path());
            expectWarning("moved .*contacts.db aside to .*contacts.db.damaged-[0-9-]+: .*" + fault.second);
            ContactManager store(path());
            QCOMPARE(store.getCountOfContact(), 0);
            QVERIFY(store.saveContact(person("Kim"), false));
            QCOMPARE(asideFiles().size(), 1);
            QCOMPARE(readFile(m_dir->filePath(asideFiles().first())), spoilt);
        }
    }

    void begunAnew()
    {
        const QList<Action> starts = {[] {}, // no file
                                      [this] { overwrite(path(), 0, ""); },
                                      // made and never filled
                                      [this] { onOwnConnection(path(), "PRAGMA journal_mode = WAL"); }};
        for (const Action &start : starts) {
            m_dir.reset(new QTemporaryDir);
            start();
            ContactManager store(path());
            QVERIFY(store.isOpen() && store.saveContact(person("Kim"), false));
            QVERIFY(asideFiles().isEmpty());
        }
    }

    void movedAsideTwice()
    {
        for (int i = 0; i < 2; ++i) {
            makeStore(1);
            // An emptied file whose log still holds the contacts must not lose the log.
            QFile::resize(path(), 0);
            overwrite(path() + "-wal", 0, "contacts");
            expectWarning("aside");
            QVERIFY(ContactManager(path()).isOpen());
            QFile::remove(path());
        }
        const QStringList logs = asideFiles().filter(QRegularExpression("-wal$"));
        QCOMPARE(logs.size(), 2);
        for (const QString &log : logs)
            QCOMPARE(readFile(m_dir->filePath(log)), QByteArray("contacts"));
    }

    void locked()
    {
        makeStore(3);
        ContactManager store(path());
        onOwnConnection(path(), "BEGIN IMMEDIATE", [&] {
            for (int i = 0; i < 3; ++i)
                expectWarning("database is locked");
            QCOMPARE(store.saveContact(person("Kim"), false), 0);
            QCOMPARE(store.deleteAllContacts(), 0);
            QCOMPARE(store.importContacts({{person("Kim"), {}}}), 0);
            QCOMPARE(store.getContactSearchResults("person").size(), 3);
            QCOMPARE(ContactManager(path()).getCountOfContact(), 3); // another phone may even start now
        });
        QVERIFY(store.saveContact(person("Kim"), false));
    }

    void noSpace()
    {
        ContactManager store(path());
        rlimit former;
        getrlimit(RLIMIT_FSIZE, &former);
        const rlimit small{256 * 1024, former.rlim_max};
        std::signal(SIGXFSZ, SIG_IGN);
        setrlimit(RLIMIT_FSIZE, &small);
        const ContactData large = person("Large", {"1"}, 100000);
        int saved = 0;
        expectWarning("SqliteFile|SqliteStatement");
        while (saved < 100 && store.saveContact(large, false))
            ++saved;
        setrlimit(RLIMIT_FSIZE, &former);
        QVERIFY(saved < 100);
        QCOMPARE(store.getCountOfContact(), saved);
        QVERIFY(store.saveContact(large, false));
        QCOMPARE(ContactManager(path()).getCountOfContact(), saved + 1);
    }

    void readOnlyFolder()
    {
        makeStore(3);
        const QByteArray before = readFile(path());
        withRights(QFile::ReadOwner, QFile::ReadOwner | QFile::ExeOwner, [this] {
            ContactManager store(path());
            QVERIFY(store.isOpen());
            QCOMPARE(store.getAllContacts().size(), 3);
            expectWarning("cannot write .*contacts.db");
            QCOMPARE(store.saveContact(person("Kim"), false), 0);
        });
        QCOMPARE(readFile(path()), before);
    }

    void unreadableFile()
    {
        makeStore(3);
        withRights({}, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner, [this] {
            expectWarning("cannot use .*contacts.db.*denied");
            ContactManager store(path());
            QVERIFY(!store.isOpen() && store.getContactSearchResults("p").isEmpty());
            expectWarning("cannot write");
            QCOMPARE(store.saveContact(person("Kim"), false), 0);
        });
        QVERIFY(asideFiles().isEmpty());
        QCOMPARE(ContactManager(path()).getCountOfContact(), 3);
    }

private:
    QString path() const { return m_dir->filePath("contacts.db"); }
    QStringList asideFiles() const { return QDir(m_dir->path()).entryList({"contacts.db.damaged-*"}); }
    /// Runs with these rights on the store, as a user whom rights bind: the superuser has all of them.
    void withRights(QFile::Permissions file, QFile::Permissions folder, const Action &work)
    {
        constexpr uid_t Nobody = 65534;
        const bool superuser = geteuid() == 0;
        const QFile::Permissions all = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
        for (const QString &name : {path(), m_dir->path()})
            QVERIFY(!superuser || chown(QFile::encodeName(name).constData(), Nobody, Nobody) == 0);
        QVERIFY(QFile::setPermissions(path(), file) && QFile::setPermissions(m_dir->path(), folder));
        QVERIFY(!superuser || setresuid(Nobody, Nobody, 0) == 0);
        work();
        QVERIFY(!superuser || setresuid(0, 0, 0) == 0);
        QVERIFY(QFile::setPermissions(m_dir->path(), all) && QFile::setPermissions(path(), all));
    }
    static void overwrite(const QString &name, qint64 at, const QByteArray &bytes)
    {
        QFile file(name);
        QVERIFY(file.open(QIODevice::ReadWrite) && file.seek(at) && file.write(bytes) == bytes.size());
    }
    void makeStore(int people) const
    {
        ContactManager store(path());
        QList<ContactImport> contacts;
        for (int i = 0; i < people; ++i)
            contacts.append({person(QString("Person %1").arg(i)), {}});
        QCOMPARE(store.importContacts(contacts), people);
    }
};

QTEST_GUILESS_MAIN(TestStoreFaults)
#include "tst_storefaults.moc"
