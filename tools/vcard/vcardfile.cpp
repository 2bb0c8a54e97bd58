#include "vcardfile.h"

#include "vcardsplitter.h"

#include <QFile>

/// The path of this phone's own export where it still leads to a picture, else the embedded picture.
static QString pictureOf(const VCardReading &reading, const PhotoStore &photos)
{
    if (!reading.picture.isEmpty() && (reading.photo.isEmpty() || QFile::exists(reading.picture)))
        return reading.picture;
    return reading.photo.isEmpty() ? QString() : photos.store(reading.photo);
}

VCardFile VCardFile::read(QIODevice *device, const PhotoStore &photos, const std::function<void(int)> &progress)
{
    VCardFile file;
    VCardSplitter splitter(device);
    VCardText card;
    while (splitter.next(&card)) {
        VCardReading reading;
        if (card.problem.isEmpty())
            reading = VCardBridge::read(card.text);
        const QString problem = card.problem.isEmpty() ? reading.problem : card.problem;
        if (problem.isEmpty()) {
            reading.entry.contact.picture = pictureOf(reading, photos);
            file.contacts.append(reading.entry);
            file.leftOut += reading.leftOut;
        } else {
            file.skipped.append({card.line, problem});
        }
        if (progress)
            progress(file.cardsRead());
    }
    return file;
}

QMap<QString, int> VCardFile::skippedByReason() const
{
    QMap<QString, int> reasons;
    for (const Skipped &card : skipped)
        ++reasons[card.reason];
    return reasons;
}
