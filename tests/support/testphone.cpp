#include "testphone.h"

#include "contactmanager.h"
#include "testcase.h"

#include <QProcess>

PhoneHome TestPhone::makeHome(const QString &folder)
{
    const PhoneHome home(folder);
    home.create();
    home.enter();
    return home;
}

TestPhone::TestPhone() : home(makeHome(folder.path())), core(home)
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
    if (!core.contactManager()->saveContact(person(name, numbers), false))
        qWarning("The test's contact was not saved");
    return core.contactManager()->getIdByUsingNameAndNumber(name, numbers.value(0));
}

void TestPhone::addContacts(int count)
{
    QList<ContactImport> contacts;
    for (int i = 1; i <= count; ++i) {
        const QString name = QString("Name %1").arg(i, 3, 10, QChar('0'));
        contacts.append({person(name, {QString::number(1000 + i)}), {}});
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
    ::writeFile(home.path(relative), content);
}

void TestPhone::send(const QString &app, const QString &command, const QVariantList &items)
{
    QByteArray payload;
    QString fault;
    QVERIFY2(AppPayload::encode(command, items, &payload, &fault), qPrintable(fault));
    core.postAppMsg(app, command, payload);
}
