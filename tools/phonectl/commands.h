#ifndef COMMANDS_H
#define COMMANDS_H

#include "phonelink.h"
#include "script.h"

#include <QString>
#include <QStringList>

/// The commands of phonectl, each a list of words, carried out over a link to the phone.
class Commands
{
public:
    /// The exit codes of phonectl.
    enum Result {
        Done = 0,
        /// It is not as expected, or the phone refused.
        Failed = 1,
        /// The command is wrong, or the phone is not there (any more).
        Unable = 2
    };

    explicit Commands(PhoneLink &link) : m_link(link) { }

    /// What is wrong with a command, empty when it can be run.
    static QString complaint(const QStringList &words);
    /// The same for a line of a script, where commands without end have no place.
    static QString scriptComplaint(const QStringList &words);

    Result run(const QStringList &words);
    /// Runs the lines until one does not end in Done. All of them are checked before the first is run. Errors name
    /// the line in `fileName`.
    Result runScript(const QString &fileName, const QList<ScriptLine> &lines);

    /// Why the last run did not end in Done.
    QString error() const { return m_error; }

    /// One line a command.
    static QString help();

private:
    struct Command;
    static const Command Table[];
    static const Command *find(const QString &name);

    Result key(const QStringList &words);
    Result hold(const QStringList &words);
    Result text(const QStringList &words);
    Result sleep(const QStringList &words);
    Result shot(const QStringList &words);
    Result watch(const QStringList &words);
    Result print(const QStringList &words);
    Result expect(const QStringList &words);
    Result passOn(const QStringList &words);

    Result ask(const QStringList &request, QJsonValue *value = nullptr);
    Result resultOf(PhoneLink::Outcome outcome);
    Result fail(Result result, const QString &why);

    PhoneLink &m_link;
    QString m_error;
};

#endif
