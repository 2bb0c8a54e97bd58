#ifndef FETCHSETTINGS_H
#define FETCHSETTINGS_H

#include <QSslConfiguration>
#include <QString>

class PhoneHome;

/// What a server may take, and whom to trust, by the home's `config/xcid.conf`. A limit that is none is the
/// default.
struct FetchSettings
{
    int timeLimit; ///< milliseconds for all of it
    int sizeLimit; ///< bytes of the body
    QString authorityFile; ///< empty when the machine's own authorities are all

    static FetchSettings read(const PhoneHome &home);
    QSslConfiguration tls() const;
};

#endif
