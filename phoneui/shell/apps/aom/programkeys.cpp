#include "programkeys.h"

#include "contactdata.h"
#include "settingsfile.h"

#include <algorithm>

/// Where a key's name or number stands in the file; the places count from 1.
static QString keyOf(int idx, const char *item)
{
    return QString("Keys/%1/%2").arg(idx + 1).arg(item);
}

ProgramKeys::ProgramKeys(const QString &path) : m_path(path)
{
    load();
}

int ProgramKeys::set(const QString &name, const QString &number)
{
    const QString bare = ContactData::bareNumber(number);
    if (bare.isEmpty())
        return -1;
    QList<ProgramKey> keys = m_keys;
    const auto known
        = std::find_if(keys.begin(), keys.end(), [&](const ProgramKey &key) { return key.number == bare; });
    const int idx = static_cast<int>(known - keys.begin());
    if (known != keys.end())
        known->name = name;
    else if (isFull())
        return -1;
    else
        keys.append({name, bare});
    return keep(keys) ? idx : -1;
}

void ProgramKeys::remove(int idx)
{
    QList<ProgramKey> keys = m_keys;
    keys.removeAt(idx);
    keep(keys);
}

void ProgramKeys::load()
{
    const SettingsFile file(m_path);
    for (int i = 0; i < MostKeys; ++i) {
        const QString number = ContactData::bareNumber(file.value(keyOf(i, "Number")));
        if (!number.isEmpty())
            m_keys.append({file.value(keyOf(i, "Name")), number});
    }
}

bool ProgramKeys::keep(const QList<ProgramKey> &keys)
{
    SettingsFile file(m_path);
    file.removeSection("Keys");
    for (int i = 0; i < keys.size(); ++i) {
        file.set(keyOf(i, "Name"), keys.at(i).name);
        file.set(keyOf(i, "Number"), keys.at(i).number);
    }
    if (!file.save())
        return false;
    m_keys = keys;
    return true;
}
