#include "wpsmcontactmanager.h"

#include "mobiledatabase.h"

WpsmContactManager::WpsmContactManager(const QString &folder, QObject *parent)
    : QObject(parent), m_database(new MobileDatabase(folder))
{
}

WpsmContactManager::~WpsmContactManager() = default;

void WpsmContactManager::readWpsmConfigFile()
{
    m_database->reload();
}

QString WpsmContactManager::deviceName() const
{
    return m_database->deviceName();
}

QList<ContactData> WpsmContactManager::getAllContacts() const
{
    return m_database->contacts();
}

int WpsmContactManager::getCountOfContact() const
{
    return m_database->contacts().size();
}

ContactData WpsmContactManager::getSpecificContactDetail(int id) const
{
    return m_database->contact(id);
}

QList<ContactData> WpsmContactManager::getContactSearchResults(const QString &word) const
{
    return m_database->search(word);
}
