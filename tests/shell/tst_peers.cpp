// The processes that the phone starts beside it.

#include "conffile.h"
#include "peerprocess.h"
#include "peers.h"
#include "testcase.h"
#include "testmain.h"
#include "testphone.h"

#include <QFile>
#include <QSignalSpy>

#include <csignal>

class PeersTest : public TestCase
{
    Q_OBJECT

private slots:
    void startsThemAndEndsThem();
    void oneThatDiesIsStartedAgain();
    void oneThatKeepsDyingIsGivenUp();
    void aMissingProgram();
};

/// The call manager is the first of them.
static pid_t managerOf(const Peers &peers)
{
    return static_cast<pid_t>(peers.findChild<PeerProcess *>()->processId());
}

void PeersTest::startsThemAndEndsThem()
{
    const TestPhone phone;
    pid_t manager = 0;
    {
        Peers peers(phone.home, PHONE_PROGRAMS);
        QCOMPARE(getPeerPort("CM"), quint16(0));
        peers.start();
        // Nobody has to wait for it any more.
        QVERIFY(getPeerPort("CM") != 0 && getPeerPort("XCID") != 0);
        manager = managerOf(peers);
        QVERIFY(manager > 0 && ::kill(manager, 0) == 0);
    }
    QVERIFY(::kill(manager, 0) != 0);
    QCOMPARE(getPeerPort("CM") + getPeerPort("XCID"), 0);
}

void PeersTest::oneThatDiesIsStartedAgain()
{
    const TestPhone phone;
    Peers peers(phone.home, PHONE_PROGRAMS);
    QSignalSpy gone(&peers, &Peers::gone);
    peers.start();
    const pid_t first = managerOf(peers);
    expectWarning("cm ended .* and is started again");
    ::kill(first, SIGKILL);
    QVERIFY(gone.wait());
    QCOMPARE(gone.first().first().toString(), QString("CM"));
    QCOMPARE(getPeerPort("CM"), quint16(0));
    QTRY_VERIFY(getPeerPort("CM") != 0);
    QVERIFY(managerOf(peers) != first);
}

void PeersTest::oneThatKeepsDyingIsGivenUp()
{
    TestPhone phone;
    phone.writeFile("cm", "#!/bin/sh\necho 4242\necho 'warning: no line' >&2\nexit 3\n");
    QFile::setPermissions(phone.home.path("cm"), QFile::ReadOwner | QFile::ExeOwner);
    QFile::link(PHONE_PROGRAMS "/xcid", phone.home.path("xcid"));
    Peers peers(phone.home, phone.home.root());
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
    const TestPhone phone;
    Peers peers(phone.home, phone.home.root());
    expectWarning("cm cannot be started");
    expectWarning("cm gives no port");
    expectWarning("xcid cannot be started");
    expectWarning("xcid gives no port");
    peers.start();
    QCOMPARE(getPeerPort("CM") + getPeerPort("XCID"), 0);
}

PHONE_TEST_MAIN(PeersTest)
#include "tst_peers.moc"
