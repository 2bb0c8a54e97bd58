#include "phonetest.h"
#include "ringtones.h"
#include "soundmanager.h"
#include "testmain.h"

/// The phone's own ring tones in its home, and what it says about playing them.
class RingTonesTest : public PhoneTest
{
    Q_OBJECT

private slots:
    void lieInANewHome()
    {
        installRingTones(m_phone->home);
        QCOMPARE(tones().size(), 7);
        const QFileInfo first = tones().first();
        // This is how forms build the path of the phone's own tone from its name.
        QCOMPARE(first.filePath(), m_phone->core.ringtonePath() + "/basicring/" + first.baseName() + ".wav");
        SoundManager *sounds = m_phone->core.soundManager();
        sounds->playSound(first.filePath(), false, "RING");
        sounds->stopSound(false);
        sounds->playSound("missing.wav", false, "RING");
        QCOMPARE(sent(), QStringList({"sound play(str,str) " + first.filePath() + " RING", "sound stop()"}));
        // One that its owner has removed stays away, but for a phone without any.
        QVERIFY(QFile::remove(first.filePath()));
        installRingTones(m_phone->home);
        QCOMPARE(tones().size(), 6);
        for (const QFileInfo &file : tones())
            QVERIFY(QFile::remove(file.filePath()));
        installRingTones(m_phone->home);
        QCOMPARE(tones().size(), 7);
    }

private:
    QList<QFileInfo> tones()
    {
        QList<QFileInfo> files;
        m_phone->core.soundManager()->addRingDir(files, m_phone->core.ringtonePath(), "*ring*");
        return files;
    }
};

PHONE_TEST_MAIN(RingTonesTest)
#include "tst_ringtones.moc"
