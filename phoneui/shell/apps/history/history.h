#ifndef HISTORY_H
#define HISTORY_H

#include "baseappinterface.h"
#include "basewidget.h"
#include "qcalllist.h"

class HistoryItem;
class ListView;

/// The calls that were made, newest first: all of them, or those of one number when another application asks.
class History : public BaseWidget, public BaseAppInterface
{
    Q_OBJECT
    Q_INTERFACES(BaseAppInterface)

public:
    History();

    /// Shows all calls, over whatever is there; ends the application when it is the one that is seen.
    bool start(QWidget *parent, void *data) override;
    void end() override;
    void receiveMsg(const QString &command, const QByteArray &payload) override;

protected:
    void setupStatus() override;
    void showEvent(QShowEvent *event) override;

private:
    void open(const QString &number);
    void reload();
    HistoryItem *makeRow(const CallRecord &call) const;
    void setupTitle();
    void setupTexts();
    void setupTail();
    void softKeyClicked(int idx);
    void dial();

    ListView *m_list;
    QList<CallRecord> m_calls; ///< by row
    QString m_number; ///< whose calls show, empty for everybody's
};

#endif
