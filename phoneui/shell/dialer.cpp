#include "dialer.h"

#include "callmanager.h"
#include "core.h"
#include "tocmsocket.h"

#include <QTextCodec>

void dial(const QString &number, const QString &name)
{
    static constexpr int FromContacts = 2, AnyLine = -1;
    const QByteArray encoded = QTextCodec::codecForName(theCore->charset().toLatin1())->fromUnicode(name);
    ToCMSocket::sendUI2CMSvcDialer(theCore->callManagerHandle(), "NORMAL", number, QString::fromLatin1(encoded),
                                   getCallMode(), FromContacts, AnyLine);
}
