#ifndef CONTACTDATA_H
#define CONTACTDATA_H

#include <QList>
#include <QString>
#include <QStringList>

/// One contact: a plain value, copied freely between the stores and the screens.
class ContactData
{
public:
    /// Where the contact lives. Everything but LocalContact belongs to the paired mobile device and is read-only.
    enum Contact_Type { LocalContact = 0, MobileContact = 1, MobileSimContact = 2 };

    /// The kind of a telephone number; the values stand in the database.
    enum Telnum_Type { Company = 0, Mobile = 1, Home = 2, Fax = 3, Etc = 4 };

    static constexpr int NumberCount = 10;
    static constexpr int EmailCount = 3;

    ContactData() = default;
    ContactData(int id, Contact_Type type, const QString &name, const QString &picture, //
                const QString &telnum1, const QString &telnum2, const QString &telnum3, const QString &telnum4,
                const QString &telnum5, const QString &telnum6, const QString &telnum7, const QString &telnum8,
                const QString &telnum9, const QString &telnum10, //
                Telnum_Type telnum1_type, Telnum_Type telnum2_type, Telnum_Type telnum3_type,
                Telnum_Type telnum4_type, Telnum_Type telnum5_type, Telnum_Type telnum6_type,
                Telnum_Type telnum7_type, Telnum_Type telnum8_type, Telnum_Type telnum9_type,
                Telnum_Type telnum10_type, //
                const QString &email1, const QString &email2, const QString &email3, const QString &memo,
                const QString &bell, const QString &buddyId, const QString &extra);

    /// Fills the slots from 1 on; what goes beyond ten numbers is dropped, slots without a number are emptied.
    void setNumbers(const QStringList &numbers, const QList<int> &types);
    /// Fills the three addresses; what goes beyond is dropped.
    void setEmails(const QStringList &emails);

    /// The slots by position, 0 to NumberCount - 1; an index out of range reads as empty and writes nothing.
    const QString &number(int slot) const { return isSlot(slot) ? this->*s_numbers[slot] : noNumber(); }
    Telnum_Type numberType(int slot) const;
    void setNumber(int slot, const QString &number, Telnum_Type type);
    /// The addresses by position, 0 to EmailCount - 1.
    QString email(int slot) const;

    /// The number as stores keep it and searches compare it: digits, "+", "*" and "#", nothing else.
    static QString bareNumber(const QString &number);

    bool operator==(const ContactData &other) const;
    bool operator!=(const ContactData &other) const { return !(*this == other); }

    int id = 0;
    Contact_Type type = LocalContact;
    QString name;
    QString picture; ///< path of the photo
    QString telnum1, telnum2, telnum3, telnum4, telnum5, telnum6, telnum7, telnum8, telnum9, telnum10;
    Telnum_Type telnum1_type = Company, telnum2_type = Company, telnum3_type = Company, telnum4_type = Company,
                telnum5_type = Company, telnum6_type = Company, telnum7_type = Company, telnum8_type = Company,
                telnum9_type = Company, telnum10_type = Company;
    QString email1, email2, email3;
    QString memo;
    QString bell; ///< path of the ring tone
    QString buddyId;
    QString extra; ///< carried for the platform; no screen reads it

private:
    static bool isSlot(int slot) { return slot >= 0 && slot < NumberCount; }
    static const QString &noNumber();

    static QString ContactData::*const s_numbers[NumberCount];
};

Q_DECLARE_TYPEINFO(ContactData, Q_MOVABLE_TYPE);

#endif
