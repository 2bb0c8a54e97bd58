// The contact application: start and end, its list, its modes, its commands.

#include "callmanager.h"
#include "contactmanager.h"
#include "contactscreen.h"
#include "phonescript.h"
#include "testcase.h"
#include "testmain.h"
#include "testphone.h"

#include <QDir>
#include <QPainter>
#include <QSignalSpy>

#include <memory>

using namespace PhoneKeys;

class ContactTest : public TestCase
{
    Q_OBJECT

    void setUp() override { m_phone.reset(new TestPhone); }
    void tearDown() override
    {
        m_screen.reset();
        m_phone.reset();
    }

private slots:
    void aSecondStartEnds();
    void tellsTheOthersWhenItShows_data();
    void tellsTheOthersWhenItShows();
    void sortsByCodeUnitAndMobileFirst();
    void aNamelessContactLeavesItsPlaceFree();
    void opensOnTheChooser();
    void theChooserComesAndGoesBetweenStarts();
    void aRefreshLeavesTheChooserInFront();
    void softKeysOfEachMode();
    void escapeLeavesManagingFirst();
    void aContactAddedBehindItsBackIsCounted();
    void followsItsStores();
    void anEmptiedPhonebookShowsNothing();
    void closesOnCommand();
    void ignoresWhatItDoesNotKnow();
    void survivesAnyPayload_data();
    void survivesAnyPayload();
    void presenceOfACell();
    void makesThumbnailsOfLocalPhotos();
    void completesDomains();
    void pictures();

private:
    void open()
    {
        m_screen.reset(new ContactScreen);
        QVERIFY(m_screen->open());
    }
    void send(const QString &command)
    {
        m_phone->core.postAppMsg("contact", command, QByteArray(""));
        QCoreApplication::processEvents();
    }
    QString title() { return m_phone->status.title(); }
    /// Releases Enter without opening what is selected.
    void letGo()
    {
        m_screen->grid()->setKeyPressFlag(false);
        m_screen->grid()->setSelectAndPressed(false);
        release(Qt::Key_Return);
    }

    std::unique_ptr<TestPhone> m_phone;
    std::unique_ptr<ContactScreen> m_screen;
};

void ContactTest::aSecondStartEnds()
{
    open();
    QVERIFY(m_screen->app.isVisible());
    QVERIFY(m_phone->core.isVisibleContact());
    QVERIFY(m_screen->app.start(nullptr, nullptr));
    QVERIFY(!m_screen->app.isVisible());
    QVERIFY(!m_phone->core.isVisibleContact());
    QVERIFY(m_screen->open());
    click(Qt::Key_Escape);
    QVERIFY(!m_screen->app.isVisible());
}

void ContactTest::tellsTheOthersWhenItShows_data()
{
    QTest::addColumn<QString>("callState");
    QTest::addColumn<bool>("keepStatus");
    QTest::addColumn<QStringList>("toCall");
    QTest::addColumn<QStringList>("toIdle");
    const QString opened = "m_isContactOpened()", closed = "m_isContactOpenedOff()";
    QTest::newRow("no call") << "IDLE" << false << QStringList{opened, closed} << QStringList();
    QTest::newRow("ringing") << "DIALING" << false << QStringList{opened, "ShowPopup", closed}
                             << QStringList{"raiseStatus()"};
    QTest::newRow("in a call") << "CONNECT" << false << QStringList{opened, "ShowPopup", "HidePopup", closed}
                               << QStringList{"raiseStatus()", "lowerStatus()"};
    QTest::newRow("in a call that keeps the bar")
        << "CONNECT" << true << QStringList{opened, "ShowPopup", closed} << QStringList{"raiseStatus()"};
}

void ContactTest::tellsTheOthersWhenItShows()
{
    QFETCH(QString, callState);
    QFETCH(bool, keepStatus);
    ListeningApp call("call"), idle("idle");
    m_phone->core.callManager()->setCallState(callState);
    m_phone->core.keepStatus = keepStatus;
    open();
    QCOMPARE(m_phone->core.currentActivateApp(), QString("contact"));
    QVERIFY(m_phone->core.isVisibleMenu());
    m_screen->app.end();
    QVERIFY(!m_phone->core.isVisibleMenu());
    QCoreApplication::processEvents();
    QTEST(call.commands, "toCall");
    QTEST(idle.commands, "toIdle");
}

void ContactTest::sortsByCodeUnitAndMobileFirst()
{
    for (const char *name : {"apple", "Zoe", "9 lives", "10 downing", "Zoe", "가나"})
        m_phone->addContact(QString::fromUtf8(name));
    open();
    m_phone->connectMobile({"Zoe"});
    send("wpsm2ui_noti_device_connected(int)");
    QCOMPARE(m_screen->names(), QStringList({"10 downing", "9 lives", "Zoe", "Zoe", "Zoe", "apple"}));
    QCOMPARE(title(), QString("Contacts | All (1/7)"));
    click(Qt::Key_Context3);
    // The first Zoe is the mobile one, which cannot be edited.
    for (const char *editKey : {"Edit", "Edit", "", "Edit", "Edit", "Edit"}) {
        QCOMPARE(m_screen->softKeys().first(), QString(editKey));
        click(Qt::Key_Down);
    }
}

void ContactTest::aNamelessContactLeavesItsPlaceFree()
{
    m_phone->addContacts(6);
    m_phone->addContact(QString(), {"5"});
    open();
    QCOMPARE(title(), QString("Contacts | All (1/7)"));
    QCOMPARE(m_screen->names().size(), 5);
    click(Qt::Key_Context4);
    QCOMPARE(m_screen->names(), QStringList("Name 006"));
}

void ContactTest::opensOnTheChooser()
{
    m_phone->addContacts(2);
    m_phone->provisionPhonebook(-1);
    open();
    QVERIFY(m_screen->chooser()->isVisible() && m_screen->chooser()->hasFocus());
    QVERIFY(!m_screen->grid()->isVisible());
    QCOMPARE(title(), QString("Contacts"));
    QCOMPARE(m_screen->softKeys(), QStringList({"", "", "", ""}));
    TestScreen::shot("contact-chooser");
    click(Qt::Key_Return);
    QVERIFY(m_screen->grid()->isVisible() && m_screen->grid()->hasFocus());
    QVERIFY(!m_screen->chooser()->isVisible());
    QCOMPARE(title(), QString("Contacts | All (1/2)"));
    click(Qt::Key_Escape);
    QVERIFY(m_screen->chooser()->isVisible() && m_screen->chooser()->hasFocus());
    QCOMPARE(title(), QString("Contacts"));
    click(Qt::Key_Escape);
    QVERIFY(!m_screen->app.isVisible());
}

void ContactTest::theChooserComesAndGoesBetweenStarts()
{
    open();
    QVERIFY(m_screen->grid()->isVisible());
    m_screen->app.end();
    m_phone->provisionPhonebook(12);
    QVERIFY(m_screen->open());
    QVERIFY(m_screen->chooser()->isVisible());
    m_screen->app.end();
    m_phone->provisionPhonebook(0);
    QVERIFY(m_screen->open());
    QVERIFY(m_screen->grid()->isVisible() && !m_screen->chooser()->isVisible());
}

void ContactTest::aRefreshLeavesTheChooserInFront()
{
    m_phone->provisionPhonebook(3);
    open();
    m_phone->addContact("New");
    send("api2ui_noti_contact_changed()");
    QVERIFY(m_screen->chooser()->hasFocus());
    QVERIFY(!m_screen->grid()->isVisible());
    click(Qt::Key_Return);
    QCOMPARE(m_screen->names(), QStringList("New"));
}

void ContactTest::softKeysOfEachMode()
{
    open();
    QCOMPARE(m_screen->softKeys(), QStringList({"Groups", "Search", "Edit Mode", ""}));
    click(Qt::Key_Context3);
    QCOMPARE(m_screen->softKeys(), QStringList({"", "Add Contact", "", ""}));

    m_phone->connectMobile({"Mobile"});
    send("wpsm2ui_noti_device_connected(int)");
    QCOMPARE(m_screen->softKeys(), QStringList({"", "Add Contact", "", ""}));

    m_phone->addContact("Local");
    send("api2ui_noti_contact_changed()");
    QCOMPARE(m_screen->softKeys(), QStringList({"Edit", "Add Contact", "Delete", "Delete All"}));
    click(Qt::Key_Down);
    QCOMPARE(m_screen->softKeys(), QStringList({"", "Add Contact", "", "Delete All"}));
}

void ContactTest::escapeLeavesManagingFirst()
{
    m_phone->addContacts(7);
    open();
    click(Qt::Key_Context3);
    QCOMPARE(m_screen->softKeys().at(0), QString("Edit"));
    press(Qt::Key_Escape);
    QCOMPARE(m_screen->softKeys(), QStringList({"Groups", "Search", "Edit Mode", ">"}));
    QVERIFY(m_screen->app.isVisible());
    release(Qt::Key_Escape);
    QVERIFY(!m_screen->app.isVisible());

    // With a system phonebook the release goes on to the chooser.
    m_phone->provisionPhonebook(1);
    QVERIFY(m_screen->open());
    click(Qt::Key_Return);
    click(Qt::Key_Context3);
    click(Qt::Key_Escape);
    QVERIFY(m_screen->chooser()->isVisible());
    QVERIFY(m_screen->app.isVisible());
}

void ContactTest::aContactAddedBehindItsBackIsCounted()
{
    m_phone->addContacts(6);
    open();
    m_screen->app.end();
    m_phone->addContact("Zuletzt");
    QVERIFY(m_screen->open());
    QCOMPARE(title(), QString("Contacts | All (1/7)"));
    QCOMPARE(m_screen->names().size(), 6);
    click(Qt::Key_Context4); // to a contact that was counted and not read: back at the start, with one cell
    QCOMPARE(m_screen->names(), QStringList("Name 001"));
    send("api2ui_noti_contact_changed()");
    click(Qt::Key_Up);
    QCOMPARE(m_screen->selectedName(), QString("Zuletzt"));
}

void ContactTest::followsItsStores()
{
    m_phone->addContacts(7);
    open();
    m_phone->connectMobile({"Aaron", "Name 003"});
    send("wpsm2ui_noti_device_connected(int)");
    QCOMPARE(title(), QString("Contacts | All (1/9)"));
    QCOMPARE(m_screen->names().mid(0, 4), QStringList({"Aaron", "Name 001", "Name 002", "Name 003"}));
    m_phone->disconnectMobile();
    send("wpsm2ui_noti_device_disconnected(int)");
    QCOMPARE(title(), QString("Contacts | All (1/7)"));

    // Presence keeps page and cell; the other refreshes start anew.
    click(Qt::Key_Down);
    send("BuddyStatusChanged()");
    QCOMPARE(m_screen->selectedName(), QString("Name 002"));
    send("noti_phoneInit()");
    QCOMPARE(m_screen->selectedName(), QString("Name 001"));
}

void ContactTest::anEmptiedPhonebookShowsNothing()
{
    m_phone->addContacts(8);
    open();
    click(Qt::Key_Context4);
    m_phone->core.contactManager()->deleteAllContacts();
    send("api2ui_noti_contact_changed()");
    QCOMPARE(title(), QString("Contacts | All (0/0)"));
    QVERIFY(m_screen->names().isEmpty());
    for (const Qt::Key key :
         {Qt::Key_Up, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right, Qt::Key_Return, Qt::Key_Context4})
        click(key);
    QVERIFY(m_screen->app.isVisible());
    m_phone->addContact("Back");
    send("api2ui_noti_contact_changed()");
    QCOMPARE(m_screen->names(), QStringList("Back"));
}

void ContactTest::closesOnCommand()
{
    open();
    send("CloseContact()");
    QVERIFY(!m_screen->app.isVisible());
    send("CloseContact()");
    QVERIFY(!m_screen->app.isVisible());
}

void ContactTest::ignoresWhatItDoesNotKnow()
{
    m_phone->addContacts(2);
    open();
    m_phone->addContact("Unseen");
    for (const char *command :
         {"wpsm2ui_noti_contact_changed(int)", "API2UI_noti_contact_changed()", "", "CloseContact"})
        send(command);
    QCOMPARE(title(), QString("Contacts | All (1/2)"));
    send("wpsm2ui _noti_contact_changed(int)");
    QCOMPARE(title(), QString("Contacts | All (1/3)"));
}

void ContactTest::survivesAnyPayload_data()
{
    QTest::addColumn<QByteArray>("payload");
    QByteArray random;
    for (int i = 0; i < 64; ++i)
        random += char(i * 37 + 11);
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("short") << QByteArray::fromHex("0000");
    QTest::newRow("a length of gigabytes") << QByteArray::fromHex("7ffffffe00410042");
    QTest::newRow("an odd length") << QByteArray::fromHex("00000003004100");
    QTest::newRow("a null text") << QByteArray::fromHex("ffffffff");
    QTest::newRow("longer") << QByteArray::fromHex("0000000200350000000700000007");
    QTest::newRow("random") << random;
}

void ContactTest::survivesAnyPayload()
{
    QFETCH(QByteArray, payload);
    m_phone->addContacts(3);
    open();
    PhoneScript script;
    for (const char *command :
         {"wpsm2ui_contact_picture_ack(str,int,str)", "wpsm2ui _noti_contact_changed(int)",
          "wpsm2ui_noti_device_connected(int)", "wpsm2ui_noti_device_disconnected(int)", "LogOutResponse(int)"})
        script.call([=] { m_phone->core.postAppMsg("contact", command, payload); });
    for (const char *command : {"newContact(str)", "viewContact(str)"}) {
        script.call([=] {
            if (!m_screen->app.isVisible())
                m_screen->app.start(nullptr, nullptr);
        });
        script.untilActive("Contact").call([=] { m_phone->core.postAppMsg("contact", command, payload); });
        script.untilActive(command[0] == 'n' ? "NumberEdit" : "DetailsDial").keys({Qt::Key_Escape});
        script.until("the application to go", [] { return !QApplication::activeWindow(); });
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
    QCOMPARE(m_screen->app.currItemPresenceStatus(0).status, 2);
    QCOMPARE(m_screen->app.currItemPresenceStatus(0).device, 1);
    QCOMPARE(m_screen->app.currItemPresenceStatus(1).status, -1);
    QCOMPARE(m_screen->app.currItemPresenceStatus(9).status, -1);
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
    const QPixmap *picture = m_screen->grid()->item(0)->pixmap(0);
    QVERIFY(!picture || !picture->isNull());
    QVERIFY(QFile::remove(thumbnail));

    // A photo that is no picture makes no thumbnail and no noise.
    m_phone->writeFile("data/photos/" + name, "no picture");
    send("api2ui_noti_contact_changed()");
    QVERIFY(!QFile::exists(thumbnail));
}

void ContactTest::completesDomains()
{
    Contact app;
    QCOMPARE(app.checkDomain("me@here"), QString("me@here"));
    QVERIFY(app.checkDomain("me").startsWith("me@"));
}

void ContactTest::pictures()
{
    open();
    TestScreen::shot("contact-empty");
    for (const char *name : {"Ada Lovelace", "Ján Čapek", "김철수", "Наталья Орлова", "İpek Yılmaz",
                             "Maximilian Oberwiesenthaler", "Zoë", "Łukasz Nowak"})
        m_phone->addContact(QString::fromUtf8(name));
    send("api2ui_noti_contact_changed()");
    TestScreen::shot("contact-grid");
    m_phone->connectMobile({"Ada (mobile)", "Klara Mobil", QString::fromUtf8("박영희")});
    send("wpsm2ui_noti_device_connected(int)");
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
