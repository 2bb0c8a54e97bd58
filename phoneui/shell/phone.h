#ifndef PHONE_H
#define PHONE_H

#include "core.h"
#include "display.h"
#include "keymap.h"
#include "peerserver.h"
#include "pluginhost.h"
#include "status.h"
#include "windowstack.h"

#include <QHash>
#include <QObject>

#include <functional>
#include <memory>

class ControlServer;
class MessageLog;

/// One phone: the platform, the display with its status bar and keys, the applications, and the sockets over which
/// it is driven. Made after QApplication and gone before it.
class Phone : public QObject
{
    Q_OBJECT

public:
    explicit Phone(const PhoneHome &home, QObject *parent = nullptr);
    ~Phone() override;

    /// Opens the sockets, loads the plug-ins that lie beside the program and shows the home screen. False, with the
    /// reason in the log, when the phone cannot run.
    bool powerOn();

    /// Starts an application by its name; false when there is none.
    bool launch(const QString &name);

private:
    /// An application of the shell's own, made when it is first started.
    template <class App> void addNeighbour(const QString &name)
    {
        m_makers.insert(name, [this]() -> BaseAppInterface * {
            auto *app = new App;
            m_neighbours.append(app);
            return app;
        });
    }
    BaseAppInterface *application(const QString &name);
    bool openSockets();

    Core m_core;
    WindowStack m_windows;
    Display m_display;
    Status m_status;
    KeyMap m_keyMap;
    PeerServer m_peers;
    std::unique_ptr<MessageLog> m_log;
    std::unique_ptr<ControlServer> m_control;
    PluginHost m_plugins;
    QHash<QString, std::function<BaseAppInterface *()>> m_makers; ///< applications of the shell's own
    QList<QPointer<QObject>> m_neighbours;
};

#endif
