#include "settingsfile.h"

#include "testcase.h"

#include <QDir>
#include <QSettings>

/// Small files of settings: what is kept comes back, here and in QSettings, and nothing that lies there does harm.
class SettingsFileTest : public TestCase
{
    Q_OBJECT

private slots:
    void keepsTexts()
    {
        for (const QString text :
             {"", "plain", "two words", " blanks ", "a,b", "\"quoted\"", "back\\slash", "@Variant(\x7f)", "a;b=c",
              "line\nend\r\t", "Zo\u00eb1\u0131", "\uae40\ucca0\uc218 a1", "\U0001f4de", "100%"}) {
            for (const QString key : {"Plain/Key", "Keys/1/Name", "alone", "A b/\u00fc,\uae40"}) {
                SettingsFile file(path());
                file.set(key, text);
                file.set("Other/Key", "kept");
                QVERIFY(file.save());
                QCOMPARE(SettingsFile(path()).value(key, "missing"), text);
                QCOMPARE(QSettings(path(), QSettings::IniFormat).value(key).toString(), text);
            }
        }
        QCOMPARE(SettingsFile(path()).value("Other/Key"), QString("kept"));
        QCOMPARE(QDir(m_dir->path()).entryList(QDir::Files).size(), 1);
    }

    void readsPlainTexts()
    {
        writeFile(path(),
                  "[A]\nlist=x, y\nobject=@Variant(\\0\\0\\0\\x7f\\0\\0\\0\\fQSize)\nflag=True\nnumber=12x\n");
        const SettingsFile file(path());
        QCOMPARE(file.value("A/list"), QString("x, y"));
        QVERIFY(file.value("A/object").startsWith("@Variant("));
        QVERIFY(file.flag("A/flag"));
        QCOMPARE(file.number("A/number", 7), 7);
    }

    /// A link in a folder that everybody may write to is neither followed nor written through.
    void refusesWhatOthersPut()
    {
        const QString target = m_dir->filePath("target");
        SettingsFile elsewhere(target);
        elsewhere.set("A/key", "theirs");
        QVERIFY(elsewhere.save());
        QVERIFY(QFile::link(target, path()));
        QCOMPARE(SettingsFile(path()).value("A/key"), QString("theirs"));
        expectWarning("not read: .*settings.ini");
        SettingsFile file(path(), SettingsFile::Shared);
        QVERIFY(!file.contains("A/key"));
        file.set("A/key", "ours");
        QVERIFY(file.save());
        QVERIFY(!QFileInfo(path()).isSymLink());
        QCOMPARE(SettingsFile(target).value("A/key"), QString("theirs"));

        expectWarning("cannot keep .*nowhere");
        QVERIFY(!SettingsFile(m_dir->filePath("nowhere/settings.ini")).save());
    }

private:
    QString path() const { return m_dir->filePath("settings.ini"); }
};

QTEST_GUILESS_MAIN(SettingsFileTest)
#include "tst_settingsfile.moc"
