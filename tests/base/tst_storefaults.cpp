#include "contactmanager.h"
#include "testcase.h"

#include <QDir>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>

#include <csignal>
#include <functional>
#include <sys/resource.h>
#include <unistd.h>

Q_DECLARE_METATYPE(std::function<void()>)

/// The contact store on files that are broken, not ours, locked, closed to us, or have no room to grow.
class TestStoreFaults : public TestCase
{
    Q_OBJECT

private slots:
    void movedAside_data();
    void movedAside();
    void begunAnew_data();
    void begunAnew();
    void movedAsideTwice();
    void locked();
    void noSpace();
    void readOnlyFolder();
    void unreadableFile();

private:
    void setUp() override { m_dir.reset(new QTemporaryDir); }
    void tearDown() override { m_dir.reset(); }

    QString path() const { return m_dir->filePath("contacts.db"); }
    QStringList asideFiles() const { return QDir(m_dir->path()).entryList({"contacts.db.damaged-*"}); }
    QByteArray content(const QString &file) const
    {
        QFile f(file);
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
    }
    void overwrite(qint64 at, const QByteArray &bytes) const
    {
        QFile file(path());
        QVERIFY(file.open(QIODevice::ReadWrite) && file.seek(at));
        file.write(bytes);
    }
    void makeStore(int people) const
    {
        ContactManager store(path());
        QList<ContactImport> contacts;
        for (int i = 0; i < people; ++i) {
            ContactData contact;
            contact.name = QStringLiteral("Person %1").arg(i);
            contact.telnum1 = QString::number(i);
            contacts.append({contact, {}});
        }
        QCOMPARE(store.importContacts(contacts), people);
    }
    static ContactData person(const QString &name)
    {
        ContactData contact;
        contact.name = name;
        return contact;
    }

    QScopedPointer<QTemporaryDir> m_dir;
};

/// Runs statements on a connection that the store knows nothing of; `meanwhile` runs while it is open.
static void onOwnConnection(
    const QString &path, const QStringList &statements, const std::function<void()> &meanwhile = [] {})
{
    {
        QSqlDatabase database = QSqlDatabase::addDatabase("QSQLITE", "other");
        database.setDatabaseName(path);
        QVERIFY(database.open());
        for (const QString &sql : statements)
            QVERIFY(QSqlQuery(database).exec(sql));
        meanwhile();
    }
    QSqlDatabase::removeDatabase("other");
}

void TestStoreFaults::movedAside_data()
{
    QTest::addColumn<std::function<void()>>("spoil");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char *name, const std::function<void()> &spoil, const char *reason) {
        QTest::newRow(name) << spoil << QString(reason);
    };
    row(
        "text", [this] { QFile::remove(path()), overwrite(0, QByteArray(5000, 'x')); }, "no database");
    row(
        "header cut off", [this] { QFile::resize(path(), 40); }, "no database");
    row(
        "header overwritten", [this] { overwrite(0, "SQLite format 2"); }, "no database");
    row(
        "half of it", [this] { QFile::resize(path(), QFileInfo(path()).size() / 2 / 4096 * 4096); }, "");
    row(
        "a page of zeros", [this] { overwrite(8192, QByteArray(4096, '\0')); }, "");
    row(
        "a page of noise", [this] { overwrite(12288, QByteArray(4096, '\xa7')); }, "");
    row(
        "foreign",
        [this] {
            QFile::remove(path());
            onOwnConnection(path(), {"CREATE TABLE songs (title TEXT)"});
        },
        "another program");
    row(
        "newer", [this] { onOwnConnection(path(), {"PRAGMA user_version = 99"}); }, "version 99");
    row(
        "table missing", [this] { onOwnConnection(path(), {"DROP TABLE numbers"}); }, "numbers");
    row(
        "column missing", [this] { onOwnConnection(path(), {"ALTER TABLE contacts RENAME memo TO note"}); },
        "memo");
}

void TestStoreFaults::movedAside()
{
    QFETCH(std::function<void()>, spoil);
    QFETCH(QString, reason);
    makeStore(500);
    spoil();
    const QByteArray spoilt = content(path());

    expectWarning("moved .*contacts.db aside to .*contacts.db.damaged-[0-9-]+: .*" + reason);
    ContactManager store(path());
    QVERIFY(store.isOpen());
    QCOMPARE(store.getCountOfContact(), 0);
    QVERIFY(store.saveContact(person("Kim"), false));
    QCOMPARE(asideFiles().size(), 1);
    QCOMPARE(content(m_dir->filePath(asideFiles().first())), spoilt);
}

void TestStoreFaults::begunAnew_data()
{
    QTest::addColumn<std::function<void()>>("prepare");
    QTest::newRow("missing") << std::function<void()>([] {});
    QTest::newRow("empty") << std::function<void()>([this] { overwrite(0, ""); });
    QTest::newRow("made but never filled")
        << std::function<void()>([this] { onOwnConnection(path(), {"PRAGMA journal_mode = WAL"}); });
}

void TestStoreFaults::begunAnew()
{
    QFETCH(std::function<void()>, prepare);
    prepare();
    ContactManager store(path());
    QVERIFY(store.isOpen());
    QVERIFY(store.saveContact(person("Kim"), false));
    QVERIFY(asideFiles().isEmpty());
}

void TestStoreFaults::movedAsideTwice()
{
    for (int i = 0; i < 2; ++i) {
        makeStore(1);
        // An emptied file whose log still holds the contacts must not lose the log.
        QFile::resize(path(), 0);
        QFile log(path() + "-wal");
        QVERIFY(log.open(QIODevice::WriteOnly));
        log.write("contacts");
        log.close();
        expectWarning("aside");
        QVERIFY(ContactManager(path()).isOpen());
        QFile::remove(path());
    }
    const QStringList logs = asideFiles().filter(QRegularExpression("-wal$"));
    QCOMPARE(logs.size(), 2);
    for (const QString &log : logs)
        QCOMPARE(content(m_dir->filePath(log)), QByteArray("contacts"));
}

void TestStoreFaults::locked()
{
    makeStore(3);
    ContactManager store(path());
    onOwnConnection(path(), {"BEGIN IMMEDIATE"}, [&] {
        for (int i = 0; i < 3; ++i)
            expectWarning("database is locked");
        QCOMPARE(store.saveContact(person("Kim"), false), 0);
        QCOMPARE(store.deleteAllContacts(), 0);
        QCOMPARE(store.importContacts({{person("Kim"), {}}}), 0);
        QCOMPARE(store.getCountOfContact(), 3);
        QCOMPARE(store.getContactSearchResults("person").size(), 3);
        // Another phone may even start now.
        QCOMPARE(ContactManager(path()).getCountOfContact(), 3);
    });
    QVERIFY(store.saveContact(person("Kim"), false));
}

void TestStoreFaults::noSpace()
{
    makeStore(10);
    ContactManager store(path());
    rlimit former;
    getrlimit(RLIMIT_FSIZE, &former);
    rlimit small = former;
    small.rlim_cur = 256 * 1024;
    std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &small);

    ContactData large = person("Large");
    large.memo = QString(100000, 'm');
    int saved = 0;
    expectWarning("SqliteFile|SqliteStatement");
    while (saved < 100 && store.saveContact(large, false))
        ++saved;
    setrlimit(RLIMIT_FSIZE, &former);

    QVERIFY(saved < 100);
    QCOMPARE(store.getCountOfContact(), 10 + saved);
    QVERIFY(store.saveContact(large, false));
    QCOMPARE(ContactManager(path()).getCountOfContact(), 10 + saved + 1);
}

/// Runs as a user whom rights on files bind; the superuser has all of them.
static void asPlainUser(const QString &folder, const std::function<void()> &work)
{
    constexpr uid_t Nobody = 65534;
    const bool superuser = geteuid() == 0;
    if (superuser) {
        const QStringList names = QDir(folder).entryList(QDir::Files);
        for (const QString &name : names)
            QCOMPARE(chown(QFile::encodeName(folder + '/' + name).constData(), Nobody, Nobody), 0);
        QCOMPARE(chown(QFile::encodeName(folder).constData(), Nobody, Nobody), 0);
        QCOMPARE(setresuid(Nobody, Nobody, 0), 0);
    }
    work();
    if (superuser)
        QCOMPARE(setresuid(0, 0, 0), 0);
}

void TestStoreFaults::readOnlyFolder()
{
    makeStore(3);
    const QByteArray before = content(path());
    QFile::setPermissions(path(), QFile::ReadOwner);
    QFile::setPermissions(m_dir->path(), QFile::ReadOwner | QFile::ExeOwner);
    asPlainUser(m_dir->path(), [this] {
        ContactManager store(path());
        QVERIFY(store.isOpen());
        QCOMPARE(store.getAllContacts().size(), 3);
        expectWarning("cannot write .*contacts.db");
        QCOMPARE(store.saveContact(person("Kim"), false), 0);
    });
    QFile::setPermissions(m_dir->path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QVERIFY(asideFiles().isEmpty());
    QCOMPARE(content(path()), before);
}

void TestStoreFaults::unreadableFile()
{
    makeStore(3);
    QFile::setPermissions(path(), {});
    asPlainUser(m_dir->path(), [this] {
        expectWarning("cannot use .*contacts.db.*denied");
        ContactManager store(path());
        QVERIFY(!store.isOpen());
        QCOMPARE(store.getCountOfContact(), 0);
        QVERIFY(store.getContactSearchResults("p").isEmpty());
        expectWarning("cannot write");
        QCOMPARE(store.saveContact(person("Kim"), false), 0);
    });
    QFile::setPermissions(path(), QFile::ReadOwner | QFile::WriteOwner);
    QVERIFY(asideFiles().isEmpty());
    QCOMPARE(ContactManager(path()).getCountOfContact(), 3);
}

QTEST_GUILESS_MAIN(TestStoreFaults)
#include "tst_storefaults.moc"
