#include "directorydocument.h"

#include "core.h"
#include "directorysettings.h"
#include "directorytexts.h"
#include "ezxml.h"

#include <QDebug>
#include <QFile>
#include <QTextCodec>

#include <cstdlib>
#include <cstring>
#include <strings.h>

namespace {

template <typename Record> Record *newRecord()
{
    return static_cast<Record *>(std::calloc(1, sizeof(Record)));
}

/// The copy of an attribute, or null.
char *attribute(ezxml *element, const char *name)
{
    const char *value = ezxml_attr(element, name);
    return value ? strduptrim(const_cast<char *>(value)) : nullptr;
}

int number(ezxml *element, const char *name)
{
    const char *value = ezxml_attr(element, name);
    return value ? static_cast<int>(std::strtol(value, nullptr, 10)) : 0;
}

char *childText(ezxml *element, const char *name)
{
    ezxml *child = ezxml_child(element, name);
    return child ? strduptrim(child->txt) : strdup("");
}

bool isPhone(ezxml *data)
{
    const char *value = ezxml_attr(data, "isphone");
    return value && (strcasecmp(value, "true") == 0 || std::strcmp(value, "1") == 0);
}

xml_directory_field *readField(ezxml *data)
{
    xml_directory_field *field = newRecord<xml_directory_field>();
    if (!field)
        return nullptr;
    field->type = childText(data, "type");
    field->label = childText(data, "label");
    field->value = childText(data, "value");
    field->fontsize = number(data, "fontsize");
    field->isphone = isPhone(data);
    return field;
}

/// An item whose fields end where memory did.
xml_directory_item *readItem(ezxml *element)
{
    xml_directory_item *item = newRecord<xml_directory_item>();
    if (!item)
        return nullptr;
    xml_directory_field **end = &item->fields;
    for (ezxml *data = ezxml_child(element, "data"); data; data = data->next) {
        *end = readField(data);
        if (!*end)
            break;
        end = &(*end)->next;
    }
    return item;
}

void readDisplay(ezxml *display, xml_directory *directory)
{
    directory->charset = attribute(display, "charset");
    directory->pageinfo = attribute(display, "pageinfo");
    directory->path = attribute(display, "path");
    directory->count = number(display, "count");
    directory->timestamp = attribute(display, "timestamp");
    directory->charset2 = attribute(display, "charset");
    qDebug() << "loadDirectoryService: charset" << directory->charset << "pageinfo" << directory->pageinfo;
    // A text that is null leaves its key as it is.
    DirectorySettings::setHandles(QString::fromLatin1(directory->path), QString::fromLatin1(directory->timestamp));
}

void freeItem(xml_directory_item *item)
{
    while (xml_directory_field *field = item->fields) {
        item->fields = field->next;
        std::free(field->label);
        std::free(field->value);
        std::free(field->type);
        std::free(field);
    }
    std::free(item);
}

/// The phone's setting decides how texts are read; what the document says of itself does not.
QTextCodec *directoryCodec()
{
    const QString charset = theCore->charset();
    QTextCodec *codec = QTextCodec::codecForName(charset.isEmpty() ? QByteArray("utf-8") : charset.toLatin1());
    if (codec)
        return codec;
    qDebug() << "loadData: there is no text codec" << charset << "- utf-8 is taken";
    return QTextCodec::codecForName("utf-8");
}

QList<DirectoryData> resultOf(const xml_directory_item *item, const QTextCodec *codec)
{
    QList<DirectoryData> result;
    for (const xml_directory_field *field = item->fields; field; field = field->next) {
        result.append(DirectoryData(result.size(), QString::fromLatin1(field->type), codec->toUnicode(field->label),
                                    codec->toUnicode(field->value), field->isphone != 0));
    }
    return result;
}

const char *shown(const char *text)
{
    return text ? text : "NULL";
}

}

QList<QList<DirectoryData>> loadData(const char *path, int *totalCount)
{
    char ignored[] = "";
    ezxml *root = ezxml_parse_file(path);
    xml_directory *directory = loadDirectoryService(root, ignored);
    const QTextCodec *codec = directoryCodec();

    QList<QList<DirectoryData>> results;
    for (const xml_directory_item *item = directory->items; item; item = item->next)
        results.append(resultOf(item, codec));
    directory->item_count = results.size();
    *totalCount = directory->count;

    std::free(directory->charset2);
    free_directory_data(directory);
    ezxml_free(root);
    QFile::remove(QFile::decodeName(path));
    return results;
}

xml_directory *loadDirectoryService(ezxml *root, char *)
{
    xml_directory *directory = newRecord<xml_directory>();
    if (!directory)
        return nullptr;
    readDisplay(ezxml_child(root, "display"), directory);
    xml_directory_item **end = &directory->items;
    for (ezxml *element = ezxml_child(root, "item"); element; element = element->next) {
        *end = readItem(element);
        if (!*end) {
            free_directory_data(directory);
            return nullptr;
        }
        end = &(*end)->next;
    }
    return directory;
}

void free_directory_data(xml_directory *directory)
{
    while (xml_directory_item *item = directory->items) {
        directory->items = item->next;
        freeItem(item);
    }
    std::free(directory->charset);
    std::free(directory->pageinfo);
    std::free(directory->path);
    std::free(directory->timestamp);
    std::free(directory);
}

int directory_dump(xml_directory *directory)
{
    int count = 0;
    for (const xml_directory_item *item = directory->items; item; item = item->next) {
        ++count;
        for (const xml_directory_field *field = item->fields; field; field = field->next) {
            std::printf("[%d] %s=%s(%s),fontsize=%d,isphone=%d\r\n", count, shown(field->label),
                        shown(field->value), shown(field->type), field->fontsize, field->isphone);
        }
    }
    return count;
}
