#include "messageapp.h"
#include "messageform.h"
#include "neighbourtest.h"
#include "toast.h"

#include <QLineEdit>

using namespace PhoneKeys;

/// Messages: the form, what was sent, and what other applications ask for.
class MessageAppTest : public NeighbourTest<MessageApp>
{
    Q_OBJECT

private slots:
    void writesAndSends();
    void asksForWhatIsMissing();
    void findsTheReceiverInTheContacts();
    void opensForAnotherApplication();
    void aMessageDuringTheToastKeepsItsForm();
    void aHeldEraseKeyEmptiesTheField();
    void sendsAgainAndDeletes();
    void keepsTheNewest();
    void aFileThatIsNoDatabase();
    void senselessMessages();
    void pictures();

private:
    MessageForm *form() { return m_app->findChild<MessageForm *>(); }
    bool formIsOpen() { return isOpen(form()); }
    QString receiver() { return field(0); }
    QString text() { return field(1); }
    QString field(int row) { return static_cast<ListViewLineEditItem *>(list(form())->item(row))->editText(); }
    QString details() { return list(form())->item(2)->text(); }
    QString toast()
    {
        const auto *shown = form()->findChild<Toast *>();
        return shown && shown->isVisible() ? shown->message() : QString();
    }
    /// Any key sends a toast away.
    void dismissToast()
    {
        click(Qt::Key_Context4);
        settle();
        QCOMPARE(toast(), QString());
    }
    void send(const QString &number, const QString &text)
    {
        receive("newMessage(str)", {number});
        QVERIFY(formIsOpen());
        type(text);
        click(Qt::Key_Context4);
        QCOMPARE(toast(), QString("Sent"));
        dismissToast();
        QVERIFY(!form()->isVisible());
    }
};

void MessageAppTest::writesAndSends()
{
    m_phone->addContact("Anna", {"100", "200"});
    QVERIFY(open());
    QCOMPARE(title(), QString("Messages"));
    click(Qt::Key_Context1);
    QVERIFY(formIsOpen());
    QCOMPARE(title(), QString("Messages | New"));
    QCOMPARE(m_phone->core.getIMEStatus(), IMENumeric);
    type("2-00");
    QCOMPARE(details(), QString("Anna"));
    click(Qt::Key_Down);
    settle();
    QCOMPARE(m_phone->core.getIMEStatus(), IMESmall);
    type("Hello, are you there?");
    click(Qt::Key_Context4);
    QCOMPARE(toast(), QString("Sent"));
    TestScreen::shot("message-sent");
    QTRY_VERIFY(m_app->isActiveWindow()); // the toast goes by itself, and the form with it
    QCOMPARE(title(), QString("Messages | Sent (1)"));
    QCOMPARE(rows(m_app.get()), QStringList{"Anna"});
    QCOMPARE(piece(m_app.get(), 0, 0), QString("Hello, are you there?"));
    click(Qt::Key_Context1);
    QVERIFY(formIsOpen());
    QCOMPARE(receiver() + text(), QString());
}

void MessageAppTest::asksForWhatIsMissing()
{
    QVERIFY(open());
    click(Qt::Key_Context1);
    QVERIFY(formIsOpen());
    type("()");
    click(Qt::Key_Down);
    settle();
    type("Hello");
    click(Qt::Key_Context4);
    QCOMPARE(toast(), QString("Enter a number"));
    dismissToast();
    QCOMPARE(list(form())->selectedIdx(), 0);
    type("5");
    QCOMPARE(receiver(), QString("()5"));
    click(Qt::Key_Down);
    settle();
    list(form())->lineEdit()->setText("  ");
    click(Qt::Key_Context4);
    QCOMPARE(toast(), QString("Enter a text"));
    dismissToast();
    type("Hello");
    QCOMPARE(text(), QString("  Hello"));
    QCOMPARE(rows(m_app.get()), QStringList());
}

void MessageAppTest::findsTheReceiverInTheContacts()
{
    m_phone->addContact("Anna", {"100"});
    QVERIFY(open());
    click(Qt::Key_Context1);
    QVERIFY(formIsOpen());
    click(Qt::Key_Context2);
    QCOMPARE(sent(), QStringList{"contact showSearchAllToFindReceiver()"});
    receive("setReceiver(str)", {"100"});
    QCOMPARE(receiver(), QString("100"));
    QCOMPARE(details(), QString("Anna"));
    settle();
    type("Hi"); // the text is next
    QCOMPARE(text(), QString("Hi"));
    receive("setReceiver(str)", {"200"});
    QCOMPARE(receiver() + text(), QString("200Hi"));
}

void MessageAppTest::opensForAnotherApplication()
{
    receive("newMessage(str)", {"100"});
    QVERIFY(formIsOpen());
    QVERIFY(!m_app->isVisible());
    QCOMPARE(m_phone->core.currentActivateApp(), QString("message"));
    click(Qt::Key_Escape);
    QVERIFY(!form()->isVisible());

    // A launch before it shows the list, which goes together with the form.
    QVERIFY(open());
    send("100", "Hello");
    QVERIFY(!m_app->isVisible());
    QVERIFY(open());
    QCOMPARE(rows(m_app.get()), QStringList{"100"});
}

void MessageAppTest::aMessageDuringTheToastKeepsItsForm()
{
    receive("newMessage(str)", {"100"});
    QVERIFY(formIsOpen());
    type("Hello");
    click(Qt::Key_Context4);
    QCOMPARE(toast(), QString("Sent"));
    receive("newMessage(str)", {"200"});
    settle();
    QCOMPARE(toast(), QString());
    QVERIFY(form()->isVisible());
    type("Bye");
    QCOMPARE(receiver() + text(), QString("200Bye"));
    m_app->end();
    receive("setReceiver(str)", {"300"});
    QVERIFY(formIsOpen());
    QCOMPARE(receiver() + text(), QString("300"));
}

void MessageAppTest::aHeldEraseKeyEmptiesTheField()
{
    receive("newMessage(str)", {"100"});
    QVERIFY(formIsOpen());
    type("Hello");
    QCOMPARE(softKeys(form()), QStringList({"Close", "Search", "Erase", "Send"}));
    click(Qt::Key_Context3);
    QCOMPARE(text(), QString("Hell"));
    press(Qt::Key_Context3);
    QTRY_COMPARE(text(), QString());
    release(Qt::Key_Context3);
    QCOMPARE(receiver(), QString("100"));
}

void MessageAppTest::sendsAgainAndDeletes()
{
    for (const char *number : {"100", "200", "300"})
        send(number, "Hello");
    QVERIFY(open());
    click(Qt::Key_Up); // around to the last
    click(Qt::Key_Return);
    QVERIFY(formIsOpen());
    QCOMPARE(receiver() + text(), QString("100Hello"));
    click(Qt::Key_Context4);
    dismissToast();
    QTRY_VERIFY(m_app->isActiveWindow());
    QCOMPARE(rows(m_app.get()), QStringList({"100", "300", "200", "100"}));
    QCOMPARE(list(m_app.get())->selectedIdx(), 0);
    settle();
    click(Qt::Key_Up);
    for (int left = 3; left >= 0; --left) {
        click(Qt::Key_Context3);
        QCOMPARE(list(m_app.get())->selectedIdx(), left - 1);
        QCOMPARE(rows(m_app.get()), QStringList({"100", "300", "200", "100"}).mid(0, left));
    }
    QCOMPARE(softKeys(m_app.get()), QStringList({"New", "", "", "Close"}));
    click(Qt::Key_Return);
    QVERIFY(!form()->isVisible());
    remake();
    QCOMPARE(rows(m_app.get()), QStringList());
}

void MessageAppTest::keepsTheNewest()
{
    m_app.reset();
    {
        SentMessages store(m_phone->home.path("data/messages.db"));
        for (int i = 1; i <= SentMessages::MostMessages + 2; ++i)
            QVERIFY(store.add(QString::number(i), "Text", QDateTime::currentDateTime().addDays(-i)));
    }
    remake();
    QCOMPARE(rows(m_app.get()).size(), SentMessages::MostMessages);
    QCOMPARE(rows(m_app.get()).last(), QString("3"));
}

void MessageAppTest::aFileThatIsNoDatabase()
{
    const QByteArray garbage(4096, 'x');
    m_app.reset();
    QVERIFY(QFile::remove(m_phone->home.path("data/messages.db")));
    m_phone->writeFile("data/messages.db", garbage);
    expectWarning("not a database");
    expectWarning("cannot be kept in");
    remake();
    receive("newMessage(str)", {"100"});
    QVERIFY(formIsOpen());
    type("Hello");
    click(Qt::Key_Context4);
    QCOMPARE(toast(), QString("Failed"));
    QCOMPARE(text(), QString("Hello"));
    QFile file(m_phone->home.path("data/messages.db"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), garbage);
}

void MessageAppTest::senselessMessages()
{
    for (const QByteArray &payload : senselessPayloads()) {
        for (const char *command : {"setReceiver(str)", "unknown(str)", "newMessage"})
            receiveRaw(command, payload);
        QVERIFY(!form()->isVisible());
    }
    for (const QByteArray &payload : senselessPayloads()) {
        receiveRaw("newMessage(str)", payload);
        QVERIFY(formIsOpen());
        QCOMPARE(ContactData::bareNumber(receiver()), QString());
    }
    receive("newMessage(str)", {QString(100000, '7')});
    QCOMPARE(receiver().size(), 32);
}

void MessageAppTest::pictures()
{
    m_phone->addContact("Anna Adams", {"+49100"});
    m_phone->addContact(QString::fromUtf8("김철수"), {"0101234"});
    QVERIFY(open());
    TestScreen::shot("messages-empty");
    receive("newMessage(str)", {""});
    QVERIFY(formIsOpen());
    settle();
    TestScreen::shot("message-new");
    receive("setReceiver(str)", {"+49100"});
    settle();
    type("See you at the station at ten. Bring an umbrella!");
    TestScreen::shot("message-form");
    list(form())->lineEdit()->clear();
    click(Qt::Key_Context4);
    TestScreen::shot("message-missing");
    dismissToast();
    click(Qt::Key_Escape);

    send("004912345678901", QString::fromUtf8("Где ты?"));
    send("0101234", QString::fromUtf8("안녕하세요"));
    send("+49100", "See you at the station at ten.");
    QVERIFY(open());
    TestScreen::shot("messages");
    send("100", "Yes");
    QVERIFY(open());
    TestScreen::shot("messages-more");
}

PHONE_TEST_MAIN(MessageAppTest)
#include "tst_messageapp.moc"
