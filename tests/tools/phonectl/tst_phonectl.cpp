#include "expectation.h"
#include "fakephone.h"
#include "script.h"
#include "testcase.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QScopedPointer>
#include <QTemporaryDir>

class TestPhoneCtl : public TestCase
{
    Q_OBJECT

protected:
    void setUp() override;
    void tearDown() override;

private slots:
    void splitsLines_data();
    void splitsLines();
    void refusesLines();
    void compares_data();
    void compares();
    void reportsWhatIsThere_data();
    void reportsWhatIsThere();

    void sendsRequests_data();
    void sendsRequests();
    void expectWaits();
    void scriptStopsAtTheFirstFailure();
    void scriptIsCheckedBeforeItRuns();
    void cannotRun_data();
    void cannotRun();
    void phoneDiesMeanwhile();
    void waitsForAPhoneThatStarts();
    void savesThePicture();
    void watchesUntilThePhoneGoes();

private:
    struct Ended
    {
        int code;
        QString out;
        QString err;
    };
    void start(const QStringList &words);
    Ended end();
    Ended run(const QStringList &words);
    QString write(const QString &name, const QString &text);

    QScopedPointer<QTemporaryDir> m_home;
    QScopedPointer<FakePhone> m_phone;
    QProcess m_program;
};

static QJsonValue json(const char *text)
{
    return QJsonDocument::fromJson(text).object();
}

/// A screen as the phone describes it.
static const char Screen[] = R"json({"app": "contact", "screen": "Contact", "title": "Contacts | All (1/3)",
    "softkeys": ["Add", "", "", "Menu"], "rows": ["김철수", "Jane \"J\" Doe"], "selected": -1, "start": 6, "size": 14,
    "edit": null, "popup": {"class": "MessageBox", "message": "Delete\nall?", "rows": []}, "toast": "Saved",
    "toasts": ["Copied"]})json";

static const char QuietScreen[] = R"json({"edit": "", "popup": null, "toast": null, "toasts": ["Copied"]})json";

static const char Sent[] = R"json([{"target": "call", "command": "dial(str,int)", "args": ["0301", 2]},
    {"target": "XCID", "command": "ui2http(str)", "args": []}])json";

void TestPhoneCtl::setUp()
{
    m_home.reset(new QTemporaryDir);
    m_phone.reset(new FakePhone);
    QVERIFY(m_phone->start(m_home->path()));
}

void TestPhoneCtl::tearDown()
{
    m_phone.reset();
    m_home.reset();
}

void TestPhoneCtl::start(const QStringList &words)
{
    m_program.start(QCoreApplication::applicationDirPath() + "/../bin/phonectl",
                    QStringList{"--home", m_home->path()} + words);
}

TestPhoneCtl::Ended TestPhoneCtl::end()
{
    if (!QTest::qWaitFor([this] { return m_program.state() == QProcess::NotRunning; }, 20000))
        m_program.kill();
    return {m_program.exitStatus() == QProcess::NormalExit ? m_program.exitCode() : -1,
            QString::fromUtf8(m_program.readAllStandardOutput()),
            QString::fromUtf8(m_program.readAllStandardError())};
}

TestPhoneCtl::Ended TestPhoneCtl::run(const QStringList &words)
{
    start(words);
    return end();
}

QString TestPhoneCtl::write(const QString &name, const QString &text)
{
    QFile file(m_home->filePath(name));
    if (file.open(QIODevice::WriteOnly))
        file.write(text.toUtf8());
    return file.fileName();
}

void TestPhoneCtl::splitsLines_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QStringList>("words");
    QTest::newRow("blanks") << "  key  Up\tDown \r\n" << QStringList{"key", "Up", "Down"};
    QTest::newRow("comment") << "key Up # go up" << QStringList{"key", "Up"};
    QTest::newRow("only a comment") << "# 'open" << QStringList();
    QTest::newRow("# inside a word") << "text a#b '#'" << QStringList{"text", "a#b", "#"};
    QTest::newRow("double quotes") << R"(text "a \"b\" \\ \n 'c'")" << QStringList{"text", R"(a "b" \ \n 'c')"};
    QTest::newRow("single quotes") << R"(text 'a "b" \')" << QStringList{"text", R"(a "b" \)"};
    QTest::newRow("lines") << R"(text $'a\nb\'\t\\\x' a$'b')" << QStringList{"text", "a\nb'\t\\\\x", "ab"};
    QTest::newRow("pieces") << R"(a"b c"'d'\ \"e $1)" << QStringList{"ab cd \"e", "$1"};
    QTest::newRow("empty words") << "softkeys '' \"\" $''" << QStringList{"softkeys", "", "", ""};
}

void TestPhoneCtl::splitsLines()
{
    QFETCH(QString, line);
    QStringList words;
    QCOMPARE(Script::split(line, &words), QString());
    QTEST(words, "words");
}

void TestPhoneCtl::refusesLines()
{
    QStringList words;
    for (const char *line : {"text 'a", "text \"a\\\"", "text $'a\\'", "text a\\"})
        QVERIFY2(!Script::split(line, &words).isEmpty(), line);
}

void TestPhoneCtl::compares_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<bool>("holds");
    const auto row = [](const QStringList &words, bool holds) {
        QTest::newRow(qPrintable(words.join(' '))) << words << holds;
    };
    row({"app", "contact"}, true);
    row({"app", "idle"}, false);
    row({"title", "Contacts | All (1/3)"}, true);
    row({"softkeys", "Add", "", "", "Menu"}, true);
    row({"softkeys", "Add", "", "", ""}, false);
    row({"rows", "김철수", "Jane \"J\" Doe"}, true);
    row({"rows", "김철수"}, false);
    row({"rows"}, false);
    row({"popup-rows"}, true);
    row({"row", "0", "김철수"}, true);
    row({"row", "2", ""}, false);
    row({"row", "-1", ""}, false);
    row({"selected", "-1"}, true);
    row({"start", "0"}, false);
    row({"size", "14"}, true);
    row({"edit", ""}, false);
    row({"popup", "MessageBox"}, true);
    row({"message", "Delete\nall?"}, true);
    row({"toast", "Copied"}, true);
    row({"toast", "Saved"}, true);
    row({"toast", "Gone"}, false);
    row({"no", "popup"}, false);
    row({"no", "toast"}, false);
    row({"sent", "call", "dial(str,int)"}, true);
    row({"sent", "call", "dial(str,int)", "0301"}, true);
    row({"sent", "call", "dial(str,int)", "0301", "2"}, true);
    row({"sent", "call", "dial(str,int)", "0301", "2", ""}, false);
    row({"sent", "call", "dial(str,int)", "2"}, false);
    row({"sent", "cm", "dial(str,int)"}, false);
    row({"no", "sent", "call", "dial(str,int)"}, false);
    row({"no", "sent", "XCID", "dial(str,int)"}, true);
}

void TestPhoneCtl::compares()
{
    QFETCH(QStringList, words);
    Expectation expectation;
    QCOMPARE(expectation.parse(words), QString());
    const bool isMessage = words.contains("sent");
    QCOMPARE(expectation.request(), QString(isMessage ? "peek-sent" : "screen"));
    QTEST(expectation.holds(isMessage ? QJsonValue(QJsonDocument::fromJson(Sent).array()) : json(Screen)), "holds");
}

void TestPhoneCtl::reportsWhatIsThere_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QByteArray>("screen");
    QTest::addColumn<QString>("report");
    const auto row = [](const QStringList &words, const char *screen, const char *report) {
        QTest::newRow(qPrintable(words.join(' '))) << words << QByteArray(screen) << QString::fromUtf8(report);
    };
    row({"title", "Menu"}, Screen, R"=(title "Menu", found "Contacts | All (1/3)")=");
    row({"selected", "3"}, Screen, "selected 3, found -1");
    row({"row", "1", "Jo"}, Screen, R"(row 1 "Jo", found "Jane \"J\" Doe")");
    row({"row", "7", "Jo"}, Screen, R"(row 7 "Jo", found nothing)");
    row({"rows"}, Screen, R"(rows (none), found "김철수" "Jane \"J\" Doe")");
    row({"toast", "Gone"}, Screen, R"(toast "Gone", found "Copied" "Saved")");
    row({"popup", "Toast"}, QuietScreen, R"(popup "Toast", found nothing)");
    row({"edit", "x"}, QuietScreen, R"(edit "x", found "")");
    row({"no", "toast"}, Screen, R"(no toast, found "Saved")");
}

void TestPhoneCtl::reportsWhatIsThere()
{
    QFETCH(QStringList, words);
    QFETCH(QByteArray, screen);
    Expectation expectation;
    QCOMPARE(expectation.parse(words), QString());
    QVERIFY(!expectation.holds(json(screen)));
    QTEST(expectation.wanted() + ", found " + expectation.found(json(screen)), "report");
}

void TestPhoneCtl::sendsRequests_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QStringList>("requests");
    QTest::newRow("key") << QStringList{"key", "Soft1", "Up"}
                         << QStringList{"press Soft1", "release Soft1", "press Up", "release Up"};
    QTest::newRow("hold") << QStringList{"hold", "Ok", "30"} << QStringList{"press Ok", "release Ok"};
    QTest::newRow("text") << QStringList{"text", "김", "철수"} << QStringList{"text 김 철수"};
    QTest::newRow("send") << QStringList{"send", "contact", "viewContact(str)", "-1"}
                          << QStringList{"send contact viewContact(str) -1"};
}

void TestPhoneCtl::sendsRequests()
{
    QFETCH(QStringList, words);
    const Ended ended = run(words);
    QCOMPARE(ended.err, QString());
    QCOMPARE(ended.code, 0);
    QTEST(m_phone->requests(), "requests");
}

void TestPhoneCtl::expectWaits()
{
    m_phone->setAnswers("screen", {json(QuietScreen), json(QuietScreen), json(Screen)});
    QCOMPARE(run({"expect", "title", "Contacts | All (1/3)"}).code, 0);
    QCOMPARE(m_phone->requests().size(), 3);
}

void TestPhoneCtl::scriptStopsAtTheFirstFailure()
{
    m_phone->setAnswers("screen", {json(Screen)});
    const QString script = write("a.keys", "# opens nothing\nkey Up\n\nexpect title 'Menu'\nkey Down\n");
    Ended ended = run({"run", script});
    QCOMPARE(ended.code, 1);
    QCOMPARE(ended.err, script + ":4: expected title \"Menu\", found \"Contacts | All (1/3)\"\n");
    QVERIFY(!m_phone->requests().contains("press Down"));

    m_phone->setRefusal("launch", "no such application");
    ended = run({"run", write("b.keys", "launch what")});
    QCOMPARE(ended.code, 1);
    QVERIFY2(ended.err.endsWith("b.keys:1: no such application\n"), qPrintable(ended.err));
}

void TestPhoneCtl::scriptIsCheckedBeforeItRuns()
{
    for (const char *line : {"expect tittle x", "sleep soon", "watch", "keys Up", "text 'open"}) {
        const Ended ended = run({"run", write("a.keys", "key Up\n" + QString(line))});
        QCOMPARE(ended.code, 2);
        QVERIFY2(ended.err.contains("a.keys:2: "), qPrintable(ended.err));
    }
    QCOMPARE(m_phone->requests(), QStringList());
}

void TestPhoneCtl::cannotRun_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::newRow("nothing") << QStringList();
    QTest::newRow("unknown") << QStringList{"jump"};
    QTest::newRow("too few") << QStringList{"hold", "Up"};
    QTest::newRow("too many") << QStringList{"press", "Up", "Down"};
    QTest::newRow("no number") << QStringList{"expect", "selected", "first"};
    QTest::newRow("no file") << QStringList{"run", "/nonexistent.keys"};
    QTest::newRow("no phone") << QStringList{"--home", "/nonexistent", "key", "Up"};
}

void TestPhoneCtl::cannotRun()
{
    QFETCH(QStringList, words);
    const Ended ended = run(words);
    QCOMPARE(ended.code, 2);
    QVERIFY2(ended.err.startsWith("phonectl: "), qPrintable(ended.err));
    QCOMPARE(m_phone->requests(), QStringList());
}

void TestPhoneCtl::phoneDiesMeanwhile()
{
    m_phone->setDeadly("release");
    const Ended ended = run({"key", "Up"});
    QCOMPARE(ended.code, 2);
    QCOMPARE(ended.err, QString("phonectl: the phone has gone\n"));
}

void TestPhoneCtl::waitsForAPhoneThatStarts()
{
    m_phone.reset(new FakePhone);
    start({"--wait", "key", "Up"});
    QVERIFY(m_program.waitForStarted());
    QTest::qWait(100);
    QVERIFY(m_phone->start(m_home->path()));
    QCOMPARE(end().code, 0);
}

void TestPhoneCtl::savesThePicture()
{
    m_phone->setAnswers("shot", {QString::fromLatin1(QByteArray("\x89PNG").toBase64())});
    QCOMPARE(run({"shot", m_home->filePath("a.png")}).code, 0);
    QFile file(m_home->filePath("a.png"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("\x89PNG"));
    QCOMPARE(run({"shot", "/nonexistent/a.png"}).code, 2);
}

void TestPhoneCtl::watchesUntilThePhoneGoes()
{
    m_phone->setAnswers("watch", {QString("UE5H")});
    start({"watch"});
    QString out;
    QVERIFY(QTest::qWaitFor([&] { return (out += m_program.readAllStandardOutput()).contains('\n'); }, 20000));
    QCOMPARE(out, QString("UE5H\n"));
    m_phone.reset();
    QCOMPARE(end().code, 2);
}

QTEST_GUILESS_MAIN(TestPhoneCtl)
#include "tst_phonectl.moc"
