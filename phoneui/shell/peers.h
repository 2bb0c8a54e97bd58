#ifndef PEERS_H
#define PEERS_H

#include "phonehome.h"

#include <QList>
#include <QObject>

class PeerProcess;

/// The processes beside the shell that belong to it: started with the phone, each with its port in `ipc.conf`, and
/// ended with it.
class Peers : public QObject
{
    Q_OBJECT

public:
    /// `folder` holds the programs.
    Peers(const PhoneHome &home, const QString &folder, QObject *parent = nullptr);
    ~Peers() override;

    /// Starts all of them and waits until their ports are known, so that the first request finds them.
    void start();

signals:
    /// The process of this section of `ipc.conf` died, and what it was doing is lost.
    void gone(const QString &section);

private:
    void addPeer(PeerProcess *process, const QString &section);

    QList<PeerProcess *> m_processes;
};

#endif
