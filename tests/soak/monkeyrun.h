#ifndef MONKEYRUN_H
#define MONKEYRUN_H

#include "monkeyevents.h"

#include "contact.h"
#include "testphone.h"
#include "testscreen.h"

#include <QElapsedTimer>
#include <QTimer>

#include <cstdio>
#include <functional>
#include <memory>
#include <vector>

/// A phone to which one event after the other happens, each from a timer, so that the event loops of screens go on
/// inside each other. Between two events it looks whether all is as it must be; what is not ends the program at
/// once with a line that begins with "fault:".
class MonkeyRun : public QObject
{
public:
    /// Draws the next event; false when there is none.
    using Source = std::function<bool(MonkeyEvent *event)>;

    /// The record takes each event before it happens.
    MonkeyRun(const Source &source, std::FILE *record);
    ~MonkeyRun() override;

    /// Returns when all events are done and all windows have gone.
    void run();

    static int deepestLoop() { return s_deepestLoop; }
    /// The longest time between two turns of the event loop, in milliseconds, and the event before it.
    static QString longestStall();

private:
    /// What an event begins and the following turns finish.
    enum class Task { None, Waiting, Closing, Leaving, Counting };

    void step();
    void begin(Task task, int milliseconds);
    bool isTaskDone();
    void apply(const MonkeyEvent &event);
    void applyInside(const QByteArray &name, const QByteArray &words);
    void connectDevice(int contacts);
    void answer(const QByteArray &document);
    void changeStore(const QByteArray &name, const QByteArray &words);
    void post(const QByteArray &command, const QByteArray &payload);
    void later(const std::function<void()> &action);

    bool isOfContacts(const QWidget *window) const;
    QWidgetList contactWindows() const;
    QString whatIsLeft() const;
    QString oddity() const;
    QString focusOddity(QWidget *top) const;
    void checkCount();
    [[noreturn]] static void fail(const QString &fault);
    static void handleMessage(QtMsgType type, const QMessageLogContext &context, const QString &text);

    static int s_deepestLoop;
    static qint64 s_longestStall; ///< ms
    static MonkeyEvent s_beforeStall;

    const Source m_source;
    std::FILE *m_record;
    TestScreen m_screen;
    TestPhone m_phone;
    std::unique_ptr<Contact> m_contacts;
    std::vector<std::unique_ptr<QObject>> m_neighbours;
    QTimer m_timer;
    QElapsedTimer m_sinceEvent, m_sinceTurn, m_odd, m_task;
    MonkeyEvent m_last;
    Task m_doing = Task::None;
    int m_taskTime = 0; ///< ms
    int m_count = 0;
    int m_faultyFor = 0; ///< events until the files are well again
    bool m_isOver = false;
};

#endif
