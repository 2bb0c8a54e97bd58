// The contact application: start and end, its list and its pages, its modes, its commands.

#include "callmanager.h"
#include "contactmanager.h"
#include "contactscreen.h"
#include "phonescript.h"
#include "phonetest.h"
#include "testmain.h"

using namespace PhoneKeys;

class ContactTest : public PhoneTest
{
    Q_OBJECT

    void tearDown() override
    {
        m_contacts.reset();
        PhoneTest::tearDown();
    }

private slots:
    void tellsTheOthersWhenItShows()
    {
        const QString opened = "call m_isContactOpened()", closed = "call m_isContactOpenedOff()";
        const QString popup = "call ShowPopup", raise = "idle raiseStatus()";
        using Call = std::tuple<QString, bool, QStringList>;
        for (const auto &[callState, keepStatus, expected] :
             {Call("IDLE", false, {opened, closed}), Call("DIALING", false, {opened, popup, closed, raise}),
              Call("CONNECT", false, {opened, popup, "call HidePopup", closed, raise, "idle lowerStatus()"}),
              Call("CONNECT", true, {opened, popup, closed, raise})}) {
            m_phone->core.callManager()->setCallState(callState);
            m_phone->core.keepStatus = keepStatus;
            sent();
            open();
            QCOMPARE(m_phone->core.currentActivateApp(), QString("contact"));
            QVERIFY(m_phone->core.isVisibleMenu() && m_phone->core.isVisibleContact());
            m_contacts->app.start(nullptr, nullptr); // a second start ends it
            QVERIFY(!m_phone->core.isVisibleMenu() && !m_phone->core.isVisibleContact());
            const QStringList lines = sent();
            QCOMPARE(lines.filter("call ") + lines.filter("idle "), expected);
        }
    }

    void sortsByCodeUnitAndMobileFirst()
    {
        for (const char *name : {"apple", "Zoe", "9 lives", "10 downing", "Zoe", "가나"})
            m_phone->addContact(name);
        open();
        m_phone->connectMobile({"Zoe"});
        tell("wpsm2ui_noti_device_connected(int)");
        QCOMPARE(m_contacts->names(), QStringList({"10 downing", "9 lives", "Zoe", "Zoe", "Zoe", "apple"}));
        QCOMPARE(title(), QString("Contacts | All (1/7)"));
        click(Qt::Key_Context3);
        // The first Zoe is the mobile one, which cannot be edited.
        for (const char *editKey : {"Edit", "Edit", "", "Edit", "Edit", "Edit"}) {
            QCOMPARE(softKeys(&m_contacts->app).first(), QString(editKey));
            click(Qt::Key_Down);
        }
    }

    void aNamelessContactLeavesItsPlaceFree()
    {
        m_phone->addContacts(6);
        m_phone->addContact(QString(), {"5"});
        open();
        QCOMPARE(title(), QString("Contacts | All (1/7)"));
        QCOMPARE(m_contacts->names().size(), 5);
        click(Qt::Key_Context4);
        QCOMPARE(m_contacts->names(), QStringList("Name 006"));
    }

    void escapeLeavesManagingFirst()
    {
        m_phone->addContacts(7);
        open();
        click(Qt::Key_Context3);
        press(Qt::Key_Escape);
        QCOMPARE(softKeys(&m_contacts->app).at(2), QString("Edit Mode"));
        QVERIFY(isOpen());
        release(Qt::Key_Escape);
        QVERIFY(!isOpen());
        // With a system phonebook the release goes on to the chooser.
        m_phone->provisionPhonebook(1);
        QVERIFY(m_contacts->open());
        clickAll({Qt::Key_Return, Qt::Key_Context3, Qt::Key_Escape});
        QCOMPARE(title(), QString("Contacts"));
        QVERIFY(isOpen());
    }

    void aContactAddedBehindItsBackIsCounted()
    {
        m_phone->addContacts(6);
        open();
        m_contacts->app.end();
        m_phone->addContact("Zuletzt");
        QVERIFY(m_contacts->open());
        QCOMPARE(title(), QString("Contacts | All (1/7)"));
        QCOMPARE(m_contacts->names().size(), 6);
        click(Qt::Key_Context4); // to a contact that was counted and not read: back at the start, with one cell
        QCOMPARE(m_contacts->names(), QStringList("Name 001"));
        tell("api2ui_noti_contact_changed()");
        click(Qt::Key_Up);
        QCOMPARE(m_contacts->selectedName(), QString("Zuletzt"));
    }

    void presenceKeepsPageAndCell()
    {
        m_phone->addContacts(2);
        open();
        click(Qt::Key_Down);
        tell("BuddyStatusChanged()");
        QCOMPARE(m_contacts->selectedName(), QString("Name 002"));
        tell("noti_phoneInit()"); // as the other refreshes do
        QCOMPARE(m_contacts->selectedName(), QString("Name 001"));
    }

    void theLastPageGoesWithItsOnlyCell()
    {
        m_phone->addContacts(13);
        open();
        click(Qt::Key_Up);
        click(Qt::Key_Context3);
        PhoneScript script;
        script.opens(Qt::Key_Context3, "MessageBox").keys({Qt::Key_Context3}).dismissToast();
        QCOMPARE(script.run(), QString());
        QCOMPARE(m_contacts->names().size(), 6);
        QCOMPARE(m_contacts->names().first(), QString("Name 007"));
    }

    void ignoresWhatItDoesNotKnow()
    {
        m_phone->addContacts(2);
        open();
        m_phone->addContact("Unseen");
        for (const char *command :
             {"wpsm2ui_noti_contact_changed(int)", "API2UI_noti_contact_changed()", "", "CloseContact"})
            sendRaw("contact", command, QByteArray(""));
        QCOMPARE(title(), QString("Contacts | All (1/2)"));
        tell("wpsm2ui _noti_contact_changed(int)");
        QCOMPARE(title(), QString("Contacts | All (1/3)"));
    }

    void survivesAnyPayload()
    {
        m_phone->addContacts(3);
        open();
        PhoneScript script;
        for (const QByteArray &payload : senselessPayloads()) {
            const auto post = [=](const char *command) {
                return [=] { m_phone->core.postAppMsg("contact", command, payload); };
            };
            for (const char *command :
                 {"wpsm2ui_contact_picture_ack(str,int,str)", "wpsm2ui _noti_contact_changed(int)",
                  "wpsm2ui_noti_device_connected(int)", "LogOutResponse(int)"})
                script.call(post(command));
            for (const auto &[command, screen] :
                 {std::pair("newContact(str)", "NumberEdit"), {"viewContact(str)", "DetailsDial"}})
                script.call([this] { isOpen() || m_contacts->app.start(nullptr, nullptr); })
                    .untilActive("Contact")
                    .call(post(command))
                    .untilActive(screen)
                    .keys({Qt::Key_Escape})
                    .until("all to close", [] { return !QApplication::activeWindow(); });
        }
        QCOMPARE(script.run(), QString());
        QCOMPARE(m_phone->core.contactManager()->getCountOfContact(), 3);
    }

    void presenceOfACell()
    {
        ContactData contact;
        contact.name = "Buddy";
        contact.buddyId = "buddy@presence";
        m_phone->core.contactManager()->saveContact(contact, false);
        m_phone->addContact("Plain");
        m_phone->writeFile("data/presence.ini", "[buddy@presence]\nStatus=2\nDevice=1\n");
        open();
        for (const auto &[cell, status, device] : {std::tuple(0, 2, 1), {1, -1, -1}, {9, -1, -1}}) {
            QCOMPARE(m_contacts->app.currItemPresenceStatus(cell).status, status);
            QCOMPARE(m_contacts->app.currItemPresenceStatus(cell).device, device);
        }
    }

    void makesThumbnailsOfLocalPhotos()
    {
        QImage photo(200, 100, QImage::Format_RGB32);
        photo.fill(Qt::red);
        const QString name = QString("contacttest%1.png").arg(QCoreApplication::applicationPid());
        QVERIFY(photo.save(m_phone->home.photoFolder() + '/' + name));
        ContactData contact;
        contact.name = "Photo";
        contact.picture = "photo:" + name;
        QVERIFY(m_phone->core.contactManager()->saveContact(contact, false));
        open();
        const QString thumbnail = "/tmp/thumbnail_tempphoto:" + name;
        QCOMPARE(QImage(thumbnail).size(), QSize(32, 32));
        QVERIFY(QFile::remove(thumbnail));
        // A photo that is no picture makes no thumbnail and no noise.
        m_phone->writeFile("data/photos/" + name, "no picture");
        tell("api2ui_noti_contact_changed()");
        QVERIFY(!QFile::exists(thumbnail));
    }

    void pagesByTotal()
    {
        int total = 0;
        for (const QList<int> &pages : QList<QList<int>>{{1}, {6}, {6, 1}, {6, 6}, {6, 6, 6, 2}}) {
            const int wanted = std::accumulate(pages.begin(), pages.end(), 0);
            while (total < wanted)
                m_phone->addContact(QString("Name %1").arg(++total, 3, 10, QChar('0')));
            ContactScreen contacts;
            QVERIFY(contacts.open());
            QCOMPARE(softKeys(&contacts.app).last().isEmpty(), pages.size() == 1);
            int first = 1;
            for (const int cells : pages) {
                QCOMPARE(contacts.names().size(), cells);
                QCOMPARE(selected(contacts), first);
                QCOMPARE(title(), QString("Contacts | All (%1/%2)").arg(first).arg(total));
                first += cells;
                click(Qt::Key_Context4);
            }
            QCOMPARE(selected(contacts), 1);
            // Without a label the key is dead, yet the page command itself stays on the one page.
            contacts.app.tailFuncButtonClicked(3);
            QCOMPARE(selected(contacts), pages.value(1) ? 7 : 1);
        }
    }

    void movesWithKeys()
    {
        const QList<Qt::Key> keys{Qt::Key_Up, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right, Qt::Key_Context4};
        // How many contacts, the keys, and whose cell is selected then: around the ends, over the end of a page,
        // onto a short page and past it, along the line that is kept.
        const QList<std::tuple<int, QString, int>> roads
            = {{3, "u", 3},   {3, "ud", 1},   {7, "u", 7},     {7, "pp", 1},   {8, "ddrr", 8},
               {9, "pdr", 1}, {10, "pr", 10}, {10, "dl", 10},  {20, "dd", 3},  {20, "ddd", 4},
               {20, "r", 4},  {20, "rl", 1},  {20, "rddd", 7}, {20, "pu", 6},  {20, "u", 20},
               {20, "ud", 1}, {20, "drr", 8}, {20, "pdl", 5},  {20, "ddl", 20}};
        int total = 0;
        for (const auto &[count, road, last] : roads) {
            while (total < count)
                m_phone->addContact(QString("Name %1").arg(++total, 3, 10, QChar('0')));
            ContactScreen contacts;
            QVERIFY(contacts.open());
            for (const QChar key : road)
                click(keys.at(QString("udlrp").indexOf(key)));
            QVERIFY2(selected(contacts) == last,
                     qPrintable(QString("%1 of %2: %3").arg(selected(contacts)).arg(total).arg(road)));
        }
    }

private:
    void open()
    {
        m_contacts.reset(new ContactScreen);
        QVERIFY(m_contacts->open());
    }
    void tell(const QString &command) { send("contact", command); }
    /// The number of the selected contact, from 1.
    static int selected(ContactScreen &contacts) { return contacts.selectedName().rightRef(3).toInt(); }
    bool isOpen() const { return m_contacts->app.isVisible(); }

    std::unique_ptr<ContactScreen> m_contacts;
};

PHONE_TEST_MAIN(ContactTest)
#include "tst_contact.moc"
