#include "monkeyrun.h"

#include "apps/aom/keymodule.h"
#include "apps/call/call.h"
#include "apps/history/history.h"
#include "apps/idle/idle.h"
#include "apps/message/messageapp.h"
#include "callmanager.h"
#include "contactmanager.h"
#include "faultyfiles.h"
#include "listview.h"
#include "phonekey.h"
#include "wpsmcontactmanager.h"

#include <QApplication>
#include <QRegularExpression>
#include <QThread>

#include <csignal>
#include <unistd.h>

static constexpr int StallLimit = 30; // s without a turn of any event loop
static constexpr int OddityLimit = 2500; // ms, more than a notice stands

int MonkeyRun::s_deepestLoop = 0;
qint64 MonkeyRun::s_longestStall = 0;
MonkeyEvent MonkeyRun::s_beforeStall;

void MonkeyRun::fail(const QString &fault)
{
    std::fprintf(stderr, "fault: %s\n", qPrintable(fault));
    _exit(1);
}

/// Qt's own warnings tell of misuse; the phone's tell what went wrong outside, which here is meant to.
void MonkeyRun::handleMessage(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    static const QRegularExpression ofQt("^Q[A-Z]\\w+(::|:| )");
    if (type != QtDebugMsg && type != QtInfoMsg && ofQt.match(text).hasMatch())
        fail("Qt says " + text);
    if (qEnvironmentVariableIsSet("MONKEY_LOG"))
        std::fprintf(stderr, "%s\n", qPrintable(text));
}

MonkeyRun::MonkeyRun(const Source &source, std::FILE *record) : m_source(source), m_record(record)
{
    std::signal(SIGALRM, [](int) {
        static const char text[] = "fault: no event loop turns any more\n";
        if (write(STDERR_FILENO, text, sizeof text - 1) >= 0)
            _exit(1);
    });
    qInstallMessageHandler(handleMessage);
    m_phone.addContacts(20);
    m_phone.core.contactManager()->saveGroup(GroupData(-1, "Team", ""), false);
    m_contacts.reset(new Contact);
    m_neighbours.emplace_back(new Idle);
    m_neighbours.emplace_back(new Call);
    m_neighbours.emplace_back(new MessageApp);
    m_neighbours.emplace_back(new History);
    m_neighbours.emplace_back(new KeyModule);
    m_phone.core.setLauncher([this](const QString &name, void *) {
        if (BaseAppInterface *app = m_phone.core.getAppMap().value(name))
            app->start(nullptr, nullptr);
    });
    m_phone.core.launch("idle", nullptr);
    connect(&m_timer, &QTimer::timeout, this, &MonkeyRun::step);
}

MonkeyRun::~MonkeyRun()
{
    m_contacts.reset();
    m_neighbours.clear();
    qInstallMessageHandler(nullptr);
}

void MonkeyRun::run()
{
    m_sinceEvent.start();
    m_sinceTurn.start();
    m_timer.start(0);
    QApplication::exec();
    alarm(0);
}

QString MonkeyRun::longestStall()
{
    return QString("%1 ms after %2").arg(s_longestStall).arg(QString::fromUtf8(s_beforeStall));
}

/// Nothing that runs an event loop happens in here: the timer would not come again before it ended.
void MonkeyRun::later(const std::function<void()> &action)
{
    QMetaObject::invokeMethod(this, action, Qt::QueuedConnection);
}

void MonkeyRun::step()
{
    alarm(StallLimit);
    s_deepestLoop = qMax(s_deepestLoop, QThread::currentThread()->loopLevel());
    const qint64 pause = m_sinceTurn.isValid() ? m_sinceTurn.restart() : 0;
    if (pause > s_longestStall) {
        s_longestStall = pause;
        s_beforeStall = m_last;
    }
    if (m_sinceEvent.elapsed() < (m_count % 3 == 0 ? 1 : 0) || PhoneKey::pending())
        return;
    const QString odd = oddity();
    if (odd.isEmpty())
        m_odd.invalidate();
    else if (!m_odd.isValid())
        m_odd.start();
    else if (m_odd.elapsed() > OddityLimit)
        fail(odd);
    if (!odd.isEmpty() || (m_doing != Task::None && !isTaskDone()))
        return;
    m_doing = Task::None;
    m_sinceEvent.start();
    MonkeyEvent event;
    if (m_isOver) {
        m_timer.stop();
        QCoreApplication::quit();
        return;
    }
    if (!m_source(&event)) {
        m_isOver = true;
        event = "close";
    }
    m_last = event;
    std::fprintf(m_record, "%s\n", event.constData());
    std::fflush(m_record);
    ++m_count;
    if (m_faultyFor > 0 && --m_faultyFor == 0)
        FaultyFiles::disarm();
    apply(event);
    m_sinceTurn.restart(); // what other programs did is not the phone's to answer for
}

void MonkeyRun::begin(Task task, int milliseconds)
{
    m_doing = task;
    m_taskTime = milliseconds;
    m_task.start();
}

bool MonkeyRun::isTaskDone()
{
    const bool isLate = m_task.elapsed() > m_taskTime;
    if (m_doing == Task::Closing) {
        const QString left = whatIsLeft();
        if (isLate && !left.isEmpty())
            fail("CloseContact() leaves " + left);
        return left.isEmpty();
    }
    if (m_doing == Task::Leaving) {
        if (contactWindows().isEmpty())
            return true;
        if (isLate)
            fail("Escape does not lead out of " + whatIsLeft());
        if (m_sinceEvent.elapsed() >= 4) {
            m_sinceEvent.start();
            applyInside("tap", QByteArray::number(Qt::Key_Escape));
        }
        return false;
    }
    if (m_doing == Task::Counting && isLate)
        checkCount();
    return isLate;
}

void MonkeyRun::post(const QByteArray &command, const QByteArray &payload)
{
    m_phone.core.postAppMsg("contact", QString::fromLatin1(command), payload);
}

void MonkeyRun::apply(const MonkeyEvent &event)
{
    const int blank = event.indexOf(' ');
    const QByteArray name = event.left(blank), words = blank < 0 ? QByteArray() : event.mid(blank + 1);
    const QList<QByteArray> numbers = words.split(' ');
    if (name == "send") {
        const int bar = words.lastIndexOf('|');
        post(words.left(bar), QByteArray::fromHex(words.mid(bar + 1)));
    } else if (name == "start") {
        later([this] { m_contacts->start(nullptr, nullptr); });
    } else if (name == "close") {
        if (m_contacts->isHidden())
            later([this] { m_contacts->start(nullptr, nullptr); });
        later([this] { post("CloseContact()", QByteArray("")); });
        begin(Task::Closing, 5000);
    } else if (name == "leave") {
        begin(Task::Leaving, 15000);
    } else if (name == "wait") {
        begin(Task::Waiting, words.toInt());
    } else if (name == "count") {
        post("api2ui_noti_contact_changed()", QByteArray(""));
        begin(Task::Counting, 20);
    } else if (name == "language") {
        later([=] { m_phone.core.setLanguageName(words); });
    } else if (name == "broadcast") {
        later([=] { emit m_phone.core.signalBroadcast(words, QByteArray()); });
    } else if (name == "call") {
        m_phone.core.callManager()->setCallState(words);
    } else if (name == "device") {
        connectDevice(words.toInt());
    } else if (name == "phonebook") {
        m_phone.provisionPhonebook(words.toInt());
    } else if (name == "answer") {
        answer(words);
    } else if (name == "fault") {
        m_faultyFor = 30;
        FaultyFiles::arm(QFile::encodeName(m_phone.home.root()), 1 + numbers.value(0).toInt(),
                         FaultyFiles::Fault(numbers.value(1).toInt()));
    } else if (name == "add" || name == "remove" || name == "group") {
        changeStore(name, words);
    } else {
        // Keys need a screen.
        if (contactWindows().isEmpty())
            later([this] { m_contacts->start(nullptr, nullptr); });
        applyInside(name, words);
    }
}

void MonkeyRun::applyInside(const QByteArray &name, const QByteArray &words)
{
    const int code = words.toInt();
    if (name == "text") {
        PhoneKey::postText(QString::fromUtf8(words));
    } else if (name == "burst") {
        const QList<QByteArray> codes = words.split(' ');
        for (const QByteArray &key : codes)
            applyInside("tap", key);
    } else {
        if (name != "release")
            PhoneKey::post(code, true);
        for (int i = 0; name == "hold" && i < 3; ++i)
            PhoneKey::post(code, true, true);
        if (name != "press")
            PhoneKey::post(code, false);
    }
}

/// What another program of the phone does to the stores, of which the contacts may hear or not.
void MonkeyRun::changeStore(const QByteArray &name, const QByteArray &words)
{
    ContactManager *store = m_phone.core.contactManager();
    if (name == "group") {
        store->saveGroup(GroupData(-1, "Group " + words, ""), false);
        return;
    }
    const QList<ContactData> all = store->getAllContacts();
    if (name == "add" && all.size() < 60)
        store->saveContact(person(QString::fromUtf8(words), {"55", words}), false);
    else if (!all.isEmpty())
        store->deleteContact(all.at(words.toInt() % all.size()).id, ContactData::LocalContact);
}

void MonkeyRun::connectDevice(int contacts)
{
    if (m_faultyFor > 0)
        return; // the device's program has files of its own to fail
    QStringList names;
    for (int i = 0; i < contacts; ++i)
        names.append(QString("Mobile %1").arg(i));
    if (contacts < 0)
        m_phone.disconnectMobile();
    else
        m_phone.connectMobile(names);
    post(contacts < 0 ? "wpsm2ui_noti_device_disconnected(int)" : "wpsm2ui_noti_device_connected(int)",
         QByteArray(4, '\0'));
}

void MonkeyRun::answer(const QByteArray &document)
{
    const QString name = QString("run/directory-%1.xml").arg(m_count, 6, 10, QChar('0'));
    if (!document.isEmpty() && m_faultyFor == 0)
        m_phone.writeFile(name, document);
    m_phone.send("contact", "http2ui_directory_service_response(str,int)", {m_phone.home.path(name), 0});
}

bool MonkeyRun::isOfContacts(const QWidget *window) const
{
    while (window && window != m_contacts.get())
        window = window->parentWidget();
    return window;
}

QWidgetList MonkeyRun::contactWindows() const
{
    QWidgetList windows;
    const QWidgetList all = TestScreen::windows().windows();
    for (QWidget *window : all) {
        if (isOfContacts(window))
            windows.append(window);
    }
    return windows;
}

/// The contacts' windows, screens and event loops; loops of others may lie above theirs.
QString MonkeyRun::whatIsLeft() const
{
    QStringList left;
    const QWidgetList windows = contactWindows();
    for (const QWidget *window : windows)
        left.append(window->metaObject()->className());
    const bool othersOpen = !QApplication::topLevelWidgets().isEmpty()
        && TestScreen::windows().windows().size() > windows.size() + 2; // the status bar and the idle screen
    if (!othersOpen) {
        const auto screens = m_contacts->findChildren<BaseWidget *>();
        for (const BaseWidget *screen : screens)
            left.append(QString("an undeleted ") + screen->metaObject()->className());
        if (QThread::currentThread()->loopLevel() > 1)
            left.append("a running event loop");
    }
    return left.join(", ");
}

/// What may be so for a moment and must not stay.
QString MonkeyRun::oddity() const
{
    const QWidgetList windows = contactWindows();
    for (QWidget *window : windows) {
        const QString name = window->metaObject()->className();
        const QWidget *owner = window->parentWidget() ? window->parentWidget()->window() : nullptr;
        if (owner && owner != m_contacts.get() && !owner->isVisible())
            return name + " stands over a hidden " + owner->metaObject()->className();
        const QList<ListView *> lists = window->findChildren<ListView *>();
        for (ListView *list : lists) {
            const int at = list->selectedIdx();
            // A list that was emptied keeps its selection for the rows that may come.
            if (list->isVisible() && list->itemSize() > 0 && (at < -1 || at >= list->itemSize()))
                return QString("%1 selects %2 of %3 in %4")
                    .arg(list->metaObject()->className())
                    .arg(at)
                    .arg(list->itemSize())
                    .arg(list->window()->metaObject()->className());
        }
    }
    return focusOddity(TestScreen::windows().top());
}

QString MonkeyRun::focusOddity(QWidget *top) const
{
    if (!top)
        return QString();
    const QString name = top->metaObject()->className();
    if (QApplication::activeWindow() != top)
        return name + " is on top and not active";
    const QWidget *modal = QApplication::activeModalWidget(), *ancestor = top;
    while (ancestor && ancestor != modal)
        ancestor = ancestor->parentWidget();
    if (modal && !ancestor)
        return name + " is on top and blocked by " + modal->metaObject()->className();
    const QWidget *focus = QApplication::focusWidget();
    if (focus && (focus->window() != top || !focus->isVisible()))
        return QString("the focus is in a hidden %1 of %2").arg(focus->metaObject()->className(), name);
    return QString();
}

void MonkeyRun::checkCount()
{
    static const QRegularExpression place("\\((\\d+)/(\\d+)\\)$");
    const auto match = place.match(m_phone.status.title());
    const int total = m_phone.core.contactManager()->getCountOfContact()
        + m_phone.core.wpsmContactManager()->getCountOfContact();
    if (m_faultyFor > 0 || QApplication::activeWindow() != m_contacts.get() || !match.hasMatch())
        return;
    if (match.captured(2).toInt() != total || match.captured(1).toInt() > total)
        fail(QString("the title says %1 of %2 contacts").arg(match.captured(0)).arg(total));
}
