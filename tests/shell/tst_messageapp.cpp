#include "apps/message/messageapp.h"
#include "apps/message/messageform.h"
#include "listviewlineedititem.h"
#include "listviewsubtitleitem.h"
#include "neighbourtest.h"
#include "toast.h"

#include <QLineEdit>

using namespace PhoneKeys;

/// Messages: the form, what was sent, and what other applications ask for.
class MessageAppTest : public NeighbourTest<MessageApp>
{
    Q_OBJECT

private slots:
    void writesAndSends()
    {
        m_phone->addContact("Anna", {"100", "200"});
        QVERIFY(start());
        click(Qt::Key_Context1);
        QVERIFY(formIsOpen());
        QCOMPARE(m_phone->core.getIMEStatus(), IMENumeric);
        type("()");
        toText();
        QCOMPARE(m_phone->core.getIMEStatus(), IMESmall);
        type("Hello");
        press(Qt::Key_Context3);
        QTRY_COMPARE(text(), QString()); // while it is held
        release(Qt::Key_Context3);
        sendForm("Enter a number");
        QCOMPARE(list(form())->selectedIdx(), 0);
        type("2-00");
        QCOMPARE(list(form())->item(2)->text(), QString("Anna"));
        toText();
        type("  ");
        sendForm("Enter a text");
        type("Hello, are you there?");
        TestScreen::shot("message-form");
        click(Qt::Key_Context4);
        QCOMPARE(toast(), QString("Sent"));
        TestScreen::shot("message-sent");
        QTRY_VERIFY(app()->isActiveWindow()); // the toast goes by itself, and the form with it
        QCOMPARE(rows(), QStringList{"Anna"});
        TestScreen::shot("messages");
        QCOMPARE(static_cast<ListViewSubTitleItem *>(list()->item(0))->subTitle(0)->text(),
                 QString("  Hello, are you there?"));
    }

    void sendsAgainAndDeletes()
    {
        for (const char *number : {"100", "200", "300"}) {
            QVERIFY(openNew(number));
            type("Hello");
            sendForm("Sent");
            QVERIFY(!app()->isVisible()); // what another application asks for ends as a whole
        }
        QVERIFY(start());
        clickAll({Qt::Key_Up, Qt::Key_Return}); // around to the last
        QVERIFY(formIsOpen());
        QCOMPARE(receiver() + text(), QString("100Hello"));
        sendForm("Sent");
        QVERIFY(isOpen(app()));
        QStringList left{"100", "300", "200", "100"};
        QCOMPARE(rows(), left);
        click(Qt::Key_Up);
        while (!left.isEmpty()) {
            click(Qt::Key_Context3);
            left.removeLast();
            QCOMPARE(rows(), left);
        }
        QCOMPARE(softKeys(), QStringList({"New", "", "", "Close"}));
        remake();
        QCOMPARE(rows(), QStringList());
    }

    void senselessMessages()
    {
        receiveSenseless({"setReceiver(str)", "unknown(str)", "newMessage"});
        QVERIFY(!form()->isVisible());
        for (const QByteArray &payload : senselessPayloads()) {
            sendRaw("message", "newMessage(str)", payload);
            QVERIFY(formIsOpen());
            QCOMPARE(ContactData::bareNumber(receiver()), QString());
        }
        receive("newMessage(str)", {QString(100000, '7')});
        QCOMPARE(receiver().size(), 32);
    }

private:
    MessageForm *form() { return app()->findChild<MessageForm *>(); }
    bool formIsOpen() { return isOpen(form()); }
    QString field(int row) { return static_cast<ListViewLineEditItem *>(list(form())->item(row))->editText(); }
    /// What stands in the form.
    QString receiver() { return field(0); }
    QString text() { return field(1); }
    QString toast()
    {
        const auto *shown = form()->findChild<Toast *>();
        return shown && shown->isVisible() ? shown->message() : QString();
    }
    bool openNew(const QString &number)
    {
        receive("newMessage(str)", {number});
        return formIsOpen();
    }
    void toText()
    {
        click(Qt::Key_Down);
        settle();
    }
    /// Sends with the soft key, or is told what is missing; any key sends the toast away.
    void sendForm(const QString &answer)
    {
        click(Qt::Key_Context4);
        QCOMPARE(toast(), answer);
        click(Qt::Key_Context4);
        settle();
        QCOMPARE(toast(), QString());
        QCOMPARE(form()->isVisible(), answer != "Sent");
    }
};

PHONE_TEST_MAIN(MessageAppTest)
#include "tst_messageapp.moc"
