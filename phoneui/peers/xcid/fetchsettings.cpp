#include "fetchsettings.h"

#include "phonehome.h"
#include "settingsfile.h"

#include <QDir>
#include <QSslCertificate>

namespace {

constexpr int DefaultTimeLimit = 15000;
constexpr int DefaultSizeLimit = 1024 * 1024; // twenty entries take some ten thousand

int limit(const SettingsFile &settings, const char *key, int usual)
{
    const int value = settings.number(QLatin1String(key), usual);
    return value > 0 ? value : usual;
}

}

FetchSettings FetchSettings::read(const PhoneHome &home)
{
    const SettingsFile settings(home.path(QStringLiteral("config/xcid.conf")));
    const QString authority = settings.value(QStringLiteral("Tls/Authority"));
    return {limit(settings, "Limits/Time", DefaultTimeLimit), limit(settings, "Limits/Size", DefaultSizeLimit),
            authority.isEmpty() ? QString() : QDir(home.root()).absoluteFilePath(authority)};
}

QSslConfiguration FetchSettings::tls() const
{
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    configuration.setProtocol(QSsl::TlsV1_2OrLater);
    if (authorityFile.isEmpty())
        return configuration;
    const QList<QSslCertificate> own = QSslCertificate::fromPath(authorityFile);
    if (own.isEmpty())
        qWarning("There is no certificate in %s", qPrintable(authorityFile));
    configuration.setCaCertificates(QSslConfiguration::systemCaCertificates() + own);
    return configuration;
}
