#include "contactmanager.h"
#include "phonehome.h"
#include "testcase.h"
#include "wpsmcontactmanager.h"

#include <QDir>
#include <QProcess>
#include <QSettings>

/// phonebook and wpsm as they are run, beside a phone and without one.
class TestContactTools : public TestCase
{
    Q_OBJECT

private slots:
    void exitCodes()
    {
        for (const char *program : {"phonebook", "wpsm"}) {
            QCOMPARE(run(program, {"--help"}), 0);
            QCOMPARE(run(program, {"nonsense"}), 2);
            QCOMPARE(runAtHome(program, {"import"}), 2);
        }
        QVERIFY(!QDir(m_home->root()).exists());
        QCOMPARE(runAtHome("phonebook", {"list"}), 1);
        QCOMPARE(runAtHome("phonebook", {"import", "missing.vcf"}), 1);
    }

    void importAndList()
    {
        QCOMPARE(runAtHome("phonebook", {"import", "-"}, twoPeople()), 0);
        QCOMPARE(m_out, QString("read 2, added 2, skipped 0\n"));
        QCOMPARE(runAtHome("phonebook", {"list"}), 0);
        QCOMPARE(m_out, QString("1\tKim\t0101 mobile, 02 fax\tWork, Team\n2\t이민준\t3 etc\t\n"));
        QCOMPARE(runAtHome("phonebook", {"export", m_dir->filePath("no/such/folder.vcf")}), 1);
    }

    void importBroken()
    {
        const QString path
            = write("a.vcf", "BEGIN:VCARD\r\nFN:x\r\n" + person("", "NOTE:n") + person("Kim", "TEL:1"));
        QCOMPARE(runAtHome("phonebook", {"import", path}), 0);
        QCOMPARE(m_out, QString("read 3, added 1, skipped 2\n  no END:VCARD: 1\n  no name and no number: 1\n"));
        QCOMPARE(m_error, QString("%1:1: skipped: no END:VCARD\n%1:3: skipped: no name and no number\n").arg(path));
    }

    void deviceComesAndGoes()
    {
        QVERIFY(m_home->create());
        WpsmContactManager device(m_home->mobileFolder());
        QCOMPARE(runAtHome("wpsm", {"--name", "Kim's phone, new", "connect", write("a.vcf", twoPeople())}), 0);
        QCOMPARE(device.getCountOfContact(), 0);
        device.readWpsmConfigFile();
        QCOMPARE(device.deviceName(), QString("Kim's phone, new"));
        const ContactData kim = device.getAllContacts().value(0);
        QVERIFY(kim.type == ContactData::MobileContact && kim.telnum1 == "0101");
        QVERIFY(device.getSpecificContactDetail(kim.id) == kim);
        for (const char *word : {"ㅇㅁㅈ", "101"})
            QCOMPARE(device.getContactSearchResults(word).size(), 1);
        // Another device takes its place.
        QCOMPARE(runAtHome("wpsm", {"connect", write("b.vcf", person("Lee", "TEL:1"))}), 0);
        device.readWpsmConfigFile();
        QCOMPARE(device.deviceName(), QString("b"));
        for (int i = 0; i < 2; ++i)
            QCOMPARE(runAtHome("wpsm", {"disconnect"}), 0);
        device.readWpsmConfigFile();
        QVERIFY(device.getCountOfContact() == 0 && device.deviceName().isEmpty());
    }

    void brokenDeviceChangesNothing()
    {
        QCOMPARE(runAtHome("wpsm", {"connect", write("a.vcf", twoPeople())}), 0);
        WpsmContactManager device(m_home->mobileFolder());
        // The file and the database of two devices.
        const auto readAgain = [&](const QString &warning) {
            expectWarning(warning);
            device.readWpsmConfigFile();
            QCOMPARE(device.getCountOfContact(), 2);
            QCOMPARE(device.deviceName(), QString("a"));
        };
        QSettings(m_home->mobileFolder() + "/wpsm.ini", QSettings::IniFormat)
            .setValue("Device/Generation", "another");
        readAgain("do not belong together");
        QVERIFY(QFile::resize(m_home->mobileFolder() + "/contacts.db", 100));
        readAgain("cannot use .*mobile/contacts.db");
    }

private:
    void setUp() override { m_home.reset(new PhoneHome(m_dir->filePath("home"))); }
    /// Runs a program and returns its exit code; what it wrote stands in m_out and m_error.
    int run(const QString &program, const QStringList &arguments, const QByteArray &input = {})
    {
        QProcess process;
        process.start(PROGRAMS "/" + program, arguments);
        process.write(input);
        process.closeWriteChannel();
        process.waitForFinished();
        m_out = QString::fromUtf8(process.readAllStandardOutput());
        m_error = QString::fromUtf8(process.readAllStandardError());
        return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    }
    int runAtHome(const QString &program, const QStringList &arguments, const QByteArray &input = {})
    {
        return run(program, QStringList({"--home", m_home->root()}) + arguments, input);
    }
    QString write(const QString &name, const QByteArray &content) const
    {
        return writeFile(m_dir->filePath(name), content);
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

    QScopedPointer<PhoneHome> m_home;
    QString m_out, m_error;
};

QTEST_GUILESS_MAIN(TestContactTools)
#include "tst_contacttools.moc"
