#ifndef THUMBNAIL_H
#define THUMBNAIL_H

#include <QPixmap>
#include <QString>

/// Small pictures of local contacts' photos, kept under "/tmp/thumbnail_temp" so that a page of cells never decodes
/// a full-size photo. The cache may vanish at any time; the next load makes it again.
namespace Thumbnail {

/// Makes the thumbnail of a photo if the photo exists and its thumbnail does not.
void make(const QString &picture);

/// What a cell shows for a photo: its thumbnail. Null when there is none to read.
QPixmap load(const QString &picture);

/// Empties the cache.
void clear();

}

#endif
