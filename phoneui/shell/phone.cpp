#include "phone.h"

#include "apps/aom/keymodule.h"
#include "apps/idle/idle.h"
#include "apps/message/messageapp.h"
#include "control/controlserver.h"
#include "control/messagelog.h"

#include <QCoreApplication>
#include <QDir>
#include <QLocalSocket>

static constexpr QRect StatusGeometry(0, 0, 384, 26);

Phone::Phone(const PhoneHome &home, QObject *parent)
    : QObject(parent), m_core(home), m_display(&m_windows), m_keyMap(home.path("config/keymap.ini")),
      m_log(new MessageLog)
{
    m_status.setGeometry(StatusGeometry);
    m_core.setStatusWidget(&m_status);
    connect(m_core.ime(), &IME::changedIMEStatus, &m_status,
            [this](int status) { m_status.setIMEStatus(static_cast<IMEStatus>(status)); });
    m_core.setLauncher([this](const QString &name, void *) {
        if (!launch(name))
            qWarning("There is no application \"%s\" to launch", qPrintable(name));
    });
    addNeighbour<Idle>("idle");
    addNeighbour<MessageApp>("message");
    addNeighbour<KeyModule>("aom");
}

Phone::~Phone()
{
    m_control.reset();
    m_plugins.unload();
    for (const QPointer<QObject> &app : qAsConst(m_neighbours))
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
    m_control.reset(new ControlServer(
        {&m_windows, &m_display, &m_keyMap, m_log.get(), [this](const QString &name) { return launch(name); }}));
    return m_peers.listen(home.peerSocket()) && m_control->listen(home.controlSocket());
}

bool Phone::powerOn()
{
    if (!openSockets())
        return false;
    m_status.show();
    m_core.setHasMenu(true);
    launch("idle");

    const QDir folder(QCoreApplication::applicationDirPath());
    const QStringList files = folder.entryList({"*.so"}, QDir::Files);
    for (const QString &file : files) {
        if (!file.startsWith("lib"))
            m_plugins.load(folder.filePath(file));
    }
    return true;
}

BaseAppInterface *Phone::application(const QString &name)
{
    if (BaseAppInterface *app = m_core.getAppMap().value(name))
        return app;
    const auto maker = m_makers.value(name);
    return maker ? maker() : nullptr;
}

bool Phone::launch(const QString &name)
{
    BaseAppInterface *app = application(name);
    if (!app)
        return false;
    app->start(nullptr, nullptr);
    return true;
}
