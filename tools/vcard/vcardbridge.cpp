#include "vcardbridge.h"

#include "photostore.h"

#include <KContacts/Addressee>
#include <KContacts/Picture>
#include <KContacts/VCardConverter>

#include <algorithm>
#include <array>

using KContacts::Addressee;
using KContacts::PhoneNumber;

namespace {

const QString Vendor = QStringLiteral("PHONEUI");
const QString WrittenHere = QStringLiteral("CARD");
const QString ExactPicture = QStringLiteral("PICTURE");

struct Kind
{
    PhoneNumber::TypeFlag flag;
    ContactData::Telnum_Type type;
};

// The first that fits: a fax at work is a fax, a mobile of the company a mobile.
constexpr std::array<Kind, 4> Kinds = {{{PhoneNumber::Fax, ContactData::Fax},
                                        {PhoneNumber::Cell, ContactData::Mobile},
                                        {PhoneNumber::Work, ContactData::Company},
                                        {PhoneNumber::Home, ContactData::Home}}};

ContactData::Telnum_Type kindOf(PhoneNumber::Type flags)
{
    for (const Kind &kind : Kinds) {
        if (flags & kind.flag)
            return kind.type;
    }
    return ContactData::Etc;
}

PhoneNumber::Type flagsOf(ContactData::Telnum_Type type)
{
    for (const Kind &kind : Kinds) {
        if (kind.type == type)
            return kind.flag;
    }
    return {};
}

QString escaped(const QString &text)
{
    return QString::fromLatin1(text.toUtf8().toPercentEncoding("/:@,"));
}

QString unescaped(const QString &text)
{
    const QByteArray bytes = QByteArray::fromPercentEncoding(text.toLatin1());
    return QString::fromUtf8(bytes.constData(), bytes.size()); // with what comes after a NUL
}

QString joined(const QStringList &texts)
{
    QStringList parts;
    for (const QString &text : texts)
        parts.append(QString::fromLatin1(text.toUtf8().toPercentEncoding()));
    return parts.join(QLatin1Char(','));
}

QStringList split(const QString &text)
{
    QStringList texts;
    const QStringList parts = text.split(QLatin1Char(','), Qt::SkipEmptyParts);
    for (const QString &part : parts)
        texts.append(unescaped(part));
    return texts;
}

/// One field of a contact as text, and back. The first group has words in vCards, and its X- property is written
/// only where those do not give the field back; the others are written whenever they hold something.
struct Field
{
    const char *property;
    bool hasWord;
    QString (*get)(const ContactImport &entry);
    void (*set)(ContactImport &entry, const QString &text);
};

QString numbersText(const ContactImport &entry)
{
    QStringList numbers;
    for (int slot = 0; slot < ContactData::NumberCount; ++slot) {
        const QString number = ContactData::bareNumber(entry.contact.number(slot));
        if (!number.isEmpty())
            numbers.append(
                QStringLiteral("%1:%2:%3").arg(slot + 1).arg(entry.contact.numberType(slot)).arg(number));
    }
    return joined(numbers);
}

void setNumbersText(ContactImport &entry, const QString &text)
{
    entry.contact.setNumbers({}, {});
    const QStringList numbers = split(text);
    for (const QString &slot : numbers) {
        const QStringList parts = slot.split(QLatin1Char(':'));
        const int type = parts.value(1).toInt();
        const QString number = ContactData::bareNumber(parts.value(2));
        if (parts.size() == 3 && !number.isEmpty() && type >= ContactData::Company && type <= ContactData::Etc)
            entry.contact.setNumber(parts.at(0).toInt() - 1, number, static_cast<ContactData::Telnum_Type>(type));
    }
}

QString emailsText(const ContactImport &entry)
{
    return QStringLiteral("%1;%2;%3")
        .arg(joined({entry.contact.email1}), joined({entry.contact.email2}), joined({entry.contact.email3}));
}

void setEmailsText(ContactImport &entry, const QString &text)
{
    QStringList emails;
    const QStringList parts = text.split(QLatin1Char(';'));
    for (const QString &part : parts)
        emails.append(unescaped(part));
    entry.contact.setEmails(emails);
}

template <QString ContactData::*Member> QString textOf(const ContactImport &entry)
{
    return escaped(entry.contact.*Member);
}

template <QString ContactData::*Member> void setText(ContactImport &entry, const QString &text)
{
    entry.contact.*Member = unescaped(text);
}

const std::array<Field, 8> Fields = {{
    {"NAME", true, textOf<&ContactData::name>, setText<&ContactData::name>},
    {"NUMBERS", true, numbersText, setNumbersText},
    {"EMAILS", true, emailsText, setEmailsText},
    {"MEMO", true, textOf<&ContactData::memo>, setText<&ContactData::memo>},
    {"GROUPS", true, [](const ContactImport &entry) { return joined(entry.groups); },
     [](ContactImport &entry, const QString &text) { entry.groups = split(text); }},
    {"BELL", false, textOf<&ContactData::bell>, setText<&ContactData::bell>},
    {"BUDDY", false, textOf<&ContactData::buddyId>, setText<&ContactData::buddyId>},
    {"EXTRA", false, textOf<&ContactData::extra>, setText<&ContactData::extra>},
}};

bool isEastAsian(const QString &text)
{
    return std::any_of(text.begin(), text.end(), [](QChar c) {
        return c.script() == QChar::Script_Hangul || c.script() == QChar::Script_Han;
    });
}

QString nameOf(const Addressee &card)
{
    if (!card.formattedName().trimmed().isEmpty())
        return card.formattedName().simplified();
    const QString family = card.familyName().trimmed();
    const QString given = card.givenName().trimmed();
    if (isEastAsian(family) || isEastAsian(given))
        return family + given;
    const QString assembled = card.assembledName().simplified();
    return assembled.isEmpty() ? card.organization().simplified() : assembled;
}

QString memoOf(const Addressee &card)
{
    QString memo = card.note();
    return memo.replace(QLatin1String("\r\n"), QLatin1String("\n"))
        .replace(QLatin1String("\\;"), QLatin1String(";"));
}

/// The number of a "tel:" address without its parameters, else the text as it stands.
QString numberOf(const PhoneNumber &phone)
{
    const QString number = phone.number();
    return ContactData::bareNumber(number.left(number.indexOf(QLatin1Char(';'))));
}

void readNumbers(const Addressee &card, VCardReading *reading)
{
    int slot = 0;
    const PhoneNumber::List phones = card.phoneNumbers();
    for (const PhoneNumber &phone : phones) {
        const QString number = numberOf(phone);
        if (number.isEmpty())
            continue;
        if (slot < ContactData::NumberCount)
            reading->entry.contact.setNumber(slot++, number, kindOf(phone.type()));
        else
            ++reading->leftOut;
    }
}

void readEmails(const Addressee &card, VCardReading *reading)
{
    QStringList emails = card.emails();
    emails.removeAll(QString());
    reading->entry.contact.setEmails(emails);
    reading->leftOut += qMax(0, emails.size() - ContactData::EmailCount);
}

VCardReading readWords(const Addressee &card)
{
    VCardReading reading;
    reading.entry.contact.name = nameOf(card);
    reading.entry.contact.memo = memoOf(card);
    const QStringList categories = card.categories();
    for (const QString &category : categories) {
        if (!category.trimmed().isEmpty())
            reading.entry.groups.append(category.trimmed());
    }
    readNumbers(card, &reading);
    readEmails(card, &reading);
    if (card.photo().isIntern())
        reading.photo = card.photo().rawData();
    return reading;
}

Addressee words(const ContactImport &entry, const QByteArray &photo)
{
    const ContactData &contact = entry.contact;
    Addressee card;
    card.setUid(QStringLiteral("contact-%1@phoneui").arg(contact.id));
    card.setFormattedName(contact.name);
    card.setGivenName(contact.name);
    card.setNote(contact.memo);
    card.setCategories(entry.groups);
    for (int slot = 0; slot < ContactData::NumberCount; ++slot) {
        const QString number = ContactData::bareNumber(contact.number(slot));
        if (!number.isEmpty())
            card.insertPhoneNumber(PhoneNumber(number, flagsOf(contact.numberType(slot))));
    }
    for (int slot = 0; slot < ContactData::EmailCount; ++slot) {
        if (!contact.email(slot).isEmpty())
            card.addEmail(KContacts::Email(contact.email(slot)));
    }
    const QString picture = PhotoStore::pictureText(photo);
    if (!picture.isEmpty()) {
        KContacts::Picture embedded;
        embedded.setRawData(photo, picture.section(QLatin1Char('.'), -1));
        card.setPhoto(embedded);
    }
    return card;
}

}

/// What this phone has written of its own replaces what the words of vCards gave.
static void readOwnProperties(const Addressee &card, VCardReading *reading)
{
    if (card.customs().isEmpty())
        return;
    for (const Field &field : Fields) {
        const QString exact = card.custom(Vendor, QLatin1String(field.property));
        if (!exact.isEmpty())
            field.set(reading->entry, exact);
    }
    reading->picture = unescaped(card.custom(Vendor, ExactPicture));
}

VCardReading VCardBridge::read(const QByteArray &text)
{
    VCardReading reading;
    const Addressee::List cards = KContacts::VCardConverter().parseVCards(text);
    if (cards.isEmpty()) {
        reading.problem = QStringLiteral("not a vCard");
        return reading;
    }
    const Addressee &card = cards.first();
    reading = readWords(card);
    reading.position = card.title();
    reading.department = card.department();
    readOwnProperties(card, &reading);
    const bool nobody = reading.entry.contact.name.isEmpty() && numbersText(reading.entry).isEmpty();
    if (nobody && card.custom(Vendor, WrittenHere).isEmpty())
        reading.problem = QStringLiteral("no name and no number");
    return reading;
}

QByteArray VCardBridge::write(const ContactImport &entry, const QByteArray &photo)
{
    const KContacts::VCardConverter converter;
    Addressee card = words(entry, photo);
    card.insertCustom(Vendor, WrittenHere, QStringLiteral("1"));
    // Escapes, empty slots and repeated addresses do not all survive the parser: what it gives back decides.
    const VCardReading back = read(converter.createVCard(card, KContacts::VCardConverter::v3_0));
    for (const Field &field : Fields) {
        const QString text = field.get(entry);
        const bool needed = field.hasWord ? field.get(back.entry) != text : !text.isEmpty();
        if (needed)
            card.insertCustom(Vendor, QLatin1String(field.property), text);
    }
    if (PhotoStore::pictureText(back.photo) != entry.contact.picture)
        card.insertCustom(Vendor, ExactPicture, escaped(entry.contact.picture));
    return converter.createVCard(card, KContacts::VCardConverter::v3_0).trimmed() + "\r\n";
}
