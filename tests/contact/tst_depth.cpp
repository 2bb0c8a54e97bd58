// Every command at every depth of screens, boxes and popups: all loops unwind, and the application works on.

#include "contactscreen.h"
#include "phonekey.h"
#include "phonetest.h"

using namespace PhoneKeys;

static const char Response[] = "http2ui_directory_service_response(str,int)";

class DepthTest : public PhoneTest
{
    Q_OBJECT

    void setUp() override
    {
        PhoneTest::setUp();
        store()->saveGroupMember(m_phone->addContact("Kim"), {addGroup("Team")});
        m_contacts.reset(new ContactScreen);
        QVERIFY(m_contacts->open());
    }
    void tearDown() override
    {
        m_contacts.reset();
        PhoneTest::tearDown();
    }

private slots:
    void commandsInTheMiddle_data()
    {
        QTest::addColumn<QString>("command");
        QTest::addColumn<QString>("road");
        QTest::addColumn<QString>("left");
        // Each with what is in front after it: nothing at all, a screen, or what was there before.
        const QList<QPair<QStringList, QString>> commands
            = {{{"CloseContact()", "start"}, ""},
               {{"wpsm2ui_noti_device_disconnected(int)"}, "Contact"},
               {{"newContact(str)"}, "NumberEdit"},
               {{"viewContact(str)"}, "DetailsDial"},
               {{"viewContactSearchDir(str)"}, "SearchDir"},
               {{"showSearchAllToFindReceiver()"}, "SearchAll"},
               {{Response, "closeSearchAll()", "api2ui_noti_contact_changed()", "BuddyStatusChanged()",
                 "changedLanguage()", "noti_phoneInit()"},
                "same"}};
        for (const QString &road : roads()) {
            for (const auto &group : commands) {
                for (const QString &command : group.first)
                    QTest::newRow(qPrintable(command + " after " + road))
                        << command << road << leftAfter(command, group.second, road);
            }
        }
    }

    void commandsInTheMiddle()
    {
        QFETCH(QString, command);
        QFETCH(QString, road);
        QFETCH(QString, left);
        PhoneScript script = walk(road);
        QString before;
        script.call([&] {
            before = title();
            tell(command);
        });
        if (left.isEmpty())
            script.until("everything to close", nothingShows);
        else
            script.untilActive(left.toLatin1());
        if (command == Response && road.endsWith(left))
            script.until("a moment to pass", pause()).call([&] { QCOMPARE(title(), before); });
        // From wherever it is, one command leads out again, and nothing is left on the stack.
        script.call([this] { tell("CloseContact()"); }).until("everything to close", nothingShows);
        QCOMPARE(script.run(), QString());
        QVERIFY(!m_contacts->app.isVisible());
        QCOMPARE(store()->getCountOfContact(), 1);
        // And the way in again is free.
        QVERIFY(m_contacts->open());
        click(Qt::Key_Down);
        QCOMPARE(m_contacts->selectedName(), QString("Kim"));
    }

    /// A screen that is asked for again while a modal window stands over it must not come up deaf to the keys.
    void aScreenComesForwardWithWhatStandsOverIt()
    {
        PhoneScript script;
        script.call([this] { tell("newContact(str)"); })
            .untilActive("NumberEdit")
            .opens(Qt::Key_Context1, "SelectPopup")
            .call([this] { tell("newContact(str)"); })
            .until("a moment to pass", pause())
            .opens(Qt::Key_Escape, "NumberEdit")
            .keys({Qt::Key_Escape})
            .until("everything to close", nothingShows);
        QCOMPARE(script.run(), QString());
    }

    /// A screen that shows while the language changes looks as if it had been opened in the new one.
    void aNewLanguage()
    {
        for (const QString &road : roads()) {
            if (road.endsWith("Box") || road.endsWith("Popup")) // these keep their words until they are answered
                continue;
            const QString there = lookAfter(road, "en_US", "de_DE"), fresh = lookAfter(road, "de_DE", "de_DE");
            QCOMPARE(road + there, road + fresh);
            QVERIFY2(fresh != lookAfter(road, "en_US", "en_US"), qPrintable(road));
        }
    }

private:
    /// Keys, each with the screen that is active after it. Two steps are no keys but come from outside.
    static QStringList roads()
    {
        const QString details = "Ok DetailsDial", box = details + " Soft3 MessageBox",
                      form = details + " Soft4 NumberEdit";
        const QString popup = form + " Soft1 SelectPopup", groups = "Soft1 GroupList",
                      groupForm = groups + " Soft2 GroupAdd";
        const QString assignment = form + " Down NumberEdit Ok GroupList_At_Contact",
                      input = assignment + " Soft1 InputPopup";
        const QString bells = groupForm + " Down GroupAdd Ok SoundSelectPopup", team = groups + " Down GroupList";
        const QString groupBox = team + " Soft3 MessageBox", group = team + " Ok GroupDetail",
                      newMember = group + " Soft2 NumberEdit";
        const QString member = group + " Ok DetailsDial", memberBox = member + " Soft3 MessageBox";
        const QString search = "Soft2 SearchAll", searched = search + " F2 DetailsDial",
                      directory = "Directory SearchDir";
        const QString methods = directory + " F7 SelectPopup", found = directory + " Answer SearchDirResult";
        const QString entry = found + " Ok DirectorySearchDetail", save = entry + " Soft1 MessageBox";
        const QString asNew = save + " Soft2 NumberEdit", choice = save + " Soft3 SearchAll Down SearchAll",
                      added = choice + " Ok NumberEdit";
        return {details,   box,      form,  popup,     assignment, input,     groups, groupForm,
                bells,     groupBox, group, newMember, member,     memberBox, search, searched,
                directory, methods,  found, entry,     save,       asNew,     choice, added};
    }
    /// The directory goes with all that closes searches, and a first answer comes over its form.
    static QString leftAfter(const QString &command, const QString &elsewhere, const QString &road)
    {
        const bool inDirectory = road.startsWith("Directory");
        if (inDirectory && (command == "closeSearchAll()" || command.contains("disconnected")))
            return "";
        if (command == "closeSearchAll()" && road.startsWith("Soft2"))
            return "Contact";
        if (command == Response && inDirectory && !road.contains("Answer"))
            return "SearchDirResult";
        return elsewhere == "same" ? road.section(' ', -1) : elsewhere;
    }
    PhoneScript walk(const QString &road)
    {
        PhoneScript script;
        const QStringList steps = road.split(' ');
        for (int i = 0; i < steps.size(); i += 2) {
            const QString step = steps.at(i);
            if (const int key = PhoneKey::code(step))
                script.keys({key});
            else
                script.call([=] { tell(step == "Directory" ? "viewContactSearchDir(str)" : Response); });
            script.untilActive(steps.at(i + 1).toLatin1()).until("a moment to pass", pause());
        }
        return script;
    }
    /// The second start of the application is no command, but it can come at the same moments.
    void tell(const QString &command)
    {
        const QString answer = "run/directory-AbCdEf.xml";
        if (command == "start") {
            m_contacts->app.start(nullptr, nullptr);
        } else if (command == Response) {
            m_phone->writeFile(
                answer,
                "<a><display count=\"30\"/><item><data><type>number</type><value>1</value></data></item></a>");
            m_phone->send("contact", command, {m_phone->home.path(answer)});
        } else {
            m_phone->core.postAppMsg("contact", command, QByteArray(""));
        }
    }
    static bool nothingShows() { return !QApplication::activeWindow(); }
    /// What a screen puts off by a millisecond is done after it.
    static std::function<bool()> pause()
    {
        auto turns = std::make_shared<int>(0);
        return [turns] { return ++*turns > 5; };
    }
    /// The title, the soft keys and the rows at the end of the road.
    QString lookAfter(const QString &road, const char *before, const char *there)
    {
        QString look;
        m_phone->core.setLanguageName(before);
        PhoneScript script = walk(road);
        script.call([&] { m_phone->core.setLanguageName(there); })
            .until("a moment to pass", pause())
            .call([&] {
                const QWidget *screen = QApplication::activeWindow();
                QStringList words = softKeys(screen) + QStringList{title()};
                for (ListView *list : screen->findChildren<ListView *>()) {
                    QImage picture(list->size(), QImage::Format_RGB32);
                    // Without the line edit: its cursor blinks.
                    list->render(&picture, {}, {}, QWidget::DrawWindowBackground);
                    words.append(QString::number(qHashBits(picture.constBits(), picture.sizeInBytes())));
                }
                look = words.join('|');
                tell("CloseContact()");
            })
            .until("everything to close", nothingShows);
        const QString fault = script.run();
        m_contacts->open();
        return fault.isEmpty() ? look : fault;
    }

    std::unique_ptr<ContactScreen> m_contacts;
};

PHONE_TEST_MAIN(DepthTest)
#include "tst_depth.moc"
