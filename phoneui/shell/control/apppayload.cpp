#include "apppayload.h"

#include "message.h"

#include <QDataStream>
#include <QIODevice>

namespace AppPayload {

bool encode(const QString &command, const QVariantList &items, QByteArray *payload, QString *fault)
{
    QList<QByteArray> kinds;
    if (!message_ArgumentKinds(command.toLatin1(), &kinds)) {
        *fault = QString("\"%1\" is no command").arg(command);
        return false;
    }
    if (items.size() > kinds.size()) {
        *fault = QString("%1 takes %2 arguments").arg(command).arg(kinds.size());
        return false;
    }
    *payload = QByteArray("");
    QDataStream stream(payload, QIODevice::ReadWrite);
    for (int i = 0; i < items.size(); ++i) {
        if (kinds.at(i) == "int") {
            bool isNumber = false;
            const qint32 value = items.at(i).toInt(&isNumber);
            if (!isNumber) {
                *fault = QString("\"%1\" is no number").arg(items.at(i).toString());
                return false;
            }
            stream << value;
        } else {
            stream << items.at(i).toString();
        }
    }
    return true;
}

QVariantList decode(const QString &command, const QByteArray &payload)
{
    QVariantList items;
    QList<QByteArray> kinds;
    if (!message_ArgumentKinds(command.toLatin1(), &kinds))
        return items;
    QDataStream stream(payload);
    for (const QByteArray &kind : qAsConst(kinds)) {
        QVariant item;
        if (kind == "int") {
            qint32 value = 0;
            stream >> value;
            item = value;
        } else {
            QString text;
            stream >> text;
            item = text;
        }
        if (stream.status() != QDataStream::Ok)
            break;
        items.append(item);
    }
    return items;
}

}
