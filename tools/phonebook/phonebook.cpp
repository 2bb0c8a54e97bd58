#include "phonebook.h"

#include "contactmanager.h"
#include "peerlink.h"
#include "vcardreport.h"

#include <QFile>
#include <QSaveFile>
#include <QTextStream>

#include <algorithm>
#include <array>
#include <cstdio>

using VCardReport::complain;

namespace {

constexpr std::array<const char *, 5> KindNames = {"company", "mobile", "home", "fax", "etc"};

bool openInput(QFile *file, const QString &fileName)
{
    if (fileName == QLatin1String("-"))
        return file->open(stdin, QIODevice::ReadOnly);
    file->setFileName(fileName);
    return file->open(QIODevice::ReadOnly);
}

/// In the order in which the contacts were added, which an import of them repeats.
QList<ContactData> contactsById(const ContactManager &store)
{
    QList<ContactData> contacts = store.getAllContacts();
    std::sort(contacts.begin(), contacts.end(),
              [](const ContactData &a, const ContactData &b) { return a.id < b.id; });
    return contacts;
}

/// The names of a contact's groups in their order. One that is in the built-in group alone has none.
QStringList groupsOf(const ContactManager &store, const QHash<int, QString> &names, int contactId)
{
    const QList<int> ids = store.getGroupIdsOfMember(contactId);
    QStringList groups;
    if (ids == QList<int>{GroupData::UnassignedId})
        return groups;
    for (const int id : ids) {
        if (names.contains(id))
            groups.append(names.value(id));
    }
    return groups;
}

QHash<int, QString> groupNames(const ContactManager &store)
{
    QHash<int, QString> names;
    const QList<GroupData> groups = store.getAllGroups(true);
    for (const GroupData &group : groups)
        names.insert(group.id, group.name);
    return names;
}

QByteArray contentOf(const QString &picture)
{
    QFile file(picture);
    return !picture.isEmpty() && file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

}

int Phonebook::importFile(const QString &fileName) const
{
    QFile input;
    if (!openInput(&input, fileName)) {
        complain(QStringLiteral("cannot read %1: %2").arg(fileName, input.errorString()));
        return 1;
    }
    if (!m_home.create())
        return 1;
    const VCardFile file = VCardFile::read(&input, PhotoStore(m_home.photoFolder()),
                                           [](int count) { VCardReport::progress("read", count); });
    VCardReport::endProgress();
    VCardReport::skipped(file, fileName);
    if (file.contacts.isEmpty()) {
        VCardReport::counts(file, 0);
        complain(QStringLiteral("no contact could be read from %1").arg(fileName));
        return 1;
    }

    ContactManager store(m_home.contactDatabase());
    const int added = store.importContacts(file.contacts, [](int count) { VCardReport::progress("added", count); });
    VCardReport::endProgress();
    VCardReport::counts(file, added);
    if (added == 0) {
        complain(QStringLiteral("the contacts could not be written to %1").arg(m_home.contactDatabase()));
        return 1;
    }
    sendToShell(m_home, {"contact/PHONEBOOK", "api2ui_noti_contact_changed()", {}});
    return 0;
}

bool Phonebook::hasContacts() const
{
    if (QFile::exists(m_home.contactDatabase()))
        return true;
    complain(QStringLiteral("there are no contacts in %1").arg(m_home.root()));
    return false;
}

int Phonebook::exportFile(const QString &fileName) const
{
    if (!hasContacts())
        return 1;
    const ContactManager store(m_home.contactDatabase());
    QSaveFile output(fileName);
    if (!store.isOpen() || !output.open(QIODevice::WriteOnly)) {
        complain(QStringLiteral("cannot write %1: %2").arg(fileName, output.errorString()));
        return 1;
    }
    const QHash<int, QString> names = groupNames(store);
    const QList<ContactData> contacts = contactsById(store);
    int written = 0;
    for (const ContactData &contact : contacts) {
        output.write(VCardBridge::write({contact, groupsOf(store, names, contact.id)}, contentOf(contact.picture)));
        VCardReport::progress("written", ++written);
    }
    VCardReport::endProgress();
    if (!output.commit()) {
        complain(QStringLiteral("cannot write %1: %2").arg(fileName, output.errorString()));
        return 1;
    }
    QTextStream(stdout) << "written " << written << '\n';
    return 0;
}

int Phonebook::list() const
{
    if (!hasContacts())
        return 1;
    const ContactManager store(m_home.contactDatabase());
    if (!store.isOpen())
        return 1;
    const QHash<int, QString> names = groupNames(store);
    QTextStream out(stdout);
    out.setCodec("UTF-8");
    const QList<ContactData> contacts = contactsById(store);
    for (const ContactData &contact : contacts) {
        QStringList numbers;
        for (int slot = 0; slot < ContactData::NumberCount; ++slot) {
            if (!contact.number(slot).isEmpty())
                numbers.append(contact.number(slot) + QLatin1Char(' ')
                               + QLatin1String(KindNames[static_cast<std::size_t>(contact.numberType(slot))]));
        }
        const QStringList groups = groupsOf(store, names, contact.id);
        out << contact.id << '\t' << contact.name.simplified() << '\t' << numbers.join(QLatin1String(", ")) << '\t'
            << groups.join(QLatin1String(", ")).simplified() << '\n';
    }
    return 0;
}
