#include "demodirectory.h"

#include "phonehome.h"
#include "settingsfile.h"

#include <QFile>

static const char Mark[] = "Directory_svc/Demonstration";

DemoDirectory::DemoDirectory(const QString &text)
{
    const int colon = text.indexOf(':');
    const int at = text.lastIndexOf('@');
    if (colon < 1 || at < colon)
        return;
    m_id = text.left(colon);
    m_password = text.mid(colon + 1, at - colon - 1);
    m_address = text.mid(at + 1);
}

void DemoDirectory::provision(const PhoneHome &home, bool isNew) const
{
    SettingsFile info(home.path("config/phone_info.conf"));
    if (!isNew && !info.flag(Mark))
        return;
    info.set(Mark, "true");
    info.set("Prov_Info/Id", m_id);
    info.set("Directory_svc/Type", "http");
    info.set("Directory_svc/Addr", m_address);
    SettingsFile secret(home.path("config/secret.ini"));
    secret.set("Prov/Password", m_password);
    if (secret.save())
        info.save();
}
