// The details screen and what is done from it, the group assignment, and commands that come in the middle.

#include "callmanager.h"
#include "contactmanager.h"
#include "contactscreen.h"
#include "detailsdial.h"
#include "grouplist_at_contact.h"
#include "listview.h"
#include "listviewcheckitem.h"
#include "listviewcontactitem.h"
#include "numberedit.h"
#include "phonescript.h"
#include "qcalllist.h"
#include "testcase.h"
#include "testmain.h"
#include "testphone.h"
#include "wpsmcontactmanager.h"

#include <QSettings>

#include <memory>

using namespace PhoneKeys;

/// Keys, each with the screen that is active after it.
using Road = QList<QPair<int, QString>>;
Q_DECLARE_METATYPE(Road)

class DetailsTest : public TestCase
{
    Q_OBJECT

    void setUp() override { m_phone.reset(new TestPhone); }
    void tearDown() override
    {
        m_details.reset();
        m_screen.reset();
        m_phone.reset();
    }

private slots:
    void rowsOfAContact();
    void softKeysFollowTheRow();
    void longTextsFlow_data();
    void longTextsFlow();
    void messagesNeedALogin_data();
    void messagesNeedALogin();
    void callsAndLeaves();
    void historyOfANumber();
    void deletes();
    void groupMarksExcludeEachOther();
    void doneWithoutMarksIsUnassigned();
    void refusesGroupNames_data();
    void refusesGroupNames();
    void commandsInTheMiddle_data();
    void commandsInTheMiddle();
    void pictures();

private:
    void open(int id, int type = ContactData::LocalContact)
    {
        m_details.reset(new DetailsDial(nullptr, id, type));
        QVERIFY(showAndActivate(m_details.get()));
    }
    ListView *list() const { return m_details->findChild<ListView *>("DetailsDial::m_listView"); }
    QStringList rows() const
    {
        QStringList texts;
        for (int i = 0; i < list()->itemSize(); ++i)
            texts.append(dynamic_cast<ListViewContactItem *>(list()->item(i))->label() + "="
                         + list()->item(i)->text());
        return texts;
    }
    QStringList softKeys() const
    {
        QStringList texts;
        for (int i = 0; i < Tail::ButtonCount; ++i)
            texts.append(m_details->findChild<Tail *>()->funcButtonText(i));
        return texts;
    }
    /// What a screen puts off by a millisecond is done after it.
    static std::function<bool()> pause()
    {
        auto turns = std::make_shared<int>(0);
        return [turns] { return ++*turns > 5; };
    }
    int fullContact()
    {
        ContactData contact;
        contact.name = "Kim";
        contact.setNumbers({"1", "2"}, {ContactData::Mobile, ContactData::Fax});
        contact.setEmails({"kim@example.org"});
        contact.bell = "/tones/basicring/Morning.wav";
        contact.memo = "met in spring";
        ContactManager *store = m_phone->core.contactManager();
        const int id = store->saveContact(contact, false);
        const int team = store->saveGroup(GroupData(-1, "Team", ""), false);
        const int chess = store->saveGroup(GroupData(-1, "Chess", ""), false);
        store->saveGroupMember(id, {chess, team});
        return id;
    }

    std::unique_ptr<TestPhone> m_phone;
    std::unique_ptr<DetailsDial> m_details;
    std::unique_ptr<ContactScreen> m_screen;
};

void DetailsTest::rowsOfAContact()
{
    open(fullContact());
    QCOMPARE(m_phone->status.title(), QString("Contacts | Details"));
    QCOMPARE(rows(),
             QStringList({"Name=Kim", "Group=Chess,Team", "Mobile Number=1", "Fax Number=2",
                          "Email=kim@example.org", "Bell=Morning", "Memo=met in spring"}));
    QCOMPARE(m_details->getNumberCountOfCurrentContact(), 2);
    open(m_phone->addContact("Plain", {"7"}));
    QCOMPARE(rows(), QStringList({"Name=Plain", "Group=Unassigned", "Company Number=7"}));

    m_phone->connectMobile({"Mobile"});
    m_phone->core.wpsmContactManager()->readWpsmConfigFile();
    const ContactData mobile = m_phone->core.wpsmContactManager()->getAllContacts().value(0);
    open(mobile.id, mobile.type);
    QCOMPARE(rows(), QStringList({"Name=Mobile", "Mobile Number=0701234567"}));
    click(Qt::Key_Down);
    QCOMPARE(softKeys(), QStringList({"Call", "Message", "", ""}));
}

void DetailsTest::softKeysFollowTheRow()
{
    open(fullContact());
    const QStringList plain{"", "", "Delete", "Edit"}, number{"Call", "Message", "Delete", "Edit"};
    for (const QStringList &expected : {plain, plain, number, number, plain, plain, plain, plain}) {
        QCOMPARE(softKeys(), expected);
        click(Qt::Key_Down);
    }
}

void DetailsTest::longTextsFlow_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<bool>("flows");
    QTest::newRow("fits exactly") << 231 << false;
    QTest::newRow("a pixel more") << 232 << true;
}

void DetailsTest::longTextsFlow()
{
    QFETCH(int, width);
    QFETCH(bool, flows);
    // Letters of several widths make up any width.
    const QFontMetrics metrics((QFont()));
    QString text;
    while (metrics.horizontalAdvance(text) != width && text.size() < 60) {
        // The last letters are exchanged for narrower ones until the width is met.
        text = QString(text.size() < 12 ? 18 : text.size() + 1, 'n');
        for (int i = text.size() - 1; i >= 0 && metrics.horizontalAdvance(text) > width; --i)
            text[i] = 'i';
    }
    QCOMPARE(metrics.horizontalAdvance(text), width);
    ContactData contact;
    contact.name = "Kim";
    contact.memo = text;
    contact.setNumbers({"1"}, {ContactData::Mobile});
    open(m_phone->core.contactManager()->saveContact(contact, false));
    list()->setSelectedIdx(3);
    m_details->startTimer(); // the wait is over
    m_details->flowString();
    QCOMPARE(list()->item(3)->text(), flows ? text.mid(1) : text);
    QCOMPARE(m_details->getFocusedNumber(3), text);
    for (int i = 1; i < text.size() && flows; ++i)
        m_details->flowString();
    QCOMPARE(list()->item(3)->text(), text);
    m_details->flowString();
    list()->setSelectedIdx(2);
    QCOMPARE(list()->item(3)->text(), text);
}

void DetailsTest::messagesNeedALogin_data()
{
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QString>("id");
    QTest::addColumn<bool>("sends");
    QTest::newRow("logged out") << ""
                                << "" << false;
    QTest::newRow("by mode") << "USER"
                             << "" << true;
    QTest::newRow("by id") << ""
                           << "4711" << true;
}

void DetailsTest::messagesNeedALogin()
{
    QFETCH(QString, mode);
    QFETCH(QString, id);
    {
        QSettings settings(m_phone->core.sipConfigFileName("phone_info.conf"), QSettings::IniFormat);
        settings.setValue("Prov_Info/LoginMode", mode);
        settings.setValue("Prov_Info/Id", id);
    }
    ListeningApp message("message");
    open(fullContact());
    list()->setSelectedIdx(2);
    PhoneScript script;
    script.keys({Qt::Key_Context2});
    const auto toast = [this] { return m_details->findChild<QWidget *>("Toast:DetailsDial") != nullptr; };
    QFETCH(bool, sends);
    if (!sends)
        script.until("the toast", toast).keys({Qt::Key_Return}).until("it to go", [toast] { return !toast(); });
    QCOMPARE(script.run(), QString());
    QCOMPARE(message.commands, sends ? QStringList("newMessage(str)") : QStringList());
}

void DetailsTest::callsAndLeaves()
{
    ListeningApp contact("contact");
    open(fullContact());
    m_details->clickedListViewItem(0);
    QVERIFY(m_details->isVisible());
    m_phone->core.callManager()->setCallState("CONNCECT");
    click(Qt::Key_Down);
    click(Qt::Key_Down);
    click(Qt::Key_Context1);
    QVERIFY(m_details->isVisible());
    m_phone->core.callManager()->setCallState("IDLE");
    click(Qt::Key_Return);
    QVERIFY(!m_details->isVisible());
    QCOMPARE(contact.commands, QStringList("CloseContact()"));
}

void DetailsTest::historyOfANumber()
{
    ListeningApp history("history");
    open(fullContact());
    list()->setSelectedIdx(2);
    CallRecord call;
    call.number = "1";
    call.startedAt = QDateTime::currentDateTime();
    QVERIFY(m_phone->core.callList()->addCall(call));
    m_details->showHistoryByNumber();
    QCoreApplication::processEvents();
    QCOMPARE(history.commands, QStringList("viewDetail(str)"));
    QVERIFY(m_details->isVisible());
    m_details->setTailClickedClose(true);
    m_details->showHistoryByNumber();
    QVERIFY(!m_details->isVisible());
    QCOMPARE(history.commands.size(), 1);
}

void DetailsTest::deletes()
{
    ListeningApp idle("idle");
    const int id = fullContact();
    open(id);
    PhoneScript script;
    QCOMPARE(script.keys({Qt::Key_Context3})
                 .untilActive("MessageBox")
                 .keys({Qt::Key_Escape})
                 .untilActive("DetailsDial")
                 .call([this, id] { QVERIFY(m_phone->core.contactManager()->getContactName(id) == "Kim"); })
                 .keys({Qt::Key_Context3})
                 .untilActive("MessageBox")
                 .keys({Qt::Key_Context3})
                 .until("the toast", [this] { return m_details->findChild<QWidget *>("Toast:DetailsDial"); })
                 .keys({Qt::Key_Return})
                 .until("the screen to close", [this] { return !m_details->isVisible(); })
                 .run(),
             QString());
    QCOMPARE(m_phone->core.contactManager()->getCountOfContact(), 0);
    QCOMPARE(idle.commands, QStringList("contactDeletedNumber(str)"));
}

void DetailsTest::groupMarksExcludeEachOther()
{
    ContactManager *store = m_phone->core.contactManager();
    const int team = store->saveGroup(GroupData(-1, "Team", ""), false);
    store->saveGroup(GroupData(-1, "Chess", ""), false);
    GroupList_At_Contact screen(nullptr, {team});
    QVERIFY(showAndActivate(&screen));
    const auto chosen = [&screen] {
        QStringList names;
        const QList<GroupData> groups = screen.getGroupSelection();
        for (const GroupData &group : groups)
            names.append(group.name);
        return names;
    };
    QCOMPARE(chosen(), QStringList("Team"));
    const QList<QPair<Qt::Key, QStringList>> steps = {
        {Qt::Key_Return, {"Unassigned"}}, // the built-in group drives the others out
        {Qt::Key_Return, {}}, // it can be taken away itself
        {Qt::Key_Down, {}},
        {Qt::Key_Return, {"Team"}},
        {Qt::Key_Down, {"Team"}},
        {Qt::Key_Return, {"Team", "Chess"}},
        {Qt::Key_Return, {"Team"}},
        {Qt::Key_Up, {"Team"}},
        {Qt::Key_Return, {"Unassigned"}}, // the last mark brings it back
    };
    for (const auto &step : steps) {
        click(step.first);
        QCOMPARE(chosen(), step.second);
    }
    TestScreen::shot("groups-at-contact");
}

void DetailsTest::doneWithoutMarksIsUnassigned()
{
    GroupList_At_Contact screen(nullptr, {});
    QVERIFY(showAndActivate(&screen));
    QVERIFY(screen.getGroupSelection().isEmpty());
    int closed = 0;
    connect(&screen, &GroupList_At_Contact::closeEvent, this, [&closed] { ++closed; });
    click(Qt::Key_Context4);
    QVERIFY(!screen.isVisible());
    QCOMPARE(closed, 1);
    QCOMPARE(screen.getGroupSelection().value(0).id, 1);
}

void DetailsTest::refusesGroupNames_data()
{
    QTest::addColumn<int>("groups");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("created");
    QTest::newRow("a name") << 0 << "New" << true;
    QTest::newRow("none") << 0 << "" << false;
    QTest::newRow("taken") << 1 << "Group 1" << false;
    QTest::newRow("30 bytes") << 0 << QString(10, QChar(0xae40)) << true;
    QTest::newRow("31 bytes") << 0 << QString(10, QChar(0xae40)) + "x" << false;
    QTest::newRow("nine of one's own") << 9 << "New" << true;
    QTest::newRow("ten of one's own") << 10 << "New" << false;
}

void DetailsTest::refusesGroupNames()
{
    QFETCH(int, groups);
    QFETCH(QString, name);
    QFETCH(bool, created);
    ContactManager *store = m_phone->core.contactManager();
    for (int i = 1; i <= groups; ++i)
        store->saveGroup(GroupData(-1, QString("Group %1").arg(i), ""), false);
    GroupList_At_Contact screen(nullptr, {1});
    QVERIFY(showAndActivate(&screen));
    const auto toast = [&screen] { return screen.findChild<QWidget *>("Toast:GroupList_At_Contact") != nullptr; };
    PhoneScript script;
    script.keys({Qt::Key_Context1});
    if (groups < 10)
        script.untilActive("InputPopup").text(name).keys({Qt::Key_Context3});
    script.until("the toast", toast).keys({Qt::Key_Return}).until("it to go", [toast] { return !toast(); });
    QCOMPARE(script.run(), QString());
    QCOMPARE(store->getCountOfGroup(), 1 + groups + (created ? 1 : 0));
    QCOMPARE(screen.getGroupSelection().size(), 1);
}

void DetailsTest::commandsInTheMiddle_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<Road>("road");
    QTest::addColumn<QString>("left");
    const Road details{{Qt::Key_Return, "DetailsDial"}};
    const Road form = details + Road{{Qt::Key_Context4, "NumberEdit"}};
    const Road groups = form + Road{{Qt::Key_Down, "NumberEdit"}, {Qt::Key_Return, "GroupList_At_Contact"}};
    const QList<QPair<const char *, Road>> roads = {
        {"details", details}, {"box", details + Road{{Qt::Key_Context3, "MessageBox"}}},
        {"form", form},       {"popup", form + Road{{Qt::Key_Context1, "SelectPopup"}}},
        {"groups", groups},   {"input", groups + Road{{Qt::Key_Context1, "InputPopup"}}},
    };
    const struct
    {
        const char *command;
        const char *left;
    } commands[] = {{"CloseContact()", ""},
                    {"wpsm2ui_noti_device_disconnected(int)", "Contact"},
                    {"newContact(str)", "NumberEdit"},
                    {"viewContact(str)", "DetailsDial"},
                    {"api2ui_noti_contact_changed()", nullptr},
                    {"BuddyStatusChanged()", nullptr},
                    {"changedLanguage()", nullptr},
                    {"noti_phoneInit()", nullptr}};
    for (const auto &road : roads) {
        for (const auto &command : commands) {
            QTest::addRow("%s in %s", command.command, road.first)
                << command.command << road.second << (command.left ? command.left : road.second.last().second);
        }
    }
}

void DetailsTest::commandsInTheMiddle()
{
    QFETCH(QString, command);
    QFETCH(Road, road);
    QFETCH(QString, left);
    fullContact();
    m_screen.reset(new ContactScreen);
    QVERIFY(m_screen->open());
    PhoneScript script;
    for (const auto &step : qAsConst(road))
        script.keys({step.first}).untilActive(step.second.toLatin1()).until("a moment to pass", pause());
    script.call([&] { m_phone->core.postAppMsg("contact", command, QByteArray("")); });
    // A form that is open already stays, whatever stands above it.
    if (command == "newContact(str)" && road.size() > 1 && road.at(1).second == "NumberEdit")
        script.untilActive("NumberEdit");
    else if (left.isEmpty())
        script.until("everything to close", [] { return !QApplication::activeWindow(); });
    else
        script.untilActive(left.toLatin1());
    // From wherever it is, one command leads out again, and nothing is left on the stack.
    script.call([this] { m_phone->core.postAppMsg("contact", "CloseContact()", QByteArray("")); })
        .until("everything to close", [] { return !QApplication::activeWindow(); });
    QCOMPARE(script.run(), QString());
    QVERIFY(!m_screen->app.isVisible());
    QCOMPARE(m_phone->core.contactManager()->getCountOfContact(), 1);
}

void DetailsTest::pictures()
{
    open(fullContact());
    TestScreen::shot("details-name");
    click(Qt::Key_Down);
    click(Qt::Key_Down);
    TestScreen::shot("details-number");
    press(Qt::Key_Return);
    TestScreen::shot("details-number-pressed");
    list()->itemClear();
    release(Qt::Key_Return);
    m_phone->connectMobile({"Mobile"});
    m_phone->core.wpsmContactManager()->readWpsmConfigFile();
    const ContactData mobile = m_phone->core.wpsmContactManager()->getAllContacts().value(0);
    open(mobile.id, mobile.type);
    TestScreen::shot("details-mobile");
}

PHONE_TEST_MAIN(DetailsTest)
#include "tst_details.moc"
