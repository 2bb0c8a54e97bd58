#ifndef TERMINATIONSIGNALS_H
#define TERMINATIONSIGNALS_H

#include <QObject>

/// Turns SIGINT, SIGTERM and SIGHUP into a signal of the event loop, so that the program ends in good order.
class TerminationSignals : public QObject
{
    Q_OBJECT

public:
    explicit TerminationSignals(QObject *parent = nullptr);
    ~TerminationSignals() override;

signals:
    void received();
};

#endif
