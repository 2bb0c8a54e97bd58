#include "systemphonebookdatamodel.h"

#include "phonebookfile.h"
#include "systemphonebook.h"

#include <algorithm>

namespace {

/// By the undecoded text: a category outside ASCII, whose key is decoded, has no entries in most charsets.
bool isInCategory(const PhonebookFile::Entry &entry, const QString &category)
{
    if (category == SystemPhonebook::allKey())
        return true;
    if (category == SystemPhonebook::unassignedKey())
        return entry.categoryBytes.isEmpty();
    return !category.isEmpty() && entry.categoryBytes == category;
}

}

SystemPhonebookDataModel::SystemPhonebookDataModel(const QString &category, QObject *parent)
    : QAbstractListModel(parent), m_category(category)
{
    setObjectName("SystemPhonebookDataModel");
    load(category);
}

SystemPhonebookDataModel::~SystemPhonebookDataModel()
{
    clear();
}

bool SystemPhonebookDataModel::load(const QString &category)
{
    const PhonebookFile file = PhonebookFile::read("SystemPhonebookDataModel::load");
    if (file.announcedCount() == 0)
        return false;
    const bool isUnassigned = category == SystemPhonebook::unassignedKey();
    for (const PhonebookFile::Entry &read : file.entries()) {
        if (read.index < 0 || !isInCategory(read, category))
            continue;
        SystemPhonebookData *&entry = m_entries[read.index];
        if (!entry)
            entry = new SystemPhonebookData;
        *entry = {read.index, isUnassigned ? category : read.category, read.name, read.number, read.lineNumber};
    }
    sortRows();
    return true;
}

void SystemPhonebookDataModel::sortRows()
{
    m_rows = m_entries.keys().toVector();
    std::sort(m_rows.begin(), m_rows.end());
}

void SystemPhonebookDataModel::setCategory(const QString &category)
{
    clear();
    load(category);
}

void SystemPhonebookDataModel::reset()
{
    setCategory(m_category);
}

void SystemPhonebookDataModel::clear()
{
    qDeleteAll(m_entries);
    m_entries.clear();
    m_rows.clear();
}

int SystemPhonebookDataModel::rowCount(const QModelIndex &) const
{
    return m_entries.size();
}

int SystemPhonebookDataModel::getRowByIndex(int row) const
{
    return m_rows.value(row);
}

SystemPhonebookDataModel::SystemPhonebookData SystemPhonebookDataModel::entry(int row) const
{
    const SystemPhonebookData *found = m_entries.value(getRowByIndex(row));
    return found ? *found : SystemPhonebookData();
}

QString SystemPhonebookDataModel::getName(int row) const
{
    return entry(row).name;
}

QString SystemPhonebookDataModel::getNumber(int row) const
{
    return entry(row).number;
}

QString SystemPhonebookDataModel::getCategory(int row) const
{
    return entry(row).category;
}

QString SystemPhonebookDataModel::getLineNumber(int row) const
{
    return entry(row).lineNumber;
}

QVariant SystemPhonebookDataModel::data(const QModelIndex &index, int role) const
{
    switch (role) {
    case SystemPhonebook::CategoryRole: return getCategory(index.row());
    case SystemPhonebook::NameRole: return getName(index.row());
    case SystemPhonebook::NumberRole: return getNumber(index.row());
    case SystemPhonebook::LineNumberRole: return getLineNumber(index.row());
    case SystemPhonebook::KindRole: return SystemPhonebook::dataKind();
    default: return QVariant();
    }
}
