#include "phone.h"

#include "apps/aom/keymodule.h"
#include "apps/call/call.h"
#include "apps/history/history.h"
#include "apps/idle/idle.h"
#include "apps/message/messageapp.h"
#include "control/apppayload.h"
#include "control/controlserver.h"
#include "control/messagelog.h"
#include "control/toastlog.h"
#include "peers.h"

#include <QCoreApplication>
#include <QDir>
#include <QLocalSocket>

static constexpr QRect StatusGeometry(0, 0, 384, 26);

const Phone::Neighbour Phone::s_neighbours[] = {
    {"idle", &Phone::make<Idle>, true},       {"call", &Phone::make<Call>, true},
    {"history", &Phone::make<History>, true}, {"message", &Phone::make<MessageApp>, false},
    {"aom", &Phone::make<KeyModule>, false},
};

Phone::Phone(const PhoneHome &home, QObject *parent)
    : QObject(parent), m_core(home), m_display(&m_windows), m_keyMap(home.path("config/keymap.ini")),
      m_log(new MessageLog), m_toasts(new ToastLog)
{
    m_status.setGeometry(StatusGeometry);
    m_core.setStatusWidget(&m_status);
    connect(m_core.ime(), &IME::changedIMEStatus, &m_status,
            [this](int status) { m_status.setIMEStatus(static_cast<IMEStatus>(status)); });
    m_core.setLauncher([this](const QString &name, void *) {
        if (!launch(name))
            qWarning("There is no application \"%s\" to launch", qPrintable(name));
    });
}

Phone::~Phone()
{
    m_control.reset();
    m_peers.reset();
    m_plugins.unload();
    for (const QPointer<QObject> &app : qAsConst(m_apps))
        delete app.data();
    m_core.setStatusWidget(nullptr);
}

bool Phone::openSockets()
{
    const PhoneHome &home = m_core.home();
    QLocalSocket other;
    other.connectToServer(home.controlSocket());
    if (other.waitForConnected(200)) {
        qWarning("A phone is already running in %s", qPrintable(home.root()));
        return false;
    }
    m_control.reset(new ControlServer({&m_windows, &m_display, &m_keyMap, m_log.get(), m_toasts.get(),
                                       [this](const QString &name) { return launch(name); }}));
    return m_peerServer.listen(home.peerSocket()) && m_control->listen(home.controlSocket());
}

bool Phone::powerOn()
{
    if (!openSockets())
        return false;
    m_status.show();
    m_core.setHasMenu(true);
    for (const Neighbour &neighbour : s_neighbours) {
        if (neighbour.fromPowerOn)
            application(neighbour.name);
    }
    launch("idle");
    loadPlugins();
    return true;
}

/// The plug-ins lie beside the program.
void Phone::loadPlugins()
{
    const QDir folder(QCoreApplication::applicationDirPath());
    const QStringList files = folder.entryList({"*.so"}, QDir::Files);
    for (const QString &file : files) {
        if (!file.startsWith("lib"))
            m_plugins.load(folder.filePath(file));
    }
}

void Phone::startPeers()
{
    m_peers.reset(new Peers(m_core.home(), QCoreApplication::applicationDirPath()));
    connect(m_peers.get(), &Peers::gone, this, [this](const QString &section) {
        if (section == "CM")
            forgetCall();
    });
    m_peers->start();
}

/// The call is over with the process that kept it.
void Phone::forgetCall()
{
    const QString command = "cm2ui_call_state(str,str,str)";
    QByteArray payload;
    QString fault;
    if (AppPayload::encode(command, {"IDLE", "", ""}, &payload, &fault))
        m_core.postAppMsg("call", command, payload);
}

template <typename App> BaseAppInterface *Phone::make()
{
    auto *app = new App;
    m_apps.append(QPointer<QObject>(app));
    return app;
}

BaseAppInterface *Phone::application(const QString &name)
{
    if (BaseAppInterface *app = m_core.getAppMap().value(name))
        return app;
    for (const Neighbour &neighbour : s_neighbours) {
        if (name == neighbour.name)
            return (this->*neighbour.make)();
    }
    return nullptr;
}

bool Phone::launch(const QString &name)
{
    BaseAppInterface *app = application(name);
    if (!app)
        return false;
    app->start(nullptr, nullptr);
    return true;
}
