#include "messagelog.h"
#include "ringtones.h"
#include "soundmanager.h"
#include "testcase.h"
#include "testmain.h"
#include "testphone.h"

#include <QDir>
#include <QJsonObject>

#include <memory>

/// The phone's own ring tones in its home, and what it says about playing them.
class RingTonesTest : public TestCase
{
    Q_OBJECT

    void setUp() override { m_phone.reset(new TestPhone); }
    void tearDown() override { m_phone.reset(); }

private slots:
    void lieInANewHome();
    void aRemovedToneStaysAway();
    void standInTheLog();

private:
    QList<QFileInfo> tones()
    {
        QList<QFileInfo> files;
        m_phone->core.soundManager()->addRingDir(files, m_phone->core.ringtonePath(), "*ring*");
        return files;
    }

    std::unique_ptr<TestPhone> m_phone;
};

void RingTonesTest::lieInANewHome()
{
    QVERIFY(tones().isEmpty());
    installRingTones(m_phone->home);
    const QList<QFileInfo> files = tones();
    QCOMPARE(files.size(), 7);
    for (const QFileInfo &file : files) {
        // This is how forms build the path of the phone's own tone from its name.
        QCOMPARE(file.filePath(), m_phone->core.ringtonePath() + "/basicring/" + file.baseName() + ".wav");
        QVERIFY(file.isWritable());
        m_phone->core.soundManager()->playSound(file.filePath(), false, "RING");
        QCOMPARE(m_phone->core.soundManager()->playing(), file.filePath());
    }
}

void RingTonesTest::aRemovedToneStaysAway()
{
    installRingTones(m_phone->home);
    QVERIFY(QFile::remove(tones().first().filePath()));
    installRingTones(m_phone->home);
    QCOMPARE(tones().size(), 6);
    for (const QFileInfo &file : tones())
        QVERIFY(QFile::remove(file.filePath()));
    installRingTones(m_phone->home);
    QCOMPARE(tones().size(), 7);
}

void RingTonesTest::standInTheLog()
{
    const MessageLog log;
    installRingTones(m_phone->home);
    const QString path = tones().first().filePath();
    m_phone->core.soundManager()->playSound(path, false, "RING");
    m_phone->core.soundManager()->stopSound(false);
    m_phone->core.soundManager()->playSound("missing.wav", false, "RING");
    const QJsonArray expected
        = {QJsonObject{{"target", "sound"}, {"command", "play(str,str)"}, {"args", QJsonArray{path, "RING"}}},
           QJsonObject{{"target", "sound"}, {"command", "stop()"}, {"args", QJsonArray()}}};
    QCOMPARE(log.messages(), expected);
}

PHONE_TEST_MAIN(RingTonesTest)
#include "tst_ringtones.moc"
