#include "systemphonebookcategorymodel.h"

#include "phonebookfile.h"
#include "systemphonebook.h"

#include <QSet>

#include <algorithm>

SystemPhonebookCategoryModel::SystemPhonebookCategoryModel(QObject *parent) : QAbstractListModel(parent)
{
    load();
}

SystemPhonebookCategoryModel::~SystemPhonebookCategoryModel()
{
    clear();
}

QString SystemPhonebookCategoryModel::shownName(const QString &key)
{
    if (key == SystemPhonebook::allKey())
        return tr("All");
    return key == SystemPhonebook::unassignedKey() ? tr("Unassigned") : key;
}

bool SystemPhonebookCategoryModel::load()
{
    const PhonebookFile file = PhonebookFile::read("SystemPhonebookCategoryModel::load");
    if (file.announcedCount() == 0)
        return false;
    count(file);
    sortKeys();
    return true;
}

/// The category of that key, which is made when there is none.
SystemPhonebookCategoryModel::SystemPhonebookCategory *SystemPhonebookCategoryModel::category(const QString &key)
{
    SystemPhonebookCategory *&found = m_categories[key];
    if (!found)
        found = new SystemPhonebookCategory;
    return found;
}

/// An index counts once, but for the first entry of each category and for every entry without a category.
void SystemPhonebookCategoryModel::count(const PhonebookFile &file)
{
    *category(SystemPhonebook::allKey()) = {shownName(SystemPhonebook::allKey()), 0};
    QSet<int> counted;
    int total = 0;
    int unassigned = 0;
    for (const PhonebookFile::Entry &entry : file.entries()) {
        if (entry.category.isEmpty()) {
            ++total;
            ++unassigned;
        } else {
            const bool isFirst = !m_categories.contains(entry.category);
            SystemPhonebookCategory *record = category(entry.category);
            record->name = entry.category;
            if (isFirst || !counted.contains(entry.index)) {
                ++record->count;
                ++total;
            }
        }
        counted.insert(entry.index);
    }
    if (unassigned > 0)
        *category(SystemPhonebook::unassignedKey()) = {shownName(SystemPhonebook::unassignedKey()), unassigned};
    category(SystemPhonebook::allKey())->count = total;
}

void SystemPhonebookCategoryModel::sortKeys()
{
    m_keys = m_categories.keys();
    m_keys.removeOne(SystemPhonebook::allKey());
    const bool hasUnassigned = m_keys.removeOne(SystemPhonebook::unassignedKey());
    std::sort(m_keys.begin(), m_keys.end());
    if (hasUnassigned)
        m_keys.prepend(SystemPhonebook::unassignedKey());
    m_keys.prepend(SystemPhonebook::allKey());
}

void SystemPhonebookCategoryModel::clear()
{
    qDeleteAll(m_categories);
    m_categories.clear();
    m_keys.clear();
}

void SystemPhonebookCategoryModel::reset()
{
    clear();
    load();
}

int SystemPhonebookCategoryModel::rowCount(const QModelIndex &) const
{
    return m_keys.size();
}

QString SystemPhonebookCategoryModel::getCategoryNameByIndex(int row) const
{
    return m_keys.value(row);
}

int SystemPhonebookCategoryModel::getCategoryCount(int row) const
{
    const SystemPhonebookCategory *found = m_categories.value(getCategoryNameByIndex(row));
    return found ? found->count : 0;
}

QString SystemPhonebookCategoryModel::getCategoryName(int row, bool withCount) const
{
    const SystemPhonebookCategory *found = m_categories.value(getCategoryNameByIndex(row));
    if (!found)
        return QString();
    const QString name = shownName(getCategoryNameByIndex(row)); // in the language of now
    return withCount ? QString("%1 (%2)").arg(name, QString::number(found->count)) : name;
}

QVariant SystemPhonebookCategoryModel::data(const QModelIndex &index, int role) const
{
    switch (role) {
    case Qt::DisplayRole: return getCategoryName(index.row(), true);
    case Qt::DecorationRole: return getCategoryName(index.row(), false);
    case Qt::EditRole: return getCategoryNameByIndex(index.row());
    case SystemPhonebook::KindRole: return SystemPhonebook::categoryKind();
    default: return QVariant();
    }
}
