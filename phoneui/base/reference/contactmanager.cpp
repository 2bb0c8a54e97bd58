#include "contactmanager.h"

#include "contactdatabase.h"
#include "presencefile.h"

#include <QDebug>
#include <QFileInfo>

ContactManager::ContactManager(const QString &databasePath, QObject *parent)
    : QObject(parent), m_database(new ContactDatabase(databasePath)),
      m_presencePath(QFileInfo(databasePath).absolutePath() + QStringLiteral("/presence.ini"))
{
}

ContactManager::~ContactManager() = default;

bool ContactManager::isOpen() const
{
    return m_database->file().isOpen();
}

bool ContactManager::write(const std::function<bool()> &work)
{
    const bool written = m_database->file().write(work);
    if (written)
        m_database->forgetContacts();
    return written;
}

QList<ContactData> ContactManager::getAllContacts() const
{
    return m_database->allContacts();
}

ContactData ContactManager::getSpecificContactDetail(int id) const
{
    return m_database->contact(id);
}

int ContactManager::getCountOfContact() const
{
    return m_database->value("SELECT count(*) FROM contacts").toInt();
}

QString ContactManager::getContactName(int id) const
{
    return m_database->value("SELECT name FROM contacts WHERE id = ?", {id}).toString();
}

QString ContactManager::getTelnum1_valByUsingId(int id) const
{
    return m_database->value("SELECT number FROM numbers WHERE contact_id = ? AND slot = 1", {id}).toString();
}

ContactData ContactManager::getContactByUsingNumber(const QString &number) const
{
    const QVariant id = m_database->value("SELECT min(contact_id) FROM numbers WHERE number = ?",
                                          {ContactData::bareNumber(number)});
    return id.isNull() ? ContactData() : m_database->contact(id.toInt());
}

int ContactManager::getIdByUsingNameAndNumber(const QString &name, const QString &number) const
{
    const QVariant id
        = m_database->value("SELECT max(id) FROM contacts LEFT JOIN numbers ON contact_id = id AND slot = 1"
                            " WHERE name IS ? AND ifnull(number, '') = ?",
                            {name, QLatin1String("") + ContactData::bareNumber(number)});
    return id.isNull() ? -1 : id.toInt();
}

QList<ContactData> ContactManager::getContactSearchResults(const QString &word) const
{
    return m_database->search(word);
}

QHash<QString, buddyIdStatusType> ContactManager::getPresenceStatus() const
{
    return PresenceFile::read(m_presencePath);
}

int ContactManager::saveContact(const ContactData &contact, bool modify)
{
    if (contact.type != ContactData::LocalContact) {
        qDebug() << "ContactManager::saveContact: not a local contact:" << contact.id << contact.type;
        return 0;
    }
    int id = contact.id;
    const bool written = write([&] {
        if (modify)
            return m_database->update(contact);
        ContactRows rows(m_database->file());
        const bool inserted = m_database->insert(contact, {}, &rows) && rows.flush();
        id = rows.lastId;
        return inserted;
    });
    return written ? id : 0;
}

int ContactManager::importContacts(const QList<ContactImport> &contacts, const std::function<void(int)> &progress)
{
    const bool written = write([&] {
        ContactRows rows(m_database->file());
        for (int i = 0; i < contacts.size(); ++i) {
            QList<int> groupIds;
            for (const QString &group : contacts.at(i).groups)
                groupIds.append(m_database->groupIdByName(group));
            if (groupIds.contains(0) || !m_database->insert(contacts.at(i).contact, groupIds, &rows))
                return false;
            if (progress)
                progress(i + 1);
        }
        return rows.flush();
    });
    return written ? contacts.size() : 0;
}

int ContactManager::deleteContact(int id, ContactData::Contact_Type type)
{
    if (type != ContactData::LocalContact) {
        qDebug() << "ContactManager::deleteContact: not a local contact:" << id << type;
        return 0;
    }
    return write([&] {
        SqliteStatement statement = m_database->file().statement("DELETE FROM contacts WHERE id = ?");
        return statement.run({id}) && statement.rowsAffected() == 1;
    });
}

int ContactManager::deleteAllContacts()
{
    return write([&] { return m_database->file().statement("DELETE FROM contacts").run(); });
}
