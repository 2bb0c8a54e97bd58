#include "contactmanager.h"
#include "message.h"
#include "phonehome.h"
#include "testcase.h"
#include "wpsmcontactmanager.h"

#include <QDir>
#include <QLocalServer>
#include <QLocalSocket>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>

/// phonebook and wpsm as they are run, beside a phone and without one.
class TestContactTools : public TestCase
{
    Q_OBJECT

private slots:
    void help();
    void importAndList();
    void importBroken();
    void importFromStandardInput();
    void exportAndImport();
    void runningPhoneIsTold();
    void deviceComesAndGoes();
    void brokenDeviceChangesNothing();
    void halfAPair();
    void manyCards();

private:
    struct Result
    {
        int code;
        QString out;
        QString error;
    };

    void setUp() override
    {
        m_dir.reset(new QTemporaryDir);
        m_home.reset(new PhoneHome(m_dir->filePath("home")));
    }

    Result run(const QString &program, const QStringList &arguments, const QByteArray &input = {}) const
    {
        QProcess process;
        process.start(QStringLiteral(PROGRAMS "/") + program, arguments);
        process.write(input);
        process.closeWriteChannel();
        process.waitForFinished();
        return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
                QString::fromUtf8(process.readAllStandardOutput()),
                QString::fromUtf8(process.readAllStandardError())};
    }
    Result runAtHome(const QString &program, const QStringList &arguments, const QByteArray &input = {}) const
    {
        return run(program, QStringList({"--home", m_home->root()}) + arguments, input);
    }
    QString write(const QString &name, const QByteArray &content) const
    {
        QFile file(m_dir->filePath(name));
        file.open(QIODevice::WriteOnly);
        file.write(content);
        return file.fileName();
    }
    static QByteArray person(const QByteArray &name, const QByteArray &lines)
    {
        return "BEGIN:VCARD\r\nVERSION:3.0\r\nFN:" + name + "\r\n" + lines + "\r\nEND:VCARD\r\n";
    }
    static QByteArray twoPeople()
    {
        return person("Kim", "TEL;TYPE=CELL:010-1\r\nTEL;TYPE=FAX:02\r\nCATEGORIES:Work,Team")
            + person("이민준", "TEL:3\r\nNOTE:memo");
    }

    QScopedPointer<QTemporaryDir> m_dir;
    QScopedPointer<PhoneHome> m_home;
};

void TestContactTools::help()
{
    for (const char *program : {"phonebook", "wpsm"}) {
        const Result help = run(program, {"--help"});
        QCOMPARE(help.code, 0);
        QVERIFY(help.out.contains("--home"));
        QCOMPARE(run(program, {"nonsense"}).code, 2);
        QCOMPARE(runAtHome(program, {"import"}).code, 2);
    }
    QVERIFY(!QDir(m_home->root()).exists());
    QCOMPARE(runAtHome("phonebook", {"list"}).code, 1);
    QCOMPARE(runAtHome("phonebook", {"import", "missing.vcf"}).code, 1);
}

void TestContactTools::importAndList()
{
    const Result import = runAtHome("phonebook", {"import", write("a.vcf", twoPeople())});
    QCOMPARE(import.code, 0);
    QCOMPARE(import.out, QString("read 2, added 2, skipped 0\n"));
    QCOMPARE(runAtHome("phonebook", {"list"}).out,
             QString("1\tKim\t0101 mobile, 02 fax\tWork, Team\n2\t이민준\t3 etc\t\n"));
}

void TestContactTools::importBroken()
{
    const QString path = write("a.vcf", "BEGIN:VCARD\r\nFN:x\r\n" + person("", "NOTE:n") + person("Kim", "TEL:1"));
    const Result import = runAtHome("phonebook", {"import", path});
    QCOMPARE(import.code, 0);
    QCOMPARE(import.out, QString("read 3, added 1, skipped 2\n  no END:VCARD: 1\n  no name and no number: 1\n"));
    QCOMPARE(import.error,
             QString("%1:1: skipped: no END:VCARD\n%1:3: skipped: no name and no number\n").arg(path));

    const Result nothing = runAtHome("phonebook", {"import", write("b.vcf", "no cards here")});
    QCOMPARE(nothing.code, 1);
    QVERIFY(nothing.error.contains("no contact could be read"));
    QCOMPARE(ContactManager(m_home->contactDatabase()).getCountOfContact(), 1);
}

void TestContactTools::importFromStandardInput()
{
    QCOMPARE(runAtHome("phonebook", {"import", "-"}, twoPeople()).code, 0);
    QCOMPARE(ContactManager(m_home->contactDatabase()).getCountOfContact(), 2);
}

void TestContactTools::exportAndImport()
{
    QVERIFY(m_home->create());
    QList<ContactImport> people;
    for (int i = 0; i < 3; ++i) {
        ContactData contact;
        contact.name = i == 1 ? QString() : QStringLiteral("Person, %1\\").arg(i);
        contact.setNumber(2 * i, QString::number(i), ContactData::Fax);
        contact.setEmails({"", "a@b"});
        contact.memo = "one\\n\ntwo";
        contact.bell = "/r/x.wav";
        contact.buddyId = "b@c";
        people.append({contact, i == 2 ? QStringList{"B", "A,"} : QStringList()});
    }
    QCOMPARE(ContactManager(m_home->contactDatabase()).importContacts(people), 3);
    const QString file = m_dir->filePath("out.vcf");
    QCOMPARE(runAtHome("phonebook", {"export", file}).out, QString("written 3\n"));
    QCOMPARE(runAtHome("phonebook", {"export", m_dir->filePath("no/such/folder.vcf")}).code, 1);

    const PhoneHome other(m_dir->filePath("other"));
    QCOMPARE(run("phonebook", {"--home", other.root(), "import", file}).code, 0);
    const ContactManager before(m_home->contactDatabase());
    const ContactManager after(other.contactDatabase());
    QVERIFY(before.getAllContacts() == after.getAllContacts());
    QStringList groups;
    const QList<int> ids = after.getGroupIdsOfMember(3);
    for (const int id : ids)
        groups.append(after.getGroupName(id));
    QCOMPARE(groups, QStringList({"B", "A,"}));
    QCOMPARE(after.getGroupIdsOfMember(1), QList<int>({GroupData::UnassignedId}));
}

void TestContactTools::runningPhoneIsTold()
{
    QVERIFY(m_home->create());
    QLocalServer phone;
    QVERIFY(phone.listen(m_home->peerSocket()));
    QList<Message> heard;
    connect(&phone, &QLocalServer::newConnection, this, [&] {
        QLocalSocket *socket = phone.nextPendingConnection();
        connect(socket, &QLocalSocket::readChannelFinished, this, [socket, &heard] {
            const QByteArray frame = socket->readAll();
            Message message;
            if (message_Parse(frame.constData() + 4, frame.size() - 4, &message))
                heard.append(message);
        });
    });
    const QString file = write("a.vcf", twoPeople());
    QCOMPARE(runAtHome("phonebook", {"import", file}).code, 0);
    QCOMPARE(runAtHome("wpsm", {"connect", file}).code, 0);
    QCOMPARE(runAtHome("wpsm", {"disconnect"}).code, 0);
    QTRY_COMPARE(heard.size(), 3);
    QCOMPARE(heard.at(0).address, QByteArray("contact/PHONEBOOK"));
    QCOMPARE(heard.at(0).signature, QByteArray("api2ui_noti_contact_changed()"));
    QCOMPARE(heard.at(1).address, QByteArray("contact/WPSM"));
    QCOMPARE(heard.at(1).signature, QByteArray("wpsm2ui_noti_device_connected(int)"));
    QCOMPARE(heard.at(1).arguments, QVariantList({2}));
    QCOMPARE(heard.at(2).signature, QByteArray("wpsm2ui_noti_device_disconnected(int)"));
}

void TestContactTools::deviceComesAndGoes()
{
    QVERIFY(m_home->create());
    WpsmContactManager device(m_home->mobileFolder());
    QCOMPARE(device.getCountOfContact(), 0);
    QCOMPARE(runAtHome("wpsm", {"--name", "Kim's phone, new", "connect", write("a.vcf", twoPeople())}).code, 0);
    QCOMPARE(device.getCountOfContact(), 0);
    device.readWpsmConfigFile();
    QCOMPARE(device.deviceName(), QString("Kim's phone, new"));
    QCOMPARE(device.getCountOfContact(), 2);
    const ContactData kim = device.getAllContacts().first();
    QCOMPARE(kim.type, ContactData::MobileContact);
    QCOMPARE(kim.telnum1, QString("0101"));
    QVERIFY(device.getSpecificContactDetail(kim.id) == kim);
    QCOMPARE(device.getSpecificContactDetail(99).id, 0);
    QCOMPARE(device.getContactSearchResults("ㅇㅁㅈ").size(), 1);
    QCOMPARE(device.getContactSearchResults("101").size(), 1);
    QCOMPARE(device.getContactSearchResults("").size(), 2);

    // Another device takes its place; the phone that starts now sees it at once.
    QCOMPARE(runAtHome("wpsm", {"connect", write("b.vcf", person("Lee", "TEL:1"))}).code, 0);
    device.readWpsmConfigFile();
    QCOMPARE(device.deviceName(), QString("b"));
    QCOMPARE(device.getContactSearchResults("kim").size(), 0);
    QCOMPARE(WpsmContactManager(m_home->mobileFolder()).getCountOfContact(), 1);

    QCOMPARE(runAtHome("wpsm", {"disconnect"}).code, 0);
    device.readWpsmConfigFile();
    QCOMPARE(device.getCountOfContact(), 0);
    QVERIFY(device.deviceName().isEmpty());
    QCOMPARE(runAtHome("wpsm", {"disconnect"}).code, 0);
}

void TestContactTools::brokenDeviceChangesNothing()
{
    QCOMPARE(runAtHome("wpsm", {"connect", write("a.vcf", twoPeople())}).code, 0);
    const QStringList before = QDir(m_home->mobileFolder()).entryList(QDir::Files);
    QCOMPARE(runAtHome("wpsm", {"connect", write("b.vcf", "")}).code, 1);
    QCOMPARE(runAtHome("wpsm", {"connect", write("c.vcf", "BEGIN:VCARD\r\nFN:x\r\n")}).code, 1);
    QCOMPARE(QDir(m_home->mobileFolder()).entryList(QDir::Files), before);
    QCOMPARE(WpsmContactManager(m_home->mobileFolder()).getCountOfContact(), 2);
}

void TestContactTools::halfAPair()
{
    QCOMPARE(runAtHome("wpsm", {"connect", write("a.vcf", twoPeople())}).code, 0);
    WpsmContactManager device(m_home->mobileFolder());
    const QString ini = m_home->mobileFolder() + "/wpsm.ini";
    const QString database = m_home->mobileFolder() + "/contacts.db";

    QSettings(ini, QSettings::IniFormat).setValue("Device/Generation", "another");
    expectWarning("do not belong together");
    device.readWpsmConfigFile();
    QCOMPARE(device.getCountOfContact(), 2);

    QVERIFY(QFile::resize(database, 100));
    expectWarning("cannot use .*mobile/contacts.db");
    device.readWpsmConfigFile();
    QVERIFY(QFile::remove(database));
    expectWarning("cannot use .*mobile/contacts.db");
    device.readWpsmConfigFile();
    QCOMPARE(device.getCountOfContact(), 2);
    QCOMPARE(device.deviceName(), QString("a"));
}

void TestContactTools::manyCards()
{
    constexpr int Count = 10000;
    QByteArray cards;
    for (int i = 0; i < Count; ++i)
        cards += person("Person " + QByteArray::number(i), "TEL;TYPE=CELL:" + QByteArray::number(i + 1));
    const Result import = runAtHome("phonebook", {"import", "-"}, cards);
    QCOMPARE(import.code, 0);
    QCOMPARE(import.out, QString("read 10000, added 10000, skipped 0\n"));
    QVERIFY(import.error.contains("read 5000\n") && import.error.contains("added 5000\n"));
    QCOMPARE(ContactManager(m_home->contactDatabase()).getContactSearchResults("person 9999").size(), 1);
}

QTEST_GUILESS_MAIN(TestContactTools)
#include "tst_contacttools.moc"
