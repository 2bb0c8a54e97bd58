#ifndef PHONE_H
#define PHONE_H

#include "core.h"
#include "display.h"
#include "keymap.h"
#include "peerserver.h"
#include "phonetexts.h"
#include "pluginhost.h"
#include "status.h"
#include "windowstack.h"

#include <QObject>

#include <memory>

class ControlServer;
class MessageLog;
class Peers;
class ToastLog;

/// One phone: the platform, the display with its status bar and keys, the applications, and the sockets over which
/// it is driven. Made after QApplication and gone before it.
class Phone : public QObject
{
    Q_OBJECT

public:
    explicit Phone(const PhoneHome &home, QObject *parent = nullptr);
    ~Phone() override;

    /// Opens the sockets, makes the applications and shows the home screen. False, with the reason in the log, when
    /// the phone cannot run.
    bool powerOn();

    /// Starts the processes beside the shell. The phone runs without them, and then calls nobody.
    void startPeers();

    /// Starts an application by its name; false when there is none.
    bool launch(const QString &name);

private:
    /// An application of the shell's own.
    struct Neighbour
    {
        const char *name;
        BaseAppInterface *(Phone::*make)();
        bool fromPowerOn; ///< there from the start, hidden, so that every message reaches it; else when launched
    };
    static const Neighbour s_neighbours[];

    template <typename App> BaseAppInterface *make();
    BaseAppInterface *application(const QString &name);
    bool openSockets();
    void loadPlugins();
    void forgetCall();

    Core m_core;
    PhoneTexts m_texts;
    WindowStack m_windows;
    Display m_display;
    Status m_status;
    KeyMap m_keyMap;
    PeerServer m_peerServer;
    std::unique_ptr<MessageLog> m_log;
    std::unique_ptr<ToastLog> m_toasts;
    std::unique_ptr<ControlServer> m_control;
    PluginHost m_plugins;
    std::unique_ptr<Peers> m_peers;
    QList<QPointer<QObject>> m_apps; ///< the neighbours that were made
};

#endif
