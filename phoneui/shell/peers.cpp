#include "peers.h"

#include "conffile.h"
#include "peerprocess.h"
#include "settingsfile.h"

namespace {

struct Peer
{
    const char *program;
    const char *section; ///< of ipc.conf, where those who send to it find its port
};
constexpr Peer table[] = {
    {"cm", "CM"},
    {"xcid", "XCID"},
};

void writePort(const QString &section, quint16 port)
{
    SettingsFile ipc(getConfFilePath("COMMON", "IPC_CONF"));
    ipc.set(section + "/Port", QString::number(port));
    ipc.save();
}

}

Peers::Peers(const PhoneHome &home, const QString &folder, QObject *parent) : QObject(parent)
{
    for (const Peer &peer : table)
        addPeer(new PeerProcess(folder + '/' + peer.program, home, this), peer.section);
}

Peers::~Peers()
{
    qDeleteAll(m_processes);
    // Another process may get these ports next.
    for (const Peer &peer : table)
        writePort(peer.section, 0);
}

void Peers::addPeer(PeerProcess *process, const QString &section)
{
    m_processes.append(process);
    connect(process, &PeerProcess::portChanged, this, [this, section](quint16 port) {
        writePort(section, port);
        if (port == 0)
            emit gone(section);
    });
}

void Peers::start()
{
    for (PeerProcess *process : qAsConst(m_processes))
        process->begin();
    for (PeerProcess *process : qAsConst(m_processes))
        process->waitForPort();
}
