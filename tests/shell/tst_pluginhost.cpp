#include "baseappinterface.h"
#include "pluginhost.h"
#include "pluginverification.h"
#include "testcase.h"
#include "testmain.h"
#include "testphone.h"

#include <QFile>

class PluginHostTest : public TestCase
{
    Q_OBJECT

private slots:
    void loadsTheContactApplication();
    void refusesWhatIsNoPlugin();
    void checksTheVerificationBlock_data();
    void checksTheVerificationBlock();
};

void PluginHostTest::loadsTheContactApplication()
{
    TestPhone phone;
    PluginHost host;
    BaseAppInterface *app = host.load(PHONE_PROGRAMS "/contact.so");
    QVERIFY(app);
    QCOMPARE(app->appName(), QString("contact"));
    QCOMPARE(phone.core.getAppMap().value("contact"), app);

    auto *object = dynamic_cast<QObject *>(app);
    QVERIFY(object);
    QVERIFY(object->qt_metacast("Contact"));
    QVERIFY(object->qt_metacast("BaseAppInterface"));
    QCOMPARE(object->qt_metacast(BaseAppInterface_iid), static_cast<void *>(app));
    QVERIFY(!object->qt_metacast("SomethingElse"));
    // The plug-in gives the same object as long as it lives, and a new one after that.
    QCOMPARE(host.load(PHONE_PROGRAMS "/contact.so"), app);
    host.unload();
    QVERIFY(phone.core.getAppMap().isEmpty());
    QVERIFY(host.load(PHONE_PROGRAMS "/contact.so"));
}

void PluginHostTest::refusesWhatIsNoPlugin()
{
    PluginHost host;
    const QTemporaryDir folder;
    QFile file(folder.filePath("text.so"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("no library");
    file.close();
    for (const QString &path :
         {file.fileName(), folder.filePath("missing.so"), QString(PHONE_PROGRAMS "/libbase.so")}) {
        expectWarning("refused: it is no plug-in");
        QVERIFY(!host.load(path));
    }
}

void PluginHostTest::checksTheVerificationBlock_data()
{
    QTest::addColumn<QByteArray>("block");
    QTest::addColumn<bool>("good");
    const QByteArray own = PHONEUI_PLUGIN_VERIFICATION_DATA;
    const auto with = [&own](const char *from, const char *to) { return QByteArray(own).replace(from, to); };
    QTest::newRow("as built") << own << true;
    QTest::newRow("another patch version") << with("4.8.4", "4.8.7") << true;
    QTest::newRow("another minor version") << with("4.8.4", "4.7.4") << false;
    QTest::newRow("a debug build") << with("false", "true") << false;
    QTest::newRow("another machine") << with("arm", "mips") << false;
    QTest::newRow("another pattern") << with("QT_PLUGIN", "QT_GARDEN") << false;
    QTest::newRow("nothing") << QByteArray() << false;
    QTest::newRow("garbage") << QByteArray("\x01\x02=\n==\n") << false;
}

void PluginHostTest::checksTheVerificationBlock()
{
    QFETCH(QByteArray, block);
    QTEST(PluginHost::verificationFault(block).isEmpty(), "good");
}

PHONE_TEST_MAIN(PluginHostTest)
#include "tst_pluginhost.moc"
