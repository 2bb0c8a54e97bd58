#include "conffile.h"
#include "contactmanager.h"
#include "testcase.h"
#include "testphone.h"
#include "textcodec.h"
#include "topresencesocket.h"

#include <QSettings>

/// The services of the platform library in a home of their own.
class TestPlatform : public TestCase
{
    Q_OBJECT

private slots:
    void home()
    {
        const QString photo = writeFile(m_home->photoFolder() + "/x.png", "");
        QVERIFY(QFile::exists("photo:x.png"));
        expectWarning("cannot make the folder");
        QVERIFY(!PhoneHome(photo).create());
        set("config/secret.ini", "Prov/Password", "a,b;c");
        QVERIFY(m_home->create()); // keeps what is there
        QCOMPARE(m_core->getProvPassword(), QString("a,b;c"));
        // A home may be moved.
        m_core.reset();
        QVERIFY(QDir().rename(m_home->root(), m_dir->filePath("moved")));
        const PhoneHome moved(m_dir->filePath("moved"));
        QVERIFY(moved.create());
        moved.enter();
        QCOMPARE(getConfFilePath("COMMON", "IPC_CONF"), moved.path("config/ipc.conf"));
    }

    void messages()
    {
        ListeningApp contact("contact");
        m_core->sendAppMsg("contact", "first(str)", "1");
        m_core->sendAppMsg("call", "lost()", "");
        m_core->sendAppMsg("contact", "second()", "");
        QVERIFY(contact.commands.isEmpty());
        QCoreApplication::processEvents();
        QCOMPARE(contact.commands, QStringList({"first(str)", "second()"}));
        // Looked up when it arrives: an application that has gone by then gets nothing.
        {
            const ListeningApp call("call");
            m_core->sendAppMsg("call", "late()", "");
        }
        QCoreApplication::processEvents();
        // A handler may run a loop, in which the next message comes.
        QEventLoop loop;
        contact.onReceive = [&] { contact.commands.size() == 3 ? void(loop.exec()) : loop.quit(); };
        m_core->sendAppMsg("contact", "opens a screen", "");
        m_core->sendAppMsg("contact", "closes it", "");
        QCoreApplication::processEvents();
        QCOMPARE(contact.commands.size(), 4);
    }

    void settings()
    {
        QCOMPARE(m_core->charset(), QString("utf-8"));
        set("config/system.conf", "System/Charset", "EUC-KR");
        QCOMPARE(getTextCodecType("") + getTextCodecType("cp949"), QString("EUC-KRcp949"));
        QCOMPARE(getEncodedString("김"), QByteArray("\xb1\xe8"));
        set("config/system.conf", "System/Charset", "no codec");
        QCOMPARE(m_core->charset(), QString("utf-8"));
    }

    void configurationPaths()
    {
        QCOMPARE(getConfFilePath("CONFIG", "PBOOK_CONF"), m_home->path("config/phonebook.conf"));
        QCOMPARE(getConfFilePath("CONFIG", "NONE"), QString());
        set("config/ipc.conf", "CM/Port", 70000);
        QCOMPARE(getPeerPort("cm"), quint16(70000 - 65536));
        qunsetenv("CONFIG_LIST");
        QCOMPARE(getConfFilePath("CONFIG", "PBOOK_CONF"), QString());
        QCOMPARE(getPeerPort("CM"), quint16(0));
    }

    void presence()
    {
        set("data/presence.ini", "a@b/Status", 1);
        set("data/presence.ini", "a@b/c/Status", 2);
        ToPresenceSocket::DeleteBuddyMemberRequest("a@b", "__");
        QCOMPARE(m_core->contactManager()->getPresenceStatus().keys(), QStringList({"a@b/c"}));
    }

private:
    void setUp() override
    {
        m_home.reset(new PhoneHome(m_dir->filePath("home")));
        QVERIFY(m_home->create());
        m_home->enter();
        m_core.reset(new Core(*m_home));
    }
    void tearDown() override
    {
        m_core.reset();
        qunsetenv("CONFIG_LIST");
    }
    void set(const QString &file, const QString &key, const QVariant &value) const
    {
        QSettings(m_home->path(file), QSettings::IniFormat).setValue(key, value);
    }

    QScopedPointer<PhoneHome> m_home;
    QScopedPointer<Core> m_core;
};

QTEST_MAIN(TestPlatform)
#include "tst_platform.moc"
