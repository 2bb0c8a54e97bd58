// What the directory asks for, byte by byte, and which answer files it takes.

#include "answerfile.h"
#include "directorytexts.h"
#include "directorytransport.h"
#include "directoryurl.h"
#include "testcase.h"
#include "testmain.h"
#include "testphone.h"

#include <QNetworkDatagram>
#include <QUdpSocket>

#include <memory>
#include <sys/stat.h>
#include <unistd.h>

static const char CallManagerState[] = "/tmp/cminfo";

class DirectoryRequestsTest : public TestCase
{
    Q_OBJECT

    void setUp() override { m_phone.reset(new TestPhone); }
    void tearDown() override
    {
        m_phone.reset();
        QFile::remove(CallManagerState);
    }

private slots:
    void initTestCase();
    void searchUrls();
    void pageUrls();
    void ports();
    void datagrams();
    void answers_data();
    void answers();

private:
    void provision(const QByteArray &info, const QByteArray &proxy = "");

    std::unique_ptr<TestPhone> m_phone;
};

/// Whatever interfaces the machine has: the loopback is the first that succeeds.
void DirectoryRequestsTest::initTestCase()
{
    char none[] = "nonesuch0", loopback[] = "lo", usual[] = "eth0";
    QCOMPARE(get_mac_addr2(none), "");
    const char *first = get_mac_addr2(loopback);
    QCOMPARE(first, "000000000000");
    QVERIFY(get_mac_addr2(usual) == first);
}

void DirectoryRequestsTest::provision(const QByteArray &info, const QByteArray &proxy)
{
    m_phone->writeFile("config/phone_info.conf", "[Prov_Info]\nId=7\n[Directory_svc]\n" + info);
    m_phone->writeFile("config/secret.ini", "[Prov]\nPassword=p\n");
    QFile state(CallManagerState);
    if (!proxy.isEmpty() && state.open(QIODevice::WriteOnly))
        state.write("[LINE_0]\nPROXY=" + proxy);
}

void DirectoryRequestsTest::searchUrls()
{
    const struct
    {
        const char *info, *proxy, *key, *keyType, *start, *escaped;
    } rows[] = {
        {"Addr=a\nPort=81\n", "", "kim", "name", "http://7:p@a/servlet/DService", "kim"},
        {"Addr=a\nType=HttpS\nPort=81\n", "", "kim", "name", "https://7:p@a:81/servlet/DService", "kim"},
        {"Addr=a\nType=https\n", "", "kim", "name", "https://7:p@a:/servlet/DService", "kim"},
        {"Addr=a\nPath=/x/y\n", "", "kim", "name", "http://7:p@a//x/y", "kim"},
        {"Addr=http://a\n", "", "kim", "name", "7:p@http://a/servlet/DService", "kim"},
        {"Addr=HTTP://a\n", "", "kim", "name", "http://7:p@HTTP://a/servlet/DService", "kim"},
        {"Addr=a\n", "", "  ", "NAME", "http://7:p@a/servlet/DService", ""},
        {"Addr=a\n", "", " 김 &=?+/% ", "name", "http://7:p@a/servlet/DService", "%EA%B9%80%20%26%3D%3F%2B%2F%25"},
        {"Addr=a\n[Directory_svc_SS]\nAddr=b\n", "secondary", "k", "name", "http://7:p@a/servlet/DService", "k"},
        {"Addr=a\n[Directory_svc_SS]\nAddr=b\n", "SECONDARY", "k", "name", "http://7:p@b/servlet/DService", "k"},
        {"Addr=a\n", "SECONDARY", "kim", "name", nullptr, nullptr},
        {"", "PRIMARY", "kim", "name", nullptr, nullptr},
        {"Addr=a\n", "PRIMARY", "", "name", nullptr, nullptr},
        {"Addr=a\n", "PRIMARY", "kim", "", nullptr, nullptr},
    };
    for (const auto &row : rows) {
        provision(row.info, row.proxy);
        QByteArray url;
        if (row.start)
            url = row.start + QByteArray("?pid=7&mac=000000000000&cap=20&keytype=name&key=") + row.escaped
                + "&enc=UTF-8";
        QCOMPARE(makeDirectoryServiceSearchURL(row.key, row.keyType), url);
    }
}

void DirectoryRequestsTest::pageUrls()
{
    const auto url = makeDirectoryServicePageURL;
    provision("Addr=a\n");
    QCOMPARE(url(2, "/r/x/", "99"), QByteArray("http://7:p@a/r/x/000000000000_7_99_2.xml"));
    QCOMPARE(url(0, "r", ""), QByteArray("http://7:p@a/r/000000000000_7_0.xml"));
    QCOMPARE(url(1, "//r", "9"), QByteArray("http://7:p@a//r/000000000000_7_9_1.xml"));
    QCOMPARE(url(1, "", "9"), QByteArray("http://7:p@a//000000000000_7_9_1.xml"));
    QCOMPARE(url(-1, "r", "9"), QByteArray());
    provision("Addr=a\n", "SECONDARY");
    QCOMPARE(url(1, "r", "9"), QByteArray("http://7:p@/r/000000000000_7_9_1.xml"));
}

void DirectoryRequestsTest::ports()
{
    m_phone->writeFile("config/ipc.conf", "[XCID]\nPort=5\n[CM]\nPort=70000\nOther=x\n");
    QCOMPARE(getPortNumber("xcid", "Port"), 5);
    QCOMPARE(getPortNumber("XCID", "PORT"), 0);
    QCOMPARE(getPortNumber("CM", "Port"), 70000);
    QCOMPARE(getPortNumber("CM", "Other"), 0);
    sendUI2CMDirectoryServiceRequest(-1, "NEW_CALL", "1"); // to where nobody listens
    qunsetenv("CONFIG_LIST");
    QCOMPARE(getPortNumber("XCID", "Port"), 0);
    sendUI2HTTPDirectorySearchCancel(); // to nowhere
}

void DirectoryRequestsTest::datagrams()
{
    const QByteArray call = QByteArrayLiteral("CM/UI\0ui2cm_svc_directory(int,str,str)\0\xff\xff\xff\xff");
    const auto sent = [this](void (*send)()) {
        QUdpSocket listener;
        listener.bind(QHostAddress::LocalHost);
        // The sender keeps the low 16 bits.
        const QByteArray port = QByteArray::number(65536 + listener.localPort());
        m_phone->writeFile("config/ipc.conf", "[CM]\nPort=" + port + "\n[XCID]\nPort=" + port + "\n");
        send();
        QUdpSocket().writeDatagram("end", 3, QHostAddress::LocalHost, listener.localPort());
        return listener.waitForReadyRead() ? listener.receiveDatagram().data() : "none";
    };
    QCOMPARE(sent([] { sendUI2HTTPDirectorySearchRequest("http://ü"); }),
             QByteArrayLiteral("XCID/UI\0ui2http_directory_search_request(str)\0\0\x08http://\xfc"));
    QCOMPARE(sent([] { sendUI2HTTPDirectoryPageRequest(""); }),
             QByteArrayLiteral("XCID/UI\0ui2http_directory_page_request(str)\0\0\0"));
    QCOMPARE(sent(sendUI2HTTPDirectorySearchCancel),
             QByteArrayLiteral("XCID/UI\0ui2http_directory_cancel_request()\0"));
    QCOMPARE(sent([] { sendUI2HTTPDirectorySearchRequest(QString(4090, 'a')); }), QByteArray(""));
    QCOMPARE(sent([] { directoryServiceRequest(0, "12", "x"); }),
             call + QByteArrayLiteral("\0\x08NEW_CALL\0\x02") + "12");
    QCOMPARE(sent([] { directoryServiceRequest(2, "1", ""); }),
             call + QByteArrayLiteral("\0\x0fSEMI_BLIND_XFER\0\x01") + "1");
    QCOMPARE(sent([] { directoryServiceRequest(3, "1", ""); }),
             call + QByteArrayLiteral("\0\10COA_CONF\0\x01") + "1");
    QCOMPARE(sent([] { directoryServiceRequest(0, "", "x"); }), QByteArray("end")); // nothing before it
    QCOMPARE(sent([] { directoryServiceRequest(1, "1", "x"); }), QByteArray("end"));
    QCOMPARE(sent([] { directoryServiceRequest(7, "1", "x"); }), QByteArray("end"));
}

void DirectoryRequestsTest::answers_data()
{
    QTest::addColumn<QString>("path"); // under the home
    QTest::newRow("file") << "run/directory-aBcDeF.xml";
    for (const char *path :
         {"run/directory-secret.txt", "data/directory-aBcDeF.xml", "run/../data/directory-aBcDeF.xml"})
        QTest::newRow(path) << path;
    for (const char *kind : {"link", "second name", "folder", "pipe"})
        QTest::newRow(kind) << "run/directory-aBcDeF.xml";
}

void DirectoryRequestsTest::answers()
{
    QFETCH(QString, path);
    const QByteArray kind = QTest::currentDataTag();
    const bool taken = kind == "file";
    m_phone->writeFile("data/secret", "<a/>");
    const QString full = m_phone->home.path(path);
    const QByteArray name = full.toUtf8(), secret = m_phone->home.path("data/secret").toUtf8();
    if (taken || kind.contains('/'))
        m_phone->writeFile(path, "<a/>");
    else
        QCOMPARE(kind == "link"         ? ::symlink(secret, name)
                     : kind == "pipe"   ? ::mkfifo(name, 0600)
                     : kind == "folder" ? ::mkdir(name, 0700)
                                        : ::link(secret, name),
                 0);
    const AnswerFile answer(m_phone->home, full);
    QFile content(QString::fromLatin1(answer.path()));
    QCOMPARE(answer.isOpen() && content.open(QIODevice::ReadOnly) ? content.readAll() : "", taken ? "<a/>" : "");
    // What is not taken stays.
    QCOMPARE(::access(name, F_OK) == 0, !taken);
    QVERIFY(::access(secret, F_OK) == 0);
}

PHONE_TEST_MAIN(DirectoryRequestsTest)
#include "tst_directoryrequests.moc"
