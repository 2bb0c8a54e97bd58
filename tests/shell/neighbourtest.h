#ifndef NEIGHBOURTEST_H
#define NEIGHBOURTEST_H

#include "phonetest.h"

/// The base of the tests of the shell's small applications.
template <typename App> class NeighbourTest : public PhoneTest
{
protected:
    void setUp() override
    {
        PhoneTest::setUp();
        remake();
    }
    App *app() const { return static_cast<App *>(m_screen.get()); }
    /// Makes the application anew, as the phone does after a night without power.
    void remake()
    {
        m_screen.reset();
        m_screen.reset(new App);
    }
    bool start()
    {
        app()->start(nullptr, nullptr);
        return isOpen(app());
    }
    static bool isOpen(QWidget *screen)
    {
        const bool active = PhoneKeys::waitUntilActive(screen);
        settle();
        return active;
    }
    void receive(const QString &command, const QVariantList &items = {}) { send(app()->appName(), command, items); }
    void receiveSenseless(const QStringList &commands)
    {
        for (const QByteArray &payload : senselessPayloads()) {
            for (const QString &command : commands)
                sendRaw(app()->appName(), command, payload);
        }
    }
};

#endif
