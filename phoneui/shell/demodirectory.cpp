#include "demodirectory.h"

#include "phonehome.h"

#include <QFile>
#include <QSettings>

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
    QSettings info(home.path("config/phone_info.conf"), QSettings::IniFormat);
    if (!isNew && !info.value(Mark).toBool())
        return;
    info.setValue(Mark, true);
    info.setValue("Prov_Info/Id", m_id);
    info.setValue("Directory_svc/Type", "http");
    info.setValue("Directory_svc/Addr", m_address);
    info.sync();
    // The file keeps its rights, which are its user's alone.
    QSettings secret(home.path("config/secret.ini"), QSettings::IniFormat);
    secret.setValue("Prov/Password", m_password);
    secret.sync();
    if (info.status() != QSettings::NoError || secret.status() != QSettings::NoError)
        qWarning("The demonstration directory cannot be written to %s", qPrintable(info.fileName()));
}
