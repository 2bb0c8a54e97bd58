#include "phonetest.h"
#include "ringtones.h"
#include "soundmanager.h"
#include "testmain.h"

#include <QDir>

/// The phone's own ring tones in its home, and what it says about playing them.
class RingTonesTest : public PhoneTest
{
    Q_OBJECT

private slots:
    void lieInANewHome();
    void aRemovedToneStaysAway();

private:
    QList<QFileInfo> tones()
    {
        QList<QFileInfo> files;
        m_phone->core.soundManager()->addRingDir(files, m_phone->core.ringtonePath(), "*ring*");
        return files;
    }
};

void RingTonesTest::lieInANewHome()
{
    QVERIFY(tones().isEmpty());
    installRingTones(m_phone->home);
    const QList<QFileInfo> files = tones();
    QCOMPARE(files.size(), 7);
    SoundManager *sounds = m_phone->core.soundManager();
    for (const QFileInfo &file : files) {
        // This is how forms build the path of the phone's own tone from its name.
        QCOMPARE(file.filePath(), m_phone->core.ringtonePath() + "/basicring/" + file.baseName() + ".wav");
        QVERIFY(file.isWritable());
        sounds->playSound(file.filePath(), false, "RING");
        sounds->stopSound(false);
        QCOMPARE(sent(), QStringList({"sound play(str,str) " + file.filePath() + " RING", "sound stop()"}));
    }
    sounds->playSound("missing.wav", false, "RING");
    QCOMPARE(sent(), QStringList());
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

PHONE_TEST_MAIN(RingTonesTest)
#include "tst_ringtones.moc"
