#include "dialer.h"

#include "callmanager.h"
#include "core.h"
#include "textcodec.h"
#include "tocmsocket.h"

void dial(const QString &number, const QString &name)
{
    static constexpr int FromContacts = 2, AnyLine = -1;
    ToCMSocket::sendUI2CMSvcDialer(theCore->callManagerHandle(), "NORMAL", number,
                                   QString::fromLatin1(getEncodedString(name)), getCallMode(), FromContacts,
                                   AnyLine);
}
