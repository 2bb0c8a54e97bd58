#include "soundmanager.h"
#include "testcase.h"
#include "wavfile.h"

#include <QSignalSpy>
#include <QtEndian>

#include <csignal>

static constexpr int Rate = 32000; // bytes a second

static QByteArray number(quint32 value)
{
    QByteArray bytes(4, '\0');
    qToLittleEndian(value, bytes.data());
    return bytes;
}

static QByteArray chunk(const QByteArray &name, const QByteArray &content)
{
    return name + number(content.size()) + content + QByteArray(content.size() % 2, '\0');
}

static QByteArray format(quint32 byteRate)
{
    return chunk("fmt ",
                 QByteArray("\1\0\1\0", 4) + number(16000) + number(byteRate) + QByteArray("\2\0\20\0\0\0", 6));
}

static QByteArray wav(const QByteArray &chunks)
{
    return "RIFF" + number(4 + chunks.size()) + "WAVE" + chunks;
}

static QByteArray sound(int milliseconds)
{
    return chunk("data", QByteArray(Rate / 1000 * milliseconds, '\0'));
}

class SoundTest : public TestCase
{
    Q_OBJECT

    void setUp() override
    {
        qputenv("PATH", m_dir->path().toLocal8Bit() + ":/usr/bin:/bin");
        m_sounds.reset(new SoundManager);
        m_started.reset(new QSignalSpy(m_sounds.data(), &SoundManager::soundStarted));
        m_stopped.reset(new QSignalSpy(m_sounds.data(), &SoundManager::soundStopped));
    }
    void tearDown() override { m_sounds.reset(); }

private slots:
    void durations()
    {
        const QByteArray title = chunk("LIST", "odd");
        const QByteArray openData = "data" + number(0xFFFFFFFFu) + QByteArray(Rate, '\0');
        const QList<std::tuple<const char *, QByteArray, int>> files = {
            {"chunks around", wav(title + format(Rate) + title + sound(250) + title), 250},
            {"streamed", wav(format(Rate) + openData), 1000},
            {"cut off", wav(format(Rate) + sound(250)).chopped(Rate / 10), 150},
            {"nothing in it", wav(format(Rate) + sound(0)), 0},
            {"a day is the most", wav(format(1) + sound(10000)), 24 * 60 * 60 * 1000},
            {"another RIFF", wav(format(Rate) + sound(250)).replace("WAVE", "AVI "), -1},
            {"no format", wav(sound(250)), -1},
            {"no speed", wav(format(0) + sound(250)), -1},
            {"short format", wav(chunk("fmt ", "\1\0\1\0") + sound(250)), -1},
            {"chunk beyond the end", wav(format(Rate) + "LIST" + number(0xFFFFFFF0u) + sound(250)), -1},
            {"endless chunks", wav(format(Rate) + chunk("junk", {}).repeated(1000) + sound(250)), -1},
        };
        for (const auto &[name, content, milliseconds] : files)
            QVERIFY2(wavDuration(writeFile(m_dir->filePath("a.wav"), content)) == milliseconds, name);
        for (const char *path : {"missing.wav", "/tmp", "/dev/zero", ""})
            QCOMPARE(wavDuration(path), -1);
    }

    void holdsForItsLength()
    {
        // A player that cannot play does not end the sound.
        makePlayer("echo 'no sound card' >&2; exit 1");
        const QString path = makeSound("a.wav", 300);
        m_sounds->playSound(path, false, "RING");
        QCOMPARE(m_started->takeFirst(), QVariantList({path, "RING"}));
        QTRY_COMPARE(played().size(), 1);
        QVERIFY(played().first().endsWith(path.toLocal8Bit()));
        QVERIFY(m_stopped->isEmpty() && m_sounds->playing() == path);
        QTRY_VERIFY(m_sounds->playing().isEmpty());
        m_sounds->stopSound(false);
        QCOMPARE(m_stopped->size(), 1);
        // One that repeats goes on until it is stopped.
        m_sounds->playSound(makeSound("b.wav", 20), true, "RING");
        QTRY_VERIFY(played().size() >= 4);
        QCOMPARE(m_started->size() + m_stopped->size(), 2);
    }

    void theNextSoundEndsTheLast()
    {
        makePlayer("exec sleep 100");
        const QString second = makeSound("b.wav", 60000);
        m_sounds->playSound(makeSound("a.wav", 60000), false, "RING");
        QTRY_COMPARE(played().size(), 1);
        m_sounds->playSound(second, false, "RING");
        QCOMPARE(m_stopped->size(), 1);
        QCOMPARE(m_sounds->playing(), second);
        QTRY_COMPARE(played().size(), 2);
        QTRY_VERIFY(!isRunning(played().first()));
        QVERIFY(isRunning(played().last()));
        m_sounds->playSound("missing.wav", true, "RING"); // what cannot be played is silence
        QTRY_VERIFY(!isRunning(played().last()));
        QVERIFY(m_sounds->playing().isEmpty());
        QCOMPARE(m_started->size(), 2);
        m_sounds->playSound(second, true, "RING");
        QTRY_COMPARE(played().size(), 3);
        m_sounds.reset(); // the phone ends in the middle of a tone
        QVERIFY(!isRunning(played().last()));
    }

private:
    QString makeSound(const QString &name, int milliseconds)
    {
        return writeFile(m_dir->filePath(name), wav(format(Rate) + sound(milliseconds)));
    }
    /// A player that notes its process and its file, one line each time, and goes on with `rest`.
    void makePlayer(const QByteArray &rest)
    {
        const QString path
            = writeFile(m_dir->filePath("aplay"),
                        "#!/bin/sh\nshift 2\necho $$ $1 >>\"$(dirname \"$0\")/played\"\n" + rest + "\n");
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    QList<QByteArray> played()
    {
        const QByteArray lines = readFile(m_dir->filePath("played")).trimmed();
        return lines.isEmpty() ? QList<QByteArray>() : lines.split('\n');
    }
    static bool isRunning(const QByteArray &line) { return kill(line.split(' ').first().toInt(), 0) == 0; }

    QScopedPointer<SoundManager> m_sounds;
    QScopedPointer<QSignalSpy> m_started, m_stopped;
};

QTEST_GUILESS_MAIN(SoundTest)
#include "tst_sound.moc"
