#include "core.h"

#include "baseappinterface.h"
#include "callmanager.h"
#include "contactmanager.h"
#include "qcalllist.h"
#include "settingsfile.h"
#include "soundmanager.h"
#include "wpsmcontactmanager.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QDebug>
#include <QSettings>
#include <QTextCodec>

#include <algorithm>
#include <array>

Core *theCore = nullptr;
int m_Directory = 0;

namespace {

struct LanguageEntry
{
    Language number;
    const char *name;
};

constexpr std::array<LanguageEntry, 7> Languages = {{{Korean, "ko_KR"},
                                                     {English, "en_US"},
                                                     {German, "de_DE"},
                                                     {Spanish, "es_ES"},
                                                     {Italian, "it_IT"},
                                                     {Russian, "ru_RU"},
                                                     {Turkish, "tr_TR"}}};

const LanguageEntry &languageOfName(const QString &name, bool *known = nullptr)
{
    const auto found = std::find_if(Languages.begin(), Languages.end(),
                                    [&](const LanguageEntry &entry) { return name == QLatin1String(entry.name); });
    if (known)
        *known = found != Languages.end();
    return found != Languages.end() ? *found : Languages[English];
}

}

Core::Core(const PhoneHome &home, QObject *parent) : QObject(parent), m_home(home)
{
    theCore = this;
    m_contactManager = new ContactManager(m_home.contactDatabase(), this);
    m_wpsmContactManager = new WpsmContactManager(m_home.mobileFolder(), this);
    m_callManager = new CallManager(this);
    m_callList = new QCallList(m_home.callDatabase(), this);
    m_soundManager = new SoundManager(this);
    m_ime = new IME(this);
}

Core::~Core()
{
    theCore = nullptr;
}

void Core::launch(const QString &name, void *data)
{
    if (m_launcher)
        m_launcher(name, data);
    else
        qDebug() << "Core::launch: nobody starts applications:" << name;
}

void Core::setLauncher(const Launcher &launcher)
{
    m_launcher = launcher;
}

void Core::sendAppMsg(const QString &target, const QString &command, const QByteArray &payload)
{
    emit appMsgSent(target, command, payload);
    postAppMsg(target, command, payload);
}

void Core::postAppMsg(const QString &target, const QString &command, const QByteArray &payload)
{
    // One event a message: a handler that runs an event loop of its own does not hold up those behind it.
    QMetaObject::invokeMethod(
        this, [=] { deliver(target, command, payload); }, Qt::QueuedConnection);
}

void Core::deliver(const QString &target, const QString &command, const QByteArray &payload)
{
    // Messages posted together are delivered in one go. A loop that a handler starts meanwhile sleeps over the rest
    // on some dispatchers, unless it is woken.
    if (QAbstractEventDispatcher *dispatcher = QCoreApplication::eventDispatcher())
        dispatcher->wakeUp();
    if (BaseAppInterface *app = m_apps.value(target))
        app->receiveMsg(command, payload);
    else
        qDebug() << "Core::deliver:" << target << "does not run, dropped" << command;
}

void Core::addApp(const QString &name, BaseAppInterface *app)
{
    m_apps.insert(name, app);
}

void Core::removeApp(BaseAppInterface *app)
{
    const QString name = m_apps.key(app);
    if (m_apps.value(name) == app)
        m_apps.remove(name);
}

QString Core::setting(ConfigFileType type, const char *key, const QString &fallback) const
{
    return SettingsFile(configFileName(type)).value(QLatin1String(key), fallback);
}

QString Core::charset() const
{
    const QString fallback = QStringLiteral("utf-8");
    const QString name = setting(SystemConfig, "System/Charset", fallback);
    return QTextCodec::codecForName(name.toLatin1()) ? name : fallback;
}

Language Core::language() const
{
    return languageOfName(setting(SettingsConfig, "Settings/Language", QString())).number;
}

QString Core::languageName() const
{
    return QLatin1String(languageOfName(setting(SettingsConfig, "Settings/Language", QString())).name);
}

bool Core::setLanguageName(const QString &name)
{
    bool known = false;
    languageOfName(name, &known);
    if (!known)
        return false;
    SettingsFile settings(configFileName(SettingsConfig));
    settings.set(QStringLiteral("Settings/Language"), name);
    if (!settings.save())
        return false;
    emit languageChanged();
    const QStringList running = m_apps.keys();
    for (const QString &app : running)
        sendAppMsg(app, QStringLiteral("changedLanguage()"), QByteArray(""));
    return true;
}

QString Core::configFileName(ConfigFileType type) const
{
    switch (type) {
    case SystemConfig: return m_home.path(QStringLiteral("config/system.conf"));
    case SoundConfig: return m_home.path(QStringLiteral("config/sound.conf"));
    case SettingsConfig: return m_home.path(QStringLiteral("config/settings.conf"));
    }
    return QString();
}

QString Core::sipConfigFileName(const QString &name) const
{
    return m_home.path(QStringLiteral("config/") + name);
}

QString Core::ringtonePath() const
{
    return m_home.path(QStringLiteral("ringtones"));
}

QString Core::ringtoneDownloadPath() const
{
    return m_home.path(QStringLiteral("ringtones/download"));
}

bool Core::use24HourTime() const
{
    return QVariant(setting(SettingsConfig, "Settings/24HourTime", QString())).toBool();
}

int Core::designType() const
{
    return setting(SettingsConfig, "Settings/Design", QString()).toInt();
}

int Core::getSystemType() const
{
    return setting(SystemConfig, "System/Type", QString()).toInt();
}

QString Core::getProvPassword() const
{
    return SettingsFile(m_home.path(QStringLiteral("config/secret.ini"))).value(QStringLiteral("Prov/Password"));
}

bool Core::openContactDatabase()
{
    return m_contactManager->isOpen();
}

void Core::closeContactDatabase()
{
    // The store keeps its file open; the bracket only asks whether it can be read.
}

IMEStatus Core::getIMEStatus() const
{
    return static_cast<IMEStatus>(m_ime->imeStatus());
}

void Core::setIMEStatus(IMEStatus status, bool show)
{
    const int former = m_ime->imeStatus();
    m_ime->setMode(status);
    if (show && m_ime->imeStatus() == former)
        emit m_ime->changedIMEStatus(former);
}
