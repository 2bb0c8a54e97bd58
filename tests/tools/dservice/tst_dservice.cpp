// The directory server as phones see it.

#include "testcase.h"

#include <QProcess>
#include <QRegularExpression>

#include <httplib.h>

class DserviceTest : public TestCase
{
    Q_OBJECT

private slots:
    void searches()
    {
        serve("people.csv",
              "\xef\xbb\xbfNumber;name;Floor;department;mobile\r\n6;\"Zoë\nSørensen\";1\r\n\r\n"
              "1 2;김철수;2;영업;\r\n345;\"Işık <&> \"\"Co\"\", \1x\";;;+49-171\r\n");
        const QString kim = "김철수12영업", isik = "Işık &lt;&amp;&gt; &quot;Co&quot;, x345+49171",
                      zoe = "Zoë Sørensen6";
        QCOMPARE(names("keytype=name&key=zoe%20SOR"), QStringList{zoe});
        QCOMPARE(names("keytype=NAME&key=isik"), QStringList{isik});
        QCOMPARE(names("keytype=name&key=zs"), QStringList{zoe});
        QCOMPARE(names("keytype=name&key=%E3%84%B1%E3%85%8A%E3%85%85"), QStringList{kim}); // consonants
        QCOMPARE(names("keytype=name&key="), (QStringList{isik, zoe, kim}));
        QCOMPARE(names("keytype=name&key=%26"), QStringList{isik});
        QCOMPARE(names("keytype=number&key=%2B49%20(171)"), QStringList{isik});
        QCOMPARE(names("keytype=number&key=zoe"), QStringList());
    }

    void pages()
    {
        QByteArray table = "name,number\n";
        for (int i = 100; i < 145; ++i)
            table += "P" + QByteArray::number(i) + ",1\n";
        serve("people.csv", table);
        const QByteArray query = "/servlet/DService?pid=a&mac=0123456789AB&cap=20&keytype=name&key=p&enc=UTF-8";
        const QByteArray first = get(query);
        QVERIFY(first.contains("P119") && !first.contains("P120") && first.contains("count=\"45\""));
        const QByteArray folder = attribute(first, "path");
        const QByteArray start = folder + "0123456789AB_a_" + attribute(first, "timestamp") + '_';
        QVERIFY(get(start + "1.xml") == first);
        QVERIFY(get(start + "3.xml").count("<item>") == 5);
        for (const char *page : {"0.xml", "4.xml", "01.xml", "1.txt", "../1.xml"})
            get(start + page, 404);
        get(folder + "_a_1_1.xml", 404);
        get(start + "1.xml", 401, "wrong");
        get(QByteArray(query).replace("pid=a", "pid=b"), 403);
        for (const char *wrong : {"mac=0123&cap=20", "mac=&cap=0", "mac=&enc=x", "mac=&keytype=mail"})
            get("/servlet/DService?pid=a&key=p&" + QByteArray(wrong), 400);
    }

    void cards()
    {
        serve("people.vcf",
              "BEGIN:VCARD\nVERSION:3.0\nFN:Ann\nTEL;TYPE=CELL:+49 171\nTEL;TYPE=WORK:12\nTITLE:Cook\n"
              "END:VCARD\nBEGIN:VCARD\nVERSION:3.0\nEND:VCARD\n",
              {"--keep", "0"});
        QCOMPARE(names("keytype=name&key=a"), QStringList{"Ann12CompanyCook+49171"});
        // Its pages have vanished already.
        const QByteArray answer = get("/servlet/DService?pid=a&mac=&keytype=name&key=a");
        get(attribute(answer, "path") + "_a_" + attribute(answer, "timestamp") + "_1.xml", 404);
    }

private:
    /// Serves a file of this name and content, and gets from it.
    void serve(const QString &name, const QByteArray &content, const QStringList &options = {})
    {
        const QString file = writeFile(m_dir->filePath(name), content);
        m_server.start(PHONE_PROGRAMS "/dservice",
                       QStringList{"--data", file, "--port", "0", "--user", "-"} + options);
        m_server.write("a:b:c\n");
        QVERIFY(m_server.waitForReadyRead());
        m_port = m_server.readLine().trimmed().toInt();
    }

    QByteArray get(const QByteArray &path, int status = 200, const char *password = "b:c")
    {
        httplib::Client client("127.0.0.1", m_port);
        client.set_basic_auth("a", password);
        client.set_url_encode(false);
        const httplib::Result result = client.Get(path.constData());
        if (!result || result->status != status)
            qWarning("%s gives not %d", path.constData(), status);
        return result ? QByteArray::fromStdString(result->body) : QByteArray();
    }

    /// The values of each item of the first page, as they stand there.
    QStringList names(const QByteArray &query)
    {
        const QString page = QString::fromUtf8(get("/servlet/DService?pid=a&mac=&cap=20&enc=UTF-8&" + query));
        QStringList items = page.split("<item>").mid(1);
        for (QString &item : items)
            item.remove(QRegularExpression("<(type|label)>.*</\\1>|<[^>]*>|\n *"));
        return items;
    }

    static QByteArray attribute(const QByteArray &page, const QByteArray &name)
    {
        return page.mid(page.indexOf(' ' + name + "=\"") + name.size() + 3).split('"').first();
    }
    void tearDown() override { m_server.terminate(), m_server.waitForFinished(); }

    QProcess m_server;
    int m_port = 0;
};

QTEST_GUILESS_MAIN(DserviceTest)
#include "tst_dservice.moc"
