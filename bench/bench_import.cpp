// A file of vCards into the store, beside KContacts that only reads it.

#include "phonebench.h"
#include "vcardfile.h"

#include <KContacts/VCardConverter>

#include <QFile>

namespace {

using namespace PhoneBench;

QByteArray cards(int count)
{
    QByteArray text;
    const QList<ContactImport> all = people(count);
    for (const ContactImport &person : all) {
        const ContactData &contact = person.contact;
        const QByteArray name = contact.name.toUtf8();
        text += "BEGIN:VCARD\r\nVERSION:3.0\r\nFN:" + name + "\r\nN:" + name + ";;;;\r\nTEL;TYPE=WORK:"
            + contact.telnum1.toUtf8() + "\r\nTEL;TYPE=CELL:" + contact.telnum2.toUtf8() + "\r\nTEL;TYPE=HOME:"
            + contact.telnum3.toUtf8() + "\r\nEMAIL:somebody@example.org\r\nNOTE:Met at the fair\r\nEND:VCARD\r\n";
    }
    return text;
}

QString cardFile(TestPhone &phone, int count)
{
    phone.writeFile("people.vcf", cards(count));
    return phone.home.path("people.vcf");
}

void ours(benchmark::State &state)
{
    const int count = int(state.range(0));
    Passes passes(state);
    for (auto _ : state) {
        TestPhone phone;
        QFile file(cardFile(phone, count));
        const Stopwatch watch;
        file.open(QIODevice::ReadOnly);
        const VCardFile read = VCardFile::read(&file, PhotoStore(phone.home.photoFolder()));
        if (phone.core.contactManager()->importContacts(read.contacts) != count)
            state.SkipWithError("contacts were lost");
        passes.add(watch);
    }
    passes.report();
}

void kcontacts(benchmark::State &state)
{
    const int count = int(state.range(0));
    TestPhone phone;
    const QString path = cardFile(phone, count);
    Passes passes(state);
    for (auto _ : state) {
        const Stopwatch watch;
        QFile file(path);
        file.open(QIODevice::ReadOnly);
        const KContacts::Addressee::List people = KContacts::VCardConverter().parseVCards(file.readAll());
        passes.add(watch);
        if (people.size() != count)
            state.SkipWithError("contacts were lost");
    }
    passes.report();
}

}

int main(int argc, char **argv)
{
    return run(argc, argv, [] {
        for (const int count : {300, 10000}) {
            const int passes = qMax(3, 3000 / count);
            add("import/ours", ours, count, passes);
            add("import/KContacts", kcontacts, count, passes);
        }
    });
}
