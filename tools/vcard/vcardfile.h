#ifndef VCARDFILE_H
#define VCARDFILE_H

#include "photostore.h"
#include "vcardbridge.h"

#include <QList>
#include <QMap>

#include <functional>

class QIODevice;

/// The people of one vCard file, ready for the store, and what was left out of it.
struct VCardFile
{
    struct Skipped
    {
        int line;
        QString reason;
    };

    QList<ContactImport> contacts;
    QList<Skipped> skipped;
    int leftOut = 0; ///< numbers and addresses beyond what a contact holds

    int cardsRead() const { return contacts.size() + skipped.size(); }
    /// How often each reason to skip a card came.
    QMap<QString, int> skippedByReason() const;

    /// Reads to the end; photos go to the store at once. `progress` hears the number of cards so far.
    static VCardFile read(QIODevice *device, const PhotoStore &photos,
                          const std::function<void(int)> &progress = {});
};

#endif
