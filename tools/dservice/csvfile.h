#ifndef CSVFILE_H
#define CSVFILE_H

#include <QList>
#include <QStringList>

/// Tables as spreadsheets write them: UTF-8, a comma, semicolon or tabulator between the fields by what the first
/// line has, quotes around a field that holds one of those or a line end.
namespace CsvFile {

QList<QStringList> parse(const QByteArray &content);

}

#endif
