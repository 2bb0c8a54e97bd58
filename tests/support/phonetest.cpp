#include "phonetest.h"

#include "phonekey.h"
#include "tail.h"

#include <QJsonObject>

void PhoneTest::setUp()
{
    m_phone.reset(new TestPhone);
    m_log.reset(new MessageLog);
}

void PhoneTest::tearDown()
{
    m_screen.reset();
    m_log.reset();
    m_phone.reset();
}

void PhoneTest::settle()
{
    QTest::qWait(5);
    QCoreApplication::processEvents();
}

void PhoneTest::type(const QString &text)
{
    PhoneKey::postText(text);
    QVERIFY(QTest::qWaitFor([] { return !PhoneKey::pending(); }));
    settle();
}

void PhoneTest::send(const QString &app, const QString &command, const QVariantList &items)
{
    m_phone->send(app, command, items);
    QCoreApplication::processEvents();
}

void PhoneTest::sendRaw(const QString &app, const QString &command, const QByteArray &payload)
{
    m_phone->core.postAppMsg(app, command, payload);
    QCoreApplication::processEvents();
}

QStringList PhoneTest::sent()
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

QList<QByteArray> PhoneTest::senselessPayloads()
{
    return {QByteArray(),
            QByteArray("\0\0", 2),
            QByteArray("\xff\xff\xff\xfe", 4), // an odd text's length, and a null text's
            QByteArray("\xff\xff\xff\xff", 4),
            QByteArray("\x7f\xff\xff\xf0", 4) + QByteArray(64, 'x'),
            QByteArray("\0\0\0\3", 4) + "abc",
            QByteArray(1000, '\xff')};
}

ListView *PhoneTest::list(const QWidget *screen) const
{
    return (screen ? screen : m_screen.get())->findChild<ListView *>(QString(), Qt::FindDirectChildrenOnly);
}

QStringList PhoneTest::rows(const QWidget *screen) const
{
    QStringList texts;
    for (int i = 0; i < list(screen)->itemSize(); ++i)
        texts.append(list(screen)->item(i)->text());
    return texts;
}

QStringList PhoneTest::softKeys(const QWidget *screen) const
{
    auto *tail = (screen ? screen : m_screen.get())->findChild<Tail *>(QString(), Qt::FindDirectChildrenOnly);
    QStringList texts;
    for (int i = 0; i < Tail::ButtonCount; ++i)
        texts.append(tail->funcButtonText(i));
    return texts;
}
