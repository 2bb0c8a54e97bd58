#ifndef CONFFILE_H
#define CONFFILE_H

#include <QString>

/// The path of a configuration file, by the list that the environment variable CONFIG_LIST names. A relative
/// entry lies under the phone's home. Empty when the list or the entry is missing.
QString getConfFilePath(const QString &group, const QString &name);

/// The UDP port, on the loopback, of a local process ("CM", "XCID") by `ipc.conf`; 0 when it has none.
quint16 getPeerPort(const QString &peer);

#endif
