#ifndef SYSTEMPHONEBOOK_H
#define SYSTEMPHONEBOOK_H

#include <QString>
#include <Qt>

/// What the models of the system phonebook and those who show them agree on.
namespace SystemPhonebook {

// Two keys stand for what the file has no word for.

/// The category of all entries.
inline QString allKey()
{
    return QStringLiteral("___ALL___");
}
/// The category of the entries without one.
inline QString unassignedKey()
{
    return QStringLiteral("___UNASSIGNED___");
}

/// The roles of an entry.
enum Role {
    CategoryRole = Qt::UserRole + 100,
    NameRole = Qt::UserRole + 101,
    NumberRole = Qt::UserRole + 102,
    LineNumberRole = Qt::UserRole + 103,
    /// Both models: "Data" for entries, "Category" for categories.
    KindRole = Qt::UserRole + 200
};

/// What the kind role says of an entry.
inline QString dataKind()
{
    return QStringLiteral("Data");
}
/// What it says of a category.
inline QString categoryKind()
{
    return QStringLiteral("Category");
}

}

#endif
