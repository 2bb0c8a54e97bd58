#include "favourite.h"

#include "contactdata.h"

#include <QSettings>

static const char nameKey[] = "Favourite/Name";
static const char numberKey[] = "Favourite/Number";

Favourite::Favourite(const QString &path) : m_path(path)
{
    const QSettings file(path, QSettings::IniFormat);
    m_name = file.value(nameKey).toStringList().join(", "); // written by hand, a comma makes a list
    m_number = ContactData::bareNumber(file.value(numberKey).toString());
}

void Favourite::set(const QString &name, const QString &number)
{
    const QString bare = ContactData::bareNumber(number);
    if (bare.isEmpty())
        return;
    m_name = name;
    m_number = bare;
    save();
}

void Favourite::clear()
{
    m_name.clear();
    m_number.clear();
    save();
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

void Favourite::save() const
{
    QSettings file(m_path, QSettings::IniFormat);
    file.setValue(nameKey, m_name);
    file.setValue(numberKey, m_number);
    file.sync();
    if (file.status() != QSettings::NoError)
        qWarning("The favourite cannot be kept in %s", qPrintable(m_path));
}
