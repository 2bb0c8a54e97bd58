#ifndef PHONEHOME_H
#define PHONEHOME_H

#include <QString>

/// The one folder that holds all state of a phone, and the names of what lies in it.
class PhoneHome
{
public:
    explicit PhoneHome(const QString &root);

    /// `option` if it is not empty, else $PHONE_HOME, else "phoneui" in the user's data folder.
    static PhoneHome locate(const QString &option);

    QString root() const { return m_root; }
    QString path(const QString &relative) const;

    QString configList() const { return path("config/list.ini"); }
    QString contactDatabase() const { return path("data/contacts.db"); }
    QString callDatabase() const { return path("data/calls.db"); }
    QString photoFolder() const { return path("data/photos"); }
    QString mobileFolder() const { return path("mobile"); }
    QString runFolder() const { return path("run"); }
    /// The socket of phonectl, where the phone is driven from.
    QString controlSocket() const { return path("run/phonectl.sock"); }
    /// The socket of the peers, which send application commands to the shell.
    QString peerSocket() const { return path("run/shell.sock"); }
    /// The names of the HTTP client's answers, as QTemporaryFile takes them.
    QString answerTemplate() const { return path("run/directory-XXXXXX.xml"); }
    /// Whether a file in the run folder is such an answer by its name.
    static bool isAnswerName(const QString &name);

    /// Makes the folders (the run folder for the user alone) and those configuration files that are missing.
    /// False, with the reason in the log, when the folder cannot be used.
    bool create() const;
    /// Points CONFIG_LIST at this home, for this process and its children, and "photo:" at its photos.
    void enter() const;

private:
    QString m_root;
};

#endif
