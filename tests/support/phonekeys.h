#ifndef PHONEKEYS_H
#define PHONEKEYS_H

#include <Qt>

class QWidget;

/// Keys as a keypad sends them: to the window that has the focus, over the window system.
namespace PhoneKeys {

void press(Qt::Key key);
void release(Qt::Key key);
/// Press and release.
void click(Qt::Key key);
/// A further press of a key that is held.
void repeat(Qt::Key key);

/// Shows the window and waits until keys reach it.
bool showAndActivate(QWidget *window);
/// The wait alone, for a window that is shown already.
bool waitUntilActive(QWidget *window);

}

#endif
