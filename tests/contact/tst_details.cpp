// The details screen and what is done from it, and the group assignment.

#include "callmanager.h"
#include "detailsdial.h"
#include "grouplist_at_contact.h"
#include "listviewcontactitem.h"
#include "phonetest.h"
#include "wpsmcontactmanager.h"

using namespace PhoneKeys;

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

class DetailsTest : public PhoneTest
{
    Q_OBJECT

private slots:
    void rowsOfAContact()
    {
        openDetails(fullContact());
        QCOMPARE(title(), QString("Contacts | Details"));
        QCOMPARE(fields(),
                 QStringList({"Name=Kim", "Group=Chess,Team", "Mobile Number=1", "Fax Number=2",
                              "Email=kim@example.org", "Bell=Morning", "Memo=met in spring"}));
        TestScreen::shot("details");
        for (const bool isNumber : {false, false, true, true, false, false, false, false}) {
            QCOMPARE(softKeys(),
                     QStringList({isNumber ? "Call" : "", isNumber ? "Message" : "", "Delete", "Edit"}));
            click(Qt::Key_Down);
        }
        openDetails(m_phone->addContact("Plain", {"7"}));
        QCOMPARE(fields(), QStringList({"Name=Plain", "Group=Unassigned", "Company Number=7"}));
        m_phone->connectMobile({"Mobile"});
        m_phone->core.wpsmContactManager()->readWpsmConfigFile();
        const ContactData mobile = m_phone->core.wpsmContactManager()->getAllContacts().value(0);
        openDetails(mobile.id, mobile.type);
        QCOMPARE(fields(), QStringList({"Name=Mobile", "Mobile Number=0701234567"}));
        TestScreen::shot("details-mobile");
        click(Qt::Key_Down);
        QCOMPARE(softKeys(), QStringList({"Call", "Message", "", ""}));
    }

    void longTextsFlow()
    {
        ContactData contact = person("Kim");
        for (const int width : {231, 232}) {
            const bool flows = width > 231;
            contact.memo = textOfWidth(width);
            DetailsDial *details = openDetails(store()->saveContact(contact, false));
            list()->setSelectedIdx(3);
            details->startTimer(); // the wait is over
            details->flowString();
            const auto shown = [this] { return list()->item(3)->text(); };
            QCOMPARE(shown(), flows ? contact.memo.mid(1) : contact.memo);
            TestScreen::shot(QString("details-%1-wide").arg(width));
            QCOMPARE(details->getFocusedNumber(3), contact.memo);
            for (int i = 1; i < contact.memo.size() && flows; ++i)
                details->flowString();
            QCOMPARE(shown(), contact.memo);
            details->flowString();
            list()->setSelectedIdx(2);
            QCOMPARE(shown(), contact.memo);
        }
    }

    void messagesNeedALogin()
    {
        const int id = fullContact();
        for (const QByteArray login : {"", "LoginMode=USER\n"}) {
            m_phone->writeFile("config/phone_info.conf", "[Prov_Info]\n" + login);
            openDetails(id);
            list()->setSelectedIdx(2);
            PhoneScript script;
            script.keys({Qt::Key_Context2});
            QCOMPARE((login.isEmpty() ? script.dismissToast() : script).run(), QString());
            QCOMPARE(sent().filter("message newMessage(str) 1").isEmpty(), login.isEmpty());
        }
    }

    void callsOneAtATime()
    {
        DetailsDial *details = openDetails(fullContact());
        m_phone->core.callManager()->setCallState("CONNCECT");
        clickAll({Qt::Key_Return, Qt::Key_Down, Qt::Key_Down, Qt::Key_Context1}); // a name is not called
        QVERIFY(details->isVisible());
        m_phone->core.callManager()->setCallState("IDLE");
        click(Qt::Key_Return);
        QVERIFY(!details->isVisible());
    }

    void groupMarksExcludeEachOther()
    {
        const int team = addGroup("Team");
        addGroup("Chess");
        auto *screen = open(new GroupList_At_Contact(nullptr, {team}));
        const auto chosen = [](GroupList_At_Contact *groups) {
            QStringList names;
            for (const GroupData &group : groups->getGroupSelection())
                names.append(group.name);
            return names.join(',');
        };
        QCOMPARE(chosen(screen), QString("Team"));
        for (const auto &[keys, marked] : {
                 std::pair(QList<int>{Qt::Key_Return}, "Unassigned"), // the built-in group drives the others out
                 {{Qt::Key_Return}, ""}, // it can be taken away itself
                 {{Qt::Key_Down, Qt::Key_Return}, "Team"},
                 {{Qt::Key_Down, Qt::Key_Return}, "Team,Chess"},
                 {{Qt::Key_Return}, "Team"},
                 {{Qt::Key_Up, Qt::Key_Return}, "Unassigned"}, // the last mark brings it back
             }) {
            clickAll(keys);
            QCOMPARE(chosen(screen), QString(marked));
        }
        clickAll({Qt::Key_Up, Qt::Key_Return, Qt::Key_Context4}); // leaves without a mark
        QVERIFY(!screen->isVisible());
        QCOMPARE(chosen(screen), QString("Unassigned"));
    }

    void refusesGroupNames()
    {
        const QString tenWide(10, QChar(0xae40)); // 30 bytes
        for (int i = 1; i < 9; ++i)
            addGroup(QString("Group %1").arg(i));
        auto *screen = open(new GroupList_At_Contact(nullptr, {1}));
        // The tenth group of one's own is the last.
        for (const auto &[name, groups] :
             {std::pair(QString("Group 1"), 9), {tenWide + "x", 9}, {tenWide, 10}, {"The tenth", 11}}) {
            PhoneScript script;
            script.opens(Qt::Key_Context1, "InputPopup").text(name).keys({Qt::Key_Context3}).dismissToast();
            QCOMPARE(script.run(), QString());
            QCOMPARE(store()->getCountOfGroup(), groups);
            QCOMPARE(screen->getGroupSelection().size(), 1);
        }
        QCOMPARE(PhoneScript().keys({Qt::Key_Context1}).dismissToast().run(), QString());
    }

private:
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
    int fullContact()
    {
        ContactData contact = person("Kim");
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

PHONE_TEST_MAIN(DetailsTest)
#include "tst_details.moc"
