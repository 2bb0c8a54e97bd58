#ifndef MOBILEDEVICE_H
#define MOBILEDEVICE_H

#include "contactmanager.h"
#include "phonehome.h"

/// The files of the paired device in a home's `mobile` folder.
///
/// The database comes first and `wpsm.ini`, which names its generation, after it, each by a rename: a phone that
/// looks in between sees that the two do not belong together and keeps what it has.
class MobileDevice
{
public:
    explicit MobileDevice(const PhoneHome &home);

    /// Takes the place of what was there. False, with everything as it was, when it cannot be written.
    bool connectDevice(const QString &name, const QList<ContactImport> &contacts) const;
    /// The number of contacts that went; -1 when no device was connected.
    int disconnectDevice() const;

private:
    bool writeDatabase(const QString &path, const QString &generation, const QList<ContactImport> &contacts) const;
    bool writeIni(const QString &name, const QString &generation, int count) const;
    /// Puts a finished file in its place, so that a power cut leaves the old one or the new one.
    bool putInPlace(const QString &from, const QString &to) const;

    const QString m_folder;
    const QString m_database;
    const QString m_ini;
};

#endif
