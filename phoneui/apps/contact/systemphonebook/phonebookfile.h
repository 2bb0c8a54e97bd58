#ifndef PHONEBOOKFILE_H
#define PHONEBOOKFILE_H

#include <QByteArray>
#include <QString>
#include <QVector>

/// The system phonebook's file as the provisioning delivers it, read once and as a whole.
///
/// It comes from outside: the work is bounded by what the file holds, whatever number of entries it announces, and
/// a damaged file gives as many entries as can be made out.
class PhonebookFile
{
public:
    /// One entry with a name and a number.
    struct Entry
    {
        int index = -1; ///< sort position and identity; negative when the file gives none
        QString name;
        QString number;
        QString category;
        QString categoryBytes; ///< the category undecoded, each byte a character
        QString lineNumber;
    };

    /// An empty phonebook.
    PhonebookFile() = default;
    explicit PhonebookFile(const QByteArray &text);

    /// The provisioned file's path, or an empty text.
    static QString path();
    /// The provisioned file; an empty phonebook, with the reason in the log, when there is none. `reader` begins
    /// the line of the log.
    static PhonebookFile read(const char *reader);
    /// The number of entries that a file announces: 0 when there is no phonebook. May be negative.
    static int announcedCount(const QString &path);

    int announcedCount() const { return m_announcedCount; }
    /// Those up to the number announced, in the order of their numbers in the file.
    const QVector<Entry> &entries() const { return m_entries; }

private:
    int m_announcedCount = 0;
    QVector<Entry> m_entries;
};

#endif
