#include "mobiledevice.h"
#include "settingsfile.h"

#include <QDebug>
#include <QFile>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QUuid>

#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

static bool syncToDisk(const QString &path)
{
    const int handle = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    if (handle < 0)
        return false;
    const bool synced = ::fsync(handle) == 0;
    ::close(handle);
    return synced;
}

static void removeDatabase(const QString &path)
{
    for (const char *suffix : {"-wal", "-shm", "-journal", ""})
        QFile::remove(path + QLatin1String(suffix));
}

MobileDevice::MobileDevice(const PhoneHome &home)
    : m_folder(home.mobileFolder()), m_database(m_folder + QStringLiteral("/contacts.db")),
      m_ini(m_folder + QStringLiteral("/wpsm.ini"))
{
}

bool MobileDevice::connectDevice(const QString &name, const QList<ContactImport> &contacts) const
{
    const QString generation = QUuid::createUuid().toString(QUuid::WithoutBraces);
    const QString newDatabase = m_database + QStringLiteral(".new");
    const bool connected = writeDatabase(newDatabase, generation, contacts) && putInPlace(newDatabase, m_database)
        && writeIni(name, generation, contacts.size());
    removeDatabase(newDatabase);
    return connected;
}

int MobileDevice::disconnectDevice() const
{
    if (!QFile::exists(m_ini))
        return -1;
    const int count = SettingsFile(m_ini).number(QStringLiteral("Device/Count"));
    QFile::remove(m_ini);
    removeDatabase(m_database);
    return count;
}

bool MobileDevice::writeDatabase(const QString &path, const QString &generation,
                                 const QList<ContactImport> &contacts) const
{
    removeDatabase(path);
    {
        ContactManager store(path);
        if (store.importContacts(contacts) != contacts.size())
            return false;
    }
    const QString connection = QStringLiteral("wpsm");
    bool finished = false;
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connection);
        database.setDatabaseName(path);
        database.open();
        QSqlQuery query(database);
        // Without a log beside it the file is whole in itself, and a reader needs no right to write.
        finished = query.exec(QStringLiteral("PRAGMA journal_mode = DELETE"))
            && query.exec(QStringLiteral("CREATE TABLE device (generation TEXT NOT NULL)"))
            && query.prepare(QStringLiteral("INSERT INTO device VALUES (?)"));
        query.bindValue(0, generation);
        finished = finished && query.exec();
        if (!finished)
            qWarning() << "MobileDevice:" << query.lastError().databaseText();
    }
    QSqlDatabase::removeDatabase(connection);
    return finished;
}

bool MobileDevice::writeIni(const QString &name, const QString &generation, int count) const
{
    SettingsFile ini(m_ini);
    ini.set(QStringLiteral("Device/Name"), name);
    ini.set(QStringLiteral("Device/Count"), QString::number(count));
    ini.set(QStringLiteral("Device/Generation"), generation);
    return ini.save();
}

bool MobileDevice::putInPlace(const QString &from, const QString &to) const
{
    const bool placed = syncToDisk(from)
        && std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0
        && syncToDisk(m_folder);
    if (!placed)
        qWarning() << "MobileDevice: cannot put in place" << to;
    return placed;
}
