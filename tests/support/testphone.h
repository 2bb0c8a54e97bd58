#ifndef TESTPHONE_H
#define TESTPHONE_H

#include "baseappinterface.h"
#include "control/apppayload.h"
#include "core.h"
#include "people.h"
#include "phonehome.h"
#include "status.h"

#include <QStringList>
#include <QTemporaryDir>

#include <functional>

/// A phone for one test function: an empty home in a temporary folder, the platform on it, and the status bar.
class TestPhone
{
public:
    TestPhone();
    ~TestPhone();

    /// Saves a local contact with its numbers, all of the company kind; returns its id.
    int addContact(const QString &name, const QStringList &numbers = {"100"});
    /// Saves that many contacts, named so that they sort by their number: "Name 001" and so on.
    void addContacts(int count);
    /// Pairs a mobile device with contacts of these names.
    void connectMobile(const QStringList &names);
    void disconnectMobile();
    /// Provisions a system phonebook that announces this many entries.
    void provisionPhonebook(int count);
    /// A home in that folder, for this process.
    static PhoneHome makeHome(const QString &folder);
    void writeFile(const QString &relative, const QByteArray &content);
    /// Sends an application what another one would send it.
    void send(const QString &app, const QString &command, const QVariantList &items);

    QTemporaryDir folder;
    PhoneHome home;
    Core core;
    Status status;

private:
    void runWpsm(const QStringList &arguments);
};

/// An application that keeps what it is sent: the commands, and what each says, its items with a space between.
class ListeningApp final : public BaseAppInterface
{
public:
    explicit ListeningApp(const QString &name) : BaseAppInterface(name, nullptr) { }
    ~ListeningApp() = default;

    bool start(QWidget *, void *) override { return true; }
    void end() override { }
    void receiveMsg(const QString &command, const QByteArray &payload) override
    {
        QStringList words;
        for (const QVariant &item : AppPayload::decode(command, payload))
            words.append(item.toString());
        commands.append(command);
        heard.append(words.join(' ').trimmed());
        if (onReceive)
            onReceive();
    }

    QStringList commands, heard;
    std::function<void()> onReceive;
};

#endif
