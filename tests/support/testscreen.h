#ifndef TESTSCREEN_H
#define TESTSCREEN_H

#include "display.h"
#include "windowstack.h"

#include <QString>

/// The phone's screen for a test program: one order of windows for all its tests, and pictures of what shows.
class TestScreen
{
public:
    TestScreen();
    ~TestScreen();

    static WindowStack &windows();
    static QImage picture();
    /// Saves the picture as NAME.png in the folder that PHONE_PICTURES names; does nothing without one.
    static void shot(const QString &name);
    static void save(const QImage &image, const QString &name);

private:
    static TestScreen *s_instance;

    WindowStack m_windows;
    Display m_display;
};

#endif
