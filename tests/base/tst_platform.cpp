#include "baseappinterface.h"
#include "callmanager.h"
#include "conffile.h"
#include "contactmanager.h"
#include "core.h"
#include "keyinjection.h"
#include "message.h"
#include "peerlink.h"
#include "testcase.h"
#include "textcodec.h"
#include "tocmsocket.h"
#include "topresencesocket.h"

#include <QFileInfo>
#include <QLineEdit>
#include <QLocalServer>
#include <QLocalSocket>
#include <QNetworkDatagram>
#include <QPushButton>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QUdpSocket>

namespace {

/// An application that keeps what it receives.
class Listener : public QObject, public BaseAppInterface
{
    Q_OBJECT
    Q_INTERFACES(BaseAppInterface)

public:
    explicit Listener(const QString &name) : BaseAppInterface(name, nullptr) { }
    bool start(QWidget *, void *) override { return true; }
    void end() override { }
    void receiveMsg(const QString &command, const QByteArray &payload) override
    {
        received.append(command + QLatin1Char('|') + QString::fromLatin1(payload));
        if (onReceive)
            onReceive();
    }

    QStringList received;
    std::function<void()> onReceive;
};

}

/// The services of the platform library in a home of their own.
class TestPlatform : public TestCase
{
    Q_OBJECT

private slots:
    void home();
    void movedHome();
    void unusableHome();
    void messages();
    void messageInsideAHandler();
    void languages();
    void settings();
    void configurationPaths();
    void twoHomes();
    void inputMethod();
    void injectedKeys();
    void dialRequest();
    void shellLink();
    void callsAndPresence();
    void texts();

private:
    void setUp() override
    {
        m_dir.reset(new QTemporaryDir);
        m_home.reset(new PhoneHome(m_dir->filePath("home")));
        QVERIFY(m_home->create());
        m_home->enter();
        m_core.reset(new Core(*m_home));
    }
    void tearDown() override
    {
        m_core.reset();
        qunsetenv("CONFIG_LIST");
        m_dir.reset();
    }

    QScopedPointer<QTemporaryDir> m_dir;
    QScopedPointer<PhoneHome> m_home;
    QScopedPointer<Core> m_core;
};

void TestPlatform::home()
{
    const QFile::Permissions others = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup | QFile::ReadOther
        | QFile::WriteOther | QFile::ExeOther;
    QVERIFY(!(QFileInfo(m_home->runFolder()).permissions() & others));
    QVERIFY(!(QFileInfo(m_home->path("config/secret.ini")).permissions() & others));
    QCOMPARE(qEnvironmentVariable("CONFIG_LIST"), m_home->configList());
    QFile photo(m_home->photoFolder() + "/x.png");
    QVERIFY(photo.open(QIODevice::WriteOnly));
    QVERIFY(QFile::exists("photo:x.png"));

    {
        QSettings secret(m_home->path("config/secret.ini"), QSettings::IniFormat);
        secret.setValue("Prov/Password", "a,b;c");
    }
    QVERIFY(m_home->create()); // keeps what is there
    QCOMPARE(m_core->getProvPassword(), QString("a,b;c"));
}

void TestPlatform::movedHome()
{
    m_core.reset();
    QVERIFY(QDir().rename(m_home->root(), m_dir->filePath("moved")));
    const PhoneHome moved(m_dir->filePath("moved"));
    QVERIFY(moved.create());
    moved.enter();
    QCOMPARE(getConfFilePath("COMMON", "IPC_CONF"), moved.path("config/ipc.conf"));
    QCOMPARE(getConfFilePath("CONFIG", "PINFO_CONF"), moved.path("config/phone_info.conf"));
}

void TestPlatform::unusableHome()
{
    QFile file(m_dir->filePath("file"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    expectWarning("cannot make the folder");
    QVERIFY(!PhoneHome(file.fileName()).create());
}

void TestPlatform::messages()
{
    QSignalSpy sent(m_core.data(), &Core::appMsgSent);
    Listener contact("contact");
    m_core->sendAppMsg("contact", "first(str)", "1");
    m_core->sendAppMsg("call", "lost()", "");
    m_core->sendAppMsg("contact", "second()", "");
    QCOMPARE(sent.size(), 3);
    QVERIFY(contact.received.isEmpty());
    QCoreApplication::processEvents();
    QCOMPARE(contact.received, QStringList({"first(str)|1", "second()|"}));

    // Looked up when it arrives: an application that has gone by then gets nothing, a new one does.
    {
        Listener call("call");
        QVERIFY(m_core->getAppMap().contains("call"));
        m_core->sendAppMsg("call", "late()", "");
    }
    Listener idle("idle");
    QCoreApplication::processEvents();
    QVERIFY(!m_core->getAppMap().contains("call"));
    QCOMPARE(m_core->getAppMap().value("idle"), static_cast<BaseAppInterface *>(&idle));
}

void TestPlatform::messageInsideAHandler()
{
    Listener contact("contact");
    QEventLoop loop;
    contact.onReceive = [&] {
        if (contact.received.size() == 1)
            loop.exec();
        else
            loop.quit();
    };
    m_core->sendAppMsg("contact", "opens a screen", "");
    m_core->sendAppMsg("contact", "closes it", "");
    QCoreApplication::processEvents();
    QCOMPARE(contact.received.size(), 2);
}

void TestPlatform::languages()
{
    QCOMPARE(m_core->language(), English);
    Listener contact("contact");
    QVERIFY(m_core->setLanguageName("ko_KR"));
    QVERIFY(!m_core->setLanguageName("fr_FR"));
    QCOMPARE(m_core->getLanguage(), 0);
    QCOMPARE(m_core->languageName(), QString("ko_KR"));
    QCoreApplication::processEvents();
    QCOMPARE(contact.received, QStringList({"changedLanguage()|"}));
    contact.reloadLanguage(); // without any catalogue
}

void TestPlatform::settings()
{
    QCOMPARE(m_core->charset(), QString("utf-8"));
    QVERIFY(m_core->openContactDatabase());
    QCOMPARE(m_core->getSystemType(), 0);
    {
        QSettings system(m_core->configFileName(SystemConfig), QSettings::IniFormat);
        system.setValue("System/Charset", "EUC-KR");
        system.setValue("System/Type", 1);
        QSettings settings(m_core->configFileName(SettingsConfig), QSettings::IniFormat);
        settings.setValue("Settings/24HourTime", false);
        settings.setValue("Settings/Design", 1);
    }
    QCOMPARE(getTextCodecType(""), QString("EUC-KR"));
    QCOMPARE(getTextCodecType("cp949"), QString("cp949"));
    QCOMPARE(getEncodedString("김"), QByteArray("\xb1\xe8"));
    QCOMPARE(m_core->getSystemType(), 1);
    QCOMPARE(m_core->designType(), 1);
    QVERIFY(!m_core->use24HourTime());
    QSettings(m_core->configFileName(SystemConfig), QSettings::IniFormat).setValue("System/Charset", "no codec");
    QCOMPARE(m_core->charset(), QString("utf-8"));
}

void TestPlatform::configurationPaths()
{
    QCOMPARE(getConfFilePath("CONFIG", "PBOOK_CONF"), m_home->path("config/phonebook.conf"));
    QCOMPARE(getConfFilePath("CONFIG", "NONE"), QString());
    QCOMPARE(m_core->sipConfigFileName("phone_info.conf"), getConfFilePath("CONFIG", "PINFO_CONF"));
    QCOMPARE(getPeerPort("CM"), quint16(0));
    QSettings(m_home->path("config/ipc.conf"), QSettings::IniFormat).setValue("CM/Port", 70000);
    QCOMPARE(getPeerPort("cm"), quint16(70000 - 65536));
    qunsetenv("CONFIG_LIST");
    QCOMPARE(getConfFilePath("CONFIG", "PBOOK_CONF"), QString());
    QCOMPARE(getPeerPort("CM"), quint16(0));
}

void TestPlatform::twoHomes()
{
    const PhoneHome other(m_dir->filePath("other home"));
    QVERIFY(other.create());
    ContactManager store(other.contactDatabase());
    ContactData contact;
    contact.name = "Kim";
    QVERIFY(store.saveContact(contact, false));
    QCOMPARE(m_core->contactManager()->getCountOfContact(), 0);
    QCOMPARE(PhoneHome::locate(other.root()).contactDatabase(), other.contactDatabase());
}

void TestPlatform::inputMethod()
{
    QWidget window;
    QLineEdit edit(&window);
    QPushButton button(&window);
    button.setFocus();
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));

    QSignalSpy changes(m_core->ime(), &IME::changedIMEStatus);
    QCOMPARE(m_core->getIMEStatus(), IMEOff);
    m_core->setIMEStatus(IMEDigit, false);
    QCOMPARE(changes.size(), 0);
    edit.setFocus();
    QCOMPARE(changes.takeFirst(), QVariantList({int(IMEDigit)}));
    m_core->setIMEStatus(IMEDigit, false);
    QCOMPARE(changes.size(), 0);
    m_core->setIMEStatus(IMEDigit, true);
    m_core->setIMEStatus(IMEFirst, true);
    QCOMPARE(changes.size(), 2);
    button.setFocus();
    QCOMPARE(changes.last(), QVariantList({int(IMEOff)}));
    m_core->setIMEStatus(m_core->getIMEStatus(), true);
    edit.setFocus();
    QCOMPARE(m_core->getIMEStatus(), IMEFirst);
}

void TestPlatform::injectedKeys()
{
    injectKeyStroke(Qt::Key_Backspace); // nobody has the focus
    QLineEdit edit("abc");
    edit.show();
    edit.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&edit));
    edit.end(false);
    injectKeyStroke(Qt::Key_Backspace);
    QCOMPARE(edit.text(), QString("ab"));
}

void TestPlatform::dialRequest()
{
    const auto dial = [] {
        ToCMSocket::sendUI2CMSvcDialer(0, "NORMAL", "0101", QString::fromLatin1(QString("김").toUtf8()),
                                       getCallMode(), 2, -1);
    };
    dial(); // no port: lost
    QUdpSocket peer;
    QVERIFY(peer.bind(QHostAddress(QHostAddress::LocalHost)));
    QSettings(m_home->path("config/ipc.conf"), QSettings::IniFormat).setValue("CM/Port", peer.localPort());
    dial();
    QTRY_VERIFY(peer.hasPendingDatagrams());
    const QByteArray bytes = peer.receiveDatagram().data();
    Message message;
    QVERIFY(message_Parse(bytes.constData(), bytes.size(), &message));
    QCOMPARE(message.address, QByteArray("CM/UI"));
    QCOMPARE(message.signature, QByteArray("ui2cm_svc_dialer(int,str,str,str,str,int,int)"));
    QCOMPARE(
        message.arguments,
        QVariantList({0, QByteArray("NORMAL"), QByteArray("0101"), QByteArray("김"), QByteArray("AUDIO"), 2, -1}));
}

void TestPlatform::shellLink()
{
    const Message message{"contact/WPSM", "come(int)", {3}};
    QVERIFY(!sendToShell(*m_home, message));
    QLocalServer shell;
    QVERIFY(shell.listen(m_home->peerSocket()));
    QVERIFY(sendToShell(*m_home, message));
    QVERIFY(!sendToShell(*m_home, {"contact/WPSM", "come(int)", {}}));
    QVERIFY(shell.waitForNewConnection(1000));
    QLocalSocket *socket = shell.nextPendingConnection();
    QTRY_VERIFY(socket->bytesAvailable() > 4 || socket->waitForReadyRead(100));
    const QByteArray body = message_MakeFromValues(message);
    QCOMPARE(socket->readAll(), QByteArray("\0\0\0", 3) + char(body.size()) + body);
}

void TestPlatform::callsAndPresence()
{
    QSignalSpy changed(m_core->callManager(), &CallManager::callStateChanged);
    m_core->callManager()->setCallState("CONNECT");
    m_core->callManager()->setCallState("CONNECT");
    QCOMPARE(changed.size(), 1);

    QSettings(m_home->path("data/presence.ini"), QSettings::IniFormat).setValue("a@b/Status", 1);
    QSettings(m_home->path("data/presence.ini"), QSettings::IniFormat).setValue("a@b/c/Status", 1);
    ToPresenceSocket::DeleteBuddyMemberRequest("a@b", "__");
    QCOMPARE(m_core->contactManager()->getPresenceStatus().keys(), QStringList({"a@b/c"}));
}

void TestPlatform::texts()
{
    QByteArray text = QByteArray("a&b=c? /%+") + QByteArray("김~-._Z9");
    QCOMPARE(makeBuffEscape(text.data()), QByteArray("a%26b%3Dc%3F%20%2F%25%2B%EA%B9%80~-._Z9"));
    QCOMPARE(makeBuffEscape(nullptr), QByteArray());
}

QTEST_MAIN(TestPlatform)
#include "tst_platform.moc"
