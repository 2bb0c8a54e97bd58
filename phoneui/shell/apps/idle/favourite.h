#ifndef FAVOURITE_H
#define FAVOURITE_H

#include <QString>

/// The person whom the home screen offers to call: the one to whom a program key was given last. Kept in a settings
/// file, and as it was while that cannot be written; follows what happens to the contact.
class Favourite
{
public:
    explicit Favourite(const QString &path);

    bool isSet() const { return !m_number.isEmpty(); }
    QString name() const { return m_name; }
    QString number() const { return m_number; }

    /// Ignored without a number.
    void set(const QString &name, const QString &number);
    void clear();
    /// The contact with this first number has now that name.
    void numberUpdated(const QString &number, const QString &name);
    void numberDeleted(const QString &number);

private:
    bool isNumber(const QString &number) const;
    void keep(const QString &name, const QString &number);

    const QString m_path;
    QString m_name;
    QString m_number;
};

#endif
