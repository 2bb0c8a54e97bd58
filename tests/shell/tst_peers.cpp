#include "conffile.h"
#include "peerprocess.h"
#include "peers.h"
#include "phonetest.h"
#include "testmain.h"

#include <QFile>
#include <QSignalSpy>

#include <csignal>

/// The processes that the phone starts beside it.
class PeersTest : public PhoneTest
{
    Q_OBJECT

private slots:
    void oneThatDiesIsStartedAgain();
    void oneThatKeepsDyingIsGivenUp();
    void aMissingProgram();

private:
    static pid_t managerOf(const Peers &peers)
    {
        return static_cast<pid_t>(peers.findChild<PeerProcess *>()->processId());
    }
};

<<<<<<< HEAD
/// The call manager is the first of them.
static pid_t managerOf(const Peers &peers)
=======
void PeersTest::oneThatDiesIsStartedAgain()
>>>>>>> trimrest
{
    pid_t manager = 0;
    {
        Peers peers(m_phone->home, PHONE_PROGRAMS);
        QSignalSpy gone(&peers, &Peers::gone);
        QCOMPARE(getPeerPort("CM"), quint16(0));
        peers.start();
        // Nobody has to wait for it any more.
<<<<<<< HEAD
        QVERIFY(getPeerPort("CM") != 0 && getPeerPort("XCID") != 0);
=======
        QVERIFY(getPeerPort("CM") != 0);
        const pid_t first = managerOf(peers);
        expectWarning("cm ended .* and is started again");
        ::kill(first, SIGKILL);
        QVERIFY(gone.wait());
        QCOMPARE(gone.first().first().toString(), QString("CM"));
        QCOMPARE(getPeerPort("CM"), quint16(0));
        QTRY_VERIFY(getPeerPort("CM") != 0);
>>>>>>> trimrest
        manager = managerOf(peers);
        QVERIFY(manager > 0 && manager != first && ::kill(manager, 0) == 0);
    }
    QVERIFY(::kill(manager, 0) != 0);
    QCOMPARE(getPeerPort("CM") + getPeerPort("XCID"), 0);
}

void PeersTest::oneThatKeepsDyingIsGivenUp()
{
<<<<<<< HEAD
    TestPhone phone;
    phone.writeFile("cm", "#!/bin/sh\necho 4242\necho 'warning: no line' >&2\nexit 3\n");
    QFile::setPermissions(phone.home.path("cm"), QFile::ReadOwner | QFile::ExeOwner);
    QFile::link(PHONE_PROGRAMS "/xcid", phone.home.path("xcid"));
    Peers peers(phone.home, phone.home.root());
=======
    m_phone->writeFile("cm", "#!/bin/sh\necho 4242\necho 'warning: no line' >&2\nexit 3\n");
    QFile::setPermissions(m_phone->home.path("cm"), QFile::ReadOwner | QFile::ExeOwner);
    Peers peers(m_phone->home, m_phone->home.root());
>>>>>>> trimrest
    QSignalSpy gone(&peers, &Peers::gone);
    for (int life = 0; life < 6; ++life) {
        expectWarning("cm: warning: no line");
        expectWarning(life < 5 ? "cm ended \\(code 3\\) and is started again" : "cm ended .* stays off");
    }
    peers.start();
    QTRY_COMPARE(gone.size(), 6);
}

void PeersTest::aMissingProgram()
{
    Peers peers(m_phone->home, m_phone->home.root());
    expectWarning("cm cannot be started");
    expectWarning("cm gives no port");
    expectWarning("xcid cannot be started");
    expectWarning("xcid gives no port");
    peers.start();
    QCOMPARE(getPeerPort("CM") + getPeerPort("XCID"), 0);
}

PHONE_TEST_MAIN(PeersTest)
#include "tst_peers.moc"
