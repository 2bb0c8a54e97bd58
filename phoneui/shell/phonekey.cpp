#include "phonekey.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QQueue>
#include <QTimer>
#include <QWindow>

namespace PhoneKey {

namespace {

struct Entry
{
    const char *name;
    int code;
    bool repeats;
};

const Entry entries[] = {
    {"Up", Qt::Key_Up, true},
    {"Down", Qt::Key_Down, true},
    {"Left", Qt::Key_Left, true},
    {"Right", Qt::Key_Right, true},
    {"Ok", Qt::Key_Return, false},
    {"Esc", Qt::Key_Escape, false},
    {"Soft1", Qt::Key_Context1, false},
    {"Soft2", Qt::Key_Context2, false},
    {"Soft3", Qt::Key_Context3, false},
    {"Soft4", Qt::Key_Context4, false},
    {"F1", Qt::Key_F1, false},
    {"F2", Qt::Key_F2, false},
    {"F3", Qt::Key_F3, false},
    {"F4", Qt::Key_F4, false},
    {"F5", Qt::Key_F5, false},
    {"F6", Qt::Key_F6, false},
    {"F7", Qt::Key_F7, false},
    {"F8", Qt::Key_F8, false},
    {"F9", Qt::Key_F9, false},
    {"F10", Qt::Key_F10, false},
    {"VolumeUp", Qt::Key_VolumeUp, true},
    {"VolumeDown", Qt::Key_VolumeDown, true},
    {"VolumeMute", Qt::Key_VolumeMute, false},
    {"0", Qt::Key_0, false},
    {"1", Qt::Key_1, false},
    {"2", Qt::Key_2, false},
    {"3", Qt::Key_3, false},
    {"4", Qt::Key_4, false},
    {"5", Qt::Key_5, false},
    {"6", Qt::Key_6, false},
    {"7", Qt::Key_7, false},
    {"8", Qt::Key_8, false},
    {"9", Qt::Key_9, false},
    {"Star", Qt::Key_Asterisk, false},
    {"Hash", Hash, false},
    {"Backspace", Qt::Key_Backspace, true},
};

const Entry *find(int code)
{
    for (const Entry &entry : entries) {
        if (entry.code == code)
            return &entry;
    }
    return nullptr;
}

/// The keys on their way to the screens. Each one's window is looked up in its own turn, when the key before it has
/// done its work: between two screens none has the focus for a moment, and a key pressed quickly must neither get
/// lost there nor reach the screen that has just gone.
class KeyQueue : public QObject
{
public:
    explicit KeyQueue(QObject *parent) : QObject(parent) { }
    ~KeyQueue() override { qDeleteAll(m_keys); }

    bool isRunning() const { return m_isRunning; }

    void append(QKeyEvent *key)
    {
        m_keys.enqueue(key);
        if (!m_isRunning)
            next();
    }

private:
    static constexpr int LongestWait = 500; // ms without any window for keys

    void next()
    {
        m_isRunning = true;
        m_waited.start();
        QMetaObject::invokeMethod(
            this, [this] { deliver(); }, Qt::QueuedConnection);
    }

    void deliver()
    {
        QWindow *window = QGuiApplication::focusWindow();
        const bool takesKeys = window && window->isVisible();
        if (!takesKeys && m_waited.elapsed() < LongestWait) {
            QTimer::singleShot(1, this, [this] { deliver(); });
            return;
        }
        QKeyEvent *key = m_keys.dequeue();
        if (takesKeys)
            QCoreApplication::postEvent(window, key);
        else
            delete key;
        // The next turn comes behind the key, also in an event loop that the key opens.
        if (m_keys.isEmpty())
            m_isRunning = false;
        else
            next();
    }

    QQueue<QKeyEvent *> m_keys;
    QElapsedTimer m_waited;
    bool m_isRunning = false;
};

QPointer<KeyQueue> queue;

void postToFocus(QEvent::Type type, int code, const QString &text, bool repeated)
{
    if (!queue)
        queue = new KeyQueue(QCoreApplication::instance());
    queue->append(new QKeyEvent(type, code, Qt::NoModifier, text, repeated));
}

}

int code(const QString &name)
{
    for (const Entry &entry : entries) {
        if (name == QLatin1String(entry.name))
            return entry.code;
    }
    return 0;
}

QString name(int code)
{
    const Entry *entry = find(code);
    return entry ? QString::fromLatin1(entry->name) : QString();
}

bool repeats(int code)
{
    const Entry *entry = find(code);
    return entry && entry->repeats;
}

void post(int code, bool press, bool repeated)
{
    postToFocus(press ? QEvent::KeyPress : QEvent::KeyRelease, code, QString(), repeated);
}

bool pending()
{
    return queue && queue->isRunning();
}

void postText(const QString &text)
{
    for (const QChar c : text) {
        const int key = c.toUpper().unicode();
        postToFocus(QEvent::KeyPress, key, c, false);
        postToFocus(QEvent::KeyRelease, key, c, false);
    }
}

}
