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
    QList<ContactData> contacts;
    database.readContacts(&contacts);
    if (generation.isEmpty() || contacts.size() != count
        || database.value("SELECT generation FROM device").toString() != generation) {
        qWarning() << "MobileDatabase: the files do not belong together in" << m_folder;
        return;
    }
    for (ContactData &contact : contacts)
        contact.type = ContactData::MobileContact;
    take(ini.value(QStringLiteral("Device/Name")), generation, std::move(contacts));
}

void MobileDatabase::take(const QString &deviceName, const QString &generation, QList<ContactData> contacts)
{
    m_deviceName = deviceName;
    m_generation = generation;
    m_search.load(std::move(contacts), 0);
    m_positions.clear();
    for (int i = 0; i < m_search.contacts().size(); ++i)
        m_positions.insert(m_search.contacts().at(i).id, i);
}

ContactData MobileDatabase::contact(int id) const
{
    return m_search.contacts().value(m_positions.value(id, -1));
}
