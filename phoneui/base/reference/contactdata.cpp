#include "contactdata.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace {

using TypeField = ContactData::Telnum_Type ContactData::*;
using TextField = QString ContactData::*;

constexpr std::array<TypeField, ContactData::NumberCount> Types = {
    &ContactData::telnum1_type, &ContactData::telnum2_type, &ContactData::telnum3_type, &ContactData::telnum4_type,
    &ContactData::telnum5_type, &ContactData::telnum6_type, &ContactData::telnum7_type, &ContactData::telnum8_type,
    &ContactData::telnum9_type, &ContactData::telnum10_type};

constexpr std::array<TextField, ContactData::EmailCount> Emails
    = {&ContactData::email1, &ContactData::email2, &ContactData::email3};

constexpr std::array<TextField, 6> Texts = {&ContactData::name, &ContactData::picture, &ContactData::memo,
                                            &ContactData::bell, &ContactData::buddyId, &ContactData::extra};

}

QString ContactData::*const ContactData::s_numbers[]
    = {&ContactData::telnum1, &ContactData::telnum2, &ContactData::telnum3, &ContactData::telnum4,
       &ContactData::telnum5, &ContactData::telnum6, &ContactData::telnum7, &ContactData::telnum8,
       &ContactData::telnum9, &ContactData::telnum10};

ContactData::ContactData(int contactId, Contact_Type contactType, const QString &contactName,
                         const QString &pictureFile, //
                         const QString &number1, const QString &number2, const QString &number3,
                         const QString &number4, const QString &number5, const QString &number6,
                         const QString &number7, const QString &number8, const QString &number9,
                         const QString &number10, //
                         Telnum_Type type1, Telnum_Type type2, Telnum_Type type3, Telnum_Type type4,
                         Telnum_Type type5, Telnum_Type type6, Telnum_Type type7, Telnum_Type type8,
                         Telnum_Type type9, Telnum_Type type10, //
                         const QString &firstEmail, const QString &secondEmail, const QString &thirdEmail,
                         const QString &memoText, const QString &bellFile, const QString &buddy,
                         const QString &extraText)
    : id(contactId), type(contactType), name(contactName), picture(pictureFile), telnum1(number1), telnum2(number2),
      telnum3(number3), telnum4(number4), telnum5(number5), telnum6(number6), telnum7(number7), telnum8(number8),
      telnum9(number9), telnum10(number10), telnum1_type(type1), telnum2_type(type2), telnum3_type(type3),
      telnum4_type(type4), telnum5_type(type5), telnum6_type(type6), telnum7_type(type7), telnum8_type(type8),
      telnum9_type(type9), telnum10_type(type10), email1(firstEmail), email2(secondEmail), email3(thirdEmail),
      memo(memoText), bell(bellFile), buddyId(buddy), extra(extraText)
{
}

void ContactData::setNumbers(const QStringList &numbers, const QList<int> &types)
{
    for (int slot = 0; slot < NumberCount; ++slot)
        setNumber(slot, numbers.value(slot), static_cast<Telnum_Type>(types.value(slot, Company)));
}

void ContactData::setEmails(const QStringList &emails)
{
    for (int slot = 0; slot < EmailCount; ++slot)
        this->*Emails[slot] = emails.value(slot);
}

const QString &ContactData::noNumber()
{
    static const QString none;
    return none;
}

ContactData::Telnum_Type ContactData::numberType(int slot) const
{
    return isSlot(slot) ? this->*Types[slot] : Company;
}

void ContactData::setNumber(int slot, const QString &number, Telnum_Type numberType)
{
    if (!isSlot(slot))
        return;
    this->*s_numbers[slot] = number;
    this->*Types[slot] = numberType;
}

QString ContactData::email(int slot) const
{
    return slot >= 0 && slot < EmailCount ? this->*Emails[slot] : QString();
}

QString ContactData::bareNumber(const QString &number)
{
    const auto isBare = [](QChar c) { return (c >= u'0' && c <= u'9') || c == u'+' || c == u'*' || c == u'#'; };
    if (!number.isEmpty() && std::all_of(number.begin(), number.end(), isBare))
        return number; // as stores have kept it
    QString bare;
    bare.reserve(number.size());
    for (const QChar c : number) {
        if (isBare(c))
            bare += c;
        else if (c.isDigit())
            bare += QChar(u'0' + c.digitValue());
    }
    return bare;
}

bool ContactData::operator==(const ContactData &other) const
{
    const auto same = [&](auto field) { return this->*field == other.*field; };
    const auto allSame
        = [&](const auto &fields) { return std::all_of(std::begin(fields), std::end(fields), same); };
    return id == other.id && type == other.type && allSame(Texts) && allSame(s_numbers) && allSame(Types)
        && allSame(Emails);
}
