#ifndef APPPAYLOAD_H
#define APPPAYLOAD_H

#include <QByteArray>
#include <QVariantList>

/// The payload of application messages: a QDataStream of the items that the command text names, `str` as a QString
/// and `int` as a 32-bit number.
namespace AppPayload {

/// The items by the command's signature; a text where an `int` is wanted must be a number, missing items are left
/// out, as they are on the wire. False, with the reason, for what cannot be written.
bool encode(const QString &command, const QVariantList &items, QByteArray *payload, QString *fault);

/// The items that the payload holds, as far as it goes.
QVariantList decode(const QString &command, const QByteArray &payload);

}

#endif
