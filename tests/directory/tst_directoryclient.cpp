// What the directory asks for, byte by byte, and what it makes of the answers.

#include "directorydocument.h"
#include "directorysettings.h"
#include "directorytexts.h"
#include "directorytransport.h"
#include "directoryurl.h"
#include "testcase.h"
#include "testmain.h"
#include "testphone.h"

#include <QNetworkDatagram>
#include <QUdpSocket>

#include <memory>

static const char CallManagerState[] = "/tmp/cminfo";

static QByteArray data(const QByteArray &value)
{
    return "<data><type>name</type><value>" + value + "</value></data>";
}

class DirectoryClientTest : public TestCase
{
    Q_OBJECT

    void setUp() override { m_phone.reset(new TestPhone); }
    void tearDown() override
    {
        m_phone.reset();
        QFile::remove(CallManagerState);
    }

private slots:
    /// Whatever interfaces the machine has: the loopback is the first that succeeds.
    void initTestCase()
    {
        char none[] = "nonesuch0", loopback[] = "lo", usual[] = "eth0";
        QCOMPARE(get_mac_addr2(none), "");
        const char *first = get_mac_addr2(loopback);
        QCOMPARE(first, "000000000000");
        QVERIFY(get_mac_addr2(usual) == first);
    }

    void searchUrls()
    {
        const QByteArray plain = "http://7:p@a/servlet/DService";
        // Settings, the proxy, key and kind; the beginning of the address and the key in it, nothing without one.
        const QList<QByteArrayList> rows = {
            {"Addr=a\nPort=81\n", "", "kim", "name", plain, "kim"},
            {"Addr=a\nType=HttpS\nPort=81\n", "", "kim", "name", "https://7:p@a:81/servlet/DService", "kim"},
            {"Addr=a\nType=https\n", "", "kim", "name", "https://7:p@a:/servlet/DService", "kim"},
            {"Addr=a\nPath=/x/y\n", "", "kim", "name", "http://7:p@a//x/y", "kim"},
            {"Addr=http://a\n", "", "kim", "name", "7:p@http://a/servlet/DService", "kim"},
            {"Addr=HTTP://a\n", "", "kim", "name", "http://7:p@HTTP://a/servlet/DService", "kim"},
            {"Addr=a\n", "", "  ", "NAME", plain, ""},
            {"Addr=a\n", "", " 김 &=?+/% ", "name", plain, "%EA%B9%80%20%26%3D%3F%2B%2F%25"},
            {"Addr=a\n[Directory_svc_SS]\nAddr=b\n", "secondary", "k", "name", plain, "k"},
            {"Addr=a\n[Directory_svc_SS]\nAddr=b\n", "SECONDARY", "k", "name", "http://7:p@b/servlet/DService",
             "k"},
            {"Addr=a\n", "SECONDARY", "kim", "name", "", ""},
            {"", "PRIMARY", "kim", "name", "", ""},
            {"Addr=a\n", "PRIMARY", "", "name", "", ""},
            {"Addr=a\n", "PRIMARY", "kim", "", "", ""},
        };
        for (const QByteArrayList &row : rows) {
            provision(row.at(0), row.at(1));
            QByteArray url = row.at(4);
            if (!url.isEmpty())
                url += "?pid=7&mac=000000000000&cap=20&keytype=name&key=" + row.at(5) + "&enc=UTF-8";
            QCOMPARE(makeDirectoryServiceSearchURL(row.at(2), row.at(3)), url);
        }
    }

    void pageUrls()
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

    void ports()
    {
        m_phone->writeFile("config/ipc.conf", "[XCID]\nPort=5\n[CM]\nPort=70000\nOther=x\n");
        QCOMPARE(getPortNumber("xcid", "Port"), 5);
        QCOMPARE(getPortNumber("XCID", "PORT"), 0);
        QCOMPARE(getPortNumber("CM", "Port"), 70000);
        QCOMPARE(getPortNumber("CM", "Other"), 0);
        qunsetenv("CONFIG_LIST");
        QCOMPARE(getPortNumber("XCID", "Port"), 0);
        sendUI2HTTPDirectorySearchCancel(); // to nowhere
    }

    void datagrams()
    {
        const QByteArray call = QByteArrayLiteral("CM/UI\0ui2cm_svc_directory(int,str,str)\0\xff\xff\xff\xff");
        const auto sent = [this](const std::function<void()> &send) {
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
        for (const auto &[mode, name] : {std::pair(0, QByteArrayLiteral("\0\x08NEW_CALL")),
                                         {2, QByteArrayLiteral("\0\x0fSEMI_BLIND_XFER")},
                                         {3, QByteArrayLiteral("\0\10COA_CONF")},
                                         {1, "end"},
                                         {7, "end"}}) // nothing comes before the end
            QCOMPARE(sent([=] { directoryServiceRequest(mode, "12", "x"); }),
                     name == "end" ? name : call + name + QByteArrayLiteral("\0\x02") + "12");
        QCOMPARE(sent([] { directoryServiceRequest(0, "", "x"); }), QByteArray("end"));
    }

    void aPage()
    {
        QByteArray items;
        for (int i = 0; i < 20; ++i)
            items += "<item>" + data(QByteArray::number(i)) + data("x") + "</item>\n<other/>";
        const auto results
            = load("<any>" + items + "<display count='57' path=' /p ' timestamp='42'/><item/></any>");
        QCOMPARE(results.size(), 21);
        QCOMPARE(m_total, 57);
        QCOMPARE(results.at(19).at(0).getValue(), QString("19"));
        QCOMPARE(results.at(19).at(1).getIndex(), 1);
        QVERIFY(results.at(20).isEmpty());
        QCOMPARE(DirectorySettings::path(), QString("/p"));
        QCOMPARE(DirectorySettings::timeStamp(), QString("42"));
        // An answer that does not carry the handles of the prepared pages leaves those of the answer before.
        QCOMPARE(load("<r><display path=''/><item>" + data("x") + "</item></r>").size(), 1);
        QCOMPARE(m_total, 0);
        QCOMPARE(DirectorySettings::path(), QString(""));
        QCOMPARE(DirectorySettings::timeStamp(), QString("42"));
    }

    void fields()
    {
        // An element, its type and value, a number to call.
        const QList<std::tuple<QByteArray, QString, QString, bool>> elements
            = {{"<data/>", "", "", false},
               {"<data isphone='TRUE'/>", "", "", true},
               {"<data isphone='1' fontsize='big'/>", "", "", true},
               {"<data isphone='01'/>", "", "", false},
               {"<data><type>\tnumber </type><value> \n1 2\n </value></data>", "number", "\n1 2\n", false}};
        for (const auto &[element, type, value, isPhone] : elements) {
            const DirectoryData field = load("<r><item>" + element + "</item></r>").value(0).value(0);
            QCOMPARE(field.getType(), type);
            QCOMPARE(field.getValue(), value);
            QCOMPARE(field.getIsPhone(), isPhone);
            QCOMPARE(field.getLabel(), QString());
        }
    }

    /// The phone's charset decides, whatever the document says of itself.
    void charset()
    {
        const QByteArray document = "<r><display charset='utf-8'/><item>" + data("\xb1\xe8") + "</item></r>";
        m_phone->writeFile("config/system.conf", "[System]\nCharset=EUC-KR\n");
        QCOMPARE(load(document).at(0).at(0).getValue(), QString::fromUtf8("\xea\xb9\x80"));
    }

    void damagedAnswers()
    {
        for (const auto &[document, results] :
             {std::pair(QByteArray(), 0),
              {"404 not found", 0},
              {"<r><item>" + data("1") + "</item><item>" + data("2") + "</item><item><da", 3},
              {"<r><item>" + data("1") + "</item></s><item/>", 1}}) {
            QCOMPARE(load(document).size(), results);
            QCOMPARE(m_total, 0);
        }
        QVERIFY(loadData("/nowhere/answer.xml", &m_total).isEmpty());
    }

private:
    void provision(const QByteArray &info, const QByteArray &proxy = "")
    {
        m_phone->writeFile("config/phone_info.conf", "[Prov_Info]\nId=7\n[Directory_svc]\n" + info);
        m_phone->writeFile("config/secret.ini", "[Prov]\nPassword=p\n");
        if (!proxy.isEmpty())
            writeFile(CallManagerState, "[LINE_0]\nPROXY=" + proxy);
    }

    QList<QList<DirectoryData>> load(const QByteArray &document)
    {
        m_phone->writeFile("answer.xml", document);
        QFile file(m_phone->home.path("answer.xml"));
        const QList<QList<DirectoryData>> results = loadData(file.fileName().toLatin1(), &m_total);
        [&] { QVERIFY(!file.exists()); }();
        return results;
    }

    std::unique_ptr<TestPhone> m_phone;
    int m_total = -1;
};

PHONE_TEST_MAIN(DirectoryClientTest)
#include "tst_directoryclient.moc"
