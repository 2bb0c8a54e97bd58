#include "answerdocument.h"

#include "answershelf.h"
#include "company.h"

#include <QXmlStreamWriter>

namespace {

struct Field
{
    const char *type;
    const char *label;
    QString Person::*value;
    bool isPhone;
};

const Field Fields[] = {
    {"name", "Name", &Person::name, false},
    {"number", "Number", &Person::number, true},
    {"type", "Type", &Person::type, false},
    {"position", "Position", &Person::position, false},
    {"department", "Department", &Person::department, false},
    {"mobile", "Mobile", &Person::mobile, true},
};

void writeField(QXmlStreamWriter &xml, const Field &field, const QString &value)
{
    xml.writeStartElement(QStringLiteral("data"));
    xml.writeAttribute(QStringLiteral("isphone"), field.isPhone ? QStringLiteral("true") : QStringLiteral("false"));
    xml.writeTextElement(QStringLiteral("type"), QString::fromLatin1(field.type));
    xml.writeTextElement(QStringLiteral("label"), QString::fromLatin1(field.label));
    xml.writeTextElement(QStringLiteral("value"), value);
    xml.writeEndElement();
}

void writePerson(QXmlStreamWriter &xml, const Person &person)
{
    xml.writeStartElement(QStringLiteral("item"));
    for (const Field &field : Fields) {
        if (!(person.*field.value).isEmpty())
            writeField(xml, field, person.*field.value);
    }
    xml.writeEndElement();
}

}

QByteArray answerDocument(const Company &company, const Answer &answer, const QString &path, int page)
{
    QByteArray document;
    QXmlStreamWriter xml(&document);
    xml.setAutoFormatting(true);
    xml.writeStartDocument();
    xml.writeStartElement(QStringLiteral("directory"));
    xml.writeEmptyElement(QStringLiteral("display"));
    xml.writeAttribute(QStringLiteral("charset"), QStringLiteral("UTF-8"));
    xml.writeAttribute(QStringLiteral("pageinfo"), QStringLiteral("%1/%2").arg(page).arg(answer.pageCount()));
    xml.writeAttribute(QStringLiteral("path"), path);
    xml.writeAttribute(QStringLiteral("count"), QString::number(answer.people.size()));
    xml.writeAttribute(QStringLiteral("timestamp"), answer.timestamp);
    const QVector<int> people = answer.people.mid((page - 1) * answer.pageSize, answer.pageSize);
    for (const int index : people)
        writePerson(xml, company.at(index));
    xml.writeEndElement();
    xml.writeEndDocument();
    return document;
}
