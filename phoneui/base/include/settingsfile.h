#ifndef SETTINGSFILE_H
#define SETTINGSFILE_H

#include <QMap>
#include <QString>

/// A small file of settings, read once as plain texts (see IniText) and replaced as a whole.
class SettingsFile
{
public:
    /// `Shared` is a folder in which anybody may put something: a link and a file of another user, root apart, are
    /// not read, and saving puts a file of our own in their place or fails.
    enum Place { Private, Shared };

    /// A file that is missing has no keys, and neither has one that is not read, with the reason in the log.
    explicit SettingsFile(const QString &path, Place place = Private);

    /// Keys have their section in front, "Settings/Language".
    bool contains(const QString &key) const { return m_values.contains(key); }
    QString value(const QString &key, const QString &fallback = QString()) const
    {
        return m_values.value(key, fallback);
    }
    int number(const QString &key, int fallback = 0) const;
    /// "true" in any case, or a number other than 0.
    bool flag(const QString &key) const;
    /// The keys of one section without its name, or all of them with theirs.
    QStringList keys(const QString &section = QString()) const;

    void set(const QString &key, const QString &value) { m_values.insert(key, value); }
    void remove(const QString &key) { m_values.remove(key); }
    /// Takes out every key of a section.
    void removeSection(const QString &section);
    /// True when the file with all that was set is on the disk. False, with the reason in the log, when it is as it
    /// was.
    bool save() const;

private:
    const QString m_path;
    QMap<QString, QString> m_values;
};

#endif
