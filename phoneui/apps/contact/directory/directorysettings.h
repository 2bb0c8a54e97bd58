#ifndef DIRECTORYSETTINGS_H
#define DIRECTORYSETTINGS_H

#include <QString>

/// What a directory search keeps between two pages: a small file on a file system in memory, which lives from the
/// first search until power-off. Every write is on the medium when the function returns.
namespace DirectorySettings {

/// The page that was last asked for, from 1; 0 when there is none.
int page();
void setPage(int page);

/// The server's folder of the prepared page files, as the last answer named it.
QString path();
/// The handle of the prepared result, part of each page file's name.
QString timeStamp();
/// A null text leaves the key as it was: an answer need not carry both.
void setHandles(const QString &path, const QString &timeStamp);

}

#endif
