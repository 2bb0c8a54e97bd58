#include "peoplefile.h"

#include "contactdata.h"
#include "csvfile.h"
#include "vcardbridge.h"
#include "vcardsplitter.h"

#include <QFile>

namespace {

const QStringList Columns{"name", "number", "type", "position", "department", "mobile"};

/// By ContactData::Telnum_Type.
const char *const Kinds[] = {"Company", "Mobile", "Home", "Fax", "Etc."};

/// On one line, without what no XML document can hold.
QString clean(const QString &text)
{
    QString cleaned;
    for (const uint code : text.simplified().toUcs4()) {
        const bool allowed = code >= 0x20 && (code < 0xd800 || code > 0xdfff) && code != 0xfffe && code != 0xffff;
        if (allowed)
            cleaned += QString::fromUcs4(&code, 1);
    }
    return cleaned;
}

void add(PeopleFile *file, const QStringList &fields)
{
    const Person person{clean(fields.value(0)), ContactData::bareNumber(fields.value(1)),
                        clean(fields.value(2)), clean(fields.value(3)),
                        clean(fields.value(4)), ContactData::bareNumber(fields.value(5))};
    if (person.name.isEmpty() && person.number.isEmpty())
        ++file->skipped;
    else
        file->people.append(person);
}

/// The first number, but a mobile one goes where it belongs.
QStringList fieldsOf(const VCardReading &card)
{
    const ContactData &contact = card.entry.contact;
    QStringList fields{contact.name, QString(), QString(), card.position, card.department, QString()};
    for (int slot = 0; slot < ContactData::NumberCount; ++slot) {
        const ContactData::Telnum_Type kind = contact.numberType(slot);
        QString &place = fields[kind == ContactData::Mobile ? 5 : 1];
        if (!place.isEmpty())
            continue;
        place = contact.number(slot);
        if (kind != ContactData::Mobile && !place.isEmpty())
            fields[2] = QString::fromLatin1(Kinds[kind]);
    }
    return fields;
}

void readCards(QIODevice *device, PeopleFile *file)
{
    VCardSplitter splitter(device);
    VCardText card;
    while (splitter.next(&card)) {
        const VCardReading reading = card.problem.isEmpty() ? VCardBridge::read(card.text) : VCardReading();
        add(file, fieldsOf(reading));
    }
}

void readTable(const QByteArray &content, PeopleFile *file)
{
    QList<QStringList> rows = CsvFile::parse(content);
    const QStringList header = rows.isEmpty() ? QStringList() : rows.takeFirst();
    QList<int> places;
    for (const QString &column : Columns) {
        int place = 0;
        while (place < header.size() && header.at(place).trimmed().compare(column, Qt::CaseInsensitive) != 0)
            ++place;
        places.append(place);
    }
    if (places.at(0) >= header.size() || places.at(1) >= header.size()) {
        file->fault = QStringLiteral("its first line does not name the columns: %1").arg(Columns.join(", "));
        return;
    }
    for (const QStringList &row : qAsConst(rows)) {
        QStringList fields;
        for (const int place : qAsConst(places))
            fields.append(row.value(place));
        add(file, fields);
    }
}

}

PeopleFile PeopleFile::read(const QString &fileName)
{
    PeopleFile file;
    QFile input(fileName);
    if (!input.open(QIODevice::ReadOnly)) {
        file.fault = input.errorString();
        return file;
    }
    if (fileName.endsWith(QLatin1String(".vcf"), Qt::CaseInsensitive))
        readCards(&input, &file);
    else if (fileName.endsWith(QLatin1String(".csv"), Qt::CaseInsensitive))
        readTable(input.readAll(), &file);
    else
        file.fault = QStringLiteral("its name ends neither in .vcf nor in .csv");
    if (file.fault.isEmpty() && file.people.isEmpty())
        file.fault = QStringLiteral("there is nobody in it");
    return file;
}
