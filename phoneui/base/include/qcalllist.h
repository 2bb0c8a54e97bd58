#ifndef QCALLLIST_H
#define QCALLLIST_H

#include <QDateTime>
#include <QList>
#include <QObject>
#include <QScopedPointer>
#include <QString>

/// One call of the history.
struct CallRecord
{
    enum Direction { Outgoing = 0, Incoming = 1, Missed = 2 };

    QString number;
    QString name;
    Direction direction = Outgoing;
    QDateTime startedAt;
    int seconds = 0; ///< length of the conversation
};

class CallDatabase;

/// The call history, one SQLite file. GUI thread only.
class QCallList : public QObject
{
    Q_OBJECT

public:
    explicit QCallList(const QString &databasePath, QObject *parent = nullptr);
    ~QCallList() override;

    /// All calls, the newest first.
    QList<CallRecord> calls() const;
    /// Those with exactly this number, the newest first.
    QList<CallRecord> callsbyNumber(const QString &number) const;
    /// Non-zero when the call stands in the file.
    int addCall(const CallRecord &call);

private:
    QScopedPointer<CallDatabase> m_database;
};

#endif
