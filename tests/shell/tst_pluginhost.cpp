#include "phonetest.h"
#include "pluginhost.h"
#include "pluginverification.h"

class PluginHostTest : public PhoneTest
{
    Q_OBJECT

private slots:
    void refusesWhatIsNoPlugin()
    {
        PluginHost host;
        m_phone->writeFile("text.so", "no library");
        for (const QString &path : {m_phone->home.path("text.so"), m_phone->home.path("missing.so"),
                                    QString(PHONE_PROGRAMS "/libbase.so")}) {
            expectWarning("refused: it is no plug-in");
            QVERIFY(!host.load(path));
        }
    }

    void checksTheVerificationBlock()
    {
        const QByteArray own = PHONEUI_PLUGIN_VERIFICATION_DATA;
        const auto with = [&own](const char *from, const char *to) { return QByteArray(own).replace(from, to); };
        for (const QByteArray &good : {own, with("4.8.4", "4.8.7")}) // of another patch version
            QCOMPARE(PluginHost::verificationFault(good), QString());
        for (const QByteArray &bad : {with("4.8.4", "4.7.4"), with("false", "true"), with("arm", "mips"),
                                      with("QT_PLUGIN", "QT_GARDEN"), QByteArray(), QByteArray("\x01\x02=\n==\n")})
            QVERIFY2(!PluginHost::verificationFault(bad).isEmpty(), bad.constData());
    }
};

PHONE_TEST_MAIN(PluginHostTest)
#include "tst_pluginhost.moc"
