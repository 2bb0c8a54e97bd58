#ifndef CORE_H
#define CORE_H

#include "ime.h"
#include "phonehome.h"

#include <QByteArray>
#include <QMap>
#include <QObject>
#include <QScopedPointer>
#include <QString>

#include <functional>

class BaseAppInterface;
class CallManager;
class ContactManager;
class QCallList;
class SoundManager;
class Status;
class WpsmContactManager;

/// The settings files that applications read and write by themselves.
enum ConfigFileType {
    SystemConfig = 0, ///< locks, charset, kind of system: "Menu_Password/enable", "Security/CallLock"
    SoundConfig = 1, ///< volumes and tones
    SettingsConfig = 2 ///< what the user chooses: "Settings/24HourTime", "Settings/Language"
};

/// The languages of the phone, by the number that applications compare.
enum Language { Korean = 0, English = 1, German = 2, Spanish = 3, Italian = 4, Russian = 5, Turkish = 6 };

/// The one door to every service of the phone. The shell makes it first and deletes it last; between the two,
/// `theCore` points at it. GUI thread only.
class Core : public QObject
{
    Q_OBJECT

public:
    /// `home` must have been created. The services open their files here.
    explicit Core(const PhoneHome &home, QObject *parent = nullptr);
    ~Core() override;

    const PhoneHome &home() const { return m_home; }

    // Applications and their messages.

    /// Starts an application by its name, through the shell's launcher; a running one gets its `start` again.
    void launch(const QString &name, void *data);
    using Launcher = std::function<void(const QString &name, void *data)>;
    void setLauncher(const Launcher &launcher);
    /// Hands the command to the target's `receiveMsg` once the current event is done, in the order of sending.
    /// A message for an application that does not run by then is dropped and logged.
    void sendAppMsg(const QString &target, const QString &command, const QByteArray &payload);
    /// The same for a message that comes from outside the phone's applications and is none that they sent.
    void postAppMsg(const QString &target, const QString &command, const QByteArray &payload);
    /// The applications that run, by name.
    QMap<QString, BaseAppInterface *> getAppMap() const { return m_apps; }
    void addApp(const QString &name, BaseAppInterface *app);
    void removeApp(BaseAppInterface *app);
    QString currentActivateApp() const { return m_currentApp; }
    void setCurrentActivateApp(const QString &name) { m_currentApp = name; }

    // What is visible.

    void setVisibleContact(bool visible) { m_contactVisible = visible; }
    bool isVisibleContact() const { return m_contactVisible; }
    void setVisibleMenu(bool visible) { m_menuVisible = visible; }
    bool isVisibleMenu() const { return m_menuVisible; }
    /// True once the shell has made its menu window.
    bool hasMenu() const { return m_hasMenu; }
    void setHasMenu(bool exists) { m_hasMenu = exists; }

    // Services, owned by Core but for the status bar, which the shell owns.

    ContactManager *contactManager() const { return m_contactManager; }
    WpsmContactManager *wpsmContactManager() const { return m_wpsmContactManager; }
    CallManager *callManager() const { return m_callManager; }
    /// What a dial request names as its sender.
    int callManagerHandle() const { return 0; }
    QCallList *callList() const { return m_callList; }
    SoundManager *soundManager() const { return m_soundManager; }
    IME *ime() const { return m_ime; }
    Status *statusWidget() const { return m_statusWidget; }
    void setStatusWidget(Status *status) { m_statusWidget = status; }

    // Settings, read anew at every call.

    /// The codec name of stored and exchanged text, "utf-8" unless the phone was set up with another.
    QString charset() const;
    Language language() const;
    int getLanguage() const { return language(); }
    /// The language as catalogues name it, "de_DE".
    QString languageName() const;
    /// False for a name that is no language of the phone, or when it cannot be kept. Whoever keeps texts for others
    /// hears of it at once, by the signal; running applications after it, by "changedLanguage()".
    bool setLanguageName(const QString &name);
    QString configFileName(ConfigFileType type) const;
    /// A file of the call services by its name, such as "phone_info.conf".
    QString sipConfigFileName(const QString &name) const;
    QString ringtonePath() const;
    QString ringtoneDownloadPath() const;
    bool use24HourTime() const;
    /// 1 is the dark design of the soft keys, 0 the light one.
    int designType() const;
    /// 1 is a phone on its own call server, which can lock calls.
    int getSystemType() const;
    QString getProvPassword() const;

    // The contact database.

    /// Brackets a run of reads; true when the store can be read.
    bool openContactDatabase();
    void closeContactDatabase();

    // Input.

    IMEStatus getIMEStatus() const;
    /// `show` also tells the status bar at once, even when the mode is the same.
    void setIMEStatus(IMEStatus status, bool show);
    /// Whether the key F13 deletes; off while a box or an input popup is shown.
    void setUseF13ToDel(bool use) { m_useF13ToDel = use; }
    bool useF13ToDel() const { return m_useF13ToDel; }

    /// Whether an alarm is ringing.
    void setAlarm(bool on) { m_alarm = on; }
    bool alarm() const { return m_alarm; }

    /// Set by the shell while the status bar must stay raised over a call although the contacts go.
    bool keepStatus = false;

signals:
    /// A word to everything on the screen, such as "closeSelectPopup()".
    void signalBroadcast(const QString &name, const QByteArray &data);
    void languageChanged();
    /// Every application message as it is sent.
    void appMsgSent(const QString &target, const QString &command, const QByteArray &payload);

private:
    QString setting(ConfigFileType type, const char *key, const QString &fallback) const;
    void deliver(const QString &target, const QString &command, const QByteArray &payload);

    const PhoneHome m_home;
    Launcher m_launcher;
    QMap<QString, BaseAppInterface *> m_apps;
    QString m_currentApp;
    ContactManager *m_contactManager = nullptr;
    WpsmContactManager *m_wpsmContactManager = nullptr;
    CallManager *m_callManager = nullptr;
    QCallList *m_callList = nullptr;
    SoundManager *m_soundManager = nullptr;
    IME *m_ime = nullptr;
    Status *m_statusWidget = nullptr;
    bool m_contactVisible = false;
    bool m_menuVisible = false;
    bool m_hasMenu = false;
    bool m_useF13ToDel = true;
    bool m_alarm = false;
};

extern Core *theCore;

/// 1 while the contact search was opened from a directory entry, else 0.
extern int m_Directory;

#endif
