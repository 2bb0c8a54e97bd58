// Every command at every depth of screens, boxes and popups: all loops unwind, and the application works on.

#include "contactmanager.h"
#include "contactscreen.h"
#include "listview.h"
#include "neighbours.h"
#include "phonescript.h"
#include "tail.h"
#include "testcase.h"
#include "testmain.h"
#include "testphone.h"

#include <memory>

using namespace PhoneKeys;

/// Keys, each with the screen that is active after it. Two steps are no keys but come from outside.
using Road = QList<QPair<int, QString>>;
enum Outside { Directory = -1, Answer = -2 };
static constexpr auto Response = "http2ui_directory_service_response(str,int)";
Q_DECLARE_METATYPE(Road)

/// The directory goes with all that closes searches, and a first answer comes over its form.
static QString leftAfter(const QString &command, const char *elsewhere, const Road &road)
{
    const bool inDirectory = road.first().first == Directory;
    if (inDirectory && (command == "closeSearchAll()" || command.contains("disconnected")))
        return "";
    if (command == "closeSearchAll()" && road.first().second == "SearchAll")
        return "Contact";
    if (command == Response && inDirectory && (road.size() == 1 || road.last().first == Qt::Key_F7))
        return "SearchDirResult";
    return elsewhere ? QString(elsewhere) : road.last().second;
}

class DepthTest : public TestCase
{
    Q_OBJECT

    void setUp() override
    {
        m_phone.reset(new TestPhone);
        ContactManager *store = m_phone->core.contactManager();
        const int team = store->saveGroup(GroupData(-1, "Team", ""), false);
        store->saveGroupMember(m_phone->addContact("Kim"), {team});
        m_screen.reset(new ContactScreen);
        QVERIFY(m_screen->open());
    }

    void tearDown() override
    {
        m_screen.reset();
        m_phone.reset();
    }

private slots:
    void commandsInTheMiddle_data()
    {
        QTest::addColumn<QString>("command");
        QTest::addColumn<Road>("road");
        QTest::addColumn<QString>("left");
        // What is in front after each: nothing at all, a screen, or what was there before.
        const struct
        {
            const char *command;
            const char *left;
        } commands[] = {{"CloseContact()", ""},
                        {"start", ""},
                        {"wpsm2ui_noti_device_disconnected(int)", "Contact"},
                        {"newContact(str)", "NumberEdit"},
                        {"viewContact(str)", "DetailsDial"},
                        {"viewContactSearchDir(str)", "SearchDir"},
                        {Response, nullptr},
                        {"closeSearchAll()", nullptr},
                        {"showSearchAllToFindReceiver()", "SearchAll"},
                        {"api2ui_noti_contact_changed()", nullptr},
                        {"BuddyStatusChanged()", nullptr},
                        {"changedLanguage()", nullptr},
                        {"noti_phoneInit()", nullptr}};
        const auto all = roads();
        for (const auto &road : all) {
            for (const auto &command : commands) {
                QTest::addRow("%s in %s", command.command, road.first)
                    << command.command << road.second << leftAfter(command.command, command.left, road.second);
            }
        }
    }

    void commandsInTheMiddle()
    {
        QFETCH(QString, command);
        QFETCH(Road, road);
        QFETCH(QString, left);
        const auto nothing = [] { return !QApplication::activeWindow(); };
        PhoneScript script = walk(road);
        QString title;
        script.call([&] {
            title = m_phone->status.title();
            send(command);
        });
        if (left.isEmpty())
            script.until("everything to close", nothing);
        else
            script.untilActive(left.toLatin1());
        if (command == Response && left == road.last().second)
            script.until("a moment to pass", pause()).call([&] { QCOMPARE(m_phone->status.title(), title); });
        // From wherever it is, one command leads out again, and nothing is left on the stack.
        script.call([this] { send("CloseContact()"); }).until("everything to close", nothing);
        QCOMPARE(script.run(), QString());
        QVERIFY(!m_screen->app.isVisible());
        QCOMPARE(m_phone->core.contactManager()->getCountOfContact(), 1);
        // And the way in again is free.
        QVERIFY(m_screen->open());
        click(Qt::Key_Down);
        QCOMPARE(m_screen->selectedName(), QString("Kim"));
    }

    /// A screen that is asked for again while a modal window stands over it must not come up deaf to the keys.
    void aScreenComesForwardWithWhatStandsOverIt()
    {
        PhoneScript script;
        script.call([this] { send("newContact(str)"); })
            .untilActive("NumberEdit")
            .opens(Qt::Key_Context1, "SelectPopup")
            .call([this] { send("newContact(str)"); })
            .until("a moment to pass", pause())
            .opens(Qt::Key_Escape, "NumberEdit")
            .keys({Qt::Key_Escape})
            .until("everything to close", [] { return !QApplication::activeWindow(); });
        QCOMPARE(script.run(), QString());
    }

    void aNewLanguage_data()
    {
        QTest::addColumn<Road>("road");
        const auto all = roads();
        for (const auto &road : all) {
            const QString screen = road.second.last().second;
            if (!screen.endsWith("Box")
                && !screen.endsWith("Popup")) // these keep their words until they are answered
                QTest::newRow(road.first) << road.second;
        }
    }

    /// A screen that shows while the language changes looks as if it had been opened in the new one.
    void aNewLanguage()
    {
        QFETCH(Road, road);
        const QString there = lookAfter(road, "en_US", "de_DE"), fresh = lookAfter(road, "de_DE", "de_DE");
        QCOMPARE(there, fresh);
        QVERIFY(fresh != lookAfter(road, "en_US", "en_US"));
    }

private:
    /// What a screen puts off by a millisecond is done after it.
    static std::function<bool()> pause()
    {
        auto turns = std::make_shared<int>(0);
        return [turns] { return ++*turns > 5; };
    }

    static QList<QPair<const char *, Road>> roads()
    {
        const auto on = [](const Road &road, int key, const char *screen) { return road + Road{{key, screen}}; };
        const Road details{{Qt::Key_Return, "DetailsDial"}}, list{{Qt::Key_Context1, "GroupList"}};
        const Road form = on(details, Qt::Key_Context4, "NumberEdit");
        const Road assignment = on(on(form, Qt::Key_Down, "NumberEdit"), Qt::Key_Return, "GroupList_At_Contact");
        const Road groupForm = on(list, Qt::Key_Context2, "GroupAdd");
        const Road team = on(list, Qt::Key_Down, "GroupList");
        const Road group = on(team, Qt::Key_Return, "GroupDetail");
        const Road member = on(group, Qt::Key_Return, "DetailsDial");
        const Road people{{Qt::Key_Context2, "SearchAll"}};
        const Road search{{Directory, "SearchDir"}};
        const Road entry = on(on(search, Answer, "SearchDirResult"), Qt::Key_Return, "DirectorySearchDetail");
        const Road save = on(entry, Qt::Key_Context1, "MessageBox");
        const Road chooser = on(on(save, Qt::Key_Context3, "SearchAll"), Qt::Key_Down, "SearchAll");
        return {
            {"details", details},
            {"box", on(details, Qt::Key_Context3, "MessageBox")},
            {"form", form},
            {"popup", on(form, Qt::Key_Context1, "SelectPopup")},
            {"assignment", assignment},
            {"input", on(assignment, Qt::Key_Context1, "InputPopup")},
            {"groups", list},
            {"group form", groupForm},
            {"bells", on(on(groupForm, Qt::Key_Down, "GroupAdd"), Qt::Key_Return, "SoundSelectPopup")},
            {"group box", on(team, Qt::Key_Context3, "MessageBox")},
            {"group", group},
            {"member", member},
            {"member's box", on(member, Qt::Key_Context3, "MessageBox")},
            {"new member", on(group, Qt::Key_Context2, "NumberEdit")},
            {"search", people},
            {"details of one found", on(people, Qt::Key_F2, "DetailsDial")},
            {"directory", search},
            {"its popup", on(search, Qt::Key_F7, "SelectPopup")},
            {"results", on(search, Answer, "SearchDirResult")},
            {"entry", entry},
            {"entry's box", save},
            {"entry as new", on(save, Qt::Key_Context2, "NumberEdit")},
            {"contact for an entry", chooser},
            {"entry into a contact", on(chooser, Qt::Key_Return, "NumberEdit")},
        };
    }

    /// The second start of the application is no command, but it can come at the same moments.
    void send(const QString &command)
    {
        const QString answer = "run/directory-AbCdEf.xml";
        if (command == "start") {
            m_screen->app.start(nullptr, nullptr);
        } else if (command == Response) {
            m_phone->writeFile(
                answer,
                "<a><display count=\"30\"/><item><data><type>number</type><value>1</value></data></item></a>");
            m_phone->core.postAppMsg("contact", command, Neighbours::payload({m_phone->home.path(answer)}));
        } else {
            m_phone->core.postAppMsg("contact", command, QByteArray(""));
        }
    }

    PhoneScript walk(const Road &road)
    {
        PhoneScript script;
        for (const auto &step : road) {
            if (step.first > 0)
                script.keys({step.first});
            else
                script.call([=] { send(step.first == Directory ? "viewContactSearchDir(str)" : Response); });
            script.untilActive(step.second.toLatin1()).until("a moment to pass", pause());
        }
        return script;
    }

    /// The title, the soft keys and the rows at the end of the road.
    QString lookAfter(const Road &road, const char *before, const char *there)
    {
        QString look;
        m_phone->core.setLanguageName(before);
        PhoneScript script = walk(road);
        script.call([&] { m_phone->core.setLanguageName(there); })
            .until("a moment to pass", pause())
            .call([&] {
                QWidget *screen = QApplication::activeWindow();
                QStringList words{m_phone->status.title()};
                for (int i = 0; i < Tail::ButtonCount; ++i)
                    words.append(screen->findChild<Tail *>()->funcButtonText(i));
                const QList<ListView *> lists = screen->findChildren<ListView *>();
                for (ListView *list : lists) {
                    QImage picture(list->size(), QImage::Format_RGB32);
                    list->render(&picture, {}, {},
                                 QWidget::DrawWindowBackground); // no line edit: its cursor blinks
                    words.append(QString::number(qHashBits(picture.constBits(), picture.sizeInBytes())));
                }
                look = words.join('|');
                send("CloseContact()");
            })
            .until("everything to close", [] { return !QApplication::activeWindow(); });
        const QString fault = script.run();
        m_screen->open();
        return fault.isEmpty() ? look : fault;
    }

    std::unique_ptr<TestPhone> m_phone;
    std::unique_ptr<ContactScreen> m_screen;
};

PHONE_TEST_MAIN(DepthTest)
#include "tst_depth.moc"
