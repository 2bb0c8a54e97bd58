// The contact store under a writer that is killed at any moment: what it acknowledged is there, nothing is half
// there.

#include "contactmanager.h"
#include "people.h"
#include "testcase.h"

#include <QCoreApplication>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QThread>

#include <cstdio>

// The same row of operations for the writer and for who looks at what is left of it.
enum Operation { Save, DeleteOldest, DeleteAll };

static Operation operationAt(int step)
{
    return step % 12 == 11 ? DeleteAll : step % 3 == 2 ? DeleteOldest : Save;
}

/// In the order of age and of names alike.
static QString nameAt(int step)
{
    return QStringLiteral("Person %1").arg(step, 6, 10, QChar('0'));
}

/// Runs the operations one after the other and tells each that the store has acknowledged.
static int write(const QString &database)
{
    ContactManager store(database);
    for (int step = 0; step < 10000; ++step) {
        const int oldest = store.getAllContacts().value(0).id;
        const Operation operation = operationAt(step);
        const int done = operation == Save ? store.saveContact(person(nameAt(step), {"1", "2"}, 200), false)
            : operation == DeleteOldest    ? store.deleteContact(oldest, ContactData::LocalContact)
                                           : store.deleteAllContacts();
        if (!done)
            return 1;
        std::printf("%d\n", step);
        std::fflush(stdout);
    }
    return 0;
}

static QStringList namesAfter(int steps)
{
    QStringList names;
    for (int step = 0; step < steps; ++step) {
        if (operationAt(step) == Save)
            names.append(nameAt(step));
        else
            names = operationAt(step) == DeleteOldest ? names.mid(1) : QStringList();
    }
    return names;
}

class KilledWriterTest : public TestCase
{
    Q_OBJECT

private slots:
    void aHundredTimes()
    {
        QRandomGenerator random(20);
        for (int round = 0; round < 100; ++round) {
            const QTemporaryDir folder;
            const QString path = folder.filePath("contacts.db");
            QProcess writer;
            writer.start(QCoreApplication::applicationFilePath(), {"--write", path});
            QVERIFY(writer.waitForReadyRead(10000));
            QThread::usleep(random.bounded(12000U));
            writer.kill();
            QVERIFY(writer.waitForFinished());
            const QByteArray acknowledged = writer.readAllStandardOutput();
            const int steps = acknowledged.left(acknowledged.lastIndexOf('\n')).split('\n').last().toInt() + 1;

            const ContactManager store(path);
            QVERIFY(store.isOpen());
            QStringList names;
            const QList<ContactData> contacts = store.getAllContacts();
            for (const ContactData &contact : contacts) {
                names.append(contact.name);
                QVERIFY(!contact.telnum1.isEmpty() && !contact.telnum2.isEmpty());
                QCOMPARE(store.getGroupIdsOfMember(contact.id), QList<int>{1});
            }
            QVERIFY2(names == namesAfter(steps) || names == namesAfter(steps + 1),
                     qPrintable(QString("%1 operations: %2").arg(steps).arg(names.join(", "))));
        }
    }
};

int main(int argc, char **argv)
{
    const QCoreApplication app(argc, argv);
    if (argc == 3 && qstrcmp(argv[1], "--write") == 0)
        return write(argv[2]);
    KilledWriterTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_killedwriter.moc"
