#include "programkeys.h"

#include "contactdata.h"

#include <QSettings>

#include <algorithm>

ProgramKeys::ProgramKeys(const QString &path) : m_path(path)
{
    load();
}

int ProgramKeys::set(const QString &name, const QString &number)
{
    const QString bare = ContactData::bareNumber(number);
    if (bare.isEmpty())
        return -1;
    const auto known
        = std::find_if(m_keys.begin(), m_keys.end(), [&](const ProgramKey &key) { return key.number == bare; });
    const int idx = static_cast<int>(known - m_keys.begin());
    if (known != m_keys.end())
        known->name = name;
    else if (isFull())
        return -1;
    else
        m_keys.append({name, bare});
    save();
    return idx;
}

void ProgramKeys::remove(int idx)
{
    m_keys.removeAt(idx);
    save();
}

void ProgramKeys::load()
{
    QSettings file(m_path, QSettings::IniFormat);
    const int count = qMin(file.beginReadArray("Keys"), MostKeys);
    for (int i = 0; i < count; ++i) {
        file.setArrayIndex(i);
        // A file that was written by hand may hold anything, and an unquoted comma makes a list of a value.
        const QString number = ContactData::bareNumber(file.value("Number").toString());
        if (!number.isEmpty())
            m_keys.append({file.value("Name").toStringList().join(", "), number});
    }
}

void ProgramKeys::save() const
{
    QSettings file(m_path, QSettings::IniFormat);
    file.remove("Keys");
    file.beginWriteArray("Keys", m_keys.size());
    for (int i = 0; i < m_keys.size(); ++i) {
        file.setArrayIndex(i);
        file.setValue("Name", m_keys.at(i).name);
        file.setValue("Number", m_keys.at(i).number);
    }
    file.endArray();
    file.sync();
    if (file.status() != QSettings::NoError)
        qWarning("The program keys cannot be kept in %s", qPrintable(m_path));
}
