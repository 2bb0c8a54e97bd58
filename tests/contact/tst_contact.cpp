// The contact application: start and end, its list and its pages, its modes, its commands.

#include "callmanager.h"
#include "contactscreen.h"
#include "phonetest.h"

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
        clickAll({Qt::Key_Up, Qt::Key_Context3});
        PhoneScript script;
        script.opens(Qt::Key_Context3, "MessageBox").keys({Qt::Key_Context3}).dismissToast();
        QCOMPARE(script.run(), QString());
        QCOMPARE(title() + ' ' + m_contacts->names().first(), QString("Contacts | All (7/12) Name 007"));
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

    void makesThumbnailsOfLocalPhotos()
    {
        QImage photo(200, 100, QImage::Format_RGB32);
        photo.fill(Qt::red);
        const QString name = QString("contacttest%1.png").arg(QCoreApplication::applicationPid());
        QVERIFY(photo.save(m_phone->home.photoFolder() + '/' + name));
        ContactData contact = person("Photo");
        contact.picture = "photo:" + name;
        QVERIFY(store()->saveContact(contact, false));
        open();
        const QString thumbnail = "/tmp/thumbnail_tempphoto:" + name;
        QCOMPARE(QImage(thumbnail).size(), QSize(32, 32));
        QVERIFY(QFile::remove(thumbnail));
        // A photo that is no picture makes no thumbnail and no noise.
        m_phone->writeFile("data/photos/" + name, "no picture");
        tell("api2ui_noti_contact_changed()");
        QVERIFY(!QFile::exists(thumbnail));
    }

    void movesWithKeys()
    {
        const QList<Qt::Key> keys{Qt::Key_Up, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right, Qt::Key_Context4};
        // How many contacts, the keys, whose cell is selected then, and how many cells there are: page by page,
        // around the ends, over the end of a page, onto a short page and past it, along the line that is kept.
        const QList<std::tuple<int, QString, int, int>> roads
            = {{1, "", 1, 1},     {3, "u", 3, 3},    {3, "ud", 1, 3},    {6, "p", 1, 6},    {7, "p", 7, 1},
               {7, "u", 7, 1},    {7, "pp", 1, 6},   {8, "ddrr", 8, 2},  {9, "pdr", 1, 6},  {10, "pr", 10, 4},
               {10, "dl", 10, 4}, {20, "pp", 13, 6}, {20, "ppp", 19, 2}, {20, "dd", 3, 6},  {20, "ddd", 4, 6},
               {20, "r", 4, 6},   {20, "rl", 1, 6},  {20, "rddd", 7, 6}, {20, "pu", 6, 6},  {20, "u", 20, 2},
               {20, "ud", 1, 6},  {20, "drr", 8, 6}, {20, "pdl", 5, 6},  {20, "ddl", 20, 2}};
        int total = 0;
        for (const auto &[count, road, last, cells] : roads) {
            while (total < count)
                m_phone->addContact(QString("Name %1").arg(++total, 3, 10, QChar('0')));
            open();
            for (const QChar key : road)
                click(keys.at(QString("udlrp").indexOf(key)));
            QCOMPARE(road + title(), road + QString("Contacts | All (%1/%2)").arg(last).arg(total));
            QCOMPARE(m_contacts->selectedName().rightRef(3).toInt(), last);
            QCOMPARE(m_contacts->names().size(), cells);
            QCOMPARE(softKeys(&m_contacts->app).last().isEmpty(), total <= 6);
        }
    }

private:
    void open()
    {
        m_contacts.reset(new ContactScreen);
        QVERIFY(m_contacts->open());
    }
    void tell(const QString &command) { send("contact", command); }

    std::unique_ptr<ContactScreen> m_contacts;
};

PHONE_TEST_MAIN(ContactTest)
#include "tst_contact.moc"
