#include "directoryurl.h"

#include "conffile.h"
#include "core.h"
#include "directorytexts.h"
#include "settingsfile.h"
#include "textcodec.h"

namespace {

const char CallManagerState[] = "/tmp/cminfo";
const char DefaultPath[] = "servlet/DService";

/// What both URLs are made of.
struct Provisioning
{
    QString address, type, port, path, id, password;

    bool isSecure() const { return type.toLower() == QLatin1String("https"); }
    QString start() const;
};

Provisioning readProvisioning()
{
    const SettingsFile settings(getConfFilePath(QStringLiteral("CONFIG"), QStringLiteral("PINFO_CONF")));
    const SettingsFile calls(QLatin1String(CallManagerState), SettingsFile::Shared);
    const bool secondary = calls.value(QStringLiteral("LINE_0/PROXY")) == QLatin1String("SECONDARY");
    const QString side = secondary ? QStringLiteral("Directory_svc_SS/Addr") : QStringLiteral("Directory_svc/Addr");
    return {settings.value(side),
            settings.value(QStringLiteral("Directory_svc/Type")),
            settings.value(QStringLiteral("Directory_svc/Port")),
            settings.value(QStringLiteral("Directory_svc/Path")),
            settings.value(QStringLiteral("Prov_Info/Id")),
            theCore->getProvPassword()};
}

/// Up to the slash behind the server. The order stays when the address has the scheme in itself, and only HTTPS has
/// a port of its own.
QString Provisioning::start() const
{
    const QLatin1String scheme(isSecure() ? "https://" : "http://");
    QString url;
    if (!address.contains(scheme))
        url += scheme;
    url += id + QLatin1Char(':') + password + QLatin1Char('@') + address;
    if (isSecure())
        url += QLatin1Char(':') + port;
    return url + QLatin1Char('/');
}

QString macAddress()
{
    char interfaceName[] = "eth0";
    return QString::fromLatin1(get_mac_addr2(interfaceName));
}

}

QByteArray makeDirectoryServiceSearchURL(const QString &key, const QString &keyType)
{
    const Provisioning phone = readProvisioning();
    if (phone.address.isEmpty() || phone.id.isEmpty() || phone.password.isEmpty() || key.isEmpty()
        || keyType.isEmpty())
        return QByteArray();
    const QString url = phone.start() + (phone.path.isEmpty() ? QLatin1String(DefaultPath) : phone.path)
        + QStringLiteral("?pid=") + phone.id + QStringLiteral("&mac=") + macAddress()
        + QStringLiteral("&cap=20&keytype=") + keyType.toLower();
    QByteArray word = key.trimmed().toUtf8();
    return url.toLatin1() + "&key=" + makeBuffEscape(word.data()) + "&enc=UTF-8";
}

QByteArray makeDirectoryServicePageURL(int page, const QString &path, const QString &timestamp)
{
    if (page < 0)
        return QByteArray();
    const Provisioning phone = readProvisioning();
    QString folder = path.startsWith(QLatin1Char('/')) ? path.mid(1) : path;
    if (!folder.endsWith(QLatin1Char('/')))
        folder += QLatin1Char('/');
    QString file = macAddress() + QLatin1Char('_') + phone.id + QLatin1Char('_');
    if (!timestamp.isEmpty())
        file += timestamp + QLatin1Char('_');
    file += QString::number(page) + QStringLiteral(".xml");
    return (phone.start() + folder + file).toLatin1();
}
