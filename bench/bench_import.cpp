// A file of vCards into the store, beside KContacts that only reads it. The floor is what no import can leave out:
// KContacts reads the file, and bare SQLite writes the same rows.

#include "phonebench.h"
#include "plainrows.h"
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

KContacts::Addressee::List readAll(const QString &path)
{
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    return KContacts::VCardConverter().parseVCards(file.readAll());
}

void kcontacts(benchmark::State &state)
{
    const int count = int(state.range(0));
    TestPhone phone;
    const QString path = cardFile(phone, count);
    Passes passes(state);
    for (auto _ : state) {
        const Stopwatch watch;
        const KContacts::Addressee::List read = readAll(path);
        passes.add(watch);
        if (read.size() != count)
            state.SkipWithError("contacts were lost");
    }
    passes.report();
}

void leastImport(benchmark::State &state)
{
    const int count = int(state.range(0));
    std::vector<PlainRows::Record> records;
    {
        TestPhone phone;
        phone.core.contactManager()->importContacts(people(count));
        PlainRows::read(phone.home.contactDatabase(), &records);
    }
    Passes passes(state);
    for (auto _ : state) {
        TestPhone phone;
        const QString path = cardFile(phone, count);
        const Stopwatch watch;
        const int read = readAll(path).size(); // and freed
        const bool written = PlainRows::write(phone.home.contactDatabase(), records);
        passes.add(watch);
        if (read != count || !written || phone.core.contactManager()->getCountOfContact() != count)
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
            add("import/floor", leastImport, count, passes);
        }
    });
}
