#ifndef KEYINJECTION_H
#define KEYINJECTION_H

#include <qnamespace.h>

/// Delivers one half of a key to the focus widget at once, as if it had been typed: the erase soft key does this.
void injectKey(Qt::Key key, bool press);

/// The press and the release of a key.
void injectKeyStroke(Qt::Key key);

#endif
