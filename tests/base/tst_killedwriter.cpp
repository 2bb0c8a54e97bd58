// A writer killed at any moment: what it acknowledged is there, what it did not is there as a whole or not at all.

#include "contactmanager.h"
#include "testcase.h"

#include <QCoreApplication>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QThread>

#include <cstdio>

namespace {

enum Operation { Save, DeleteOldest, DeleteAll };

/// The same row of operations for the writer and for who looks at what is left.
Operation operationAt(int step)
{
    if (step % 12 == 11)
        return DeleteAll;
    return step % 3 == 2 ? DeleteOldest : Save;
}

ContactData contactAt(int step)
{
    ContactData contact;
    contact.name = QString("Person %1").arg(step);
    contact.setNumbers({QString::number(1000 + step), QString::number(2000 + step)},
                       {ContactData::Mobile, ContactData::Fax});
    contact.memo = QString(200, QChar('m'));
    return contact;
}

/// Runs the operations one after the other and tells each that the store has acknowledged.
int write(const QString &database)
{
    ContactManager store(database);
    for (int step = 0; step < 10000; ++step) {
        int done = 0;
        switch (operationAt(step)) {
        case Save: done = store.saveContact(contactAt(step), false); break;
        case DeleteOldest:
            done = store.deleteContact(store.getAllContacts().value(0).id, ContactData::LocalContact);
            break;
        case DeleteAll: done = store.deleteAllContacts(); break;
        }
        if (!done)
            return 1;
        std::printf("%d\n", step);
        std::fflush(stdout);
    }
    return 0;
}

/// The names that stand in the store after so many operations.
QStringList namesAfter(int steps)
{
    QStringList names;
    for (int step = 0; step < steps; ++step) {
        switch (operationAt(step)) {
        case Save: names.append(contactAt(step).name); break;
        case DeleteOldest: names.removeFirst(); break;
        case DeleteAll: names.clear(); break;
        }
    }
    return names;
}

}

class KilledWriterTest : public TestCase
{
    Q_OBJECT

private slots:
    void leavesTheOldOrTheNewState();
};

void KilledWriterTest::leavesTheOldOrTheNewState()
{
    QRandomGenerator random(20);
    for (int round = 0; round < 100; ++round) {
        const QTemporaryDir folder;
        const QString database = folder.filePath("contacts.db");
        QProcess writer;
        writer.start(QCoreApplication::applicationFilePath(), {"--write", database});
        QVERIFY(writer.waitForReadyRead(10000));
        QThread::usleep(random.bounded(12000U));
        writer.kill();
        QVERIFY(writer.waitForFinished());
        const QByteArray acknowledged = writer.readAllStandardOutput();
        const int steps = acknowledged.left(acknowledged.lastIndexOf('\n')).split('\n').last().toInt() + 1;

        const ContactManager store(database);
        QVERIFY(store.isOpen());
        QStringList names;
        const QList<ContactData> contacts = store.getAllContacts();
        for (const ContactData &contact : contacts) {
            names.append(contact.name);
            QVERIFY(!contact.telnum1.isEmpty() && !contact.telnum2.isEmpty());
            QCOMPARE(store.getGroupIdsOfMember(contact.id), QList<int>{1});
        }
        QVERIFY2(
            names == namesAfter(steps) || names == namesAfter(steps + 1),
            qPrintable(QString("round %1 after %2 operations: %3").arg(round).arg(steps).arg(names.join(", "))));
    }
}

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == "--write")
        return write(arguments.value(2));
    KilledWriterTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_killedwriter.moc"
