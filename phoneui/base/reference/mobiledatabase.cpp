#include "mobiledatabase.h"

#include "contactdatabase.h"
#include "settingsfile.h"

#include <QDebug>
#include <QFile>

MobileDatabase::MobileDatabase(const QString &folder) : m_folder(folder)
{
    reload();
}

void MobileDatabase::reload()
{
    const QString iniPath = m_folder + QStringLiteral("/wpsm.ini");
    if (!QFile::exists(iniPath)) {
        take(QString(), QString(), {});
        return;
    }
    const SettingsFile ini(iniPath);
    const QString generation = ini.value(QStringLiteral("Device/Generation"));
    const int count = ini.number(QStringLiteral("Device/Count"), -1);
    if (!generation.isEmpty() && generation == m_generation)
        return;

    // The two files are replaced one after the other; a pair that does not agree is a change under way or broken.
    ContactDatabase database(m_folder + QStringLiteral("/contacts.db"), SqliteFile::ReadOnly);
    if (!database.file().isOpen())
        return;
    ContactRecords records;
    database.readContacts(&records);
    if (generation.isEmpty() || records.size() != count
        || database.value("SELECT generation FROM device").toString() != generation) {
        qWarning() << "MobileDatabase: the files do not belong together in" << m_folder;
        return;
    }
    take(ini.value(QStringLiteral("Device/Name")), generation, std::move(records));
}

void MobileDatabase::take(const QString &deviceName, const QString &generation, ContactRecords records)
{
    m_deviceName = deviceName;
    m_generation = generation;
    m_search.load(std::move(records), ContactData::MobileContact, 0);
    m_positions.clear();
    for (int i = 0; i < m_search.contacts().size(); ++i)
        m_positions.insert(m_search.contacts().at(i).id, i);
}

ContactData MobileDatabase::contact(int id) const
{
    return m_search.contacts().value(m_positions.value(id, -1));
}
