// Any bytes are taken apart into cards; who was found in them is the same after an export and another import.

#include "fuzztarget.h"
#include "vcardfile.h"

#include <QBuffer>
#include <QDebug>

static VCardFile read(QByteArray text)
{
    QBuffer buffer(&text);
    buffer.open(QIODevice::ReadOnly);
    return VCardFile::read(&buffer, PhotoStore("/dev/null")); // keeps no photo
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    const VCardFile file = read({reinterpret_cast<const char *>(data), int(size)});
    for (const ContactImport &person : file.contacts) {
        const VCardFile again = read(VCardBridge::write(person, QByteArray()));
        require(again.contacts.size() == 1 && again.skipped.isEmpty() && again.leftOut == 0);
        const ContactImport &back = again.contacts.first();
        require(back.contact == person.contact && back.groups == person.groups);
    }
    return 0;
}
