#include "testphone.h"

#include "contactmanager.h"

#include <QFile>
#include <QProcess>
#include <QTest>

PhoneHome TestPhone::makeHome(const QTemporaryDir &folder)
{
    const PhoneHome home(folder.path());
    home.create();
    home.enter();
    return home;
}

TestPhone::TestPhone() : home(makeHome(folder)), core(home)
{
    status.setGeometry(0, 0, 384, 26);
    core.setStatusWidget(&status);
    core.setHasMenu(true);
    status.show();
}

TestPhone::~TestPhone()
{
    core.setStatusWidget(nullptr);
}

int TestPhone::addContact(const QString &name, const QStringList &numbers)
{
    ContactData contact;
    contact.name = name;
    QList<int> types;
    for (int i = 0; i < numbers.size(); ++i)
        types.append(ContactData::Company);
    contact.setNumbers(numbers, types);
    if (!core.contactManager()->saveContact(contact, false))
        qWarning("The test's contact was not saved");
    return core.contactManager()->getIdByUsingNameAndNumber(name, numbers.value(0));
}

void TestPhone::addContacts(int count)
{
    QList<ContactImport> contacts;
    for (int i = 1; i <= count; ++i) {
        ContactImport entry;
        entry.contact.name = QString("Name %1").arg(i, 3, 10, QChar('0'));
        entry.contact.setNumbers({QString::number(1000 + i)}, {ContactData::Mobile});
        contacts.append(entry);
    }
    if (core.contactManager()->importContacts(contacts) != count)
        qWarning("The test's contacts were not saved");
}

void TestPhone::runWpsm(const QStringList &arguments)
{
    const int code = QProcess::execute(PHONE_PROGRAMS "/wpsm", QStringList{"--home", home.root()} + arguments);
    if (code != 0)
        qWarning("wpsm ended with %d", code);
}

void TestPhone::connectMobile(const QStringList &names)
{
    QByteArray cards;
    for (const QString &name : names)
        cards += "BEGIN:VCARD\r\nVERSION:3.0\r\nFN:" + name.toUtf8() + "\r\nN:" + name.toUtf8()
            + ";;;;\r\nTEL;TYPE=CELL:0701234567\r\nEND:VCARD\r\n";
    writeFile("device.vcf", cards);
    runWpsm({"connect", home.path("device.vcf")});
}

void TestPhone::disconnectMobile()
{
    runWpsm({"disconnect"});
}

void TestPhone::provisionPhonebook(int count)
{
    writeFile("config/phonebook.conf", "[Info]\nCount=" + QByteArray::number(count) + "\n");
}

void TestPhone::writeFile(const QString &relative, const QByteArray &content)
{
    QFile file(home.path(relative));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qWarning("%s cannot be written", qPrintable(file.fileName()));
}
