#ifndef SCREENWATCH_H
#define SCREENWATCH_H

#include "basewidget.h"

#include <QApplication>
#include <QPointer>

/// Tells a handler, after an event loop of its own has returned, whether its screen was closed meanwhile: any
/// command can do that at any moment, and the handler then does nothing more than return.
class ScreenWatch
{
public:
    explicit ScreenWatch(const BaseWidget *screen) : m_screen(screen), m_hideCount(screen->hideCount()) { }

    bool closed() const { return !m_screen || m_screen->hideCount() != m_hideCount; }

private:
    QPointer<const BaseWidget> m_screen;
    int m_hideCount;
};

/// Of modal windows the one shown last takes the keys: a screen raised over it would show, deaf to every key, also
/// to the one that leads out. So what was opened over the screen stays in front of it.
inline void bringForward(QWidget *screen)
{
    QWidget *modal = QApplication::activeModalWidget();
    QWidget *front = modal ? modal : screen;
    front->raise();
    front->activateWindow();
}

/// Runs a child screen in its own event loop and deletes it afterwards, never before: makes it with `make`, keeps
/// it in `slot` while it runs, and calls `finished` with it unless the owner was closed meanwhile.
///
/// A screen that already runs in the slot is brought to the front instead, with what stands over it. Whoever closes
/// the screen from outside closes it and may empty the slot; the deleting stays here.
template <typename Screen, typename Make, typename Finished>
void runScreen(QPointer<Screen> &slot, const BaseWidget *owner, Make make, Finished finished)
{
    if (slot) {
        bringForward(slot);
        return;
    }
    const ScreenWatch watch(owner);
    const QPointer<Screen> screen = make();
    slot = screen;
    screen->exec();
    if (screen && !watch.closed())
        finished(screen.data());
    if (slot == screen)
        slot.clear();
    delete screen.data();
}

// A screen that opens others has `closeWindows`; one that opens none has not.
template <typename Screen> auto closeWindowsOf(Screen *screen, int) -> decltype(screen->closeWindows())
{
    screen->closeWindows();
}
template <typename Screen> void closeWindowsOf(Screen *, long) { }

/// Closes a child screen from outside and takes it out of its slot; the frame that runs it deletes it.
template <typename Screen> void closeScreen(QPointer<Screen> &slot)
{
    const QPointer<Screen> screen = slot;
    slot.clear();
    if (screen)
        closeWindowsOf(screen.data(), 0);
    if (screen)
        screen->close();
}

/// The same for a screen that was shown without a loop of its own: nobody runs it, so it deletes itself when it
/// can.
template <typename Screen> void retireScreen(QPointer<Screen> &slot)
{
    const QPointer<Screen> screen = slot;
    closeScreen(slot);
    if (screen)
        screen->retire();
}

#endif
