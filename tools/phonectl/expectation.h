#ifndef EXPECTATION_H
#define EXPECTATION_H

#include <QJsonValue>
#include <QString>
#include <QStringList>

/// What `expect` waits for: one field of what the phone shows or has sent, and the value that it should have.
class Expectation
{
public:
    /// How the value of a field is compared.
    enum class Kind {
        Text,
        Number,
        Texts,
        /// One text of a list, told by its index.
        TextAt,
        /// A text that occurs in a list.
        AnyText,
        /// A message that was sent.
        Message,
        /// Nothing must be there.
        Nothing,
        NoMessage
    };

    /// Reads the words after `expect`. Empty when all is well, else what is wrong with them.
    QString parse(const QStringList &words);

    /// The request whose answer `holds` and `found` look at.
    QString request() const;
    /// How long to wait for it, in milliseconds.
    int patience() const;
    bool holds(const QJsonValue &answer) const;

    /// Both for the report of a failure.
    QString wanted() const;
    QString found(const QJsonValue &answer) const;

    /// One line a field, for the help.
    static QString help();

private:
    struct Field;
    static const Field Fields[];

    QJsonValue valueIn(const QJsonValue &answer) const;
    bool wasSent(const QJsonValue &message) const;

    const Field *m_field = nullptr;
    QStringList m_values;
};

#endif
