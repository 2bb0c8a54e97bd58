#ifndef PHONEBOOK_H
#define PHONEBOOK_H

#include "phonehome.h"

#include <QString>

/// The commands of the program; each returns its exit code.
class Phonebook
{
public:
    explicit Phonebook(const PhoneHome &home) : m_home(home) { }

    /// "-" reads the standard input.
    int importFile(const QString &fileName) const;
    int exportFile(const QString &fileName) const;
    int list() const;

private:
    bool hasContacts() const;

    const PhoneHome m_home;
};

#endif
