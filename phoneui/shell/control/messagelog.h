#ifndef MESSAGELOG_H
#define MESSAGELOG_H

#include <QJsonArray>
#include <QObject>

/// What the phone has sent since it was last asked: application messages, datagrams under the peer's name, and
/// sounds under "sound".
class MessageLog : public QObject
{
    Q_OBJECT

public:
    explicit MessageLog(QObject *parent = nullptr);
    ~MessageLog() override;

    /// The messages, each an object of `target`, `command` and `args`.
    QJsonArray messages() const { return m_messages; }
    void clear() { m_messages = QJsonArray(); }

private:
    void add(const QString &target, const QString &command, const QJsonArray &args);

    QJsonArray m_messages;
};

#endif
