#ifndef DISPLAYSETUP_H
#define DISPLAYSETUP_H

#include <QSize>
#include <QString>

/// The phone's display: 384 by 160 pixels at 72 dots per inch, so that a point is a pixel.
namespace DisplaySetup {

constexpr QSize Size(384, 160);

/// Before QApplication: sets the resolution and the event dispatcher, and the offscreen platform unless `platform`
/// or the environment names another.
void prepareEnvironment(const QString &platform = QString());

/// After QApplication: brings in the shared pictures and the texts, maps the phone's font family to the installed
/// ones and takes the desktop's habits away (quitting with the last window, a blinking cursor, animated effects).
void prepareApplication();

}

#endif
