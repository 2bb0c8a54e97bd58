#ifndef PHONETEST_H
#define PHONETEST_H

#include "basewidget.h"
#include "contactmanager.h"
#include "control/messagelog.h"
#include "listview.h"
#include "phonekeys.h"
#include "phonescript.h"
#include "testcase.h"
#include "testmain.h"
#include "testphone.h"

#include <memory>

/// The base of tests of screens: each test function has a phone with an empty home, what the phone sends, and one
/// screen at a time, which goes before the phone does.
class PhoneTest : public TestCase
{
    Q_OBJECT

protected:
    void setUp() override;
    void tearDown() override;

    /// Shows this screen in the place of the last one.
    template <typename Screen> Screen *open(Screen *screen)
    {
        m_screen.reset(screen);
        if (!PhoneKeys::showAndActivate(screen))
            qWarning("The screen does not become active");
        settle();
        return screen;
    }
    /// Lists move the focus a millisecond after a key.
    static void settle();
    /// Types into the focused field, as a PC keyboard does.
    static void type(const QString &text);

    /// Sends an application what another one would send it; it has come when this returns.
    void send(const QString &app, const QString &command, const QVariantList &items = {});
    void sendRaw(const QString &app, const QString &command, const QByteArray &payload);
    /// What the phone sent since the last time, one line each: target, command, arguments.
    QStringList sent();
    /// Payloads that no sender of this phone writes.
    static QList<QByteArray> senselessPayloads();

    ContactManager *store() const { return m_phone->core.contactManager(); }
    int addGroup(const QString &name) { return store()->saveGroup(GroupData(-1, name, ""), false); }

    // What a person sees, of the screen at hand or another one.
    QString title() const { return m_phone->status.title(); }
    ListView *list(const QWidget *screen = nullptr) const;
    QStringList rows(const QWidget *screen = nullptr) const;
    QStringList softKeys(const QWidget *screen = nullptr) const;

    std::unique_ptr<TestPhone> m_phone;
    std::unique_ptr<MessageLog> m_log;
    std::unique_ptr<BaseWidget> m_screen;
};

#endif
