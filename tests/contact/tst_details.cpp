// The details screen and what is done from it, the group assignment, and commands that come in the middle.

#include "callmanager.h"
#include "contactmanager.h"
#include "contactscreen.h"
#include "detailsdial.h"
#include "grouplist_at_contact.h"
#include "listviewcontactitem.h"
#include "phonescript.h"
#include "phonetest.h"
#include "qcalllist.h"
#include "testmain.h"
#include "wpsmcontactmanager.h"

using namespace PhoneKeys;

/// Keys, each with the screen that is active after it.
using Road = QList<QPair<int, QString>>;
Q_DECLARE_METATYPE(Road)

class DetailsTest : public PhoneTest
{
    Q_OBJECT

private slots:
    void rowsOfAContact();
    void longTextsFlow();
    void messagesNeedALogin();
    void callsAndLeaves();
    void historyOfANumber();
    void deletes();
    void groupMarksExcludeEachOther();
    void refusesGroupNames();
    void commandsInTheMiddle_data();
    void commandsInTheMiddle();

private:
    ContactManager *store() const { return m_phone->core.contactManager(); }
    DetailsDial *openDetails(int id, int type = ContactData::LocalContact)
    {
        return open(new DetailsDial(nullptr, id, type));
    }
    QStringList fields() const
    {
        QStringList texts;
        for (int i = 0; i < list()->itemSize(); ++i)
            texts.append(dynamic_cast<ListViewContactItem *>(list()->item(i))->label() + "="
                         + list()->item(i)->text());
        return texts;
    }
    int addGroup(const QString &name) { return store()->saveGroup(GroupData(-1, name, ""), false); }
    int fullContact()
    {
        ContactData contact;
        contact.name = "Kim";
        contact.setNumbers({"1", "2"}, {ContactData::Mobile, ContactData::Fax});
        contact.setEmails({"kim@example.org"});
        contact.bell = "/tones/basicring/Morning.wav";
        contact.memo = "met in spring";
        const int id = store()->saveContact(contact, false);
        const int team = addGroup("Team"), chess = addGroup("Chess");
        store()->saveGroupMember(id, {chess, team});
        return id;
    }
};

void DetailsTest::rowsOfAContact()
{
    openDetails(fullContact());
    QCOMPARE(title(), QString("Contacts | Details"));
    QCOMPARE(fields(),
             QStringList({"Name=Kim", "Group=Chess,Team", "Mobile Number=1", "Fax Number=2",
                          "Email=kim@example.org", "Bell=Morning", "Memo=met in spring"}));
    TestScreen::shot("details-name");
    const QStringList plain{"", "", "Delete", "Edit"}, number{"Call", "Message", "Delete", "Edit"};
    for (const QStringList &expected : {plain, plain, number, number, plain, plain, plain, plain}) {
        QCOMPARE(softKeys(), expected);
        click(Qt::Key_Down);
    }
    click(Qt::Key_Down);
    TestScreen::shot("details-number");
    press(Qt::Key_Return);
    TestScreen::shot("details-number-pressed");
    list()->itemClear();
    release(Qt::Key_Return);

    openDetails(m_phone->addContact("Plain", {"7"}));
    QCOMPARE(fields(), QStringList({"Name=Plain", "Group=Unassigned", "Company Number=7"}));
    m_phone->connectMobile({"Mobile"});
    m_phone->core.wpsmContactManager()->readWpsmConfigFile();
    const ContactData mobile = m_phone->core.wpsmContactManager()->getAllContacts().value(0);
    openDetails(mobile.id, mobile.type);
    TestScreen::shot("details-mobile");
    QCOMPARE(fields(), QStringList({"Name=Mobile", "Mobile Number=0701234567"}));
    click(Qt::Key_Down);
    QCOMPARE(softKeys(), QStringList({"Call", "Message", "", ""}));
}

/// A text of exactly that width: wide letters, the last ones exchanged for narrow ones.
static QString textOfWidth(int width)
{
    const QFontMetrics metrics((QFont()));
    QString text;
    for (int size = 18; size < 60 && metrics.horizontalAdvance(text) != width; ++size) {
        text = QString(size, 'n');
        for (int i = size - 1; i >= 0 && metrics.horizontalAdvance(text) > width; --i)
            text[i] = 'i';
    }
    return text;
}

void DetailsTest::longTextsFlow()
{
    for (const int width : {231, 232}) {
        const QString text = textOfWidth(width);
        QCOMPARE(QFontMetrics(QFont()).horizontalAdvance(text), width);
        const bool flows = width > 231;
        ContactData contact;
        contact.name = "Kim";
        contact.memo = text;
        contact.setNumbers({"1"}, {ContactData::Mobile});
        DetailsDial *details = openDetails(store()->saveContact(contact, false));
        list()->setSelectedIdx(3);
        details->startTimer(); // the wait is over
        details->flowString();
        QCOMPARE(list()->item(3)->text(), flows ? text.mid(1) : text);
        QCOMPARE(details->getFocusedNumber(3), text);
        for (int i = 1; i < text.size() && flows; ++i)
            details->flowString();
        QCOMPARE(list()->item(3)->text(), text);
        details->flowString();
        list()->setSelectedIdx(2);
        QCOMPARE(list()->item(3)->text(), text);
    }
}

void DetailsTest::messagesNeedALogin()
{
    const int id = fullContact();
    const QByteArray logins[] = {"", "LoginMode=USER\n", "Id=4711\n"};
    for (const QByteArray &login : logins) {
        m_phone->writeFile("config/phone_info.conf", "[Prov_Info]\n" + login);
        openDetails(id);
        list()->setSelectedIdx(2);
        PhoneScript script;
        script.keys({Qt::Key_Context2});
        if (login.isEmpty())
            script.dismissToast();
        QCOMPARE(script.run(), QString());
        QCOMPARE(sent().filter("message "),
                 login.isEmpty() ? QStringList() : QStringList("message newMessage(str) 1"));
    }
}

void DetailsTest::callsAndLeaves()
{
    DetailsDial *details = openDetails(fullContact());
    details->clickedListViewItem(0);
    QVERIFY(details->isVisible());
    m_phone->core.callManager()->setCallState("CONNCECT");
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Context1})
        click(key);
    QVERIFY(details->isVisible());
    m_phone->core.callManager()->setCallState("IDLE");
    sent();
    click(Qt::Key_Return);
    QVERIFY(!details->isVisible());
    QCOMPARE(sent(),
             QStringList({"contact CloseContact()",
                          "CM ui2cm_svc_dialer(int,str,str,str,str,int,int) 0 NORMAL 1 Kim AUDIO 2 -1"}));
}

void DetailsTest::historyOfANumber()
{
    DetailsDial *details = openDetails(fullContact());
    list()->setSelectedIdx(2);
    QVERIFY(m_phone->core.callList()->addCall({"1", "", CallRecord::Incoming, QDateTime::currentDateTime(), 0}));
    sent();
    details->showHistoryByNumber();
    QCOMPARE(sent(), QStringList("history viewDetail(str) 1"));
    QVERIFY(details->isVisible());
    details->setTailClickedClose(true);
    details->showHistoryByNumber();
    QVERIFY(!details->isVisible());
    QCOMPARE(sent().filter("history"), QStringList());
}

void DetailsTest::deletes()
{
    const DetailsDial *details = openDetails(fullContact());
    sent();
    const auto isThere = [this] { return store()->getCountOfContact() == 1; };
    PhoneScript script;
    script.opens(Qt::Key_Context3, "MessageBox").opens(Qt::Key_Escape, "DetailsDial").until("no harm", isThere);
    script.opens(Qt::Key_Context3, "MessageBox").keys({Qt::Key_Context3}).dismissToast();
    QCOMPARE(script.run(), QString());
    QVERIFY(!details->isVisible());
    QCOMPARE(store()->getCountOfContact(), 0);
    QCOMPARE(sent().filter("idle "), QStringList("idle contactDeletedNumber(str) 1"));
}

void DetailsTest::groupMarksExcludeEachOther()
{
    const int team = addGroup("Team");
    addGroup("Chess");
    auto *screen = open(new GroupList_At_Contact(nullptr, {team}));
    const auto chosen = [](GroupList_At_Contact *groups) {
        QStringList names;
        for (const GroupData &group : groups->getGroupSelection())
            names.append(group.name);
        return names;
    };
    QCOMPARE(chosen(screen), QStringList("Team"));
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
        QCOMPARE(chosen(screen), step.second);
    }
    TestScreen::shot("groups-at-contact");

    screen = open(new GroupList_At_Contact(nullptr, {}));
    QCOMPARE(chosen(screen), QStringList());
    int closed = 0;
    connect(screen, &GroupList_At_Contact::closeEvent, this, [&closed] { ++closed; });
    click(Qt::Key_Context4);
    QVERIFY(!screen->isVisible());
    QCOMPARE(closed, 1);
    QCOMPARE(chosen(screen), QStringList("Unassigned"));
}

void DetailsTest::refusesGroupNames()
{
    const QString tenWide(10, QChar(0xae40)); // 30 bytes
    const QList<QPair<QString, int>> names = {{"", 1}, {"New", 2}, {"New", 2}, {tenWide + "x", 2}, {tenWide, 3}};
    auto *screen = open(new GroupList_At_Contact(nullptr, {1}));
    const auto create = [](const QString &name) {
        PhoneScript script;
        script.keys({Qt::Key_Context1})
            .untilActive("InputPopup")
            .text(name)
            .keys({Qt::Key_Context3})
            .dismissToast();
        return script.run();
    };
    for (const auto &name : names) {
        QCOMPARE(create(name.first), QString());
        QCOMPARE(store()->getCountOfGroup(), name.second);
        QCOMPARE(screen->getGroupSelection().size(), 1);
    }
    // Ten groups of one's own are the most.
    for (int i = 3; i < 10; ++i)
        addGroup(QString("Group %1").arg(i));
    open(new GroupList_At_Contact(nullptr, {1}));
    QCOMPARE(create("The tenth"), QString());
    QCOMPARE(store()->getCountOfGroup(), 11);
    QCOMPARE(PhoneScript().keys({Qt::Key_Context1}).dismissToast().run(), QString());
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
    const QString same = "what was there";
    const QList<QPair<QString, QString>> commands = {
        {"CloseContact()", ""},
        {"wpsm2ui_noti_device_disconnected(int)", "Contact"},
        {"newContact(str)", "NumberEdit"},
        {"viewContact(str)", "DetailsDial"},
        {"api2ui_noti_contact_changed()", same},
        {"BuddyStatusChanged()", same},
        {"changedLanguage()", same},
        {"noti_phoneInit()", same},
    };
    for (const auto &road : roads) {
        for (const auto &command : commands)
            QTest::addRow("%s in %s", qPrintable(command.first), road.first)
                << command.first << road.second
                << (command.second == same ? road.second.last().second : command.second);
    }
}

void DetailsTest::commandsInTheMiddle()
{
    QFETCH(QString, command);
    QFETCH(Road, road);
    QFETCH(QString, left);
    fullContact();
    ContactScreen contacts;
    QVERIFY(contacts.open());
    PhoneScript script;
    for (const auto &step : qAsConst(road)) {
        // What a screen puts off by a millisecond is done a few steps after it.
        script.keys({step.first}).untilActive(step.second.toLatin1());
        script.until("a moment to pass", [turns = 0]() mutable { return ++turns > 5; });
    }
    script.call([&] { m_phone->core.postAppMsg("contact", command, QByteArray("")); });
    const auto allClosed = [] { return !QApplication::activeWindow(); };
    if (left.isEmpty())
        script.until("everything to close", allClosed);
    else
        script.untilActive(left.toLatin1());
    // From wherever it is, one command leads out again, and nothing is left on the stack.
    script.call([this] { m_phone->core.postAppMsg("contact", "CloseContact()", QByteArray("")); })
        .until("everything to close", allClosed);
    QCOMPARE(script.run(), QString());
    QVERIFY(!contacts.app.isVisible());
    QCOMPARE(store()->getCountOfContact(), 1);
}

PHONE_TEST_MAIN(DetailsTest)
#include "tst_details.moc"
