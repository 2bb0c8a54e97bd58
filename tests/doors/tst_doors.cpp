// What another user of the machine can put in the way of a phone: it is refused, harms nobody, and stands in the
// log.

#include "answerfile.h"
#include "control/controlserver.h"
#include "directorysettings.h"
#include "directorytransport.h"
#include "directoryurl.h"
#include "peerserver.h"
#include "testcase.h"
#include "testmain.h"
#include "testphone.h"
#include "thumbnail.h"

#include <QDir>
#include <QFile>

#include <atomic>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

static constexpr int Nobody = 65534;

class DoorsTest : public TestCase
{
    Q_OBJECT

    void setUp() override
    {
        m_phone.reset(new TestPhone);
        if (QByteArray(QTest::currentDataTag()).contains("somebody") && ::geteuid() != 0)
            QSKIP("only root can give something away");
    }

    void tearDown() override
    {
        for (const QString &path : qAsConst(m_planted)) {
            QFile::remove(path);
            QDir(path).removeRecursively();
        }
        m_planted.clear();
        QFile::remove("/dev/shm/DirectorySearch.ini");
        m_phone.reset();
    }

private slots:
    void runFolder_data() { kinds({"folder of somebody", "linked folder", "file"}); }

    void runFolder()
    {
        const PhoneHome home(m_phone->home.path("other"));
        QVERIFY(home.create());
        plant(home.runFolder());
        const int before = mode(m_phone->home.root());
        expectWarning("no folder of the user alone");
        QVERIFY(!home.create());
        QCOMPARE(mode(m_phone->home.root()), before);
    }

    void rightsAreTakenBack()
    {
        const QList<QPair<QString, int>> places
            = {{"config/secret.ini", 0600}, {"run", 0700}, {"data", 0700}, {"mobile", 0700}};
        for (const auto &place : places)
            QCOMPARE(::chmod(QFile::encodeName(m_phone->home.path(place.first)).constData(), 0777), 0);
        QVERIFY(m_phone->home.create());
        for (const auto &place : places)
            QCOMPARE(mode(m_phone->home.path(place.first)), place.second);
    }

    void sockets_data() { kinds({"link", "pipe"}); }

    void sockets()
    {
        const PhoneHome &home = m_phone->home;
        plant(home.controlSocket());
        plant(home.peerSocket());
        ControlServer control({});
        PeerServer peers;
        QVERIFY(control.listen(home.controlSocket()) && peers.listen(home.peerSocket()));
        QCOMPARE(mode(home.controlSocket()) & 0077, 0);
        QCOMPARE(mode(home.peerSocket()) & 0077, 0);
        QVERIFY(readFile(victim()).contains("PROXY"));
    }

    void filesAtFixedPlaces_data() { kinds({"link", "somebody else's", "pipe"}); }

    void filesAtFixedPlaces()
    {
        m_phone->writeFile("config/phone_info.conf",
                           "[Prov_Info]\nId=me\n[Directory_svc]\nAddr=first\n[Directory_svc_SS]\nAddr=second\n");
        m_phone->writeFile("config/secret.ini", "[Prov]\nPassword=p\n");
        plant("/tmp/cminfo");
        expectWarning("SettingsFile: not read: \"/tmp/cminfo\"");
        QVERIFY(makeDirectoryServiceSearchURL("kim", "name").startsWith("http://me:p@first/"));

        plant("/dev/shm/DirectorySearch.ini");
        for (int i = 0; i < 2; ++i)
            expectWarning("SettingsFile: not read: \"/dev/shm/DirectorySearch.ini\"");
        QCOMPARE(DirectorySettings::page(), 0);
        DirectorySettings::setPage(3);
        QCOMPARE(DirectorySettings::page(), 3);
        QVERIFY(readFile(victim()).contains("Page=7"));
    }

    void thumbnails_data() { kinds({"link", "somebody else's", "pipe", "linked folder", "folder of somebody"}); }

    void thumbnails()
    {
        QFETCH(QString, kind);
        const QString photo = m_phone->home.photoFolder() + '/' + kind + ".png";
        QImage image(64, 64, QImage::Format_RGB32);
        image.fill(Qt::red);
        QVERIFY(image.save(photo));
        // A thumbnail lies beside the folder of the cache, or in it when the photo's path has folders of its own.
        QString picture = "photo:" + kind + ".png", thumbnail = "/tmp/thumbnail_temp" + picture;
        if (kind.contains("folder")) {
            picture = photo;
            thumbnail = "/tmp/thumbnail_temp" + photo;
            plant("/tmp/thumbnail_temp");
            QVERIFY(QDir().mkpath(QFileInfo(thumbnail).path()));
        } else {
            plant(thumbnail);
        }
        const QByteArray before = readFile(victim()), photoBefore = readFile(photo);
        expectWarning("Thumbnail: left alone");
        Thumbnail::make(picture);
        QVERIFY(Thumbnail::load(picture).isNull());
        QCOMPARE(readFile(victim()), before);
        QCOMPARE(readFile(photo), photoBefore);
        QVERIFY(!kind.contains("folder") || !QFile::exists(thumbnail));
    }

    void answers_data() { kinds({"file", "link", "second name", "pipe", "folder"}); }

    void answers()
    {
        const QString path = m_phone->home.path("run/directory-aBcDeF.xml");
        plant(path);
        const bool isTaken = QTest::currentDataTag() == QByteArray("file");
        const AnswerFile answer(m_phone->home, path);
        QCOMPARE(answer.isOpen(), isTaken);
        QVERIFY(!isTaken || readFile(answer.path()).contains("PROXY"));
        QCOMPARE(QFile::exists(path), !isTaken);
        QVERIFY(readFile(victim()).contains("PROXY"));
    }

    void answerPaths()
    {
        const PhoneHome &home = m_phone->home;
        QVERIFY(QDir(home.root()).mkpath("runs") && QDir(home.runFolder()).mkpath("run"));
        for (const char *path :
             {"runs/directory-aBcDeF.xml", "run/run/directory-aBcDeF.xml", "run/./directory-aBcDeF.xml",
              "run//directory-aBcDeF.xml", "run/run/../directory-aBcDeF.xml", "../%1/run/directory-aBcDeF.xml",
              "data/directory-aBcDeF.xml", "run/directory-secret.txt"}) {
            m_phone->writeFile("run/directory-aBcDeF.xml", "<a/>");
            const QString full = home.path(QString(path).replace("%1", QDir(home.root()).dirName()));
            QFile::copy(home.path("run/directory-aBcDeF.xml"), full);
            QVERIFY2(AnswerFile(home, full).isForeign(), path);
            QVERIFY2(QFile::exists(full), path);
        }
        QVERIFY(QFile::rename(home.runFolder(), home.path("elsewhere")));
        QVERIFY(QFile::link(home.path("elsewhere"), home.runFolder()));
        QVERIFY(!AnswerFile(home, home.path("run/directory-aBcDeF.xml")).isOpen());
        QVERIFY(QFile::exists(home.path("elsewhere/directory-aBcDeF.xml")));
    }

    /// The name leads to another file at every moment, also between the look at it and its removal.
    void answersThatAreExchanged()
    {
        const QString answer = m_phone->home.path("run/directory-aBcDeF.xml");
        const QByteArray name = answer.toUtf8(), other = name + "~", secret = victim().toUtf8();
        m_phone->writeFile("data/victim", "secret");
        std::atomic<bool> isOver{false};
        std::thread rival([&] {
            for (int i = 0; !isOver; ++i) {
                if ((i % 2 ? ::link(secret, other) : ::symlink(secret, other)) == 0)
                    ::rename(other, name);
                ::unlink(other);
            }
        });
        QByteArrayList contents;
        for (int i = 0; i < 2000; ++i) {
            m_phone->writeFile("run/fresh", "<a/>");
            ::rename(m_phone->home.path("run/fresh").toUtf8(), name);
            const AnswerFile file(m_phone->home, answer);
            if (file.isOpen())
                contents.append(readFile(file.path()));
        }
        isOver = true;
        rival.join();
        QCOMPARE(contents.count("<a/>"), contents.size());
        QCOMPARE(readFile(victim()), QByteArray("secret"));
    }

    void answersToOlderRequests()
    {
        const QString path = m_phone->home.path("run/directory-aBcDeF.xml");
        m_phone->writeFile("run/directory-aBcDeF.xml", "<a/>");
        QTest::qSleep(20); // more than the clock of files needs for a step
        sendUI2HTTPDirectorySearchRequest("http://nowhere");
        {
            const AnswerFile older(m_phone->home, path);
            QVERIFY(older.isForeign() && !older.isOpen() && !QFile::exists(path));
        }
        m_phone->writeFile("run/directory-aBcDeF.xml", "<a/>");
        QVERIFY(AnswerFile(m_phone->home, path).isOpen());
    }

private:
    static void kinds(const QList<const char *> &names)
    {
        QTest::addColumn<QString>("kind");
        for (const char *name : names)
            QTest::newRow(name) << name;
    }
    /// Puts something of this row's kind there; links lead to the victim.
    void plant(const QString &path)
    {
        const QByteArray kind = QTest::currentDataTag(), name = QFile::encodeName(path);
        m_phone->writeFile("data/victim", "[LINE_0]\nPROXY=SECONDARY\n[DirectoryService]\nPage=7\n");
        QFile::remove(path);
        QDir(path).removeRecursively();
        m_planted.append(path);
        if (kind.contains("link"))
            QVERIFY(QFile::link(kind.contains("folder") ? m_phone->home.root() : victim(), path));
        else if (kind == "pipe")
            QCOMPARE(::mkfifo(name.constData(), 0666), 0);
        else if (kind == "second name")
            QCOMPARE(::link(QFile::encodeName(victim()).constData(), name.constData()), 0);
        else if (kind.contains("folder"))
            QCOMPARE(::mkdir(name.constData(), 0777), 0);
        else
            QVERIFY(QFile::copy(victim(), path));
        if (kind.contains("somebody"))
            QCOMPARE(::chown(name.constData(), Nobody, Nobody), 0);
    }

    static int mode(const QString &path)
    {
        struct stat info;
        return ::stat(QFile::encodeName(path).constData(), &info) == 0 ? int(info.st_mode & 0777) : -1;
    }
    QString victim() const { return m_phone->home.path("data/victim"); }

    std::unique_ptr<TestPhone> m_phone;
    QStringList m_planted;
};

PHONE_TEST_MAIN(DoorsTest)
#include "tst_doors.moc"
