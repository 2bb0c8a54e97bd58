// The contact application: start and end, its list, its modes, its commands.

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
    void aSecondStartEnds();
    void tellsTheOthersWhenItShows();
    void sortsByCodeUnitAndMobileFirst();
    void aNamelessContactLeavesItsPlaceFree();
    void theChooserComesAndGoes();
    void escapeLeavesManagingFirst();
    void aContactAddedBehindItsBackIsCounted();
    void followsItsStores();
    void anEmptiedPhonebookShowsNothing();
    void theLastPageGoesWithItsOnlyCell();
    void ignoresWhatItDoesNotKnow();
    void survivesAnyPayload();
    void presenceOfACell();
    void makesThumbnailsOfLocalPhotos();
    void pictures();

private:
    void open()
    {
        m_contacts.reset(new ContactScreen);
        QVERIFY(m_contacts->open());
    }
    void tell(const QString &command) { send("contact", command); }
    bool isOpen() const { return m_contacts->app.isVisible(); }
    /// Releases Enter without opening what is selected.
    void letGo()
    {
        m_contacts->grid()->setKeyPressFlag(false);
        m_contacts->grid()->setSelectAndPressed(false);
        release(Qt::Key_Return);
    }

    std::unique_ptr<ContactScreen> m_contacts;
};

void ContactTest::aSecondStartEnds()
{
    open();
    QVERIFY(isOpen() && m_phone->core.isVisibleContact());
    QVERIFY(m_contacts->app.start(nullptr, nullptr));
    QVERIFY(!isOpen() && !m_phone->core.isVisibleContact());
    QVERIFY(m_contacts->open());
    click(Qt::Key_Escape);
    QVERIFY(!isOpen());
}

void ContactTest::tellsTheOthersWhenItShows()
{
    const QString opened = "call m_isContactOpened()", closed = "call m_isContactOpenedOff()";
    const QString popup = "call ShowPopup", noPopup = "call HidePopup";
    const QString raise = "idle raiseStatus()", lower = "idle lowerStatus()";
    const struct
    {
        QString callState;
        bool keepStatus;
        QStringList sent;
    } calls[] = {
        {"IDLE", false, {opened, closed}},
        {"DIALING", false, {opened, popup, closed, raise}},
        {"CONNECT", false, {opened, popup, noPopup, closed, raise, lower}},
        {"CONNECT", true, {opened, popup, closed, raise}},
    };
    for (const auto &call : calls) {
        m_phone->core.callManager()->setCallState(call.callState);
        m_phone->core.keepStatus = call.keepStatus;
        sent();
        open();
        QCOMPARE(m_phone->core.currentActivateApp(), QString("contact"));
        QVERIFY(m_phone->core.isVisibleMenu());
        m_contacts->app.end();
        QVERIFY(!m_phone->core.isVisibleMenu());
        const QStringList lines = sent();
        QCOMPARE(lines.filter("call ") + lines.filter("idle "), call.sent);
    }
}

void ContactTest::sortsByCodeUnitAndMobileFirst()
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
        QCOMPARE(m_contacts->softKeys().first(), QString(editKey));
        click(Qt::Key_Down);
    }
}

void ContactTest::aNamelessContactLeavesItsPlaceFree()
{
    m_phone->addContacts(6);
    m_phone->addContact(QString(), {"5"});
    open();
    QCOMPARE(title(), QString("Contacts | All (1/7)"));
    QCOMPARE(m_contacts->names().size(), 5);
    click(Qt::Key_Context4);
    QCOMPARE(m_contacts->names(), QStringList("Name 006"));
}

void ContactTest::theChooserComesAndGoes()
{
    const auto chooserIsInFront = [this] {
        return m_contacts->chooser()->isVisible() && m_contacts->chooser()->hasFocus()
            && !m_contacts->grid()->isVisible();
    };
    m_phone->addContacts(2);
    open();
    QVERIFY(m_contacts->grid()->isVisible());
    m_contacts->app.end();
    m_phone->provisionPhonebook(-1);
    QVERIFY(m_contacts->open());
    QVERIFY(chooserIsInFront());
    TestScreen::shot("contact-chooser");
    // A refresh leaves it in front.
    m_phone->addContact("New");
    tell("api2ui_noti_contact_changed()");
    QVERIFY(chooserIsInFront());
    click(Qt::Key_Return);
    QVERIFY(m_contacts->grid()->hasFocus() && !m_contacts->chooser()->isVisible());
    QCOMPARE(title(), QString("Contacts | All (1/3)"));
    click(Qt::Key_Escape);
    QVERIFY(chooserIsInFront());
    m_contacts->app.end();
    m_phone->provisionPhonebook(0);
    QVERIFY(m_contacts->open());
    QVERIFY(m_contacts->grid()->isVisible() && !m_contacts->chooser()->isVisible());
}

void ContactTest::escapeLeavesManagingFirst()
{
    m_phone->addContacts(7);
    open();
    click(Qt::Key_Context3);
    press(Qt::Key_Escape);
    QCOMPARE(m_contacts->softKeys(), QStringList({"Groups", "Search", "Edit Mode", ">"}));
    QVERIFY(isOpen());
    release(Qt::Key_Escape);
    QVERIFY(!isOpen());
    // With a system phonebook the release goes on to the chooser.
    m_phone->provisionPhonebook(1);
    QVERIFY(m_contacts->open());
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Context3, Qt::Key_Escape})
        click(key);
    QVERIFY(m_contacts->chooser()->isVisible() && isOpen());
}

void ContactTest::aContactAddedBehindItsBackIsCounted()
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

void ContactTest::followsItsStores()
{
    m_phone->addContacts(7);
    open();
    m_phone->connectMobile({"Aaron", "Name 003"});
    tell("wpsm2ui_noti_device_connected(int)");
    QCOMPARE(title(), QString("Contacts | All (1/9)"));
    QCOMPARE(m_contacts->names().mid(0, 4), QStringList({"Aaron", "Name 001", "Name 002", "Name 003"}));
    m_phone->disconnectMobile();
    tell("wpsm2ui_noti_device_disconnected(int)");
    QCOMPARE(title(), QString("Contacts | All (1/7)"));
    // Presence keeps page and cell; the other refreshes start anew.
    click(Qt::Key_Down);
    tell("BuddyStatusChanged()");
    QCOMPARE(m_contacts->selectedName(), QString("Name 002"));
    tell("noti_phoneInit()");
    QCOMPARE(m_contacts->selectedName(), QString("Name 001"));
}

void ContactTest::anEmptiedPhonebookShowsNothing()
{
    m_phone->addContacts(8);
    open();
    click(Qt::Key_Context4);
    m_phone->core.contactManager()->deleteAllContacts();
    tell("api2ui_noti_contact_changed()");
    QCOMPARE(title(), QString("Contacts | All (0/0)"));
    QVERIFY(m_contacts->names().isEmpty());
    for (const Qt::Key key :
         {Qt::Key_Up, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right, Qt::Key_Return, Qt::Key_Context4})
        click(key);
    QVERIFY(isOpen());
    m_phone->addContact("Back");
    tell("api2ui_noti_contact_changed()");
    QCOMPARE(m_contacts->names(), QStringList("Back"));
}

void ContactTest::theLastPageGoesWithItsOnlyCell()
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

void ContactTest::ignoresWhatItDoesNotKnow()
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

void ContactTest::survivesAnyPayload()
{
    m_phone->addContacts(3);
    open();
    PhoneScript script;
    for (const QByteArray &payload : senselessPayloads()) {
        const auto post
            = [=](const char *command) { return [=] { m_phone->core.postAppMsg("contact", command, payload); }; };
        for (const char *command :
             {"wpsm2ui_contact_picture_ack(str,int,str)", "wpsm2ui _noti_contact_changed(int)",
              "wpsm2ui_noti_device_connected(int)", "wpsm2ui_noti_device_disconnected(int)", "LogOutResponse(int)"})
            script.call(post(command));
        for (const char *command : {"newContact(str)", "viewContact(str)"})
            script.call([this] { isOpen() || m_contacts->app.start(nullptr, nullptr); })
                .untilActive("Contact")
                .call(post(command))
                .untilActive(command[0] == 'n' ? "NumberEdit" : "DetailsDial")
                .keys({Qt::Key_Escape})
                .until("the application to go", [] { return !QApplication::activeWindow(); });
    }
    QCOMPARE(script.run(), QString());
    QCOMPARE(m_phone->core.contactManager()->getCountOfContact(), 3);
}

void ContactTest::presenceOfACell()
{
    ContactData contact;
    contact.name = "Buddy";
    contact.buddyId = "buddy@presence";
    QVERIFY(m_phone->core.contactManager()->saveContact(contact, false));
    m_phone->addContact("Plain");
    m_phone->writeFile("data/presence.ini", "[buddy@presence]\nStatus=2\nDevice=1\n");
    open();
    Contact &app = m_contacts->app;
    QCOMPARE(app.currItemPresenceStatus(0).status, 2);
    QCOMPARE(app.currItemPresenceStatus(0).device, 1);
    for (const int cell : {1, 9})
        QCOMPARE(app.currItemPresenceStatus(cell).status, -1);
    QCOMPARE(app.checkDomain("me@here"), QString("me@here"));
    QVERIFY(app.checkDomain("me").startsWith("me@"));
}

void ContactTest::makesThumbnailsOfLocalPhotos()
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

void ContactTest::pictures()
{
    open();
    TestScreen::shot("contact-empty");
    for (const char *name : {"Ada Lovelace", "Ján Čapek", "김철수", "Наталья Орлова", "İpek Yılmaz",
                             "Maximilian Oberwiesenthaler", "Zoë", "Łukasz Nowak"})
        m_phone->addContact(name);
    tell("api2ui_noti_contact_changed()");
    TestScreen::shot("contact-grid");
    m_phone->connectMobile({"Ada (mobile)", "Klara Mobil", "박영희"});
    tell("wpsm2ui_noti_device_connected(int)");
    TestScreen::shot("contact-grid-mobile");
    press(Qt::Key_Return);
    TestScreen::shot("contact-grid-pressed");
    letGo();
    click(Qt::Key_Right);
    TestScreen::shot("contact-grid-right");
    press(Qt::Key_Return);
    TestScreen::shot("contact-grid-right-pressed");
    letGo();
    click(Qt::Key_Context3);
    TestScreen::shot("contact-managing");
    click(Qt::Key_Escape);
}

PHONE_TEST_MAIN(ContactTest)
#include "tst_contact.moc"
