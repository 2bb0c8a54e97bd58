#ifndef PHONEKEYS_H
#define PHONEKEYS_H

#include <QKeyEvent>
#include <QList>
#include <QWidget>

/// Keys as a keypad sends them: to the window that has the focus, over the window system.
namespace PhoneKeys {

void press(Qt::Key key);
void release(Qt::Key key);
/// Press and release.
void click(Qt::Key key);
void clickAll(const QList<int> &keys);
/// A further press of a key that is held.
void repeat(Qt::Key key);

/// Shows the window and waits until keys reach it.
bool showAndActivate(QWidget *window);
/// The wait alone, for a window that is shown already.
bool waitUntilActive(QWidget *window);

}

/// A widget that keeps the keys that reach it.
class KeyCounter : public QWidget
{
public:
    using QWidget::QWidget;

    QList<int> presses, releases;

protected:
    void keyPressEvent(QKeyEvent *event) override { presses.append(event->key()); }
    void keyReleaseEvent(QKeyEvent *event) override { releases.append(event->key()); }
};

#endif
