#ifndef VCARDBRIDGE_H
#define VCARDBRIDGE_H

#include "contactmanager.h"

#include <QByteArray>
#include <QString>

/// One vCard as a contact of this phone.
struct VCardReading
{
    ContactImport entry;
    QByteArray photo; ///< the embedded picture
    QString picture; ///< the path that the card names in its place, from this phone's own export
    QString position; ///< what a contact has no place for but a directory has
    QString department;
    int leftOut = 0; ///< numbers and addresses beyond what a contact holds
    QString problem; ///< why it is no contact; empty when it is one
};

/// vCards and contacts. What vCards have no word for travels in X- properties of this phone, and so does a text
/// that would not come back as it was: a card that was written here reads back the same in every field.
namespace VCardBridge {

VCardReading read(const QByteArray &card);
/// `photo` is the content of the contact's picture, empty without one.
QByteArray write(const ContactImport &entry, const QByteArray &photo);

}

#endif
