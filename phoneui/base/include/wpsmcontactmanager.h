#ifndef WPSMCONTACTMANAGER_H
#define WPSMCONTACTMANAGER_H

#include "contactdata.h"

#include <QObject>
#include <QScopedPointer>

class MobileDatabase;

/// The contacts of the paired mobile device, read-only.
///
/// The device process writes them as a whole: `mobile/contacts.db` with the contacts and `mobile/wpsm.ini`,
/// which names the device and counts them. Without a connected device there are none. GUI thread only.
class WpsmContactManager : public QObject
{
    Q_OBJECT

public:
    /// `folder` is the home's `mobile` folder.
    explicit WpsmContactManager(const QString &folder, QObject *parent = nullptr);
    ~WpsmContactManager() override;

    /// Looks at both files again if they have changed; a half or broken pair leaves what was there.
    void readWpsmConfigFile();
    /// The name of the connected device, empty without one.
    QString deviceName() const;

    /// All contacts of the device in the order of their names, of one name in its own; none is of the local type.
    QList<ContactData> getAllContacts() const;
    int getCountOfContact() const;
    /// The contact, or an empty one with id 0.
    ContactData getSpecificContactDetail(int id) const;
    /// As ContactManager::getContactSearchResults, among the device's contacts.
    QList<ContactData> getContactSearchResults(const QString &word) const;

private:
    QScopedPointer<MobileDatabase> m_database;
};

#endif
