#ifndef NEIGHBOURTEST_H
#define NEIGHBOURTEST_H

#include "apppayload.h"
#include "basewidget.h"
#include "listview.h"
#include "listviewlineedititem.h"
#include "listviewsubtitleitem.h"
#include "messagelog.h"
#include "phonekey.h"
#include "phonekeys.h"
#include "tail.h"
#include "testcase.h"
#include "testmain.h"
#include "testphone.h"

#include <QJsonObject>

#include <memory>

/// The base of the tests of the shell's small applications: a phone, an application, and what goes between them.
template <class App> class NeighbourTest : public TestCase
{
protected:
    void setUp() override
    {
        m_phone.reset(new TestPhone);
        m_log.reset(new MessageLog);
        m_app.reset(new App);
    }
    void tearDown() override
    {
        m_app.reset();
        m_log.reset();
        m_phone.reset();
    }

    /// Starts the application anew, as the phone does after a night without power.
    void remake()
    {
        m_app.reset();
        m_app.reset(new App);
    }
    bool open()
    {
        m_app->start(nullptr, nullptr);
        return isOpen(m_app.get());
    }
    static bool isOpen(QWidget *screen)
    {
        const bool active = QTest::qWaitForWindowActive(screen);
        settle();
        return active;
    }
    /// Lists move the focus a millisecond after a key.
    static void settle()
    {
        QTest::qWait(5);
        QCoreApplication::processEvents();
    }
    void receive(const QString &command, const QVariantList &items = {})
    {
        QByteArray payload;
        QString fault;
        QVERIFY2(AppPayload::encode(command, items, &payload, &fault), qPrintable(fault));
        receiveRaw(command, payload);
    }
    void receiveRaw(const QString &command, const QByteArray &payload)
    {
        m_phone->core.postAppMsg(m_app->appName(), command, payload);
        QCoreApplication::processEvents();
    }
    /// What was sent since the last time, one line each: target, command, arguments.
    QStringList sent()
    {
        QStringList lines;
        const QJsonArray messages = m_log->messages();
        for (const QJsonValue &message : messages) {
            QStringList words{message["target"].toString(), message["command"].toString()};
            const QVariantList args = message["args"].toArray().toVariantList();
            for (const QVariant &arg : args)
                words.append(arg.toString());
            lines.append(words.join(' '));
        }
        m_log->clear();
        return lines;
    }
    QString title() { return m_phone->status.title(); }

    static void type(const QString &text)
    {
        PhoneKey::postText(text);
        QVERIFY(QTest::qWaitFor([] { return !PhoneKey::pending(); }));
        settle();
    }
    static QStringList softKeys(QWidget *screen)
    {
        QStringList texts;
        for (int i = 0; i < Tail::ButtonCount; ++i)
            texts.append(screen->findChild<Tail *>(QString(), Qt::FindDirectChildrenOnly)->funcButtonText(i));
        return texts;
    }
    static ListView *list(QWidget *screen)
    {
        return screen->findChild<ListView *>(QString(), Qt::FindDirectChildrenOnly);
    }
    static QStringList rows(QWidget *screen)
    {
        QStringList texts;
        for (int i = 0; i < list(screen)->itemSize(); ++i)
            texts.append(list(screen)->item(i)->text());
        return texts;
    }
    /// A further text of a row.
    static QString piece(QWidget *screen, int row, int idx)
    {
        return static_cast<ListViewSubTitleItem *>(list(screen)->item(row))->subTitle(idx)->text();
    }

    std::unique_ptr<TestPhone> m_phone;
    std::unique_ptr<MessageLog> m_log;
    std::unique_ptr<App> m_app;
};

/// Payloads that no sender of this phone writes.
inline QList<QByteArray> senselessPayloads()
{
    return {QByteArray(),
            QByteArray("\0\0", 2),
            QByteArray("\xff\xff\xff\xfe", 4),
            QByteArray("\x7f\xff\xff\xf0", 4) + QByteArray(64, 'x'),
            QByteArray("\0\0\0\3", 4) + "abc",
            QByteArray(1000, '\xff')};
}

#endif
