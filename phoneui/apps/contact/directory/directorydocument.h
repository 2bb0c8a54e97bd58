#ifndef DIRECTORYDOCUMENT_H
#define DIRECTORYDOCUMENT_H

#include "directorydata.h"

#include <QList>

struct ezxml;

/// One named value of a result. Records and their strings lie on the heap and are freed by free_directory_data().
struct xml_directory_field
{
    xml_directory_field *next;
    char *type;
    char *label;
    char *value;
    int fontsize;
    int isphone;
};

/// One result of a search.
struct xml_directory_item
{
    xml_directory_item *next;
    xml_directory_field *fields;
    int reserved;
};

/// The answer of a directory server: one page of results. A string that the answer lacks is null.
struct xml_directory
{
    xml_directory_item *items;
    char *charset;
    char *pageinfo;
    char *path; ///< the server's folder of the prepared page files
    int item_count;
    int count; ///< results over all pages
    char *timestamp; ///< the handle of the prepared result
    char *charset2; ///< belongs to whoever asked for the record: free_directory_data() leaves it
};

/// Reads the server's answer in the file at `path` and removes the file. `totalCount` becomes the number of results
/// over all pages, which the answer claims; one page of them is returned. What is damaged is used as far as it can
/// be read.
QList<QList<DirectoryData>> loadData(const char *path, int *totalCount);

/// The record of an answer; path and time stamp go to DirectorySettings. A null root gives an empty record; null is
/// returned only when memory ran out.
xml_directory *loadDirectoryService(ezxml *root, char *ignored);
void free_directory_data(xml_directory *directory);

/// Prints every field and returns the number of items.
int directory_dump(xml_directory *directory);

#endif
