#include "conffile.h"
#include "peerprocess.h"
#include "peers.h"
#include "phonetest.h"

#include <QFile>
#include <QSignalSpy>

#include <csignal>

/// The processes that the phone starts beside it.
class PeersTest : public PhoneTest
{
    Q_OBJECT

private slots:
    void startsThemAgainAndEndsThem()
    {
        pid_t second = 0;
        {
            Peers peers(m_phone->home, PHONE_PROGRAMS);
            QSignalSpy gone(&peers, &Peers::gone);
            QCOMPARE(getPeerPort("CM"), quint16(0));
            peers.start();
            // Nobody has to wait for it any more.
            QVERIFY(getPeerPort("CM") != 0 && getPeerPort("XCID") != 0);
            const auto *manager = peers.findChild<PeerProcess *>(); // the first of them
            const auto first = pid_t(manager->processId());
            expectWarning("cm ended .* and is started again");
            ::kill(first, SIGKILL);
            QVERIFY(gone.wait());
            QCOMPARE(gone.first().first().toString(), QString("CM"));
            QCOMPARE(getPeerPort("CM"), quint16(0));
            QTRY_VERIFY(getPeerPort("CM") != 0);
            second = pid_t(manager->processId());
            QVERIFY(second != first && ::kill(second, 0) == 0);
        }
        QVERIFY(::kill(second, 0) != 0);
        QCOMPARE(getPeerPort("CM") + getPeerPort("XCID"), 0);
    }

    void oneThatKeepsDyingIsGivenUp()
    {
        m_phone->writeFile("cm", "#!/bin/sh\necho 4242\necho 'warning: no line' >&2\nexit 3\n");
        QFile::setPermissions(m_phone->home.path("cm"), QFile::ReadOwner | QFile::ExeOwner);
        QFile::link(PHONE_PROGRAMS "/xcid", m_phone->home.path("xcid"));
        Peers peers(m_phone->home, m_phone->home.root());
        QSignalSpy gone(&peers, &Peers::gone);
        for (int life = 0; life < 6; ++life) {
            expectWarning("cm: warning: no line");
            expectWarning(life < 5 ? "cm ended \\(code 3\\) and is started again" : "cm ended .* stays off");
        }
        peers.start();
        QTRY_COMPARE(gone.size(), 6);
    }
};

PHONE_TEST_MAIN(PeersTest)
#include "tst_peers.moc"
