#ifndef ANSWERFILE_H
#define ANSWERFILE_H

#include <QByteArray>
#include <QString>

class PhoneHome;

/// The file in which the HTTP client says that an answer lies, taken into hand.
///
/// The path comes from outside, and who reads it also deletes it. So it counts only if it names an answer file in
/// the home's run folder: a plain file of this user with one name. Such a file loses its name at once, and is read
/// through `path` while this object lives; whatever anybody puts in its place meanwhile is neither read nor
/// deleted. One that is older than the last request answers another, and is deleted unread.
class AnswerFile
{
public:
    AnswerFile(const PhoneHome &home, const QString &path);
    ~AnswerFile();

    AnswerFile(const AnswerFile &) = delete;
    AnswerFile &operator=(const AnswerFile &) = delete;

    bool isOpen() const { return m_descriptor >= 0; }
    /// True when the path names no answer file at all, or an older one: then nobody has answered. A file that
    /// should be there and cannot be had is an answer without results.
    bool isForeign() const { return m_isForeign; }
    /// Where the content can be read; empty when it was not taken.
    QByteArray path() const;

private:
    const char *take(const QString &runFolder, const QByteArray &name);

    int m_descriptor = -1;
    bool m_isForeign = false;
};

#endif
