#include "favourite.h"

#include "contactdata.h"
#include "settingsfile.h"

static const char nameKey[] = "Favourite/Name";
static const char numberKey[] = "Favourite/Number";

Favourite::Favourite(const QString &path) : m_path(path)
{
    const SettingsFile file(path);
    m_name = file.value(nameKey);
    m_number = ContactData::bareNumber(file.value(numberKey));
}

void Favourite::set(const QString &name, const QString &number)
{
    const QString bare = ContactData::bareNumber(number);
    if (!bare.isEmpty())
        keep(name, bare);
}

void Favourite::clear()
{
    keep(QString(), QString());
}

bool Favourite::isNumber(const QString &number) const
{
    return isSet() && ContactData::bareNumber(number) == m_number;
}

void Favourite::numberUpdated(const QString &number, const QString &name)
{
    if (isNumber(number))
        set(name, number);
}

void Favourite::numberDeleted(const QString &number)
{
    if (isNumber(number))
        clear();
}

void Favourite::keep(const QString &name, const QString &number)
{
    SettingsFile file(m_path);
    file.set(nameKey, name);
    file.set(numberKey, number);
    if (!file.save())
        return;
    m_name = name;
    m_number = number;
}
